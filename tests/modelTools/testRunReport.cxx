#include "modelTools/runReport.h"

#include "fileGenerator/omtProject.h"
#include "modelTools/programVersion.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

namespace
{
DtDiagnostic warning(const char* rule, const char* text, const DtPlace& place = {})
{
    DtDiagnostic diagnostic;
    diagnostic.rule = rule;
    diagnostic.text = text;
    diagnostic.place = place;
    return diagnostic;
}

// Something in every field, with what JSON and pages write in another way.
DtRunReport fullReport()
{
    DtRunReport report;
    report.inputs = {
        {"/models/a & b.xml", "00ff"},
        {"/models/\"c\".xml", ""    }
    };
    report.outputDirectory = "out <1>";
    report.objectClasses = 3;
    report.interactionClasses = 2;
    report.written = {"a.cxx", "a.h"};
    report.removed = {"old.h"};
    report.kept = {"mine.h"};
    report.unchanged = {"M\xc3\xa4rz.h", "Makefile", "b.h"};
    report.diagnostics = {warning("second", "text <2> & \"more\"", {"/models/a & b.xml", 7, 3}),
                          warning("first", "line one\nline two"), warning("second", "text 3", {"a.xml", 0, 0})};
    report.diagnostics[2].severity = DtSeverity::Error;
    DtDiagnostic refused = warning("no-encoding", "cannot be encoded");
    refused.subject = DtSubject::datatype("Route");
    report.diagnostics.push_back(refused);
    report.renamed = {
        {"HLAobjectRoot.A.Ship", "Ship2"}
    };
    report.times = {
        {"load",  0.25},
        {"total", 1.5 }
    };
    return report;
}

QJsonObject parsed(const DtRunReport& report)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(report.json().c_str()), &error);
    if (document.isNull())
        qWarning("%s", qPrintable(error.errorString()));
    return document.object();
}

QString compact(const QJsonValue& value)
{
    const QJsonDocument document = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

std::string hashOf(const std::filesystem::path& file)
{
    QProcess program;
    program.setStandardInputFile(QString::fromStdString(file.native()));
    program.start("sha256sum", QStringList());
    return program.waitForFinished() ? program.readAll().left(64).toStdString() : std::string();
}
} // namespace

class TestRunReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusedDatatypesAreListedOnceByTheirNames()
    {
        DtRunReport report;
        for (const char* name : {"Route", "Fuel", "Route"})
        {
            DtDiagnostic refused = warning("no-encoding", "Cannot encode");
            refused.subject = DtSubject::datatype(name);
            report.diagnostics.push_back(refused);
        }
        report.diagnostics.push_back(warning("name-clash", "other"));
        QCOMPARE(compact(parsed(report)["notEncodable"]), QString("[\"Fuel\",\"Route\"]"));
    }

    void jsonTellsAll()
    {
        const QJsonObject report = parsed(fullReport());
        QCOMPARE(report["program"].toString(), QString("qxgen"));
        QCOMPARE(report["version"].toString(), QString::fromLatin1(DtProgramVersion()));
        QCOMPARE(report["output"].toString(), QString("out <1>"));
        QCOMPARE(compact(report["inputs"]), QString("[{\"path\":\"/models/a & b.xml\",\"sha256\":\"00ff\"},"
                                                    "{\"path\":\"/models/\\\"c\\\".xml\",\"sha256\":\"\"}]"));
        QCOMPARE(compact(report["counts"]),
                 QString("{\"diagnostics\":4,\"interactionClasses\":2,\"kept\":1,\"listed\":0,"
                         "\"objectClasses\":3,\"removed\":1,\"unchanged\":3,\"written\":2}"));
        QCOMPARE(compact(report["files"]),
                 QString::fromUtf8(
                     "{\"kept\":[\"mine.h\"],\"listed\":[],\"removed\":[\"old.h\"],\"unchanged\":[\"M\xc3\xa4rz.h\","
                     "\"Makefile\",\"b.h\"],\"written\":[\"a.cxx\",\"a.h\"]}"));
        QCOMPARE(compact(report["renamed"]), QString("[{\"class\":\"HLAobjectRoot.A.Ship\",\"name\":\"Ship2\"}]"));
        QCOMPARE(compact(report["seconds"]), QString("{\"load\":0.25,\"total\":1.5}"));
    }

    void jsonHasWarningsByRuleWithTheirPlaces()
    {
        const QJsonObject rules = parsed(fullReport())["diagnostics"].toObject();
        QCOMPARE(rules.keys().join(' '), QString("first no-encoding second"));
        QCOMPARE(rules["first"].toArray().size(), 1);
        QCOMPARE(rules["first"].toArray()[0].toObject()["text"].toString(), QString("line one\nline two"));
        const QJsonArray second = rules["second"].toArray();
        QCOMPARE(second.size(), 2);
        QCOMPARE(compact(second[0]),
                 QString("{\"column\":3,\"file\":\"/models/a & b.xml\",\"line\":7,\"rule\":\"second\",\"severity\":"
                         "\"warning\",\"text\":\"text <2> & \\\"more\\\"\"}"));
    }

    void emptyReportIsWholeToo()
    {
        const QJsonObject report = parsed(DtRunReport());
        QCOMPARE(compact(report["files"]),
                 QString("{\"kept\":[],\"listed\":[],\"removed\":[],\"unchanged\":[],\"written\":[]}"));
        QCOMPARE(compact(report["inputs"]), QString("[]"));
        QCOMPARE(compact(report["renamed"]), QString("[]"));
        QCOMPARE(compact(report["diagnostics"]), QString("{}"));
        QCOMPARE(compact(report["seconds"]), QString("{}"));
    }

    void namesThatAreNoUtf8DoNotBreakTheJson()
    {
        DtRunReport report;
        report.written = {"M\xe4rz.h"};
        report.diagnostics = {warning("r", "M\xe4rz", {"M\xe4rz.xml", 1, 1})};
        QCOMPARE(parsed(report)["counts"].toObject()["written"].toInt(), 1);
    }

    void hashIsThatOfTheFile_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("text") << QByteArray("a.xml") << QByteArray("abc");
        QTest::newRow("empty") << QByteArray("a.xml") << QByteArray("");
        QTest::newRow("large") << QByteArray("a.xml") << QByteArray(3000000, '\xff');
        QTest::newRow("name in UTF-8") << QByteArray("M\xc3\xa4rz #1.xml") << QByteArray("abc");
        QTest::newRow("name in Latin 1") << QByteArray("M\xe4rz.xml") << QByteArray("abc");
    }
    void hashIsThatOfTheFile()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, content);
        const DtTestFolder folder;
        const std::string path = (folder.path() / name.constData()).native();
        writeBytes(path, content.toStdString());
        writeBytes(folder.path() / "copy", content.toStdString()); // for a program that is started with its name
        DtRunReport report;
        report.setInputs({path, (folder.path() / "gone").native()});
        QVERIFY(report.inputs.size() == 2);
        const auto input = std::find_if(report.inputs.begin(), report.inputs.end(),
                                        [&path](const auto& each) { return each.first == path; });
        QVERIFY(input != report.inputs.end());
        COMPARE_TEXT(input->second, hashOf(folder.path() / "copy").c_str());
        const std::size_t other = input == report.inputs.begin() ? 1 : 0;
        COMPARE_TEXT(report.inputs[other].second, ""); // of the file that is not there
    }

    void changesAreSortedIntoTheLists()
    {
        DtRunReport report;
        DtOutputChange kept;
        kept.path = "kept";
        kept.kind = DtChangeKind::Removed;
        kept.owner = DtFileOwner::Edited;
        DtOutputChange removed = kept;
        removed.path = "removed";
        removed.owner = DtFileOwner::Program;
        DtOutputChange added;
        added.path = "added";
        DtOutputChange edited;
        edited.path = "edited";
        edited.kind = DtChangeKind::Modified;
        edited.owner = DtFileOwner::Edited;
        report.setFiles({"added", "edited", "same"}, {added, edited, kept, removed});
        COMPARE_TEXT(joined(report.written), "|added|edited");
        COMPARE_TEXT(joined(report.removed), "|removed");
        COMPARE_TEXT(joined(report.kept), "|kept");
        COMPARE_TEXT(joined(report.unchanged), "|same");
    }

    void pageIsWellFormed_data()
    {
        QTest::addColumn<bool>("isFull");
        QTest::newRow("full") << true;
        QTest::newRow("empty") << false;
    }
    void pageIsWellFormed()
    {
        QFETCH(bool, isFull);
        if (QStandardPaths::findExecutable("xmllint").isEmpty())
            QSKIP("xmllint is not installed: the page is not parsed.");
        const DtTestFolder folder;
        const std::filesystem::path page = folder.path() / "page.html";
        writeBytes(page, (isFull ? fullReport() : DtRunReport()).html());
        QProcess lint;
        lint.setProcessChannelMode(QProcess::MergedChannels);
        lint.start("xmllint", {"--html", "--noout", "--nonet", QString::fromStdString(page.native())});
        QVERIFY(lint.waitForFinished());
        // Its HTML is that of 1999: it does not know these elements.
        QByteArray errors;
        for (const QByteArray& line : lint.readAll().split('\n'))
            if (line.contains("error") && !line.contains("Tag details invalid") &&
                !line.contains("Tag summary invalid"))
                errors += line + '\n';
        QCOMPARE(errors, QByteArray());
        QCOMPARE(lint.exitCode(), 0);
    }

    void pageTellsAll()
    {
        const QString page = QString::fromStdString(fullReport().html());
        for (const char* text : {"out &lt;1&gt;",
                                 "/models/a &amp; b.xml",
                                 "<td>00ff</td>",
                                 "2 written",
                                 "<li>a.cxx</li>",
                                 "1 removed",
                                 "1 edited by hand and kept",
                                 "3 unchanged",
                                 "<li>M\xc3\xa4rz.h</li>",
                                 "second (2)",
                                 "first (1)",
                                 "/models/a &amp; b.xml:7:3",
                                 "<td>warning: text &lt;2&gt; &amp; &quot;more&quot;",
                                 "HLAobjectRoot.A.Ship",
                                 "Ship2",
                                 "<th>a.xml</th><td>error: text 3</td>",
                                 "<th>Errors</th><td>1</td>",
                                 "<th>Warnings</th><td>3</td>",
                                 "1 datatypes without encoding",
                                 "<li>Route</li>",
                                 "Seconds, load",
                                 "0.250"})
            QVERIFY2(page.contains(QString::fromUtf8(text)), text);
    }

    void runThatListsHasNoOutputDirectory()
    {
        DtRunReport report;
        report.listed = {"a.h", "b.h"};
        const std::string page = report.html();
        QVERIFY(page.find("2 listed") != std::string::npos);
        QVERIFY(page.find("left as it was") == std::string::npos);
        QCOMPARE(compact(parsed(report)["files"].toObject()["listed"]), QString("[\"a.h\",\"b.h\"]"));
    }

    void nameDecidesOnTheKind_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("isPage");
        QTest::newRow("html") << QByteArray("a.html") << true;
        QTest::newRow("xhtml") << QByteArray("/x y/a.xhtml") << true;
        QTest::newRow("htm") << QByteArray("a.htm") << true;
        QTest::newRow("capitals") << QByteArray("a.HTML") << true;
        QTest::newRow("Latin 1") << QByteArray("M\xe4rz.html") << true;
        QTest::newRow("json") << QByteArray("a.json") << false;
        QTest::newRow("other") << QByteArray("/a.html/report") << false;
        QTest::newRow("no dot") << QByteArray("reporthtml") << false;
        QTest::newRow("longer") << QByteArray("a.myhtml") << false;
        QTest::newRow("dot alone") << QByteArray("a.html.") << false;
    }
    void nameDecidesOnTheKind()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, isPage);
        const std::string text = DtRunReport().textFor(file.toStdString());
        QCOMPARE(text.rfind("<!DOCTYPE html>", 0) == 0, isPage);
        QCOMPARE(text.rfind("{\n", 0) == 0, !isPage);
    }

    void selectionAndRenamedClassesComeFromTheProject()
    {
        DtOmtProject project;
        project.addObject("HLAobjectRoot.A.Ship", true, "Vessel");
        project.addObject("HLAobjectRoot.B.Ship", false, "");
        project.addObject("HLAobjectRoot.Tank", false, "");
        project.addInteraction("HLAinteractionRoot.Horn", true, "Honk");
        DtRunReport report;
        report.setProject(project);
        QVERIFY(report.objectClasses == 3 && report.interactionClasses == 1);
        std::vector<std::string> renamed;
        for (const DtRunReport::DtRenamed& each : report.renamed)
            renamed.push_back(each.fullName + " " + each.name);
        COMPARE_TEXT(joined(renamed),
                     "|HLAobjectRoot.A.Ship Vessel|HLAobjectRoot.B.Ship Ship1|HLAinteractionRoot.Horn Honk");
    }
};

QX_REGISTER_TEST(TestRunReport)
#include "testRunReport.moc"
