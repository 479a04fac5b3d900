#include "foundation/filePrinter.h"
#include "foundation/restored.h"
#include "foundationTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <memory>
#include <string>
#include <utime.h>
#include <vector>

class TestFilePrinter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fileExistsFromConstruction();
    void textIsWrittenWhenDestroyed();
    void textCanBeBuiltInPlace();
    void logIsWrittenThroughAtOnce();
    void logStartsEmpty();
    void missingParentDirectoriesAreMade();
    void unchangedFileKeepsItsTimeStamp();
    void oldFileBehindANewOneIsCompared();
    void linkToAMissingFileMakesIt();
    void changedFileOfTheSameLengthIsWritten();
    void shorterTextReplacesALongerOne();
    void oldContentStaysUntilDestruction();
    void printerWithoutTextEmptiesTheFile();
    void printerWithoutTextLeavesWhatAnotherWroteSince();
    void printerWithoutTextEmptiesWhatWasWrittenBefore();
    void twoPrintersUnderTwoNamesOfOneFileDoNotMix();
    void failedOpenIsNamedOnce();
    void failedWriteOfALogIsNamedOnce();
    void failedWriteIsNamedOnce();
    void manyPrintersAtOnceWriteTheirFiles();
    void fileRemovedInBetweenIsMadeAgain();
    void backslashIsAnOrdinaryCharacterOfAName();
    void nulBytesAreKept();
    void largeTextIsWrittenWhole();
    void largeTextThatIsThereKeepsItsTimeStamp();
    void largeTextStaysOutOfMemoryAndOutOfSight();
    void largeTextWhoseDirectoryIsGoneIsWrittenWhole();
    void replacedTextIsToldToTheListener();

private:
    void age(const char* name); // gives the file a time stamp of long ago
    qint64 timeOf(const char* name);

    std::unique_ptr<QTemporaryDir> myDirectory;
    std::unique_ptr<DtInDirectory> myHere;
};

void TestFilePrinter::init()
{
    myDirectory = std::make_unique<QTemporaryDir>();
    myHere = std::make_unique<DtInDirectory>(myDirectory->path());
}

void TestFilePrinter::cleanup()
{
    myHere.reset();
    myDirectory.reset();
}

void TestFilePrinter::age(const char* name)
{
    const utimbuf longAgo = {1000000, 1000000};
    QCOMPARE(utime(name, &longAgo), 0);
}

qint64 TestFilePrinter::timeOf(const char* name)
{
    return QFileInfo(name).lastModified().toSecsSinceEpoch();
}

namespace
{
void printText(DtPrinter& printer, const QByteArray& text)
{
    printer.print(text.constData(), static_cast<std::size_t>(text.size()));
}

void writeWithPrinter(const char* name, const QByteArray& text)
{
    DtFilePrinter printer(name);
    printText(printer, text);
}
} // namespace

void TestFilePrinter::fileExistsFromConstruction()
{
    const DtFilePrinter printer("a");
    QVERIFY(printer.isOpen());
    QVERIFY(QFileInfo("a").isFile());
    QCOMPARE(QFileInfo("a").size(), qint64(0));
}

void TestFilePrinter::textIsWrittenWhenDestroyed()
{
    {
        DtFilePrinter printer("a");
        printText(printer, "one ");
        printer.flush();
        printText(printer, "two\n");
        QCOMPARE(readTextFile("a"), QByteArray());
    }
    QCOMPARE(readTextFile("a"), QByteArray("one two\n"));
}

void TestFilePrinter::textCanBeBuiltInPlace()
{
    {
        DtFilePrinter printer("a");
        printer.text() += "in place";
    }
    QCOMPARE(readTextFile("a"), QByteArray("in place"));
}

void TestFilePrinter::logIsWrittenThroughAtOnce()
{
    DtFilePrinter log("log", DtFilePrinter::Mode::WriteThrough);
    printText(log, "one\n");
    QCOMPARE(readTextFile("log"), QByteArray("one\n"));
    printText(log, "two\n");
    QCOMPARE(readTextFile("log"), QByteArray("one\ntwo\n"));
}

void TestFilePrinter::logStartsEmpty()
{
    writeTextFile("log", "of the last run");
    const DtFilePrinter log("log", DtFilePrinter::Mode::WriteThrough);
    QCOMPARE(readTextFile("log"), QByteArray());
}

void TestFilePrinter::missingParentDirectoriesAreMade()
{
    writeWithPrinter("x/y/a", "text");
    QCOMPARE(readTextFile("x/y/a"), QByteArray("text"));
    const DtFilePrinter log("l/o/g", DtFilePrinter::Mode::WriteThrough);
    QVERIFY(log.isOpen());
}

