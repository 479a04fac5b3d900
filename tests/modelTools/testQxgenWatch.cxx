// qxgen generate --watch runs again whenever an input changes.

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
