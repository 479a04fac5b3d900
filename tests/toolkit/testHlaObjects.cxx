// Publishers and reflected lists by named attributes.

#include "registerTest.h"

#include "exerciseFixture.h"

#include <QtTest/QtTest>

class TestHlaObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listFollowsAPublisher();
    void tickSendsWhatChangedOnly();
    void valueWithoutWireFormIsNamedAndUnsent();
    void valueTooLongForADatagramIsNamed();
    void unreadableValueKeepsTheOldOne();
    void objectsStandInTheOrderOfTheirNumbers();
    void removedCallbackIsNotCalled();
    void encoderOfTheCallersOwnTakesOver();
    void listKeepsNothingOfADestroyedConnection();
};

void TestHlaObjects::listFollowsAPublisher()
{
    DtExerciseConn ours("a"), theirs("a");
    HlaVesselList list(&theirs, "Vessel");
    {
        HlaVesselPublisher publisher(&ours, "Vessel.Tug", "Ada");
        publisher.vesselStateRep()->setSpeed(4);
        QVERIFY(publisher.tick());
        theirs.drainInput();
        QCOMPARE(list.count(), std::size_t(1));
        QCOMPARE(list.first()->objectId(), publisher.objectId());
    }
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(0));
    QCOMPARE(list.lines, QStringList({"+ Ada 0 ", "= Ada 4 ", "- Ada 4 "}));
}

void TestHlaObjects::tickSendsWhatChangedOnly()
{
    DtExerciseConn ours("a"), theirs("a");
    Recorder others(theirs);
    HlaVesselPublisher publisher(&ours, "Vessel", "Ada");
    QVERIFY(publisher.tick());
    publisher.vesselStateRep()->setCargo("tea");
    QVERIFY(publisher.tick());
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Cargo=tea"}));
}

void TestHlaObjects::valueWithoutWireFormIsNamedAndUnsent()
{
    DtExerciseConn ours("a"), theirs("a");
    Recorder others(theirs);
    HlaVesselPublisher publisher(&ours, "Vessel", "Ada");
    publisher.vesselStateRep()->setSpeed(-1);
    publisher.vesselStateRep()->setCargo("tea");
    QVERIFY(!publisher.tick());
    QCOMPARE(publisher.refused(), std::vector<std::string>{"Speed"});
    theirs.drainInput();
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Cargo=tea"}));
    QVERIFY(publisher.tick()); // nothing was set since
}

void TestHlaObjects::valueTooLongForADatagramIsNamed()
{
    DtExerciseConn ours("a", freeRange());
    HlaVesselPublisher publisher(&ours, "Vessel", "Ada");
    publisher.vesselStateRep()->setSpeed(1);
    publisher.vesselStateRep()->setCargo(std::string(DtExerciseConn::theMaximumMessage, 'c'));
    QVERIFY(!publisher.tick());
    QCOMPARE(publisher.refused(), std::vector<std::string>{"Cargo"});
    publisher.vesselStateRep()->setSpeed(2);
    QVERIFY(publisher.tick());
    QVERIFY(publisher.refused().empty());
}

void TestHlaObjects::unreadableValueKeepsTheOldOne()
{
    DtExerciseConn ours("a"), theirs("a");
    HlaVesselList list(&theirs, "Vessel");
    HlaVesselPublisher publisher(&ours, "Vessel", "Ada");
    publisher.vesselStateRep()->setSpeed(4);
    publisher.tick();
    QVERIFY(ours.updateObject(publisher.objectId(), {
                                                        {"Speed", DtValueBuffer(3)},
                                                        {"Cargo", octetsOf("tea") }
    }));
    theirs.drainInput();
    QCOMPARE(list.lines.last(), QString("= Ada 4 tea"));
    QCOMPARE(list.first()->refused(), std::vector<std::string>{"Speed"});
    QCOMPARE(list.first()->stateRepository()->changes(), std::vector<std::string>{"Cargo"});
}

void TestHlaObjects::objectsStandInTheOrderOfTheirNumbers()
{
    DtExerciseConn ours("a"), theirs("a");
    HlaVesselList list(&theirs, "Vessel");
    QVERIFY(list.first() == nullptr);
    HlaVesselPublisher ada(&ours, "Vessel", "Ada"), bee(&ours, "Vessel", "Bee");
    theirs.drainInput();
    const HlaVesselList::Vessel* const first = list.first();
    QCOMPARE(first->objectName(), std::string("Ada"));
    QCOMPARE(list.next(first)->objectName(), std::string("Bee"));
    QVERIFY(list.next(list.next(first)) == nullptr);
    QVERIFY(list.lookup(bee.objectId()) == list.next(first));
    QVERIFY(list.lookup(0) == nullptr);
}

void TestHlaObjects::removedCallbackIsNotCalled()
{
    DtExerciseConn ours("a"), theirs("a");
    HlaVesselList list(&theirs, "Vessel");
    HlaVesselPublisher publisher(&ours, "Vessel", "Ada");
    publisher.vesselStateRep()->setSpeed(4);
    publisher.tick();
    list.stopNotingUpdates();
    theirs.drainInput();
    QCOMPARE(list.lines, QStringList("+ Ada 0 "));
    QCOMPARE(list.first()->vesselStateRep()->speed(), 4.0);
}

void TestHlaObjects::encoderOfTheCallersOwnTakesOver()
{
    DtExerciseConn ours("a"), theirs("a");
    Recorder others(theirs);
    HlaVesselPublisher publisher(&ours, "Vessel", "Ada");
    publisher.setEncoder(nullptr);
    publisher.vesselStateRep()->setCargo("tea");
    QVERIFY(publisher.tick());
    publisher.setEncoder(std::make_unique<DtHlaStateEncoder>()); // knows no attribute
    publisher.vesselStateRep()->setCargo("coal");
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Cargo=tea"}));
}

void TestHlaObjects::listKeepsNothingOfADestroyedConnection()
{
    DtExerciseConn theirs("a");
    HlaVesselList list(&theirs, "Vessel");
    {
        DtExerciseConn ours("a");
        ours.addObject("Vessel", "Ada");
        theirs.drainInput();
        QCOMPARE(list.count(), std::size_t(1));
    }
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(0));
}

QX_REGISTER_TEST(TestHlaObjects)
#include "testHlaObjects.moc"
