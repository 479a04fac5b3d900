// Connections of two processes.

#include "registerTest.h"

#include "exerciseFixture.h"

#include <QtTest/QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
// Another process for as long as this lives. It has ten seconds, and runs nothing of the test program but the work.
class Child
{
public:
    explicit Child(const std::function<void()>& work) : myPid(::fork())
    {
        if (myPid != 0)
            return;
        ::alarm(10);
        work();
        ::_exit(0);
    }
    ~Child()
    {
        kill();
        ::waitpid(myPid, nullptr, 0);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    bool isThere() const { return myPid > 0; }
    void kill() { ::kill(myPid, SIGKILL); }

private:
    pid_t myPid;
};

// Drains until the others say so in a message.
void runUntilMessage(DtExerciseConn& connection, const char* text)
{
    MessageRecorder messages(connection);
    runUntil({&connection}, [&] { return !messages.messages.empty() && messages.messages.back() == octetsOf(text); });
}

struct Answerer
{
    DtExerciseConn* connection;

    static void answer(Signal* signal, void* self)
    {
        sendText(*static_cast<Answerer*>(self)->connection, "you said " + signal->text);
    }
};
} // namespace

class TestExerciseProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { myRange = freeRange(); }

    void objectOfAnotherProcessComesChangesAndGoes();
    void processThatComesLateLearnsOfObjects();
    void interactionsGoBothWays();
    void killedProcessTakesItsObjectsAlong();
    void disObjectOfAnotherProcessComesAndGoes();

private:
    unsigned short myRange = 0;
};

void TestExerciseProcesses::objectOfAnotherProcessComesChangesAndGoes()
{
    const unsigned short range = myRange;
    Child child(
        [range]
        {
            DtExerciseConn connection("a", range);
            HlaVesselPublisher publisher(&connection, "Vessel", "Ada");
            publisher.vesselStateRep()->setCargo("coal");
            publisher.tick();
            runUntilMessage(connection, "faster");
            publisher.vesselStateRep()->setSpeed(12);
            publisher.tick();
            runUntilMessage(connection, "enough");
        });
    QVERIFY(child.isThere());
    DtExerciseConn connection("a", range);
    HlaVesselList list(&connection, "Vessel");
    QVERIFY(runUntil({&connection}, [&] { return list.lines.contains("= Ada 0 coal"); }));
    QVERIFY(connection.sendMessage(octetsOf("faster")));
    QVERIFY(runUntil({&connection}, [&] { return list.lines.contains("= Ada 12 coal"); }));
    QVERIFY(connection.sendMessage(octetsOf("enough")));
    QVERIFY(runUntil({&connection}, [&] { return list.count() == 0; }));
    QCOMPARE(list.lines.first(), QString("+ Ada 0 "));
    QCOMPARE(list.lines.last(), QString("- Ada 12 coal"));
}

void TestExerciseProcesses::processThatComesLateLearnsOfObjects()
{
    const unsigned short range = myRange;
    int gate[2];
    QCOMPARE(::pipe(gate), 0);
    Child child(
        [range, &gate]
        {
            char go = 0;
            (void)!::read(gate[0], &go, 1);
            DtExerciseConn connection("a", range);
            HlaVesselList list(&connection, "Vessel");
            runUntil({&connection}, [&] { return list.lines.contains("= Ada 7 tea"); });
            sendText(connection, "I see " + list.first()->objectName());
            runUntilMessage(connection, "enough");
        });
    QVERIFY(child.isThere());
    DtExerciseConn connection("a", range);
    HlaVesselPublisher publisher(&connection, "Vessel", "Ada");
    publisher.vesselStateRep()->setCargo("tea");
    QVERIFY(publisher.tick());
    publisher.vesselStateRep()->setSpeed(7);
    QVERIFY(publisher.tick());
    QStringList texts;
    connection.addInteractionCallback(&noteText<Signal>, &texts);
    QCOMPARE(::write(gate[1], "g", 1), ssize_t(1));
    ::close(gate[0]);
    ::close(gate[1]);
    QVERIFY(runUntil({&connection}, [&] { return texts == QStringList("I see Ada"); }));
    QVERIFY(connection.sendMessage(octetsOf("enough")));
}

void TestExerciseProcesses::interactionsGoBothWays()
{
    const unsigned short range = myRange;
    Child child(
        [range]
        {
            DtExerciseConn connection("a", range);
            Answerer answerer = {&connection};
            connection.addInteractionCallback(&Answerer::answer, &answerer);
            sendText(connection, "ready");
            runUntilMessage(connection, "enough");
        });
    QVERIFY(child.isThere());
    DtExerciseConn connection("a", range);
    QStringList texts;
    connection.addInteractionCallback(&noteText<Signal>, &texts);
    // The child may have been ready before there was anyone to hear it, so it is asked until it answers.
    QVERIFY(runUntil({&connection},
                     [&]
                     {
                         sendText(connection, "toot");
                         return texts.contains("you said toot");
                     }));
    QVERIFY(connection.sendMessage(octetsOf("enough")));
}

void TestExerciseProcesses::killedProcessTakesItsObjectsAlong()
{
    const unsigned short range = myRange;
    Child child(
        [range]
        {
            DtExerciseConn connection("a", range);
            connection.setHeartbeat(0.1);
            connection.addObject("Vessel", "Ada");
            runUntilMessage(connection, "enough");
        });
    QVERIFY(child.isThere());
    DtExerciseConn connection("a", range);
    Recorder others(connection);
    QVERIFY(runUntil({&connection}, [&] { return others.lines == QStringList("+ Ada"); }));
    runFor({&connection}, 700);
    QCOMPARE(others.lines, QStringList("+ Ada"));
    child.kill();
    QVERIFY(runUntil({&connection}, [&] { return others.lines.size() == 2; }));
    QCOMPARE(others.lines, QStringList({"+ Ada", "- Ada"}));
}

void TestExerciseProcesses::disObjectOfAnotherProcessComesAndGoes()
{
    const unsigned short range = myRange;
    Child child(
        [range]
        {
            DtExerciseConn connection("a", range);
            DisVesselPublisher publisher(&connection, 5, "Ada");
            publisher.setHeartbeat(0.02);
            publisher.vesselStateRep()->setSpeed(3);
            MessageRecorder messages(connection);
            runUntil({&connection}, [&] { return publisher.tick() && !messages.messages.empty(); });
        });
    QVERIFY(child.isThere());
    DtExerciseConn connection("a", range);
    DisVesselList list(&connection, 5);
    QVERIFY(runUntil({&connection}, [&] { return list.count() == 1; }));
    QVERIFY(connection.sendMessage(octetsOf("enough")));
    QVERIFY(runUntil({&connection}, [&] { return list.count() == 0; }));
    QCOMPARE(list.lines.first(), QString("+ Ada 3 "));
    QCOMPARE(list.lines.last(), QString("- Ada 3 "));
}

QX_REGISTER_TEST(TestExerciseProcesses)
#include "testExerciseProcesses.moc"
