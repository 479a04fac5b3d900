// Opaque messages, and protocol data units as such.

#include "registerTest.h"

#include "exerciseFixture.h"

#include <qx/stateMsg.h>

#include <QtTest/QtTest>

namespace
{
class PduRecorder : public DtPduObserver
{
public:
    PduRecorder(DtExerciseConn& connection, int kind) : myConnection(connection)
    {
        myConnection.addPduObserver(this, kind);
    }
    ~PduRecorder() override { myConnection.removePduObserver(this); }

    QStringList bodies;
    int drains = 0;

private:
    void pduReceived(const DtNetPduHeader& header, const DtValueBuffer& body) override
    {
        bodies += QString::number(header.pduKind()) + " " + textOf(body);
    }
    void inputDrained() override { ++drains; }

    DtExerciseConn& myConnection;
};

bool sendPduText(DtExerciseConn& connection, int kind, const std::string& text)
{
    PduSignal signal;
    signal.text = text;
    return connection.sendPdu(kind, signal, DtSharedEncoder<SignalEncoder<PduSignal>>());
}

const auto theDecoder = &DtSharedDecoder<SignalDecoder<PduSignal>>;

DtStateMsg sampleMessage()
{
    DtStateMsg message;
    message.setPduKind(3);
    message.setObjectId(0x0102030405060708);
    message.setObjectName("Ada");
    message.setBody(octetsOf("xyz"));
    return message;
}
} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messageReachesTheObserversOfTheOthers();
    void removedObserverGetsNoMore();
    void tooLongMessageIsRefused();
    void headerHasTheFormOfTheStandard();
    void kindBeyondOneOctetIsKept();
    void headerThatIsShortOrLiesIsRefused();
    void stateMessageComesBackAsItWas();
    void stateMessageThatIsShortOrLiesIsRefused();
    void stateMessageThatIsTooLongIsRefused();
    void whatStandsBehindAUnitIsLeft();
    void unitReachesTheObserversOfItsKind();
    void messageThatIsNoUnitReachesNoneOfThem();
    void unitOfNoKindOrTooLongStays();
    void drainIsToldToObserversOfUnits();
    void interactionGoesAsAUnit();
    void unitWithoutParametersIsNoInteraction();
};

void TestMessages::messageReachesTheObserversOfTheOthers()
{
    DtExerciseConn sender("a"), other("a"), third("a");
    MessageRecorder own(sender), others(other), thirds(third);
    QVERIFY(sender.sendMessage(octetsOf("one")));
    QVERIFY(other.sendMessage(octetsOf("two")));
    QVERIFY(others.messages.empty());
    for (DtExerciseConn* connection : {&sender, &other, &third})
        connection->drainInput();
    QVERIFY(own.messages == std::vector<DtValueBuffer>{octetsOf("two")});
    QVERIFY(others.messages == std::vector<DtValueBuffer>{octetsOf("one")});
    QVERIFY((thirds.messages == std::vector<DtValueBuffer>{octetsOf("one"), octetsOf("two")}));
}

void TestMessages::removedObserverGetsNoMore()
{
    DtExerciseConn sender("a"), other("a");
    MessageRecorder kept(other);
    {
        MessageRecorder gone(other);
        sender.sendMessage(octetsOf("one"));
    }
    other.drainInput();
    QCOMPARE(kept.messages.size(), std::size_t(1));
}

void TestMessages::tooLongMessageIsRefused()
{
    DtExerciseConn sender("a"), other("a");
    MessageRecorder others(other);
    QVERIFY(!sender.sendMessage(DtValueBuffer(DtExerciseConn::theMaximumMessage + 1)));
    QVERIFY(sender.sendMessage(DtValueBuffer(DtExerciseConn::theMaximumMessage)));
    other.drainInput();
    QCOMPARE(others.messages.size(), std::size_t(1));
}

void TestMessages::headerHasTheFormOfTheStandard()
{
    DtNetPduHeader header;
    header.setExerciseIdentifier(2);
    header.setPduKind(0x43);
    header.setProtocolFamily(4);
    header.setTimestamp(0x05060708);
    DtValueBuffer octets;
    QVERIFY(DtEncodePdu(header, octetsOf("abc"), octets));
    QVERIFY(octets == DtValueBuffer({7, 2, 0x43, 4, 5, 6, 7, 8, 0, 15, 0, 0, 'a', 'b', 'c'}));
    DtNetPduHeader taken;
    DtValueBuffer body;
    QVERIFY(DtDecodePdu(octets, taken, body));
    QVERIFY(body == octetsOf("abc"));
    QCOMPARE(int(taken.protocolVersion()), 7);
    QCOMPARE(int(taken.exerciseIdentifier()), 2);
    QCOMPARE(taken.pduKind(), 0x43);
    QCOMPARE(int(taken.protocolFamily()), 4);
    QCOMPARE(taken.timestamp(), std::uint32_t(0x05060708));
    QCOMPARE(int(taken.length()), 15);
}

