#pragma once

#include <QTest>

#include <map>

/// The classes of tests of the program, by their names. TAVENOR_TEST at the end of a file adds the file's class.
using RegisteredTests = std::map<QString, int (*)(const QStringList& arguments)>;
RegisteredTests& AllTests();

#define TAVENOR_TEST(TestClass)                                                                                        \
    static const auto registered##TestClass = AllTests().emplace(#TestClass, [](const QStringList& arguments) {        \
        TestClass tests;                                                                                               \
        return QTest::qExec(&tests, arguments);                                                                        \
    });
