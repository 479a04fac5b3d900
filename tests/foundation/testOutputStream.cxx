#include "foundation/outputStream.h"
#include "foundationTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

class TestOutputStream : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsNothingBelowTheThreshold();
    void raisedLevelTakesEffectAtTheNextWrite();
    void printsAtTheThresholdItself();
    void formatsLikePrintf();
    void longFormatsAreNotCut();
    void percentSignOfAnArgumentIsPlainText();
    void everyPrinterGetsAllTheText();
    void detachedPrinterGetsNothingMore();
    void nullPrinterIsIgnored();
    void endlFlushesThePrinters();
    void globalLevelStartsAtTwo();
    void globalStreamsShowFromTheirThreshold_data();
    void globalStreamsShowFromTheirThreshold();
    void infoGoesToStandardOutputTheOthersToStandardError();
    void failedWriteToTheConsoleIsToldOnce();
    void failedWriteOfWarningsIsToldToTheLog();
};

namespace
{
class DtTextPrinter : public DtPrinter
{
public:
    void print(const char* text, std::size_t length) override { myText.append(text, static_cast<int>(length)); }
    void flush() override { ++myFlushCount; }
    QByteArray myText;
    int myFlushCount = 0;
};
const int theStartLevel = DtNotifyLevel;
} // namespace

void TestOutputStream::printsNothingBelowTheThreshold()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter printer;
    int level = 0;
    DtOutputStream stream(&buffer, level, 1, &printer);
    stream << "text" << 5 << 'c' << std::endl;
    stream("%d", 5);
    QCOMPARE(printer.myText, QByteArray());
    QVERIFY(stream.good());
}

void TestOutputStream::raisedLevelTakesEffectAtTheNextWrite()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter printer;
    int level = 0;
    DtOutputStream stream(&buffer, level, 1, &printer);
    stream << "dropped";
    level = 1;
    stream << "shown";
    level = 0;
    stream << "dropped";
    QCOMPARE(printer.myText, QByteArray("shown"));
}

void TestOutputStream::printsAtTheThresholdItself()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter printer;
    int level = 3;
    DtOutputStream stream(&buffer, level, 0, &printer);
    stream << "a" << 1 << 'b' << std::endl;
    QCOMPARE(printer.myText, QByteArray("a1b\n"));
}

void TestOutputStream::formatsLikePrintf()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter printer;
    int level = 1;
    DtOutputStream stream(&buffer, level, 1, &printer);
    stream("%s has %d of %5.2f%%", "x", 3, 1.5) << "!";
    stream("%s", "");
    QCOMPARE(printer.myText, QByteArray("x has 3 of  1.50%!"));
}

void TestOutputStream::longFormatsAreNotCut()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter printer;
    int level = 1;
    DtOutputStream stream(&buffer, level, 1, &printer);
    const QByteArray text(100000, 'x');
    stream("[%s]", text.constData());
    QCOMPARE(printer.myText.size(), text.size() + 2);
    QVERIFY(printer.myText.endsWith("x]"));
}

void TestOutputStream::percentSignOfAnArgumentIsPlainText()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter printer;
    int level = 1;
    DtOutputStream stream(&buffer, level, 1, &printer);
    stream("%s|", "%s%n") << "%d";
    QCOMPARE(printer.myText, QByteArray("%s%n|%d"));
}

void TestOutputStream::everyPrinterGetsAllTheText()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter first, second;
    int level = 1;
    DtOutputStream stream(&buffer, level, 1, &first);
    stream << "a";
    stream.attachPrinter(&second);
    stream << "b";
    QCOMPARE(first.myText, QByteArray("ab"));
    QCOMPARE(second.myText, QByteArray("b"));
}

void TestOutputStream::detachedPrinterGetsNothingMore()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter first, second;
    int level = 1;
    DtOutputStream stream(&buffer, level, 1, &first);
    stream.attachPrinter(&second);
    stream.detachPrinter(&first);
    stream.detachPrinter(&first); // no longer there
    stream << "x";
    QCOMPARE(first.myText, QByteArray());
    QCOMPARE(second.myText, QByteArray("x"));
}

