#pragma once

#include <QTest>

/// A class of tests that the program runs. TAVENOR_TEST at the end of a file names the file's class.
class RegisteredTest
{
public:
    using Run = int (*)(const QStringList& arguments);

    RegisteredTest(const char* name, Run run);
};

#define TAVENOR_TEST(TestClass)                                                                                        \
    static const RegisteredTest registered##TestClass(#TestClass, [](const QStringList& arguments) {                   \
        TestClass tests;                                                                                               \
        return QTest::qExec(&tests, arguments);                                                                        \
    });
