// qxgen generate --watch runs again whenever an input changes.

#include "codeGenApp/omtProjectXmlWriter.h"
#include "fileGenerator/omtProject.h"
#include "qxgenProgram.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestQxgenWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myFolder = std::make_unique<DtProgramFolder>();
        myFolder->write("models/small.xml", smallModel());
        myFolder->write("my/json/model.tlt", readBytes(QX_SOURCE_DIR "/data/templates/json/model.tlt"));
        myFolder->write("my/genMine.txt", readBytes(QX_SOURCE_DIR "/data/genJson.txt"));
    }

    void everyInputIsWatched_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("expected"); // in the new output
        const QByteArray model = "models/small.xml";
        QTest::newRow("model") << model << QByteArray("Tanker") << QByteArray("Ferry") << QByteArray("Ferry");
        QTest::newRow("template") << QByteArray("my/json/model.tlt") << QByteArray("{") << QByteArray("{ \"mine\": 1,")
                                  << QByteArray("\"mine\"");
        QTest::newRow("command file") << QByteArray("my/genMine.txt") << QByteArray("file model.json")
                                      << QByteArray("file other.json") << QByteArray();
    }
    void everyInputIsWatched()
    {
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, expected);
        const pid_t program = startWatch("models/small.xml");
        QVERIFY2(comesTrue([this] { return isWatching(1); }), myFolder->errorsSoFar().c_str());
        QVERIFY(!contains(output(), expected.toStdString()) || expected.isEmpty());
        std::string text = myFolder->text(input.toStdString());
        text.replace(text.find(before.toStdString()), static_cast<std::size_t>(before.size()), after.toStdString());
        myFolder->write(input.toStdString(), text);
        QVERIFY2(comesTrue([this] { return isWatching(2); }), myFolder->errorsSoFar().c_str());
        QVERIFY2(contains(output(), expected.toStdString()), output().c_str());
        QCOMPARE(std::filesystem::exists(myFolder->path("out/model.json")), !expected.isEmpty());
        QCOMPARE(std::filesystem::exists(myFolder->path("out/other.json")), expected.isEmpty());
        QCOMPARE(endBy(program, SIGINT), 130);
    }

    void failedRunIsToldAndTheNextChangeTriesAgain()
    {
        const pid_t program = startWatch("models/small.xml");
        QVERIFY2(comesTrue([this] { return isWatching(1); }), myFolder->errorsSoFar().c_str());
        const std::string before = output();
        replace("models/small.xml", "<objectModel");
        QVERIFY2(comesTrue([this] { return isWatching(2); }), myFolder->errorsSoFar().c_str());
        QVERIFY2(contains(myFolder->errorsSoFar(), "qxgen: error: the model cannot be read: "),
                 myFolder->errorsSoFar().c_str());
        COMPARE_TEXT(output(), before.c_str());
        std::filesystem::remove(myFolder->path("models/small.xml"));
        QVERIFY2(comesTrue([this] { return isWatching(3); }), myFolder->errorsSoFar().c_str());
        std::string text = smallModel();
        replace("models/small.xml", text.replace(text.find("Tanker"), 6, "Ferry"));
        QVERIFY2(comesTrue([this] { return contains(output(), "Ferry"); }), myFolder->errorsSoFar().c_str());
        QCOMPARE(endBy(program, SIGTERM), 143);
    }

    void whatIsMissingAtTheStartIsAwaited_data()
    {
        QTest::addColumn<QByteArray>("missing");
        QTest::addColumn<QByteArray>("options"); // with bars between
        const QByteArray usual = "models/small.xml|--script|mine|--template-dir|my";
        QTest::newRow("model") << QByteArray("models/small.xml") << usual;
        QTest::newRow("folder of the model") << QByteArray("models") << usual;
        QTest::newRow("model of a model path")
            << QByteArray("models") << QByteArray("small.xml|--model-path|models|--script|json");
        QTest::newRow("project") << QByteArray("port.qxproj") << QByteArray("--project|port.qxproj|--script|json");
        QTest::newRow("model of a project")
            << QByteArray("models") << QByteArray("--project|port.qxproj|--script|json");
        QTest::newRow("script by its name") << QByteArray("my/genMine.txt") << usual;
        QTest::newRow("script by its path")
            << QByteArray("my/genMine.txt") << QByteArray("models/small.xml|--script|my/genMine.txt");
        QTest::newRow("template directory") << QByteArray("my") << usual;
        QTest::newRow("configuration") << QByteArray("own")
                                       << QByteArray("models/small.xml|--script|json|--config|own");
    }
    void whatIsMissingAtTheStartIsAwaited()
    {
        QFETCH(QByteArray, missing);
        QFETCH(QByteArray, options);
        myFolder->write("own", readBytes(QX_SOURCE_DIR "/data/config/codeGenConfig.xml"));
        DtOmtProject project;
        project.addFomDefFile("small.xml", "models");
        project.addObject("HLAobjectRoot.Barge", true, "Vessel");
        DtOmtProjectXmlWriter(project, DtFilename(DtString(myFolder->path("port.qxproj").native()))).writeXml();
        const std::filesystem::path place = myFolder->path(missing.toStdString());
        std::filesystem::rename(place, myFolder->path("away"));
        DtArguments arguments = {"-o", "out", "--watch"};
        for (const QByteArray& each : options.split('|'))
            arguments.push_back(each.toStdString());
        const pid_t program = myFolder->startGenerate(arguments);
        QVERIFY2(comesTrue([this] { return isWatching(1); }), myFolder->errorsSoFar().c_str());
        COMPARE_TEXT(output(), "");
        std::filesystem::rename(myFolder->path("away"), place);
        const bool isSeen = comesTrue([this] { return contains(output(), "Barge"); });
        QCOMPARE(endBy(program, SIGINT), 130);
        QVERIFY2(isSeen, myFolder->errorsSoFar().c_str());
    }

    void newFileThatStandsInForAShippedOneIsSeen_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("in the first directory") << QByteArray("first/json/model.tlt");
        QTest::newRow("ahead of that of another directory") << QByteArray("my/json/model.tlt");
    }
    void newFileThatStandsInForAShippedOneIsSeen()
    {
        QFETCH(QByteArray, file);
        std::filesystem::create_directories(myFolder->path("first"));
        if (file.startsWith("my"))
            std::filesystem::remove(myFolder->path("my/json/model.tlt"));
        const pid_t program = myFolder->startGenerate({"models/small.xml", "-o", "out", "--watch", "--script", "json",
                                                       "--template-dir", "first", "--template-dir", "my"});
        QVERIFY2(comesTrue([this] { return isWatching(1); }), myFolder->errorsSoFar().c_str());
        myFolder->write("new", "{ \"mine\": 1 }\n");
        std::filesystem::create_directories(myFolder->path(file.toStdString()).parent_path());
        std::filesystem::rename(myFolder->path("new"), myFolder->path(file.toStdString()));
        const bool isSeen = comesTrue([this] { return contains(output(), "mine"); });
        QCOMPARE(endBy(program, SIGINT), 130);
        QVERIFY2(isSeen, myFolder->errorsSoFar().c_str());
    }

    void watchingIsNotToldToWhoWantsErrorsOnly()
    {
        const pid_t program =
            myFolder->startGenerate({"models/small.xml", "-o", "out", "--watch", "-q", "--script", "json"});
        QVERIFY(comesTrue([this] { return !output().empty(); }));
        std::string text = smallModel();
        text.replace(text.find("Tanker"), 6, "Ferry");
        for (int tries = 0; tries < 60 && !contains(output(), "Ferry"); ++tries)
        {
            replace("models/small.xml", text); // once more for a program that was not watching yet
            std::this_thread::sleep_for(std::chrono::seconds(1));
        }
        QVERIFY(contains(output(), "Ferry"));
        QCOMPARE(endBy(program, SIGINT), 130);
        COMPARE_TEXT(myFolder->errorsSoFar(), "");
    }

    void folderMayHaveAnyName_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("blank") << QByteArray("my models");
        QTest::newRow("UTF-8") << QByteArray("M\xc3\xa4rz");
        QTest::newRow("Latin 1") << QByteArray("M\xe4rz");
    }
    void folderMayHaveAnyName()
    {
        QFETCH(QByteArray, name);
        const std::string model = name.toStdString() + "/small.xml";
        myFolder->write(model, smallModel());
        const pid_t program = startWatch(model);
        QVERIFY2(comesTrue([this] { return isWatching(1); }), myFolder->errorsSoFar().c_str());
        std::string text = smallModel();
        myFolder->write(model, text.replace(text.find("Tanker"), 6, "Ferry"));
        const bool isSeen = comesTrue([this] { return contains(output(), "Ferry"); });
        QCOMPARE(endBy(program, SIGINT), 130);
        QVERIFY(isSeen);
    }

private:
    pid_t startWatch(const std::string& model) const
    {
        return myFolder->startGenerate({model, "-o", "out", "--watch", "--script", "mine", "--template-dir", "my"});
    }

    // Whether that many runs are done.
    bool isWatching(int runs) const
    {
        const std::string told = myFolder->errorsSoFar();
        int found = 0;
        for (std::size_t at = 0; (at = told.find("qxgen: watching ", at)) != std::string::npos; ++at)
            ++found;
        return found >= runs;
    }

    std::string output() const { return myFolder->text("out/model.json") + myFolder->text("out/other.json"); }

    void replace(const std::string& name, const std::string& content) const
    {
        myFolder->write("new", content);
        std::filesystem::rename(myFolder->path("new"), myFolder->path(name));
    }

    static int endBy(pid_t program, int signal)
    {
        kill(program, signal);
        return endOf(program);
    }

    std::unique_ptr<DtProgramFolder> myFolder;
};

QX_REGISTER_TEST(TestQxgenWatch)
#include "testQxgenWatch.moc"
