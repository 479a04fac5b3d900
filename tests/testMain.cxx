// Runs the test classes named on the command line, or all of the program. What follows "--" goes to Qt Test.

#include "registerTest.h"

#include <QtTest>
#include <QtWidgets/QApplication>

#include <cstdio>

std::map<QString, DtTestMaker>& testMakers()
{
    static std::map<QString, DtTestMaker> theTestMakers;
    return theTestMakers;
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QTEST_FUNCTION_TIMEOUT", "14400000"); // ctest has a limit of its own for each class
    QApplication application(argc, argv);
    QStringList classes = QCoreApplication::arguments().mid(1);
    QStringList testArguments{QCoreApplication::arguments().first()};
    const int divider = classes.indexOf("--");
    if (divider >= 0)
    {
        testArguments += classes.mid(divider + 1);
        classes = classes.mid(0, divider);
    }
    if (classes.isEmpty())
        for (const auto& [name, make] : testMakers())
            classes += name;
    int failures = 0;
    for (const QString& name : classes)
    {
        const auto found = testMakers().find(name);
        if (found == testMakers().end())
        {
            std::fprintf(stderr, "No test class %s\n", qPrintable(name));
            return 1;
        }
        const std::unique_ptr<QObject> test = found->second();
        failures += QTest::qExec(test.get(), testArguments);
    }
    return failures == 0 ? 0 : 1;
}
