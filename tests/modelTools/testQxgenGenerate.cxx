// What qxgen generate does with each of its options, and how it ends.

#include "codeGenApp/omtProjectXmlWriter.h"
#include "fileGenerator/omtProject.h"
#include "qxgenProgram.h"
#include "registerTest.h"
#include "scratchData.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <sys/stat.h>
#include <unistd.h>

class TestQxgenGenerate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myFolder = std::make_unique<DtProgramFolder>();
        myFolder->write("models/small.xml", smallModel());
    }

    void goodRunIsSilent()
    {
        COMPARE_TEXT(textOf(generate({})), "0\n--\n");
        QVERIFY(treeOf(myFolder->path("out")).size() > 30);
        COMPARE_TEXT(textOf(generate({})), "0\n--\n"); // over its own output too
    }

    void listNamesAllOutputsAndWritesNothing()
    {
        const DtProgramEnd listed =
            myFolder->generate({"models/small.xml", "--list", "--script", "cpp", "--script", "json"});
        COMPARE_TEXT(listed.err, "");
        QCOMPARE(listed.code, 0);
        QVERIFY(!std::filesystem::exists(myFolder->path("out")));
        QCOMPARE(entriesBelow(QString::fromStdString(myFolder->path().native())).keys(),
                 QStringList({"models", "models/small.xml"}));
        QCOMPARE(generate({"--script", "cpp", "--script", "json"}).code, 0);
        std::string names;
        for (const auto& file : treeOf(myFolder->path("out")))
            names += file.first + "\n";
        COMPARE_TEXT(listed.out, names.c_str());
    }

    void dryRunListsWhatWouldChange()
    {
        COMPARE_TEXT(textOf(generate({"--script", "json", "--dry-run"})), "0\nA model.json\n--\n");
        QVERIFY(!std::filesystem::exists(myFolder->path("out")));
        QCOMPARE(generate({"--script", "json"}).code, 0);
        COMPARE_TEXT(textOf(generate({"--script", "json", "--dry-run"})), "0\n--\n");
        const DtContents before = treeOf(myFolder->path("out"));
        COMPARE_TEXT(textOf(generate({"--script", "html", "--dry-run"})), "0\nD model.json\nA model.xhtml\n--\n");
        COMPARE_TEXT(textOf(generate({"--script", "json", "--select", "Horn", "--dry-run"})), "0\nM model.json\n--\n");
        COMPARE_TEXT(differenceOf(before, treeOf(myFolder->path("out"))), "");
    }

    void verifyEndsWith4IfAnythingWouldChange()
    {
        COMPARE_TEXT(textOf(generate({"--script", "json", "--verify"})), "4\nA model.json\n--\n");
        QCOMPARE(generate({"--script", "json"}).code, 0);
        COMPARE_TEXT(textOf(generate({"--script", "json", "--verify"})), "0\n--\n");
        COMPARE_TEXT(textOf(generate({"--script", "html", "--verify"})), "4\nD model.json\nA model.xhtml\n--\n");
        std::filesystem::remove(myFolder->path("out/model.json"));
        COMPARE_TEXT(textOf(generate({"--script", "json", "--verify"})), "4\nA model.json\n--\n");
    }

    void argumentsMayStandInAFile()
    {
        myFolder->write("line.txt", "models/small.xml\n-o\nmy out\n--script\njson\n");
        COMPARE_TEXT(textOf(myFolder->run({"generate", "@line.txt"})), "0\n--\n");
        QVERIFY(std::filesystem::exists(myFolder->path("my out/model.json")));
        myFolder->write("all.txt", "generate\nmodels/small.xml\n--list\n--script=json\n");
        COMPARE_TEXT(textOf(myFolder->run({"@all.txt"})), "0\nmodel.json\n--\n");
    }

    void modelsAreLookedForInFurtherPlaces()
    {
        const auto list = [this](const DtArguments& more, const char* rtiConfig)
        {
            DtArguments arguments = {"small.xml", "--list", "--script", "json"};
            arguments.insert(arguments.end(), more.begin(), more.end());
            return textOf(myFolder->generate(arguments, [rtiConfig] { setenv("RTI_CONFIG", rtiConfig, 1); }));
        };
        std::filesystem::create_directories(myFolder->path("none"));
        COMPARE_TEXT(list({}, ""), "2\n--\nqxgen: error: there is no model small.xml in the working directory or below "
                                   "RTI_CONFIG. --model-path names further directories.\n");
        COMPARE_TEXT(list({"--model-path", "none", "--model-path", "models"}, ""), "0\nmodel.json\n--\n");
        COMPARE_TEXT(list({}, myFolder->path("models").c_str()), "0\nmodel.json\n--\n");
    }

    void tokenOfAModelThatWasLookedForIsNoLeftover()
    {
        std::string text = smallModel();
        const std::string name = "<name>Buoy</name>";
        text.insert(text.find(name) + name.size(), "<semantics>Called &lt;!Buoy!&gt; here.</semantics>");
        myFolder->write("models/small.xml", text);
        myFolder->write("my/json/model.tlt", "<#Objects>\n<!ObjectDescriptor!>\n<#Objects>\n");
        for (const char* model : {"models/small.xml", "small.xml"})
        {
            COMPARE_TEXT(textOf(myFolder->generate({model, "-o", "out", "--script", "json", "--model-path", "models",
                                                    "--template-dir", "my"})),
                         "0\n--\n");
            QVERIFY(contains(myFolder->text("out/model.json"), "<!Buoy!>"));
        }
    }

    void modulesAreMergedInTheirOrder()
    {
        myFolder->write("models/more.xml", moduleText(objectText("Barge", objectText("Ferry"))).toStdString());
        COMPARE_TEXT(textOf(myFolder->generate({"models/small.xml", "models/more.xml", "-o", "out"})), "0\n--\n");
        QVERIFY(contains(myFolder->text("out/ferryStateRepository.h"), "class DT_DLL_SMALL DtFerryStateRepository"));
        QVERIFY(std::filesystem::exists(myFolder->path("out/buoyStateRepository.h")));
    }

    void dataDirectoryMayComeFromTheEnvironment()
    {
        writeOwnFiles();
        const auto use = [](const char* directory) { return [directory] { setenv("QX_DATA_DIR", directory, 1); }; };
        COMPARE_TEXT(textOf(generate({"--script", "json"}, use("my/data"))), "0\n--\n");
        COMPARE_TEXT(textOf(generate({"--script", "html"}, use("my/data"))),
                     "1\n--\nqxgen: error: there is no script \"html\". Scripts are cpp, json, or paths of command "
                     "files.\n");
        const std::string wrong = textOf(generate({"--script", "json"}, use("my")));
        COMPARE_TEXT(wrong, "2\n--\nqxgen: error: QX_DATA_DIR names my, which is no data directory: it has no "
                            "config/codeGenConfig.xml.\n");
    }

    void configurationOfTheUserIsReadOnlyWhenItIsNamed()
    {
        writeOwnFiles();
        std::filesystem::copy_file(myFolder->path("my/config.xml"),
                                   myFolder->path("my/data/config/customCodeGenConfig.xml"),
                                   std::filesystem::copy_options::overwrite_existing);
        copyTree(QStringLiteral(QX_SOURCE_DIR "/data/templates"),
                 QString::fromStdString(myFolder->path("my/data/templates").native()));
        QCOMPARE(generate({"--data-dir", "my/data"}).code, 0);
        QVERIFY(contains(myFolder->text("out/bargeStateRepository.h"), "DtBargeStateRepository"));
        QCOMPARE(generate({"--data-dir", "my/data", "--config", "my/data/config/customCodeGenConfig.xml"}).code, 0);
        QVERIFY(contains(myFolder->text("out/bargeStateRepository.h"), "DtCcBargeStateRepository"));
    }

    // The project file, which is UTF-8, has the name converted; the window finds such a model too.
    void projectFindsAModelWhoseNameIsNoUtf8()
    {
        myFolder->write("latin/caf\xe9.xml", smallModel());
        DtOmtProject project;
        project.addFomDefFile("caf\xe9.xml", "");
        DtOmtProjectXmlWriter(project, DtFilename(DtString(myFolder->path("latin/own.qxproj").native()))).writeXml();
        COMPARE_TEXT(textOf(myFolder->generate({"--project", "latin/own.qxproj", "-o", "out"})), "0\n--\n");
        QVERIFY(!myFolder->text("out/bargeStateRepository.h").empty());
    }

    void superclassThatComesAlongKeepsItsNameFromTheProject()
    {
        DtOmtProject project;
        project.addFomDefFile("small.xml", "");
        project.addObject("HLAobjectRoot.Barge", true, "Vessel");
        project.addObject("HLAobjectRoot.Barge.Tanker", true, "Ship");
        DtOmtProjectXmlWriter(project, DtFilename(DtString(myFolder->path("models/own.qxproj").native()))).writeXml();
        COMPARE_TEXT(textOf(myFolder->generate({"--project", "models/own.qxproj", "--select", "Tanker", "-o", "out"})),
                     "0\n--\n");
        QVERIFY(contains(myFolder->text("out/shipStateRepository.h"), "vesselStateRepository.h"));
        QVERIFY(!myFolder->text("out/vesselStateRepository.h").empty());
    }

    void classOfAProjectThatTheModelsHaveNotIsWarnedOf()
    {
        DtOmtProject project;
        project.addFomDefFile("small.xml", "");
        project.addObject("HLAobjectRoot.Barge", false, "");
        project.addObject("HLAobjectRoot.Gone", false, "");
        project.addInteraction("HLAinteractionRoot.Lost", false, "");
        DtOmtProjectXmlWriter(project, DtFilename(DtString(myFolder->path("models/own.qxproj").native()))).writeXml();
        COMPARE_TEXT(
            textOf(myFolder->generate({"--project", "models/own.qxproj", "-o", "out"})),
            "0\n--\nqxgen: warning: The project selects the class HLAobjectRoot.Gone, which the models have not. "
            "[missing-class]\nqxgen: warning: The project selects the class HLAinteractionRoot.Lost, which the "
            "models have not. [missing-class]\n");
    }

    void includeDirectoryThatNoMakefileCarriesIsWarnedOf_data()
    {
        QTest::addColumn<QByteArray>("directory");
        QTest::addColumn<bool>("isCarried");
        QTest::newRow("plain") << QByteArray("inc/deep-1.0_a") << true;
        QTest::newRow("UTF-8") << QByteArray("f\xc3\xa4hre") << true;
        for (const char* directory : {"my inc", "$HOME", "a#b", "a%b"})
            QTest::newRow(directory) << QByteArray(directory) << false;
    }
    void includeDirectoryThatNoMakefileCarriesIsWarnedOf()
    {
        QFETCH(QByteArray, directory);
        QFETCH(bool, isCarried);
        const DtProgramEnd end = generate({"--include-dir", directory.toStdString()});
        QCOMPARE(end.code, 0);
        COMPARE_TEXT(end.err, isCarried ? ""
                                        : ("qxgen: warning: The include directory \"" + directory.toStdString() +
                                           "\" cannot stand in a makefile; build with the lists of files instead, or "
                                           "name another. [include-directory]\n")
                                              .c_str());
    }

    // Whatever the class uses is looked at, and nothing else.
    void unknownDatatypesAreToldWhereTheyStand()
    {
        myFolder->write(
            "models/typos.xml",
            "<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">\n"
            "<objects><objectClass><name>HLAobjectRoot</name>\n"
            "<objectClass><name>Barge</name>\n"
            "<attribute><name>load</name><dataType>Loadd</dataType></attribute>\n"
            "<attribute><name>hold</name><dataType>Hold</dataType></attribute>\n"
            "<attribute><name>mark</name><dataType>Mark</dataType></attribute>\n"
            "<attribute><name>token</name><dataType>HLAtoken</dataType></attribute>\n"
            "<attribute><name>none</name><dataType>NA</dataType></attribute>\n"
            "</objectClass></objectClass></objects>\n"
            "<interactions><interactionClass><name>HLAinteractionRoot</name>\n"
            "<interactionClass><name>Call</name>\n"
            "<parameter><name>who</name><dataType>Whoever</dataType></parameter>\n"
            "</interactionClass></interactionClass></interactions>\n"
            "<dataTypes>\n"
            "<simpleDataTypes><simpleData><name>Kilo</name><representation>HLAfloat46BE</representation></simpleData></"
            "simpleDataTypes>\n"
            "<enumeratedDataTypes><enumeratedData><name>Mark</name><representation>HLAoctett</representation>\n"
            "<enumerator><name>One</name><value>1</value></enumerator></enumeratedData></enumeratedDataTypes>\n"
            "<arrayDataTypes><arrayData><name>Kilos</name><dataType>Kilo</dataType><cardinality>3</cardinality>\n"
            "<encoding>HLAfixedArray</encoding></arrayData>\n"
            "<arrayData><name>Unused</name><dataType>Nobody</dataType><cardinality>3</cardinality>\n"
            "<encoding>HLAfixedArray</encoding></arrayData></arrayDataTypes>\n"
            "<fixedRecordDataTypes><fixedRecordData><name>Hold</name><encoding>HLAfixedRecord</encoding>\n"
            "<field><name>kilos</name><dataType>Kilos</dataType></field>\n"
            "<field><name>next</name><dataType>Hald</dataType></field>\n"
            "</fixedRecordData></fixedRecordDataTypes>\n"
            "</dataTypes>\n"
            "</objectModel>\n");
        const DtProgramEnd end = myFolder->generate({"models/typos.xml", "-o", "out", "--script", "json"});
        QCOMPARE(end.code, 0);
        const std::string file = myFolder->path("models/typos.xml").native();
        std::string expected;
        for (const char* line : {"4:1: warning: load of HLAobjectRoot.Barge uses the datatype Loadd",
                                 "12:1: warning: who of HLAinteractionRoot.Call uses the datatype Whoever",
                                 "16:22: warning: Datatype Mark uses the datatype HLAoctett",
                                 "24:1: warning: next of datatype Hold uses the datatype Hald",
                                 "15:18: warning: Datatype Kilo uses the datatype HLAfloat46BE"})
            expected += file + ":" + line + ", which neither the models nor the toolkit have. [unknown-datatype]\n";
        COMPARE_TEXT(end.err, expected.c_str());
    }

    void scriptThatMakesNothingOfItsOwnIsWarnedOf()
    {
        QVERIFY(contains(generate({"--script", "models/small.xml"}).err, " has made no file of its own."));
        const DtProgramEnd twice = generate({"--script", "json", "--script", QX_SOURCE_DIR "/data/genJson.txt"});
        QCOMPARE(twice.code, 0);
        QVERIFY2(contains(twice.err, "genJson.txt has made no file of its own. [script-without-output]"),
                 twice.err.c_str());
    }

    // What scripts of one run make alike is no matter.
    void scriptThatReplacesAFileOfAnotherIsWarnedOf()
    {
        const auto script = [this](const char* name, const char* shared, const char* own)
        {
            myFolder->write(std::string("my/") + name, std::string("language Text\ntemplateDir my\nfile same.txt ") +
                                                           shared + "\nfile shared.txt same.tlt\nfile " + own +
                                                           " same.tlt\n");
        };
        for (const char* text : {"one", "two", "same"})
            myFolder->write(std::string("overlay/my/") + text + ".tlt", std::string(text) + "\n");
        script("first.txt", "one.tlt", "first.out");
        script("second.txt", "two.tlt", "second.out");
        const DtProgramEnd end =
            generate({"--script", "my/second.txt", "--script", "my/first.txt", "--template-dir", "overlay"});
        QCOMPARE(end.code, 0);
        const std::string second = (myFolder->path() / "my/second.txt").native();
        COMPARE_TEXT(end.err, (second + ": warning: The script " + second +
                               " replaces same.txt, which another script has made in this run. "
                               "[script-replaces-output]\n")
                                  .c_str());
        COMPARE_TEXT(myFolder->text("out/same.txt"), "two\n");
    }

    void overlayEntryThatIsNoFileIsRefused()
    {
        const std::filesystem::path entry = myFolder->path("overlay/json/model.tlt");
        const std::string refused = "2\n--\nqxgen: error: " + entry.native() +
                                    " is no file, so it cannot stand in for " QX_SOURCE_DIR
                                    "/data/templates/json/model.tlt.\n";
        const DtArguments arguments = {"--script", "json", "--template-dir", "overlay"};
        std::filesystem::create_directories(entry);
        COMPARE_TEXT(textOf(generate(arguments)), refused.c_str());
        std::filesystem::remove(entry);
        QCOMPARE(mkfifo(entry.c_str(), 0600), 0);
        COMPARE_TEXT(textOf(generate(arguments)), refused.c_str());
        std::filesystem::remove(entry);
        std::filesystem::create_symlink("gone", entry);
        COMPARE_TEXT(textOf(generate(arguments)), refused.c_str());
        QVERIFY(!std::filesystem::exists(myFolder->path("out")));
        std::filesystem::remove(entry);
        COMPARE_TEXT(textOf(generate(arguments)), "0\n--\n");
    }

    void workingDirectoryThatIsGoneIsTold()
    {
        myFolder->write("gone/here", "");
        const DtProgramEnd end = myFolder->run({"generate", "models/small.xml", "-o", "out"},
                                               []
                                               {
                                                   if (chdir("gone") != 0 || system("rm -r ../gone") != 0)
                                                       _exit(126);
                                               });
        COMPARE_TEXT(textOf(end), "2\n--\nqxgen: error: the working directory cannot be found: No such file or "
                                  "directory.\n");
    }

    void emptyValuesOfSettingsThatMayBeEmptyTakeNoOtherWord()
    {
        const DtProgramEnd end = generate({"--include-dir=", "--prefix=", "--namespace=", "--dry-run"});
        QCOMPARE(end.code, 0);
        QVERIFY2(contains(end.out, "A bargeStateRepository.h\n"), end.out.c_str());
        QVERIFY(!std::filesystem::exists(myFolder->path("out")));
    }

    void reportOfARunThatListsComparesNothing()
    {
        QCOMPARE(myFolder->generate({"models/small.xml", "--list", "--script", "json", "--report", "r.json"}).code, 0);
        const QJsonObject report =
            QJsonDocument::fromJson(QByteArray::fromStdString(myFolder->text("r.json"))).object();
        const QJsonObject counts = report["counts"].toObject();
        QCOMPARE(counts["listed"].toInt(), 1);
        QCOMPARE(counts["written"].toInt() + counts["unchanged"].toInt(), 0);
    }

    void warningsHavePlacesWhereTheOutputCannotBeHad()
    {
        myFolder->write("models/typo.xml",
                        moduleText(objectText("Barge", attributeText("Load", "Loadd"))).toStdString());
        const DtProgramEnd end = myFolder->generate({"models/typo.xml", "-o", "models/small.xml/out"});
        QCOMPARE(end.code, 5);
        QVERIFY2(contains(end.err, "models/typo.xml:"), end.err.c_str());
        QVERIFY2(contains(end.err, "[unknown-datatype]"), end.err.c_str());
    }

    void missingModelOfAProjectIsToldWithAllPlaces()
    {
        DtOmtProject project;
        project.addFomDefFile("gone.xml", "shelf");
        myFolder->write("lost/other.xml", smallModel());
        DtOmtProjectXmlWriter(project, DtFilename(DtString(myFolder->path("lost/own.qxproj").native()))).writeXml();
        const std::string top = myFolder->path("lost").native();
        COMPARE_TEXT(textOf(myFolder->generate({"--project", "lost/own.qxproj", "-o", "out", "--model-path", "my"})),
                     ("2\n--\nqxgen: error: there is no model gone.xml in " + top + "/shelf, " + top +
                      ", the working directory, my or below RTI_CONFIG. --model-path names further directories.\n")
                         .c_str());
        DtOmtProject beside;
        beside.addFomDefFile("gone.xml", "");
        DtOmtProjectXmlWriter(beside, DtFilename(DtString(myFolder->path("lost/own.qxproj").native()))).writeXml();
        const std::string told = myFolder->generate({"--project", "lost/own.qxproj", "-o", "out"}).err;
        QVERIFY2(contains(told, "no model gone.xml in " + top + ", the working directory or below"), told.c_str());
    }

    void projectGivesModelsSelectionAndNames()
    {
        writeProject();
        const DtContents before = treeOf(myFolder->path("models"));
        COMPARE_TEXT(textOf(myFolder->generate({"--project", "models/port.qxproj", "-o", "out"})), "0\n--\n");
        QVERIFY(contains(myFolder->text("out/Makefile"), "libharbourHLA.a"));
        QVERIFY(contains(myFolder->text("out/vesselStateRepository.h"), "DtQqVesselStateRepository"));
        QVERIFY(!std::filesystem::exists(myFolder->path("out/buoyStateRepository.h")));
        COMPARE_TEXT(differenceOf(before, treeOf(myFolder->path("models"))), "");
    }

    void optionsGoAheadOfTheProject()
    {
        writeProject();
        myFolder->write("other/other.xml", smallModel());
        COMPARE_TEXT(textOf(myFolder->generate({"other/other.xml", "--project", "models/port.qxproj", "-o", "out",
                                                "--prefix", "Rr", "--select", "B*", "--name", "sea"})),
                     "0\n--\n");
        QVERIFY(contains(myFolder->text("out/Makefile"), "libseaHLA.a"));
        QVERIFY(contains(myFolder->text("out/vesselStateRepository.h"), "DtRrVesselStateRepository")); // still renamed
        QVERIFY(std::filesystem::exists(myFolder->path("out/buoyStateRepository.h")));
    }

    void stampAndDepfileTellWhatTheOutputDependsOn()
    {
        writeOwnFiles();
        COMPARE_TEXT(textOf(generate({"--script", "json", "--stamp", "s t/stamp", "--depfile", "d/dep#s.d",
                                      "--template-dir", "my/templates", "--config", "my/config.xml"})),
                     "0\n--\n");
        const std::string top = myFolder->path().native(); // which ends in a separator
        std::string text = myFolder->text("d/dep#s.d");
        COMPARE_TEXT(text.substr(0, text.find('\n')), (top + "s\\ t/stamp: \\").c_str());
        for (const std::string& file :
             {top + "models/small.xml", top + "my/config.xml", std::string(QX_SOURCE_DIR "/data/genJson.txt"),
              std::string(QX_SOURCE_DIR "/data/templates/json/model.tlt"), std::string(QX_QXGEN)})
            QVERIFY2(contains(text, "\n  " + file), file.c_str());
        COMPARE_TEXT(myFolder->text("s t/stamp"), "");
        QVERIFY(std::filesystem::exists(myFolder->path("s t/stamp")));
    }

    void stampIsNotWrittenByARunThatFails()
    {
        myFolder->write("models/broken.xml", "<objectModel");
        QCOMPARE(myFolder->generate({"models/broken.xml", "-o", "out", "--stamp", "stamp"}).code, 2);
        QVERIFY(!std::filesystem::exists(myFolder->path("stamp")));
    }

    void expectedListEndsWith4WhenTheOutputsAreOthers()
    {
        const DtArguments expecting = {"--script", "json", "--script", "html", "--expect-list", "list"};
        myFolder->write("list", "model.xhtml\nmodel.json\n");
        COMPARE_TEXT(textOf(generate(expecting)), "0\n--\n");
        const DtContents before = treeOf(myFolder->path("out"));
        myFolder->write("list", "model.xhtml\nold.json\n");
        myFolder->write("models/small.xml", smallModel() + "<!-- changed -->");
        COMPARE_TEXT(textOf(generate(expecting)),
                     "4\n--\nqxgen: error: the outputs are not those that list lists, so nothing is written; "
                     "run cmake again. New: model.json. Gone: old.json.\n");
        COMPARE_TEXT(differenceOf(before, treeOf(myFolder->path("out"))), "");
        myFolder->write("list", "");
        QVERIFY(contains(generate({"--expect-list", "list"}).err, " and "));
        COMPARE_TEXT(textOf(generate({"--script", "json", "--expect-list", "gone"})),
                     "2\n--\nqxgen: error: the list of expected outputs gone cannot be read.\n");
    }

    void reportTellsOfTheRun()
    {
        QCOMPARE(generate({"--script", "json"}).code, 0);
        COMPARE_TEXT(textOf(generate({"--script", "html", "--report", "r/report.json"})), "0\n--\n");
        const QJsonObject report =
            QJsonDocument::fromJson(QByteArray(myFolder->text("r/report.json").c_str())).object();
        QCOMPARE(QJsonDocument(report["files"].toObject()).toJson(QJsonDocument::Compact),
                 QByteArray("{\"kept\":[],\"listed\":[],\"removed\":[\"model.json\"],\"unchanged\":[],\"written\":["
                            "\"model.xhtml\"]}"));
        QCOMPARE(report["committed"].toBool(), true);
        QCOMPARE(report["counts"].toObject()["objectClasses"].toInt(), 3);
        QCOMPARE(report["counts"].toObject()["interactionClasses"].toInt(), 1);
        QVERIFY(report["seconds"].toObject().contains("total"));
        QCOMPARE(generate({"--script", "html", "--report", "r/report.html"}).code, 0);
        QVERIFY(contains(myFolder->text("r/report.html"), "1 unchanged"));
    }

    void reportOfARunThatListsTellsThatNothingWasChanged()
    {
        for (const char* option : {"--dry-run", "--verify"})
        {
            generate({"--script", "json", option, "--report", "report.json"});
            const QJsonObject report =
                QJsonDocument::fromJson(QByteArray(myFolder->text("report.json").c_str())).object();
            QCOMPARE(report["committed"].toBool(true), false);
            QCOMPARE(report["counts"].toObject()["written"].toInt(), 1);
            std::filesystem::remove(myFolder->path("report.json"));
        }
    }

    // Build systems take the inputs from there when they are configured.
    void listWritesTheReportThatIsAskedForAndNothingElse()
    {
        COMPARE_TEXT(textOf(generate({"--script", "json", "--list", "--report", "report.json", "--stamp", "stamp"})),
                     "0\nmodel.json\n--\n");
        const QJsonObject report = QJsonDocument::fromJson(QByteArray(myFolder->text("report.json").c_str())).object();
        QCOMPARE(report["committed"].toBool(true), false);
        QVERIFY(report["inputs"].toArray().size() > 2);
        QVERIFY(!std::filesystem::exists(myFolder->path("out")) && !std::filesystem::exists(myFolder->path("stamp")));
    }

    void inputsOfTheReportAreFilesWithTheirHashes_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("ASCII") << QByteArray("small.xml");
        QTest::newRow("UTF-8") << QByteArray("M\xc3\xa4rz.xml");
        QTest::newRow("Latin 1") << QByteArray("M\xe4rz.xml");
    }
    void inputsOfTheReportAreFilesWithTheirHashes()
    {
        QFETCH(QByteArray, name);
        myFolder->write("in/" + name.toStdString(), smallModel());
        const DtProgramEnd end = myFolder->generate({"in/" + name.toStdString(), "-o", "out", "--script", "cpp",
                                                     "--script", "html", "--report", "report.json"});
        QCOMPARE(end.code, 0);
        const QJsonArray inputs =
            QJsonDocument::fromJson(QByteArray(myFolder->text("report.json").c_str())).object()["inputs"].toArray();
        QVERIFY(inputs.size() > 10);
        const QByteArray model(smallModel().c_str());
        int models = 0;
        for (const QJsonValue& each : inputs)
        {
            const QJsonObject input = each.toObject();
            QVERIFY2(input["sha256"].toString().size() == 64, qPrintable(input["path"].toString()));
            if (input["sha256"].toString() ==
                QString::fromLatin1(QCryptographicHash::hash(model, QCryptographicHash::Sha256).toHex()))
                ++models;
        }
        QCOMPARE(models, 1);
    }

    void helpFitsAScreenAndGoesToStandardOutput()
    {
        for (const DtArguments& arguments : {
                 DtArguments{"--help"},
                 DtArguments{          "-h"       },
                 DtArguments{ "generate",        "--help"}
        })
        {
            const DtProgramEnd help = myFolder->run(arguments);
            QCOMPARE(help.code, 0);
            COMPARE_TEXT(help.err, "");
            QVERIFY(contains(help.out, "Usage: qxgen"));
            std::istringstream lines(help.out);
            int count = 0;
            for (std::string line; std::getline(lines, line); ++count)
                QVERIFY2(line.size() <= 120, line.c_str());
            QVERIFY2(count <= 55, help.out.c_str());
        }
        const DtProgramEnd version = myFolder->run({"--version"});
        QVERIFY(version.code == 0 && version.out.rfind("qxgen ", 0) == 0 && version.err.empty());
    }

    void failuresAreOneLineAndACode_data()
    {
        QTest::addColumn<QByteArray>("arguments"); // with bars between
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("error"); // its start, behind the program's name
        const auto row = [](const char* arguments, int code, const char* error) {
            QTest::newRow(*arguments == '\0' ? "nothing" : arguments)
                << QByteArray(arguments) << code << QByteArray(error);
        };
        const char* const commands =
            "Commands are generate, list, lint-templates, window, completion. --help tells more.";
        row("", 1, ("no command is given. " + QByteArray(commands)).constData());
        row("frobnicate", 1, ("there is no command \"frobnicate\". " + QByteArray(commands)).constData());
        row("genreate|models/small.xml", 1, "there is no command \"genreate\". Did you mean generate? Commands are ");
        row("-o|out|generate", 1,
            "qxgen itself has no option -o. An option of a command stands behind its name. --help tells more.");
        row("--verison", 1, "qxgen itself has no option --verison. Did you mean --version? ");
        row("generate", 1, "no model and no project is given.");
        row("generate|models/small.xml", 1, "no output directory is given; -o DIR names it.");
        row("generate||-o|out", 1, "MODEL has an empty value.");
        row("list|", 1, "MODEL has an empty value.");
        // Another option behind it shows that it does not become the value.
        for (const char* option : {"--project", "--config", "--stamp", "--report", "--depfile", "--data-dir", "--name",
                                   "--model-path", "--template-dir", "--select", "--expect-list"})
            for (const char* form : {"|", "=|--dry-run"})
                row((std::string("generate|models/small.xml|-o|out|") + option + form).c_str(), 1,
                    (std::string(option) + " has an empty value.").c_str());
        row("generate|models/gone.xml|-o|out|--script|nope", 1, "there is no script \"nope\".");
        row("generate|models/small.xml|-o|out|--frob", 1, "qxgen generate has no option --frob. --help tells more.");
        row("generate|models/small.xml|-o|out|--lits=x", 1,
            "qxgen generate has no option --lits. Did you mean --list or --dis? --help tells more.");
        row("generate|models/small.xml|-o|out|-Z", 1, "qxgen generate has no option -Z. --help tells more.");
        row("completion|bash|zsh", 1, "The following argument was not expected: zsh. --help tells more.");
        row("generate|models/small.xml|-o", 1, "");
        row("generate|models/small.xml|-o|out|--name|one|--name|two", 1, "--name is given more than once. --help");
        row("generate|models/small.xml|-o|out|-o|other", 1, "--output is given more than once. --help");
        row("generate|models/small.xml|-o|out|--layout|flat", 1,
            "--layout: there is no \"flat\". Known are tree|classic.");
        row("generate|models/small.xml|-o|out|--layout|1", 1, "--layout: there is no \"1\". Known are tree|classic.");
        row("generate|models/small.xml|-o|out|--format|xml", 1,
            "--format: there is no \"xml\". Known are text|msvs|json.");
        row("generate|models/small.xml|-o|out|--layout=", 1, "--layout: there is no \"\". Known are tree|classic.");
        row("generate|models/small.xml|-o|out|--color|red", 1,
            "--color: there is no \"red\". Known are auto|always|never.");
        row("generate|models/small.xml|-o|out|--list|--verify", 1,
            "--dry-run, --verify and --list exclude one another.");
        row("generate|models/small.xml|-o|out|--watch|--verify", 1, "--watch writes the output");
        row("generate|models/small.xml|-o|out|-q|-v", 1, "-q and -v exclude one another.");
        row("generate|models/small.xml|-o|out|--depfile|d", 1, "--depfile needs --stamp, which is its target.");
        row("generate|models/small.xml|-o|out|--select|Bargo", 1, "no class matches \"Bargo\". Did you mean Barge?");
        row("generate|models/small.xml|-o|out|--select|HLAfederate", 1,
            "no class matches \"HLAfederate\". It matches management");
        row("generate|models/small.xml|-o|out|--set|prefixNam=x", 1,
            "there is no key \"prefixNam\" in the configuration. Did you mean prefixName?");
        row("generate|models/small.xml|-o|out|--set|firstPduKind=x", 1,
            "\"x\" is no value of the key \"firstPduKind\"");
        row("generate|models/small.xml|-o|out|--set|logFileName=x", 1, "the key \"logFileName\" cannot be set");
        row("generate|models/small.xml|-o|out|--prefix|a b", 1, "\"a b\" is no value of the key \"prefixName\"");
        row("generate|models/small.xml|-o|out|--include-dir|../up", 1,
            "\"../up\" is no value of the key \"includeName\"");
        for (const char* name : {" own", "own ", "a/b"})
            row((std::string("generate|models/small.xml|-o|out|--name|") + name).c_str(), 1,
                ("\"" + QByteArray(name) + "\" is no name for a library: it takes").constData());
        row("generate|models/small.xml|-o|out|--script|htm", 1, "there is no script \"htm\". Did you mean html?");
        row("generate|models/small.xml|-o|out|--script|", 1, "--script needs a name.");
        row("generate|@gone.txt", 1, "the file of arguments gone.txt cannot be read.");
        row("generate|models/gone.xml|-o|out", 2, "there is no model models/gone.xml");
        row("generate|models/text.omt|models/small.xml|-o|out", 2, "the OMT text ");
        row("list|models/text.omt|models/small.xml", 2, "the OMT text ");
        row("generate|models/own.qxproj|-o|out", 2, "a project stands behind --project, not among the models: ");
        row("generate|models|-o|out", 2, "there is no model models ");
        row("generate|--project|gone.qxproj|-o|out", 2, "there is no project file gone.qxproj.");
        row("generate|--project|models/small.xml|-o|out", 2, "models/small.xml is no project file.");
        row("generate|models/small.xml|-o|out|--config|gone.xml", 2, "the configuration gone.xml cannot be read.");
        row("generate|models/small.xml|-o|out|--config|models/small.xml", 2,
            "the configuration models/small.xml cannot be read.");
        row("generate|models/small.xml|-o|out|--config|my/odd.xml", 2,
            "my/odd.xml, list \"user\": \"yes\" is no value of the key \"generateDIS\", which takes true or false.");
        row("generate|models/small.xml|-o|out|--template-dir|gone", 2, "there is no template directory gone.");
        row("generate|models/small.xml|-o|out|--data-dir|gone", 2, "--data-dir names gone, which is no data directory");
        row("generate|models/small.xml|-o|out|--script|html|--data-dir|my/data", 2, "the template ");
        row("generate|models/small.xml|-o|models/small.xml", 5, "models/small.xml: ");
        row("generate|models/small.xml|-o|models/small.xml/out", 5, "models/small.xml/out: ");
        row("generate|models/small.xml|-o|out|--report|models", 5, "models: ");
        row("generate|models/small.xml|-o|out|--stamp|models/small.xml/stamp", 5, "models/small.xml/stamp: ");
    }
    void failuresAreOneLineAndACode()
    {
        QFETCH(QByteArray, arguments);
        QFETCH(int, code);
        QFETCH(QByteArray, error);
        writeOwnFiles();
        myFolder->write("my/data/genHtml.txt", readBytes(QX_SOURCE_DIR "/data/genHtml.txt"));
        myFolder->write("models/broken.xml", "<objectModel>");
        myFolder->write("models/text.omt", "(ObjectModel (Name small) (Class (ID 1) (Name \"Barge\")))\n");
        myFolder->write("models/own.qxproj", "<objectModel/>");
        DtArguments line;
        if (!arguments.isEmpty())
            for (const QByteArray& each : arguments.split('|'))
                line.push_back(each.toStdString());
        const DtContents before = treeOf(myFolder->path("models"));
        const DtProgramEnd end = myFolder->run(line);
        QCOMPARE(end.code, code);
        COMPARE_TEXT(end.out, "");
        const std::string expected = "qxgen: error: " + error.toStdString();
        COMPARE_TEXT(end.err.substr(0, expected.size()), expected.c_str());
        QVERIFY2(end.err.find('\n') == end.err.size() - 1, end.err.c_str());
        COMPARE_TEXT(differenceOf(before, treeOf(myFolder->path("models"))), "");
    }

    // Root may read everything, so the run is one of another user then.
    void modelWithoutPermissionIsTold()
    {
        using std::filesystem::perms;
        const std::filesystem::path model = myFolder->path("models/small.xml");
        permissions(myFolder->path(), perms(0755));
        permissions(model, perms::none);
        const auto asAnother = []
        {
            constexpr uid_t theNobody = 65534;
            if (geteuid() == 0 && setuid(theNobody) != 0)
                _exit(126);
        };
        const std::string told =
            "2\n--\nqxgen: error: the model cannot be read: " + model.native() + ": Permission denied.\n";
        COMPARE_TEXT(textOf(myFolder->generate({"models/small.xml", "--list"}, asAnother)), told.c_str());
        COMPARE_TEXT(textOf(myFolder->run({"list", "models/small.xml"}, asAnother)), told.c_str());
    }

    void brokenModelIsToldWithItsFault()
    {
        myFolder->write("models/broken.xml", "<objectModel>\n<objects></objectModel>\n");
        const DtProgramEnd end = myFolder->generate({"models/broken.xml", "-o", "out"});
        QCOMPARE(end.code, 2);
        const std::string file = myFolder->path("models/broken.xml").native();
        COMPARE_TEXT(end.err, (file +
                               ":2:24: error: Opening and ending tag mismatch: objects line 2 and objectModel "
                               "[unreadable-model]\nqxgen: error: the model cannot be read: " +
                               file + ".\n")
                                  .c_str());
    }

    void leftoverTokenEndsWith3AndChangesNothing()
    {
        writeOwnFiles();
        QCOMPARE(generate({"--script", "json"}).code, 0);
        const DtContents before = treeOf(myFolder->path("out"));
        myFolder->write("my/templates/json/model.tlt", "{<!NoSuchThing!>}\n");
        COMPARE_TEXT(textOf(generate({"--script", "json", "--template-dir", "my/templates"})),
                     "3\n--\nmodel.json: error: still contains the token <!NoSuchThing!> [output-check]\n");
        COMPARE_TEXT(differenceOf(before, treeOf(myFolder->path("out"))), "");
    }

    void listsNameFilesOfTheCppAlone()
    {
        for (const char* name : {"genAheadOfIt.txt", "own.txt"})
            for (const char* layout : {"tree", "classic"})
            {
                myFolder->write("my/json/model.tlt", "// Of a script.\n");
                std::string script = readBytes(QX_SOURCE_DIR "/data/genJson.txt");
                script.erase(script.find("file model.json"));
                const std::string folder = layout == std::string("classic") ? "cpp\\" : "";
                myFolder->write(name,
                                script + "file " + folder + "own.h model.tlt\nfile " + folder + "own.cxx model.tlt\n");
                COMPARE_TEXT(
                    textOf(generate({"--script", "cpp", "--script", name, "--template-dir", "my", "--layout", layout})),
                    "0\n--\n");
                QVERIFY(contains(myFolder->text("out/" + folder + "own.h"), "Of a script"));
                QVERIFY(!contains(myFolder->text("out/" + folder + "Files-h.txt"), "own.h"));
            }
    }

    void standardOutputThatCannotBeWrittenEndsWith5()
    {
        const auto toFull = []
        {
            const int full = open("/dev/full", O_WRONLY);
            dup2(full, STDOUT_FILENO);
        };
        COMPARE_TEXT(textOf(generate({"--list"}, toFull)), "5\n--\nqxgen: error: standard output cannot be written.\n");
    }

    // Each row: options, a file of the output, and what stands in it; a "!" in front of the file means that it is not
    // made.
    void optionShowsInTheOutput_data()
    {
        QTest::addColumn<QByteArray>("options");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* options, const char* file, const char* text = "")
        {
            QTest::newRow((QByteArray(options) + " " + file).constData())
                << QByteArray(options) << QByteArray(file) << QByteArray(text);
        };
        row("", "Makefile", "libsmallHLA.a");
        row("", "bargeStateRepository.h", "class DT_DLL_SMALL DtBargeStateRepository");
        row("--name Port", "Makefile", "libPortHLA.a");
        row("--prefix Ab", "bargeStateRepository.h", "DtAbBargeStateRepository");
        row("--set prefixName=Ab", "bargeStateRepository.h", "DtAbBargeStateRepository");
        row("--prefix Zz --set prefixName=Ab", "bargeStateRepository.h", "DtAbBargeStateRepository");
        row("--include-dir inc", "inc/bargeStateRepository.h", "class");
        row("--include-dir inc", "bargeStateRepository.cxx", "inc/bargeStateRepository.h");
        row("--include-dir inc", "!bargeStateRepository.h");
        row("--namespace port", "bargeStateRepository.h", "namespace port");
        row("", "!bargePublisherDIS.h");
        row("--dis", "bargePublisherDIS.h", "class");
        row("--set generateDIS=true", "bargePublisherDIS.h", "class");
        row("", "!Examples/Barge/talk.cxx");
        row("--examples", "Examples/Barge/talk.cxx", "main");
        row("--set generateExamples=true", "Examples/Barge/talk.cxx", "main");
        row("", "!HLAfederateStateRepository.h");
        row("--with-management", "HLAfederateStateRepository.h", "class");
        row("--select Tanker", "bargeStateRepository.h", "class"); // its superclass
        row("--select Tanker", "tankerStateRepository.h", "class");
        row("--select Tanker", "!buoyStateRepository.h");
        row("--select !Barge* --select !Horn", "buoyStateRepository.h", "class");
        row("--select !Barge* --select !Horn", "!hornInterHLA.h");
        row("--layout tree", "bargeStateRepository.h", "class");
        row("--layout classic", "cpp\\bargeStateRepository.h", "class");
        row("--layout classic", "!bargeStateRepository.h");
        row("--script html", "model.xhtml", "Barge");
        row("--script html", "!Makefile");
        row("--script html --script cpp", "Makefile", "all");
        row("--script json", "model.json", "Barge");
        row("--script python", "model_codec.py", "Barge");
        row("--script my/list.txt", "names.txt", "Barge");
        row("--set dumpParseTree=true", "parsedFom.txt", "Barge");
        row("--config my/config.xml", "bargeStateRepository.h", "DtCcBargeStateRepository");
        row("--config my/config.xml --prefix Ab", "bargeStateRepository.h", "DtAbBargeStateRepository");
        row("--data-dir my/data", "model.json", "{");
        row("--template-dir my/templates", "bargeStateRepository.h", "// My own words.");
        row("--template-dir my/none --template-dir my/templates", "bargeStateRepository.h", "// My own words.");
    }
    void optionShowsInTheOutput()
    {
        QFETCH(QByteArray, options);
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, text);
        writeOwnFiles();
        DtArguments arguments = argumentsOf(options);
        if (options.startsWith("--data-dir"))
            arguments.insert(arguments.end(), {"--script", "json"});
        const DtProgramEnd end = generate(arguments);
        QVERIFY2(end.code == 0 && end.out.empty(), end.err.c_str());
        const bool hasWarnings = options == "--with-management"; // of datatypes that cannot be encoded
        QVERIFY2(end.err.empty() != hasWarnings, end.err.c_str());
        const bool isThere = !file.startsWith('!');
        const std::string name = "out/" + file.mid(isThere ? 0 : 1).toStdString();
        QCOMPARE(std::filesystem::exists(myFolder->path(name)), isThere);
        QVERIFY2(contains(myFolder->text(name), text.toStdString()), myFolder->text(name).c_str());
    }

