#include "support/run_tests.h"

#include "look/style.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <map>

namespace {

std::map<QString, RegisteredTest::Run>& RegisteredTests()
{
    static std::map<QString, RegisteredTest::Run> tests;
    return tests;
}

} // namespace

RegisteredTest::RegisteredTest(const char* name, Run run)
{
    RegisteredTests().emplace(name, run);
}

/// Runs every class of tests of the program, or the one that the first argument names; the other arguments are the test
/// library's, such as the name of a function. "-classes" lists the classes.
int main(int count, char** arguments)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qunsetenv(folder);
    const QApplication application(count, arguments);
    QApplication::setStyle(new Style);
    QStringList rest = QApplication::arguments();
    const auto chosen = RegisteredTests().find(rest.value(1));
    if (chosen != RegisteredTests().end()) {
        rest.removeAt(1);
        return chosen->second(rest);
    }
    if (rest.value(1) == "-classes") {
        for (const auto& [name, run] : RegisteredTests())
            std::puts(qPrintable(name));
        return 0;
    }
    int failures = 0;
    for (const auto& [name, run] : RegisteredTests())
        failures += run(rest);
    return failures;
}
