// Publishers and reflected lists by protocol data units.

#include "registerTest.h"

#include "exerciseFixture.h"

#include <QtTest/QtTest>

namespace
{
const int theKind = 300; // more than one octet holds

// Sends a unit about object 77 by hand.
void sendState(DtExerciseConn& connection, const DtValueBuffer& body, bool isRemoval = false)
{
    DtStateMsg message;
    message.setPduKind(theKind);
    message.setObjectId(77);
    message.setObjectName("Odd");
    message.setRemoval(isRemoval);
    message.setBody(body);
    DtValueBuffer octets;
    QVERIFY(message.encodeMessage(octets));
    QVERIFY(connection.sendMessage(octets));
}

DtValueBuffer bodyOf(const DtAttributeValues& values)
{
    DtValueBuffer body;
    DtEncodeValues(values, body);
    return body;
}
} // namespace

class TestDisObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstUnitAddsTheObjectWithItsState();
    void everyUnitTellsTheWholeState();
    void nothingIsSentWithoutChangeBeforeTheHeartbeat();
    void heartbeatTellsThoseWhoComeLate();
    void destructionRemovesTheObject();
    void publisherThatSentNothingRemovesNothing();
    void silenceRemovesTheObject();
    void heartbeatKeepsTheObject();
    void listWithoutTimeOutKeepsTheObject();
    void anotherKindIsPassedOver();
    void attributeWithoutWireFormIsNamedAndAbsent();
    void unitThatIsTooLongStaysAndNamesAll();
    void kindThatIsNoneIsRefused();
    void unreadableValueKeepsTheOldOne();
    void unreadableBodyKeepsTheState();
    void unitThatTellsNoObjectIsPassedOver();
    void objectsStandInTheOrderOfTheirNumbers();
    void encoderOfTheCallersOwnTakesOver();
    void objectsGoAcrossPorts();
};

void TestDisObjects::firstUnitAddsTheObjectWithItsState()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(0));
    publisher.vesselStateRep()->setSpeed(4);
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(list.lines, QStringList({"+ Ada 4 ", "= Ada 4 "}));
    QCOMPARE(list.first()->objectId(), publisher.objectId());
    QVERIFY(publisher.objectId() != 0);
}

void TestDisObjects::everyUnitTellsTheWholeState()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    publisher.vesselStateRep()->setSpeed(4);
    QVERIFY(publisher.tick());
    DisVesselList list(&theirs, theKind);
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(0)); // the unit came before the list
    publisher.vesselStateRep()->setCargo("tea");
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(list.lines, QStringList({"+ Ada 4 tea", "= Ada 4 tea"}));
    QCOMPARE(list.first()->stateRepository()->changes(), (std::vector<std::string>{"Cargo", "Speed"}));
}

void TestDisObjects::nothingIsSentWithoutChangeBeforeTheHeartbeat()
{
    DtExerciseConn ours("a"), theirs("a");
    MessageRecorder messages(theirs);
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    QVERIFY(publisher.tick()); // the first goes without a change
    publisher.vesselStateRep()->setSpeed(1);
    for (int count = 0; count < 5; ++count)
        QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(messages.messages.size(), std::size_t(2));
    publisher.setHeartbeat(0);
    QVERIFY(publisher.tick());
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(messages.messages.size(), std::size_t(4));
    publisher.setHeartbeat(-1); // never
    QVERIFY(publisher.tick());
    QVERIFY(!theirs.waitForInput(0));
}

void TestDisObjects::heartbeatTellsThoseWhoComeLate()
{
    DtExerciseConn ours("a");
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    publisher.setHeartbeat(0.02);
    publisher.vesselStateRep()->setSpeed(4);
    QVERIFY(publisher.tick());
    DtExerciseConn theirs("a");
    DisVesselList list(&theirs, theKind);
    QVERIFY(runUntil({&theirs}, [&] { return publisher.tick() && list.count() == 1; }));
    QCOMPARE(list.lines.first(), QString("+ Ada 4 "));
}

void TestDisObjects::destructionRemovesTheObject()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    {
        DisVesselPublisher publisher(&ours, theKind, "Ada");
        QVERIFY(publisher.tick());
    }
    theirs.drainInput();
    QCOMPARE(list.lines, QStringList({"+ Ada 0 ", "= Ada 0 ", "- Ada 0 "}));
    QVERIFY(list.first() == nullptr);
}

void TestDisObjects::publisherThatSentNothingRemovesNothing()
{
    DtExerciseConn ours("a"), theirs("a");
    {
        DisVesselPublisher publisher(&ours, theKind, "Ada");
    }
    QVERIFY(!theirs.waitForInput(0));
}

void TestDisObjects::silenceRemovesTheObject()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    list.setTimeOut(0.1);
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    publisher.setHeartbeat(-1);
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(1));
    QVERIFY(runUntil({&theirs}, [&] { return list.count() == 0; }));
    QCOMPARE(list.lines.last(), QString("- Ada 0 "));
    publisher.vesselStateRep()->setSpeed(1);
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(1)); // it comes again
}

void TestDisObjects::heartbeatKeepsTheObject()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    list.setTimeOut(0.5);
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    publisher.setHeartbeat(0.01);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(runUntil({&theirs}, [&] { return publisher.tick() && timer.elapsed() > 800; }));
    QVERIFY(list.lines.filter("-").isEmpty());
    QCOMPARE(list.count(), std::size_t(1));
}

void TestDisObjects::listWithoutTimeOutKeepsTheObject()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    list.setTimeOut(0.02);
    list.setTimeOut(0);
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    QVERIFY(publisher.tick());
    runFor({&theirs}, 60);
    QCOMPARE(list.count(), std::size_t(1));
}