private:
    static DtArguments argumentsOf(const QByteArray& options)
    {
        DtArguments arguments;
        for (const QByteArray& each : options.split(' '))
            if (!each.isEmpty())
                arguments.push_back(each.toStdString());
        return arguments;
    }

    // The small model into "out", with these options.
    DtProgramEnd generate(const DtArguments& options, const std::function<void()>& prepare = {}) const
    {
        DtArguments arguments = {"models/small.xml", "-o", "out"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return myFolder->generate(arguments, prepare);
    }

    // A project of the window, with a selection and another name.
    void writeProject() const
    {
        DtOmtProject project;
        project.setBaseName("harbour");
        project.setClassPrefix("Qq");
        project.addFomDefFile("small.xml", "");
        project.addObject("HLAobjectRoot.Barge", true, "Vessel");
        DtOmtProjectXmlWriter(project, DtFilename(DtString(myFolder->path("models/port.qxproj").native()))).writeXml();
    }

    void writeOwnFiles() const
    {
        const QString top = QString::fromStdString(myFolder->path("my").native());
        const QString data = QStringLiteral(QX_SOURCE_DIR "/data");
        QByteArray configuration = readTextFile(data + "/config/codeGenConfig.xml");
        configuration.replace("name=\"prefixName\" value=\"\"", "name=\"prefixName\" value=\"Cc\"");
        configuration.replace("name=\"generateExamples\" value=\"true\"", "name=\"generateExamples\" value=\"false\"");
        writeTextFile(top + "/config.xml", configuration);
        writeTextFile(top + "/templates/stateRepHeader.tlt",
                      "// My own words.\n" + readTextFile(data + "/templates/stateRepHeader.tlt"));
        writeTextFile(top + "/odd.xml",
                      configuration.replace("</defaults>", "</defaults><user><var name=\"generateDIS\" "
                                                           "value=\"yes\"/></user>"));
        copyTree(data + "/config", top + "/data/config");
        copyTree(data + "/templates/json", top + "/data/templates/json");
        writeTextFile(top + "/data/genJson.txt", readTextFile(data + "/genJson.txt"));
        QDir().mkpath(top + "/none");
        writeTextFile(top + "/list.txt", readTextFile(data + "/genJson.txt").replace("model.json", "names.txt"));
    }

    std::unique_ptr<DtProgramFolder> myFolder;
};

QX_REGISTER_TEST(TestQxgenGenerate)
#include "testQxgenGenerate.moc"
