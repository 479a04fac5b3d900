#include "foundation/warningRules.h"
#include "modelTools/generateTool.h"
#include "modelToolsTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <sstream>

namespace
{
DtDiagnostic diagnosticAt(const char* file, unsigned int line, unsigned int column)
{
    return {
        DtSeverity::Warning, {file, line, column},
         "One.\nTwo.", "name-clash", DtSubject::datatype("Speed")
    };
}

// A run that lists its outputs.
struct DtListRun
{
    explicit DtListRun(const std::string& content)
    {
        const std::string model = (folder.path() / "model.xml").native();
        writeBytes(model, content);
        options.request.models = {model};
        options.request.dataDirectory = QX_SOURCE_DIR "/data/";
        options.outputDirectory = (folder.path() / "out").native();
        options.use = DtOutputUse::List;
    }

    // What is told, without the folder of the model.
    std::string told()
    {
        std::ostringstream out, err;
        try
        {
            exitCode = DtGenerateTool(options, out, err).run();
        }
        catch (const DtToolFailure& failure)
        {
            exitCode = failure.code();
        }
        QString text = QString::fromStdString(err.str());
        return text.remove(QString::fromStdString(folder.path().native() + "/")).toStdString();
    }

    DtTestFolder folder;
    DtGenerateOptions options;
    DtExitCode exitCode = DtExitCode::Done;
};

const char* const theWarnedModel =
    "<?xml version=\"1.0\"?>\n"
    "<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">\n"
    "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>Ship</name></objectClass></objectClass>"
    "</objects>\n"
    "<interactions><interactionClass><name>HLAinteractionRoot</name></interactionClass></interactions>\n"
    "<dataTypes><basicDataRepresentations>\n"
    "  <basicData><name>Odd</name><size>32</size><endian>Middle</endian></basicData>\n"
    "</basicDataRepresentations></dataTypes>\n"
    "</objectModel>\n";
} // namespace

