#include "support/run_tests.h"

#include "look/style.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

RegisteredTests& AllTests()
{
    static RegisteredTests tests;
    return tests;
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
    const QString chosen = rest.value(1);
    if (AllTests().contains(chosen))
        rest.removeAt(1);
    int failures = 0;
    for (const auto& [name, run] : AllTests())
        if (chosen == "-classes")
            std::puts(qPrintable(name));
        else if (chosen == name || !AllTests().contains(chosen))
            failures += run(rest);
    return failures;
}