void TestFilePrinter::unchangedFileKeepsItsTimeStamp()
{
    writeTextFile("a", "same");
    age("a");
    writeWithPrinter("a", "same");
    QCOMPARE(timeOf("a"), qint64(1000000));
    writeTextFile("empty", "");
    age("empty");
    writeWithPrinter("empty", "");
    QCOMPARE(timeOf("empty"), qint64(1000000));
}

void TestFilePrinter::oldFileBehindANewOneIsCompared()
{
    for (const char* name : {"same", "other", "silent"})
    {
        writeTextFile(name, "text");
        age(name);
    }
    const qint64 longAgo = timeOf("same");
    writeWithPrinter("new1", "text");
    writeWithPrinter("same", "text");
    QCOMPARE(timeOf("same"), longAgo);
    writeWithPrinter("new2", "text");
    writeWithPrinter("other", "words");
    QCOMPARE(readTextFile("other"), QByteArray("words"));
    writeWithPrinter("new3", "text");
    writeWithPrinter("silent", "");
    QCOMPARE(readTextFile("silent"), QByteArray());
    for (const char* name : {"new1", "new2", "new3"})
        QCOMPARE(readTextFile(name), QByteArray("text"));
}

void TestFilePrinter::linkToAMissingFileMakesIt()
{
    QVERIFY(QFile::link("target", "link"));
    writeWithPrinter("new", "text");
    writeWithPrinter("link", "words");
    QCOMPARE(readTextFile("target"), QByteArray("words"));
    QVERIFY(QFileInfo("link").isSymLink());
}

void TestFilePrinter::changedFileOfTheSameLengthIsWritten()
{
    writeTextFile("a", "same");
    age("a");
    writeWithPrinter("a", "Same");
    QCOMPARE(readTextFile("a"), QByteArray("Same"));
    QVERIFY(timeOf("a") > 1000000);
}

void TestFilePrinter::shorterTextReplacesALongerOne()
{
    writeTextFile("a", "a long old text");
    writeWithPrinter("a", "new");
    QCOMPARE(readTextFile("a"), QByteArray("new"));
}

void TestFilePrinter::oldContentStaysUntilDestruction()
{
    writeTextFile("a", "old");
    DtFilePrinter printer("a");
    printText(printer, "new");
    QCOMPARE(readTextFile("a"), QByteArray("old"));
}

void TestFilePrinter::printerWithoutTextEmptiesTheFile()
{
    writeTextFile("a", "old");
    writeWithPrinter("a", "");
    QVERIFY(QFileInfo::exists("a"));
    QCOMPARE(readTextFile("a"), QByteArray());
}

void TestFilePrinter::printerWithoutTextLeavesWhatAnotherWroteSince()
{
    writeTextFile("a", "old");
    {
        const DtFilePrinter silent("a");
        writeWithPrinter("a", "new");
    }
    QCOMPARE(readTextFile("a"), QByteArray("new"));
}

void TestFilePrinter::printerWithoutTextEmptiesWhatWasWrittenBefore()
{
    writeWithPrinter("a", "before");
    writeWithPrinter("a", "");
    QCOMPARE(readTextFile("a"), QByteArray());
}

void TestFilePrinter::twoPrintersUnderTwoNamesOfOneFileDoNotMix()
{
    {
        DtFilePrinter first("a");
        printText(first, "short");
        DtFilePrinter second("./a"); // destroyed first
        printText(second, "a longer text");
    }
    QCOMPARE(readTextFile("a"), QByteArray("short"));
}

void TestFilePrinter::failedOpenIsNamedOnce()
{
    QVERIFY(QDir().mkdir("directory"));
    const DtCapture capture(DtWarn);
    {
        DtFilePrinter printer("directory");
        QVERIFY(!printer.isOpen());
        printText(printer, "text");
        printText(printer, "more");
    }
    QCOMPARE(capture.text(), QString("Cannot open file directory: Is a directory\n"));
}

void TestFilePrinter::failedWriteOfALogIsNamedOnce()
{
    if (!QFileInfo::exists("/dev/full"))
        QSKIP("There is no /dev/full.");
    const DtCapture capture(DtWarn);
    DtFilePrinter log("/dev/full", DtFilePrinter::Mode::WriteThrough);
    DtWarn.attachPrinter(&log); // the report of the failure goes through the failed printer too
    printText(log, "text");
    printText(log, "more");
    DtWarn.detachPrinter(&log);
    QCOMPARE(capture.text(), QString("Cannot write file /dev/full: No space left on device\n"));
}

