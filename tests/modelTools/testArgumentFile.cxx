#include "modelTools/argumentFile.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtTest/QtTest>

#include <sys/stat.h>
#include <thread>

class TestArgumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesStandInPlaceOfTheFile()
    {
        writeBytes(file(), "-o\nout\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"a.xml", "@" + file(), "-q"})), "|a.xml|-o|out|-q");
    }

    void blanksOfALineAreKept()
    {
        writeBytes(file(), " a b.xml \n\t\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), "| a b.xml |\t");
    }

    void emptyLinesAreLeftOut()
    {
        writeBytes(file(), "\na\n\n\r\nb\n\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), "|a|b");
    }

    void lastLineNeedsNoLineFeed()
    {
        writeBytes(file(), "a\nb");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), "|a|b");
    }

    void carriageReturnIsNoPartOfALine()
    {
        writeBytes(file(), "a\r\nb\rc\r\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), "|a|b\rc");
    }

    void bytesNeedNotBeUtf8()
    {
        writeBytes(file(), "M\xe4rz.xml\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), "|M\xe4rz.xml");
    }

    void byteOrderMarkIsNoPartOfTheFirstLine()
    {
        writeBytes(file(), "\xEF\xBB\xBF-o\n\xEF\xBB\xBFout\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), "|-o|\xEF\xBB\xBFout");
        writeBytes(file(), "\xEF\xBB\xBF\r\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), "");
    }

    void pipeIsReadToo()
    {
        const std::string pipe = (myFolder.path() / "pipe").native();
        QCOMPARE(mkfifo(pipe.c_str(), 0600), 0);
        std::thread writer([pipe] { writeBytes(pipe, "-o\nout\n"); });
        const std::string read = joined(DtExpandedArguments({"@" + pipe}));
        writer.join();
        COMPARE_TEXT(read, "|-o|out");
    }

    void fileCannotNameAnother()
    {
        writeBytes(file(), "@" + file() + "\n");
        COMPARE_TEXT(joined(DtExpandedArguments({"@" + file()})), ("|@" + file()).c_str());
    }

    void emptyFileGivesNoArgument()
    {
        writeBytes(file(), "");
        COMPARE_TEXT(joined(DtExpandedArguments({"a", "@" + file(), "b"})), "|a|b");
    }

    void otherArgumentsStay()
    {
        COMPARE_TEXT(joined(DtExpandedArguments({"@", "a@b", "", "-@x"})), "|@|a@b||-@x");
        QVERIFY(DtExpandedArguments({}).empty());
    }

    void unreadableFileIsAnErrorOfUsage()
    {
        COMPARE_TEXT(failureOf([this] { DtExpandedArguments({"@" + file() + ".gone"}); }),
                     ("1: the file of arguments " + file() + ".gone cannot be read.").c_str());
    }

    void folderIsAnErrorOfUsage()
    {
        const std::string folder = myFolder.path().native();
        COMPARE_TEXT(failureOf([folder] { DtExpandedArguments({"@" + folder}); }),
                     ("1: the file of arguments " + folder + " cannot be read.").c_str());
    }

private:
    std::string file() const { return (myFolder.path() / "arguments.txt").native(); }

    DtTestFolder myFolder;
};

QX_REGISTER_TEST(TestArgumentFile)
#include "testArgumentFile.moc"
