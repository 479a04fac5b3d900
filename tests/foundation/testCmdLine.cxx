#include "foundation/cmdLine.h"
#include "foundation/outputStream.h"
#include "foundationTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

class TestCmdLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueWithBlanksIsOneValue();
    void emptyValueIsAValue();
    void switchTurnsItsDefault();
    void unknownArgumentFails();
    void argumentsThatNoOptionClaimsFail_data();
    void argumentsThatNoOptionClaimsFail();
    void singleValueGivenTwiceFails();
    void repeatableOptionTakesAnyNumber();
    void missingValueFails();
    void missingDelimiterFails();
    void missingRequiredArgumentFails();
    void combinedSwitchesSetAll();
    void combinationWithAnUnknownSwitchFails();
    void restBehindTwoDashesIsIgnored();
    void twoDashesCanBeAValue();
    void exceptionRoadCarriesTextAndNoIdentifier();
    void noArgumentsAtAllAreFine();
    void argumentsAreListedAsAdded();
    void failureWritesTheStatedText();
    void unknownSwitchInACombinationIsShownAsWritten();
    void failureShowsAtAnyLevelAndRestoresIt();
    void usageWritesTheStatedText();
    void usageShowsAtAnyLevelAndRestoresIt();
    void failureRoadEndsWithOne();
    void helpEndsWithZero();
    void versionEndsWithZero();
    void pauseWaitsForAKey_data();
    void pauseWaitsForAKey();
    void withoutPauseNothingIsWaitedFor();
};

namespace
{
// A command line with one option of each kind.
struct DtOptions
{
    explicit DtOptions(bool pause = false) : commandLine("codeGen", "The message", "5.10", pause)
    {
        commandLine.add(all);
        commandLine.add(generate);
        commandLine.add(&output);
        commandLine.add(files);
    }

    void parse(std::vector<const char*> arguments, bool handleFailure = false)
    {
        arguments.insert(arguments.begin(), "/some/where/program");
        commandLine.parse(static_cast<int>(arguments.size()), arguments.data(), handleFailure);
    }

    // What the exception says, empty when there is none.
    QByteArray failureOf(const std::vector<const char*>& arguments)
    {
        try
        {
            parse(arguments);
        }
        catch (const DtCmdLine::CmdLineParseException& exception)
        {
            return exception.what();
        }
        return QByteArray();
    }

    DtCmdLine::SwitchArg all{"A", "all", "All of it", false};
    DtCmdLine::SwitchArg generate{"G", "generate", "Generates", true};
    DtCmdLine::ValueArg<DtString> output{"O", "outputDir", "Output", false, "default", "string"};
    DtCmdLine::MultiArg<DtString> files{"F", "file", "File", false, "string"};
    DtCmdLine::CmdLine commandLine;
};

const QByteArray theShortUsage = "   codeGen  [-A] [-G] [-O <string>] [-F <string>] ... [--] [--version] [-h]\n";
} // namespace

void TestCmdLine::valueWithBlanksIsOneValue()
{
    DtOptions options;
    options.parse({"--outputDir", "my own directory", "-F", " a b "});
    COMPARE_TEXT(options.output.getValue(), "my own directory");
    COMPARE_TEXT(options.files.getValue().at(0), " a b ");
}

void TestCmdLine::emptyValueIsAValue()
{
    DtOptions options;
    options.parse({"-O", ""});
    QVERIFY(options.output.isSet());
    COMPARE_TEXT(options.output.getValue(), "");
}

void TestCmdLine::switchTurnsItsDefault()
{
    DtOptions options;
    options.parse({"-A", "--generate"});
    QVERIFY(options.all.getValue());
    QVERIFY(!options.generate.getValue());
}

void TestCmdLine::unknownArgumentFails()
{
    DtOptions options;
    QCOMPARE(options.failureOf({"foo"}), QByteArray("undefined -- Couldn't find match for argument"));
}

void TestCmdLine::argumentsThatNoOptionClaimsFail_data()
{
    QTest::addColumn<QByteArray>("argument");
    for (const char* argument : {"-", "", "-x", "--unknown", "--outputDir=x", "-platform", "A", "---"})
        QTest::newRow(argument) << QByteArray(argument);
}

void TestCmdLine::argumentsThatNoOptionClaimsFail()
{
    QFETCH(QByteArray, argument);
    DtOptions options;
    QCOMPARE(options.failureOf({argument.constData()}), QByteArray("undefined -- Couldn't find match for argument"));
}

void TestCmdLine::singleValueGivenTwiceFails()
{
    DtOptions options;
    QCOMPARE(options.failureOf({"-O", "a", "-O", "b"}), QByteArray("undefined -- Argument already set!"));
    DtOptions again;
    QCOMPARE(again.failureOf({"-A", "--all"}), QByteArray("undefined -- Argument already set!"));
}