class TestDiagnostics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeIsShownAsFarAsItIsKnown_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("msvs");
        QTest::addColumn<QString>("json");
        const struct
        {
            const char* name;
            const char* file;
            int line;
            int column;
            const char* text;
            const char* msvs;
            const char* json;
        } rows[] = {
            {"all",         "a.xml", 3, 7, "a.xml:3:7: ", "a.xml(3,7): ", "\"file\":\"a.xml\",\"line\":3,\"column\":7,"},
            {"no column",   "a.xml", 3, 0, "a.xml:3: ",   "a.xml(3): ",   "\"file\":\"a.xml\",\"line\":3,"             },
            {"file alone",  "a.xml", 0, 0, "a.xml: ",     "a.xml: ",      "\"file\":\"a.xml\","                        },
            {"lone column", "a.xml", 0, 7, "a.xml: ",     "a.xml: ",      "\"file\":\"a.xml\","                        },
            {"nothing",     "",      0, 0, "qxgen: ",     "qxgen: ",      ""                                           },
        };
        for (const auto& row : rows)
            QTest::newRow(row.name) << row.file << row.line << row.column << row.text << row.msvs << row.json;
    }

    void placeIsShownAsFarAsItIsKnown()
    {
        QFETCH(QString, file);
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(QString, text);
        QFETCH(QString, msvs);
        QFETCH(QString, json);
        const DtDiagnostic diagnostic =
            diagnosticAt(file.toUtf8().constData(), static_cast<unsigned int>(line), static_cast<unsigned int>(column));
        QCOMPARE(QString::fromStdString(DtFormatted(diagnostic, DtDiagnosticFormat::Text)),
                 text + "warning: One.\nTwo. [name-clash]\n");
        QCOMPARE(QString::fromStdString(DtFormatted(diagnostic, DtDiagnosticFormat::Msvs)),
                 msvs + "warning name-clash: One.\nTwo.\n");
        QCOMPARE(QString::fromStdString(DtFormatted(diagnostic, DtDiagnosticFormat::Json)),
                 "{\"severity\":\"warning\",\"rule\":\"name-clash\"," + json +
                     "\"subject\":\"Speed\",\"text\":\"One.\\nTwo.\"}\n");
    }

    void diagnosticWithoutRuleAndSubjectShowsNone()
    {
        DtDiagnostic diagnostic;
        diagnostic.text = "Said.";
        COMPARE_TEXT(DtFormatted(diagnostic, DtDiagnosticFormat::Text), "qxgen: warning: Said.\n");
        COMPARE_TEXT(DtFormatted(diagnostic, DtDiagnosticFormat::Msvs), "qxgen: warning: Said.\n");
        COMPARE_TEXT(DtFormatted(diagnostic, DtDiagnosticFormat::Json),
                     "{\"severity\":\"warning\",\"text\":\"Said.\"}\n");
    }

    void severityHasAWordAndAColor_data()
    {
        QTest::addColumn<int>("severity");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("color");
        QTest::newRow("note") << int(DtSeverity::Note) << "note"
                              << "36";
        QTest::newRow("warning") << int(DtSeverity::Warning) << "warning"
                                 << "35";
        QTest::newRow("error") << int(DtSeverity::Error) << "error"
                               << "31";
    }

    void severityHasAWordAndAColor()
    {
        QFETCH(int, severity);
        QFETCH(QString, word);
        QFETCH(QString, color);
        DtDiagnostic diagnostic = diagnosticAt("a.xml", 3, 7);
        diagnostic.severity = static_cast<DtSeverity>(severity);
        QCOMPARE(QString::fromStdString(DtFormatted(diagnostic, DtDiagnosticFormat::Text, true)),
                 "\033[1ma.xml:3:7: \033[0m\033[" + color + "m" + word + ": \033[0mOne.\nTwo. [name-clash]\n");
        QCOMPARE(QString::fromStdString(DtFormatted(diagnostic, DtDiagnosticFormat::Msvs, true)),
                 "a.xml(3,7): " + word + " name-clash: One.\nTwo.\n");
        QVERIFY(DtFormatted(diagnostic, DtDiagnosticFormat::Json, true).find('\033') == std::string::npos);
    }

    void jsonIsOneLineWhateverTheBytes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("quotes") << QByteArray("\"a\"\\") << QByteArray("\\\"a\\\"\\\\");
        QTest::newRow("line ends") << QByteArray("a\r\nb") << QByteArray("a\\r\\nb");
        QTest::newRow("controls") << QByteArray("a\x01\x1F\x7F") << QByteArray("a\\u0001\\u001f\x7F");
        QTest::newRow("zero") << QByteArray("a\0b", 3) << QByteArray("a\\u0000b");
        QTest::newRow("UTF-8") << QByteArray("\xC3\xA4\xF0\x9F\x9A\xA2") << QByteArray("\xC3\xA4\xF0\x9F\x9A\xA2");
        QTest::newRow("Latin-1") << QByteArray("a\xE4z") << QByteArray("a\xEF\xBF\xBDz");
        QTest::newRow("cut off") << QByteArray("a\xC3") << QByteArray("a\xEF\xBF\xBD");
    }

    void jsonIsOneLineWhateverTheBytes()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, json);
        DtDiagnostic diagnostic;
        diagnostic.text = text.toStdString();
        diagnostic.place.file = text.toStdString();
        const QByteArray expected = "{\"severity\":\"warning\",\"file\":\"" + json + "\",\"text\":\"" + json + "\"}\n";
        QCOMPARE(QByteArray::fromStdString(DtFormatted(diagnostic, DtDiagnosticFormat::Json)), expected);
    }

    void warningsBecomeDiagnosticsWithoutWhatTheSeveritySays_data()
    {
        QTest::addColumn<QString>("stated");
        QTest::addColumn<QString>("text");
        QTest::newRow("prefix and line feed") << "Warning: One.\n"
                                              << "One.";
        QTest::newRow("no prefix") << "Duplicated enum name Red"
                                   << "Duplicated enum name Red";
        QTest::newRow("prefix inside") << "No Warning: here \n\n"
                                       << "No Warning: here";
        QTest::newRow("two lines") << "One\nTwo\n"
                                   << "One\nTwo";
        QTest::newRow("prefix alone") << "Warning: \n"
                                      << "";
    }

    void warningsBecomeDiagnosticsWithoutWhatTheSeveritySays()
    {
        QFETCH(QString, stated);
        QFETCH(QString, text);
        const DtCapture warnings(DtWarn);
        DtDiagnostics diagnostics;
        DtTellWarning(DtRules::unknownByteOrder, DtSubject::datatype("Odd"), stated.toUtf8().constData());
        QCOMPARE(diagnostics.all().size(), std::size_t(1));
        const DtDiagnostic& diagnostic = diagnostics.all().front();
        QCOMPARE(QString::fromStdString(diagnostic.text), text);
        COMPARE_TEXT(diagnostic.rule, "unknown-byte-order");
        COMPARE_TEXT(diagnostic.subject.name, "Odd");
        COMPARE_TEXT(diagnostic.place.file, "");
        QCOMPARE(diagnostics.count(DtSeverity::Warning), std::size_t(1));
        QCOMPARE(diagnostics.count(DtSeverity::Error), std::size_t(0));
        QCOMPARE(warnings.text(), QString());
    }

    void placesAreAskedForWhereASubjectHasNoLine()
    {
        DtDiagnostics diagnostics;
        diagnostics.add(diagnosticAt("", 0, 0));
        diagnostics.add(diagnosticAt("known.xml", 8, 9));
        diagnostics.add({
            DtSeverity::Error, {"out.h", 0, 0},
             "No subject.", "output-check", { }
        });
        diagnostics.add({
            DtSeverity::Warning, {"kept.xml", 0, 0},
             "Unknown.", "", DtSubject::datatype("Unknown")
        });
        std::string asked;
        diagnostics.findPlaces(
            [&asked](const DtSubject& subject)
            {
                asked += subject.name.stdString() + " ";
                return subject.name == "Speed" ? DtPlace{"a.xml", 1, 2} : DtPlace();
            });
        COMPARE_TEXT(asked, "Speed Unknown ");
        std::string places;
        for (const DtDiagnostic& diagnostic : diagnostics.all())
            places += diagnostic.place.file + ":" + std::to_string(diagnostic.place.line) + " ";
        COMPARE_TEXT(places, "a.xml:1 known.xml:8 out.h:0 kept.xml:0 ");
    }

    void runTellsPlaceAndRule()
    {
        DtListRun run(theWarnedModel);
        COMPARE_TEXT(run.told(),
                     "model.xml:6:3: warning: The byte order of Odd is \"Middle\", which is neither Big nor "
                     "Little. It is taken for Big. [unknown-byte-order]\n");
        QCOMPARE(run.exitCode, DtExitCode::Done);
    }

    void warningIsAFindingWhereWarningsAreErrors()
    {
        DtListRun run(theWarnedModel);
        run.options.warningsAreErrors = true;
        run.options.telling = DtTelling::Quiet;
        run.options.format = DtDiagnosticFormat::Msvs;
        QVERIFY(QString::fromStdString(run.told()).startsWith("model.xml(6,3): warning unknown-byte-order: The byte "));
        QCOMPARE(run.exitCode, DtExitCode::Findings);
    }

    void quietRunTellsNoWarning()
    {
        DtListRun run(theWarnedModel);
        run.options.telling = DtTelling::Quiet;
        COMPARE_TEXT(run.told(), "");
    }

    void modelThatCannotBeReadIsToldWithThePlaceOfItsFault()
    {
        // Longer than what is read to find out the format.
        DtListRun run("<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">\n<!--" +
                      std::string(10000, ' ') + "-->\n</wrong>");
        const QString told = QString::fromStdString(run.told());
        QVERIFY2(told.startsWith("model.xml:4:9: error: "), qPrintable(told));
        QVERIFY2(told.endsWith(" [unreadable-model]\n"), qPrintable(told));
        QCOMPARE(run.exitCode, DtExitCode::Unreadable);
    }

    void elementWithoutNameIsToldWithItsFile()
    {
        QString model = theWarnedModel;
        model.replace("Middle", "Big").replace("<name>Odd</name>", "<name></name>");
        DtListRun run(model.toStdString());
        COMPARE_TEXT(run.told(), "model.xml: warning: basicData definition was missing a name [missing-name]\n");
    }
};

QX_REGISTER_TEST(TestDiagnostics)
#include "testDiagnostics.moc"
