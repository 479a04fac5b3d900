#include "modelTools/outputLists.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtTest/QtTest>

class TestOutputLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsNameOutputPaths_data()
    {
        QTest::addColumn<QByteArray>("prefix");
        QTest::addColumn<QByteArray>("includePath");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("tree") << QByteArray() << QByteArray() << QByteArray("|a.cxx|b.cxx|a.h");
        QTest::newRow("classic") << QByteArray("cpp\\") << QByteArray()
                                 << QByteArray("|cpp\\a.cxx|cpp\\b.cxx|cpp\\a.h");
        QTest::newRow("tree with headers apart")
            << QByteArray() << QByteArray("inc/") << QByteArray("|a.cxx|b.cxx|inc/a.h");
        QTest::newRow("classic with headers apart")
            << QByteArray("cpp\\") << QByteArray("inc\\") << QByteArray("|cpp\\a.cxx|cpp\\b.cxx|cpp\\inc\\a.h");
    }
    void listsNameOutputPaths()
    {
        QFETCH(QByteArray, prefix);
        QFETCH(QByteArray, includePath);
        QFETCH(QByteArray, expected);
        const DtTestFolder folder;
        writeBytes(folder.path() / (prefix.toStdString() + "Files-cc.txt"), "a.cxx\n\nb.cxx\n");
        writeBytes(folder.path() / (prefix.toStdString() + "Files-h.txt"), "a.h");
        COMPARE_TEXT(joined(DtListedOutputs(folder.path(), {prefix.toStdString(), includePath.toStdString()})),
                     expected);
    }

    void outputWithoutListsHasNoListedNames()
    {
        const DtTestFolder folder;
        QVERIFY(DtListedOutputs(folder.path(), {}).empty());
    }

    void sourcesAndHeadersOfTheLibraryAreToBeListed()
    {
        const std::vector<std::string> files = {"Files-cc.txt",        "Makefile", "a.cxx",      "a.h", "a.html",
                                                "Examples/A/talk.cxx", "inc/b.h",  "Examples.h", ".h"};
        COMPARE_TEXT(joined(DtOutputsToList(files, {})), "|a.cxx|a.h|inc/b.h|Examples.h");
    }

    void filesOfOtherScriptsAreNotToBeListed()
    {
        const std::vector<std::string> files = {"a.cxx", "cpp\\Examples/A/talk.cxx", "cpp\\a.cxx", "cpp\\a.h"};
        COMPARE_TEXT(joined(DtOutputsToList(files, {"cpp\\", ""})), "|cpp\\a.cxx|cpp\\a.h");
    }
};

QX_REGISTER_TEST(TestOutputLists)
#include "testOutputLists.moc"