void TestCmdLine::repeatableOptionTakesAnyNumber()
{
    DtOptions options;
    options.parse({"-F", "a.xml", "-A", "--file", "b.xml", "-F", "a.xml"});
    QVERIFY((options.files.getValue() == std::vector<DtString>{"a.xml", "b.xml", "a.xml"}));
}

void TestCmdLine::missingValueFails()
{
    DtOptions options;
    QCOMPARE(options.failureOf({"-O"}), QByteArray("undefined -- Missing a value for this argument!"));
    DtOptions again;
    QCOMPARE(again.failureOf({"-F"}), QByteArray("undefined -- Missing a value for this argument!"));
}

void TestCmdLine::missingDelimiterFails()
{
    DtOptions options;
    DtCmdLine::Arg::setDelimiter('=');
    const QByteArray failure = options.failureOf({"--outputDir"});
    DtCmdLine::Arg::setDelimiter(' ');
    QCOMPARE(failure, QByteArray("undefined -- Couldn't find delimiter for this argument!"));
}

void TestCmdLine::missingRequiredArgumentFails()
{
    DtOptions options;
    DtCmdLine::ValueArg<DtString> needed("N", "needed", "Needed", true, "", "string");
    options.commandLine.add(needed);
    QCOMPARE(options.failureOf({"-A"}), QByteArray("undefined -- One or more required arguments missing!"));
    QCOMPARE(options.failureOf({"-N", "x"}), QByteArray());
    COMPARE_TEXT(needed.getValue(), "x");
}

void TestCmdLine::combinedSwitchesSetAll()
{
    for (const char* argument : {"-GA", "-AG"})
    {
        DtOptions options;
        options.parse({argument});
        QVERIFY(options.all.isSet());
        QVERIFY(options.generate.isSet());
    }
}

void TestCmdLine::combinationWithAnUnknownSwitchFails()
{
    DtOptions options;
    QCOMPARE(options.failureOf({"-GxA"}), QByteArray("undefined -- Couldn't find match for argument"));
    DtOptions again;
    QCOMPARE(again.failureOf({"-GG"}), QByteArray("undefined -- Argument already set!"));
}

void TestCmdLine::restBehindTwoDashesIsIgnored()
{
    DtOptions options;
    options.parse({"-A", "--", "-G", "foo", "-O"});
    QVERIFY(options.all.isSet());
    QVERIFY(!options.generate.isSet());
    QVERIFY(!options.output.isSet());
    DtOptions another; // the next parse is not touched
    another.parse({"-G"});
    QVERIFY(another.generate.isSet());
}

void TestCmdLine::twoDashesCanBeAValue()
{
    DtOptions options;
    options.parse({"-O", "--", "-A"});
    COMPARE_TEXT(options.output.getValue(), "--");
    QVERIFY(options.all.isSet());
}

void TestCmdLine::exceptionRoadCarriesTextAndNoIdentifier()
{
    DtOptions options;
    try
    {
        options.parse({"-O", "a", "-O", "b"});
        QFAIL("nothing was thrown");
    }
    catch (const std::exception& exception)
    {
        QCOMPARE(exception.what(), "undefined -- Argument already set!");
        const auto* const parse = dynamic_cast<const DtCmdLine::CmdLineParseException*>(&exception);
        QVERIFY(parse != nullptr);
        QCOMPARE(parse->error(), std::string("Argument already set!"));
        QCOMPARE(parse->argId(), std::string(" "));
    }
}

void TestCmdLine::noArgumentsAtAllAreFine()
{
    DtOptions options;
    options.parse({});
    options.commandLine.parse(0, nullptr, false);
    QVERIFY(!options.output.isSet());
    COMPARE_TEXT(options.output.getValue(), "default");
}

void TestCmdLine::argumentsAreListedAsAdded()
{
    DtOptions options;
    QStringList names;
    for (const DtCmdLine::Arg* argument : options.commandLine.getArgList())
        names += QString::fromStdString(argument->getName());
    QCOMPARE(names, (QStringList{"all", "generate", "outputDir", "file", "ignore_rest", "version", "help"}));
}

void TestCmdLine::failureWritesTheStatedText()
{
    const DtChildResult result = runInChild(
        []
        {
            DtOptions options;
            options.parse({"-A", "foo"}, true);
        });
    QCOMPARE(result.errors, "PARSE ERROR: Argument: foo\n"
                            "             Couldn't find match for argument\n"
                            "\n"
                            "Brief USAGE: \n" +
                                theShortUsage +
                                "\n"
                                "For complete USAGE and HELP type: \n"
                                "   codeGen --help\n");
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.exitCode, 1);
}

// The known switches of a combination are blotted out on the way; the message has them all the same.
void TestCmdLine::unknownSwitchInACombinationIsShownAsWritten()
{
    for (const char* argument : {"-GxA", "-xGA", "-AGx"})
    {
        const DtChildResult result = runInChild(
            [argument]
            {
                DtOptions options;
                options.parse({argument}, true);
            });
        const QByteArray head =
            "PARSE ERROR: Argument: " + QByteArray(argument) + "\n             Couldn't find match for argument\n\n";
        QCOMPARE(result.errors.left(head.size()), head);
        QCOMPARE(result.exitCode, 1);
    }
}