void TestFilePrinter::failedWriteIsNamedOnce()
{
    const DtCapture capture(DtWarn);
    {
        DtFilePrinter printer("sub/a");
        printText(printer, "text");
        QVERIFY(QDir("sub").removeRecursively());
        writeTextFile("sub", "a file in the way");
    }
    QCOMPARE(capture.text(), QString("Cannot write file sub/a: Not a directory\n"));
}

// More than stay open.
void TestFilePrinter::manyPrintersAtOnceWriteTheirFiles()
{
    constexpr int count = 300;
    {
        std::vector<std::unique_ptr<DtFilePrinter>> printers;
        for (int i = 0; i < count; ++i)
        {
            printers.push_back(std::make_unique<DtFilePrinter>(std::to_string(i).c_str()));
            printText(*printers.back(), std::to_string(i).c_str());
        }
        QVERIFY(QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size() < count);
    }
    for (int i = 0; i < count; ++i)
        QCOMPARE(readTextFile(QString::number(i)), QByteArray::number(i));
}

void TestFilePrinter::fileRemovedInBetweenIsMadeAgain()
{
    {
        DtFilePrinter printer("a");
        printText(printer, "text");
        QVERIFY(QFile::remove("a"));
    }
    QCOMPARE(readTextFile("a"), QByteArray("text"));
}

void TestFilePrinter::backslashIsAnOrdinaryCharacterOfAName()
{
    writeWithPrinter("cpp\\Makefile", "text");
    QCOMPARE(QDir(".").entryList(QDir::Files), QStringList{"cpp\\Makefile"});
}

void TestFilePrinter::nulBytesAreKept()
{
    writeWithPrinter("a", QByteArray("x\0y", 3));
    QCOMPARE(readTextFile("a"), QByteArray("x\0y", 3));
}

// Larger than the pieces in which it is collected, and no two lines alike.
QByteArray largeText()
{
    QByteArray text;
    for (int line = 0; line < 400000; ++line)
        text += QByteArray::number(line) + '\n';
    return text;
}

void writeInLines(const char* name, const QByteArray& text)
{
    DtFilePrinter printer(name);
    for (const QByteArray& line : text.split('\n'))
        printText(printer, line + '\n');
}

void TestFilePrinter::largeTextIsWrittenWhole()
{
    writeTextFile("a", "old");
    writeInLines("a", largeText());
    QVERIFY(readTextFile("a") == largeText() + '\n');
    writeWithPrinter("b", largeText()); // by one call
    QVERIFY(readTextFile("b") == largeText());
}

void TestFilePrinter::largeTextThatIsThereKeepsItsTimeStamp()
{
    const QByteArray text = largeText();
    writeInLines("a", text);
    age("a");
    const QDateTime stamp = QFileInfo("a").lastModified();
    writeInLines("a", text);
    QCOMPARE(QFileInfo("a").lastModified(), stamp);
    QByteArray other = text;
    other[other.size() - 2] = 'x';
    writeInLines("a", other);
    QVERIFY(QFileInfo("a").lastModified() != stamp);
    QVERIFY(readTextFile("a") == other + '\n');
}

void TestFilePrinter::largeTextStaysOutOfMemoryAndOutOfSight()
{
    writeTextFile("a", "old");
    {
        DtFilePrinter printer("a");
        for (const QByteArray& line : largeText().split('\n'))
            printText(printer, line + '\n');
        QVERIFY(printer.text().capacity() < 500000);
        QCOMPARE(readTextFile("a"), QByteArray("old"));
        QCOMPARE(QDir(".").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList{"a"});
    }
    QVERIFY(readTextFile("a") == largeText() + '\n');
}

void TestFilePrinter::largeTextWhoseDirectoryIsGoneIsWrittenWhole()
{
    {
        DtFilePrinter printer("sub/a");
        QVERIFY(QDir("sub").removeRecursively());
        for (const QByteArray& line : largeText().split('\n'))
            printText(printer, line + '\n');
    }
    QVERIFY(readTextFile("sub/a") == largeText() + '\n');
}

void TestFilePrinter::replacedTextIsToldToTheListener()
{
    QStringList told;
    const DtRestored<std::function<void(const DtString&)>> listener(DtFilePrinter::replacementListener(),
                                                                    [&told](const DtString& name)
                                                                    { told += QString::fromUtf8(name.c_str()); });
    writeWithPrinter("a", "text");
    writeWithPrinter("a", "text");
    writeWithPrinter("b", "text");
    QCOMPARE(told, QStringList());
    writeWithPrinter("a", "other text");
    QCOMPARE(told, QStringList{"a"});
}

QX_REGISTER_TEST(TestFilePrinter)
#include "testFilePrinter.moc"