void TestMessages::kindBeyondOneOctetIsKept()
{
    for (int kind : {0, 255, 256, 65536, DtNetPduHeader::theMaximumKind})
    {
        DtNetPduHeader header, taken;
        header.setPduKind(kind);
        DtValueBuffer octets;
        header.encodeHeader(octets);
        QVERIFY(taken.decodeHeader(octets));
        QCOMPARE(taken.pduKind(), kind);
    }
    DtNetPduHeader header;
    header.setPduKind(5);
    header.setPduKind(-1);
    QCOMPARE(header.pduKind(), 0);
    QVERIFY(!DtNetPduHeader::isKind(DtNetPduHeader::theMaximumKind + 1));
}

void TestMessages::headerThatIsShortOrLiesIsRefused()
{
    DtValueBuffer octets;
    QVERIFY(DtEncodePdu(DtNetPduHeader(), octetsOf("abc"), octets));
    DtNetPduHeader header;
    header.setPduKind(9);
    DtValueBuffer body = octetsOf("old");
    for (std::size_t length = 0; length < octets.size(); ++length)
        QVERIFY(!DtDecodePdu(DtValueBuffer(octets.begin(), octets.begin() + static_cast<int>(length)), header, body));
    octets[9] = 11; // less than the header
    QVERIFY(!DtDecodePdu(octets, header, body));
    QVERIFY(!header.decodeHeader(octets));
    QCOMPARE(header.pduKind(), 9);
    QVERIFY(body == octetsOf("old"));
}

void TestMessages::stateMessageComesBackAsItWas()
{
    DtStateMsg message = sampleMessage();
    DtValueBuffer octets;
    QVERIFY(message.encodeMessage(octets));
    QVERIFY(octets == DtValueBuffer({7, 0, 3, 0, 0, 0, 0, 0, 0,   29,  0,   0,   1,   2,  3,
                                     4, 5, 6, 7, 8, 0, 0, 3, 'A', 'd', 'a', 'x', 'y', 'z'}));
    message.setRemoval(true);
    message.setValues(valuesOf("Speed", "1"));
    QVERIFY(message.encodeMessage(octets));
    DtStateMsg taken;
    QVERIFY(taken.decodeMessage(octets));
    DtAttributeValues values;
    QVERIFY(taken.values(values));
    QVERIFY(values == valuesOf("Speed", "1"));
    QVERIFY(taken.isRemoval());
    QCOMPARE(taken.pduKind(), 3);
    QCOMPARE(taken.objectId(), message.objectId());
    QCOMPARE(taken.objectName(), message.objectName());
}

void TestMessages::stateMessageThatIsShortOrLiesIsRefused()
{
    DtValueBuffer octets;
    QVERIFY(sampleMessage().encodeMessage(octets));
    DtStateMsg taken;
    taken.setObjectName("old");
    for (std::size_t length = 0; length < octets.size(); ++length)
        QVERIFY(!taken.decodeMessage(DtValueBuffer(octets.begin(), octets.begin() + static_cast<int>(length))));
    for (const auto& [place, value] : {
             std::pair<int, int>{20, 2},
              {21, 1},
              {22, 7}
    }) // the mark, the name's length
    {
        DtValueBuffer lying = octets;
        lying[static_cast<std::size_t>(place)] = static_cast<unsigned char>(value);
        QVERIFY(!taken.decodeMessage(lying));
    }
    QCOMPARE(taken.objectName(), std::string("old"));
    QVERIFY(taken.decodeMessage(octets));
    DtAttributeValues values = valuesOf("old", "old");
    QVERIFY(!taken.values(values)); // "xyz" is no run of values
    QVERIFY(values == valuesOf("old", "old"));
}

void TestMessages::stateMessageThatIsTooLongIsRefused()
{
    const std::size_t longest = 0xFFFF - DtNetPduHeader::theSize - 11 - 3;
    DtStateMsg message = sampleMessage();
    DtValueBuffer octets;
    message.setBody(DtValueBuffer(longest));
    QVERIFY(message.encodeMessage(octets));
    QCOMPARE(octets.size(), std::size_t(0xFFFF));
    message.setBody(DtValueBuffer(longest + 1));
    QVERIFY(!message.encodeMessage(octets));
    QVERIFY(octets.empty());
    message.setBody(DtValueBuffer());
    message.setObjectName(std::string(DtStateMsg::theMaximumName + 1, 'n'));
    QVERIFY(!message.encodeMessage(octets));
}