void TestOutputStream::nullPrinterIsIgnored()
{
    DtOutputStreamBuffer buffer;
    int level = 1;
    DtOutputStream stream(&buffer, level, 1, nullptr);
    stream << "x" << std::endl;
    stream.attachPrinter(nullptr);
    stream << "x" << std::endl;
    QVERIFY(stream.good());
}

void TestOutputStream::endlFlushesThePrinters()
{
    DtOutputStreamBuffer buffer;
    DtTextPrinter printer;
    int level = 1;
    DtOutputStream stream(&buffer, level, 1, &printer);
    stream << "x";
    QCOMPARE(printer.myFlushCount, 0);
    stream << std::endl;
    QCOMPARE(printer.myFlushCount, 1);
}

void TestOutputStream::globalLevelStartsAtTwo()
{
    QCOMPARE(theStartLevel, 2);
}

void TestOutputStream::globalStreamsShowFromTheirThreshold_data()
{
    QTest::addColumn<int>("threshold");
    QTest::newRow("Fatal") << 0;
    QTest::newRow("Warn") << 1;
    QTest::newRow("Info") << 3;
    QTest::newRow("Verbose") << 4;
    QTest::newRow("Debug") << 5;
}

void TestOutputStream::globalStreamsShowFromTheirThreshold()
{
    QFETCH(int, threshold);
    const std::map<QByteArray, DtOutputStream*> streams{
        {"Fatal",   &DtFatal  },
        {"Warn",    &DtWarn   },
        {"Info",    &DtInfo   },
        {"Verbose", &DtVerbose},
        {"Debug",   &DtDebug  }
    };
    DtOutputStream& stream = *streams.at(QTest::currentDataTag());
    const DtSaved<int> level(DtNotifyLevel, threshold - 1);
    const DtCapture capture(stream);
    stream << "dropped";
    DtNotifyLevel = threshold;
    stream << "shown ";
    DtNotifyLevel = 5;
    stream << "too\n";
    QCOMPARE(capture.text(), QString("shown too\n"));
}

void TestOutputStream::infoGoesToStandardOutputTheOthersToStandardError()
{
    const DtChildResult result = runInChild(
        []
        {
            DtNotifyLevel = 5;
            DtFatal << "fatal" << std::endl;
            DtWarn << "warn" << std::endl;
            DtInfo << "info" << std::endl;
            DtVerbose << "verbose" << std::endl;
            DtDebug << "debug" << std::endl;
        });
    QCOMPARE(result.output, QByteArray("info\n"));
    QCOMPARE(result.errors, QByteArray("fatal\nwarn\nverbose\ndebug\n"));
}

void TestOutputStream::failedWriteToTheConsoleIsToldOnce()
{
    if (!QFileInfo::exists("/dev/full"))
        QSKIP("There is no /dev/full.");
    const DtChildResult result = runInChild(
        []
        {
            if (std::freopen("/dev/full", "w", stdout) == nullptr)
                return;
            DtNotifyLevel = 3;
            DtInfo << "lost" << std::endl;
            DtInfo << "lost too" << std::endl;
        });
    QCOMPARE(result.errors, QByteArray("Cannot write to the standard output stream: No space left on device\n"));
}

void TestOutputStream::failedWriteOfWarningsIsToldToTheLog()
{
    if (!QFileInfo::exists("/dev/full"))
        QSKIP("There is no /dev/full.");
    const DtChildResult result = runInChild(
        []
        {
            DtTextPrinter log;
            DtWarn.attachPrinter(&log);
            if (std::freopen("/dev/full", "w", stderr) == nullptr)
                return;
            DtWarn << "one" << std::endl;
            DtWarn << "two" << std::endl;
            std::fputs(log.myText.constData(), stdout);
            std::fflush(stdout);
            DtWarn.detachPrinter(&log);
        });
    QCOMPARE(result.output,
             QByteArray("one\nCannot write to the standard error stream: No space left on device\ntwo\n"));
}

QX_REGISTER_TEST(TestOutputStream)
#include "testOutputStream.moc"