void TestDisObjects::anotherKindIsPassedOver()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    DisVesselPublisher sameOctet(&ours, theKind & 0xFF, "Ada");
    QVERIFY(sameOctet.tick());
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(0));
}

void TestDisObjects::attributeWithoutWireFormIsNamedAndAbsent()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    publisher.vesselStateRep()->setSpeed(-1);
    publisher.vesselStateRep()->setCargo("tea");
    QVERIFY(!publisher.tick());
    QCOMPARE(publisher.refused(), std::vector<std::string>{"Speed"});
    theirs.drainInput();
    QCOMPARE(list.lines.last(), QString("= Ada 0 tea"));
}

void TestDisObjects::unitThatIsTooLongStaysAndNamesAll()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    publisher.vesselStateRep()->setCargo(std::string(DtExerciseConn::theMaximumMessage, 'c'));
    QVERIFY(!publisher.tick());
    QCOMPARE(publisher.refused(), (std::vector<std::string>{"Cargo", "Speed"}));
    QVERIFY(!publisher.tick()); // the others still do not know of it
    QVERIFY(!theirs.waitForInput(0));
    publisher.vesselStateRep()->setCargo("tea");
    QVERIFY(publisher.tick());
    QVERIFY(publisher.refused().empty());
    QVERIFY(theirs.waitForInput(0));
}

void TestDisObjects::kindThatIsNoneIsRefused()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselPublisher publisher(&ours, -1, "Ada");
    QVERIFY(!publisher.tick());
    QVERIFY(!theirs.waitForInput(0));
}

void TestDisObjects::unreadableValueKeepsTheOldOne()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    const DtValueBuffer four = {0x40, 0x10, 0, 0, 0, 0, 0, 0};
    sendState(ours, bodyOf({
                        {"Speed",   four         },
                        {"Unknown", octetsOf("?")}
    }));
    sendState(ours, bodyOf({
                        {"Speed", DtValueBuffer(7)},
                        {"Cargo", octetsOf("tea") }
    }));
    theirs.drainInput();
    QCOMPARE(list.lines, QStringList({"+ Odd 4 ", "= Odd 4 ", "= Odd 4 tea"}));
    QCOMPARE(list.first()->refused(), std::vector<std::string>{"Speed"});
    sendState(ours, DtValueBuffer(), true);
    theirs.drainInput();
    QCOMPARE(list.count(), std::size_t(0));
}

void TestDisObjects::unreadableBodyKeepsTheState()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    sendState(ours, bodyOf({
                        {"Cargo", octetsOf("tea")}
    }));
    sendState(ours, octetsOf("abc"));
    theirs.drainInput();
    QCOMPARE(list.lines.last(), QString("= Odd 0 tea"));
    QVERIFY(list.first()->refused().empty());
    QVERIFY(list.first()->stateRepository()->changes().empty());
    DtStateMsg message;
    message.setBody(octetsOf("abc"));
    QVERIFY(!list.first()->update(message));
    message.setValues({
        {"Cargo", octetsOf("coal")}
    });
    QVERIFY(list.first()->update(message));
}

void TestDisObjects::unitThatTellsNoObjectIsPassedOver()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    QVERIFY(ours.sendPdu(theKind, DtValueBuffer(10))); // too short for an object
    QVERIFY(ours.sendPdu(theKind, DtValueBuffer(11))); // object 0
    sendState(ours, DtValueBuffer(), true);            // the removal of one that is unknown
    theirs.drainInput();
    QCOMPARE(list.lines, QStringList());
}

void TestDisObjects::objectsStandInTheOrderOfTheirNumbers()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    DisVesselPublisher ada(&ours, theKind, "Ada"), bee(&ours, theKind, "Bee");
    QVERIFY(bee.tick());
    QVERIFY(ada.tick());
    theirs.drainInput();
    const DisVesselList::Vessel* const first = list.first();
    QCOMPARE(first->objectName(), std::string("Ada"));
    QCOMPARE(list.next(first)->objectName(), std::string("Bee"));
    QVERIFY(list.next(list.next(first)) == nullptr);
    QVERIFY(list.lookup(bee.objectId()) == list.next(first));
}

void TestDisObjects::encoderOfTheCallersOwnTakesOver()
{
    DtExerciseConn ours("a"), theirs("a");
    DisVesselList list(&theirs, theKind);
    DisVesselPublisher publisher(&ours, theKind, "Ada");
    publisher.setEncoder(nullptr);
    publisher.vesselStateRep()->setSpeed(4);
    QVERIFY(publisher.tick());
    publisher.setEncoder(std::make_unique<DtStateEncoder>()); // knows no attribute
    publisher.vesselStateRep()->setSpeed(5);
    QVERIFY(publisher.tick());
    theirs.drainInput();
    QCOMPARE(list.lines, QStringList({"+ Ada 4 ", "= Ada 4 ", "= Ada 4 "}));
    QVERIFY(list.first()->stateRepository()->changes().empty());
}

void TestDisObjects::objectsGoAcrossPorts()
{
    const unsigned short range = freeRange();
    DtExerciseConn ours("a", range), theirs("a", range);
    DisVesselList list(&theirs, theKind);
    {
        DisVesselPublisher publisher(&ours, theKind, "Ada");
        publisher.vesselStateRep()->setCargo("tea");
        QVERIFY(publisher.tick());
        QVERIFY(runUntil({&ours, &theirs}, [&] { return list.count() == 1; }));
    }
    QVERIFY(runUntil({&ours, &theirs}, [&] { return list.count() == 0; }));
    QCOMPARE(list.lines, QStringList({"+ Ada 0 tea", "= Ada 0 tea", "- Ada 0 tea"}));
}

QX_REGISTER_TEST(TestDisObjects)
#include "testDisObjects.moc"