void TestCmdLine::failureShowsAtAnyLevelAndRestoresIt()
{
    const DtSaved<int> level(DtNotifyLevel, -1);
    const DtCapture capture(DtWarn);
    DtOptions options;
    DtCmdLine::CmdLineParseException exception("error", "id");
    options.commandLine.getOutput()->failure(options.commandLine, exception);
    QVERIFY(capture.text().startsWith("PARSE ERROR: Argument: id\n             error\n"));
    QCOMPARE(DtNotifyLevel, -1);
}

void TestCmdLine::usageWritesTheStatedText()
{
    const DtSaved<int> level(DtNotifyLevel);
    const DtCapture capture(DtInfo);
    DtOptions options;
    options.commandLine.getOutput()->usage(options.commandLine);
    const QByteArray text = capture.text().toUtf8();
    const QByteArray head = "\nUSAGE: \n\n" + theShortUsage + "\nWhere: \n   -A,  --all\n     All of it\n\n";
    QCOMPARE(text.left(head.size()), head);
    QVERIFY(text.contains("   -F <string>,  --file <string>  (accepted multiple times)\n     File\n\n"));
    QVERIFY(text.endsWith("   -h,  --help\n     Displays usage information and exits.\n\n\n   The message\n"));
}

void TestCmdLine::usageShowsAtAnyLevelAndRestoresIt()
{
    const DtSaved<int> level(DtNotifyLevel, 0);
    const DtCapture capture(DtInfo);
    DtOptions options;
    options.commandLine.getOutput()->usage(options.commandLine);
    options.commandLine.getOutput()->version(options.commandLine);
    QVERIFY(capture.text().endsWith("codeGen version: 5.10\n"));
    QCOMPARE(DtNotifyLevel, 0);
}

void TestCmdLine::failureRoadEndsWithOne()
{
    const DtChildResult result = runInChild(
        []
        {
            DtOptions options;
            options.parse({"-O", "a", "-O", "b"}, true);
        });
    QVERIFY(result.hasExited);
    QCOMPARE(result.exitCode, 1);
    const QByteArray head = "PARSE ERROR: Argument: -O (--outputDir)\n             Argument already set!\n\n";
    QCOMPARE(result.errors.left(head.size()), head);
}

void TestCmdLine::helpEndsWithZero()
{
    for (const char* argument : {"--help", "-h"})
    {
        const DtChildResult result = runInChild(
            [argument]
            {
                DtOptions options;
                options.parse({argument}, true);
                std::exit(9);
            });
        QVERIFY(result.hasExited);
        QCOMPARE(result.exitCode, 0);
        QVERIFY2(result.output.startsWith("\nUSAGE: \n"), result.output.constData());
        QCOMPARE(result.errors, QByteArray());
    }
}

void TestCmdLine::versionEndsWithZero()
{
    const DtChildResult result = runInChild(
        []
        {
            DtOptions options;
            options.parse({"--version"}, true);
            std::exit(9);
        });
    QVERIFY(result.hasExited);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("codeGen version: 5.10\n"));
}

void TestCmdLine::pauseWaitsForAKey_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("failure") << QByteArray("foo") << 1;
    QTest::newRow("help") << QByteArray("--help") << 0;
    QTest::newRow("version") << QByteArray("--version") << 0;
}

void TestCmdLine::pauseWaitsForAKey()
{
    QFETCH(QByteArray, argument);
    QFETCH(int, exitCode);
    const DtChildResult result = runInChild(
        [argument]
        {
            int ends[2];
            if (pipe(ends) != 0)
                std::exit(9);
            dup2(ends[0], STDIN_FILENO);
            if (fork() == 0) // presses the key a little later
            {
                usleep(250000);
                _exit(::write(ends[1], "k", 1) == 1 ? 0 : 1);
            }
            const QElapsedTimer timer = []
            {
                QElapsedTimer started;
                started.start();
                return started;
            }();
            on_exit(
                [](int code, void* start)
                {
                    const qint64 waited = static_cast<const QElapsedTimer*>(start)->elapsed();
                    std::fflush(nullptr);
                    _exit(waited < 200 ? 9 : code);
                },
                const_cast<QElapsedTimer*>(&timer));
            DtOptions options(true);
            options.parse({argument.constData()}, true);
        });
    QVERIFY(result.hasExited);
    QCOMPARE(result.exitCode, exitCode);
    QVERIFY2(result.output.endsWith("Press any key to continue\n"), result.output.constData());
}

void TestCmdLine::withoutPauseNothingIsWaitedFor()
{
    const DtChildResult result = runInChild(
        []
        {
            DtOptions options;
            options.parse({"foo"}, true);
        });
    QCOMPARE(result.exitCode, 1);
    QVERIFY(!result.output.contains("Press any key"));
}

QX_REGISTER_TEST(TestCmdLine)
#include "testCmdLine.moc"