void TestMessages::whatStandsBehindAUnitIsLeft()
{
    DtValueBuffer octets;
    QVERIFY(sampleMessage().encodeMessage(octets));
    octets.push_back(1);
    DtStateMsg taken;
    QVERIFY(taken.decodeMessage(octets));
    QVERIFY(taken.body() == octetsOf("xyz"));
}

void TestMessages::unitReachesTheObserversOfItsKind()
{
    DtExerciseConn sender("a"), other("a");
    PduRecorder fives(other, 5), moreFives(other, 5), large(other, 5 + 256);
    MessageRecorder all(other);
    QVERIFY(sender.sendPdu(5, octetsOf("x")));
    QVERIFY(sender.sendPdu(5 + 256, octetsOf("y")));
    other.drainInput();
    QCOMPARE(fives.bodies, QStringList("5 x"));
    QCOMPARE(moreFives.bodies, QStringList("5 x"));
    QCOMPARE(large.bodies, QStringList("261 y"));
    QCOMPARE(all.messages.size(), std::size_t(2));
}

void TestMessages::messageThatIsNoUnitReachesNoneOfThem()
{
    DtExerciseConn sender("a"), other("a");
    PduRecorder zeros(other, 0), ones(other, 1);
    sender.sendMessage(DtValueBuffer());
    sender.sendMessage(DtValueBuffer(12)); // a length of 0
    sender.sendMessage({7, 0, 1, 0, 0, 0, 0, 0, 0, 13, 0, 0});
    other.drainInput();
    QCOMPARE(zeros.bodies + ones.bodies, QStringList());
    sender.sendMessage({7, 0, 1, 0, 0, 0, 0, 0, 0, 12, 0, 0});
    other.drainInput();
    QCOMPARE(ones.bodies, QStringList("1 "));
}

void TestMessages::unitOfNoKindOrTooLongStays()
{
    DtExerciseConn sender("a"), other("a");
    QVERIFY(!sender.sendPdu(-1, DtValueBuffer()));
    QVERIFY(!sender.sendPdu(DtNetPduHeader::theMaximumKind + 1, DtValueBuffer()));
    QVERIFY(!sender.sendPdu(1, DtValueBuffer(DtExerciseConn::theMaximumMessage - 11)));
    QVERIFY(!sender.sendPdu(1, DtValueBuffer(0x10000)));
    QVERIFY(!other.waitForInput(0));
    QVERIFY(sender.sendPdu(1, DtValueBuffer(DtExerciseConn::theMaximumMessage - 12)));
    QVERIFY(other.waitForInput(0));
}

void TestMessages::drainIsToldToObserversOfUnits()
{
    DtExerciseConn connection("a");
    PduRecorder recorder(connection, 1);
    connection.drainInput();
    connection.drainInput();
    QCOMPARE(recorder.drains, 2);
}

void TestMessages::interactionGoesAsAUnit()
{
    DtExerciseConn sender("a"), other("a");
    QStringList texts, removed, otherKind;
    other.addPduCallback(4, theDecoder, &noteText<PduSignal>, &texts);
    other.addPduCallback(4, theDecoder, &noteText<PduSignal>, &removed);
    other.addPduCallback(6, theDecoder, &noteText<PduSignal>, &otherKind);
    other.removePduCallback(6, &noteText<PduSignal>, &removed); // of another kind, so nothing goes
    QVERIFY(sendPduText(sender, 4, "one"));
    other.drainInput();
    other.removePduCallback(4, &noteText<PduSignal>, &removed);
    QVERIFY(!sendPduText(sender, 4, "!two"));
    QVERIFY(!sendPduText(sender, -1, "three"));
    other.drainInput();
    QCOMPARE(texts, QStringList({"one", ""}));
    QCOMPARE(removed, QStringList("one"));
    QCOMPARE(otherKind, QStringList());
}

void TestMessages::unitWithoutParametersIsNoInteraction()
{
    DtExerciseConn sender("a"), other("a");
    QStringList texts;
    other.addPduCallback(4, theDecoder, &noteText<PduSignal>, &texts);
    QVERIFY(sender.sendPdu(4, octetsOf("abc")));
    QVERIFY(sender.sendPdu(4, DtValueBuffer()));
    other.drainInput();
    QCOMPARE(texts, QStringList());
    QVERIFY(sender.sendPdu(4, DtValueBuffer(4))); // no parameters, but a true count of them
    other.drainInput();
    QCOMPARE(texts, QStringList(""));
}

QX_REGISTER_TEST(TestMessages)
#include "testMessages.moc"
