// Connections with a port, which speak over UDP also within one process, and a hand-made other side.

#include "registerTest.h"

#include "datagram.h"
#include "exerciseFixture.h"

#include <QtTest/QtTest>

#include <set>

namespace
{
// A connection at the second of the sixteen ports that says what the test wants it to.
class HandMade
{
public:
    explicit HandMade(unsigned short firstPort, DtU32 number = 0x70) : myPort(firstPort), mySender(number)
    {
        mySender |= static_cast<DtU32>(myPort.slot());
    }

    void send(DtDatagram::Kind kind, const DtValueBuffer& content = DtValueBuffer())
    {
        mySequence += DtDatagram::isCounted(kind) ? 1 : 0;
        DtValueBuffer octets;
        DtEncodeDatagram({kind, mySender, mySequence, heartbeat, content}, "a", octets);
        myPort.send(0, octets);
    }
    void add(DtU32 object, const std::string& name) { send(DtDatagram::Added, DtEncodeAdded({object, "V", name, {}})); }
    void update(DtU32 object, const DtAttributeValues& values)
    {
        send(DtDatagram::Updated, DtEncodeUpdated({object, "", "", values}));
    }
    void loseOne() { ++mySequence; }

    // Waits for the next question of the other side, which is drained meanwhile.
    bool isAsked(DtExerciseConn& other, DtPlace& place)
    {
        return runUntil({&other},
                        [&]
                        {
                            int slot = -1;
                            DtValueBuffer octets;
                            DtDatagram datagram;
                            while (myPort.receive(octets, slot))
                                if (DtDecodeDatagram(octets, "a", datagram) && datagram.kind == DtDatagram::Ask)
                                    return DtDecodePlace(datagram.content, place);
                            return false;
                        });
    }
    void answer(const DtPlace& from, const std::vector<DtObjectContent>& objects, const DtPlace& to = DtPlace())
    {
        DtPage page;
        page.from = from;
        page.to = to;
        page.isLast = to == DtPlace();
        page.objects = objects;
        send(DtDatagram::Page, DtEncodePage(page));
    }

    DtU32 heartbeat = 60000;

private:
    DtUdpPort myPort;
    DtU32 mySender;
    DtU32 mySequence = 0;
};

DtPlace placeOf(DtU32 object, const std::string& attribute)
{
    DtPlace place;
    place.object = object;
    place.attribute = attribute;
    return place;
}
} // namespace

class TestExerciseLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { myRange = freeRange(); }

    void eachTakesAPortUntilThereIsNone();
    void nameThatIsTooLongStaysInside();
    void objectGoesAcrossWithItsNumber();
    void interactionAndMessageGoAcross();
    void anotherExerciseOnThePortsHearsNothing();
    void eachHearsOnceWhereWaysMeet();
    void objectNumbersOfConnectionsDiffer();
    void lateJoinerLearnsOfStandingObjects();
    void lateJoinerLearnsOfManyAndOfLargeObjects();
    void lateJoinerLearnsOfTheLongestValue();
    void lateJoinerGetsFromEachItsOwnObjects();
    void lateObserverLearnsOfStandingObjects();
    void destroyedConnectionTakesItsObjectsAlong();
    void silentConnectionTakesItsObjectsAlong();
    void connectionThatSpeaksAgainIsAskedAgain();
    void connectionThatHasNothingToSayStaysKnown();
    void lostDatagramIsMadeGood();
    void lossWhilePagesComeAsksOnceMore();
    void pageThatDoesNotComeIsAskedForAgain();
    void pageThatWasNotAskedForIsPassedOver();
    void successorOnAPortIsAnother();
    void burstThatIsTooMuchIsMadeGood();
    void tooLongValueIsNamedAndTheOthersGo();
    void manyValuesComeAsSeveralUpdates();
    void tooLongInteractionAndMessageStay();
    void numberOfObjectsIsBounded();
    void numberOfAttributesIsBounded();
    void whatOthersSendIsBounded();

private:
    unsigned short myRange = 0;
};

void TestExerciseLink::eachTakesAPortUntilThereIsNone()
{
    std::vector<std::unique_ptr<DtExerciseConn>> connections;
    for (int slot = 0; slot < 16; ++slot)
    {
        connections.push_back(std::make_unique<DtExerciseConn>("a", myRange));
        QCOMPARE(static_cast<int>(connections.back()->port()), myRange + slot);
    }
    DtExerciseConn surplus("a", myRange);
    QCOMPARE(static_cast<int>(surplus.port()), 0);
    Recorder others(surplus);
    connections.front()->addObject("Vessel", "Ada");
    surplus.drainInput();
    QCOMPARE(others.lines, QStringList("+ Ada")); // within the process it is one of them
    connections.erase(connections.begin() + 3);
    QCOMPARE(static_cast<int>(DtExerciseConn("a", myRange).port()), myRange + 3);
}

void TestExerciseLink::nameThatIsTooLongStaysInside()
{
    QVERIFY(DtExerciseConn(std::string(255, 'n'), myRange).port() != 0);
    QVERIFY(DtExerciseConn(std::string(256, 'n'), myRange).port() == 0);
}

void TestExerciseLink::objectGoesAcrossWithItsNumber()
{
    DtExerciseConn owner("a", myRange);
    DtExerciseConn other("a", myRange);
    Recorder own(owner);
    Recorder others(other, "Vessel");
    owner.addObject("Buoy", "Zoe");
    const DtExerciseObjectId id = owner.addObject("Vessel.Tug", "Ada");
    QVERIFY(owner.updateObject(id, {
                                       {"Cargo", DtValueBuffer()},
                                       {"Speed", octetsOf("1")  }
    }));
    QVERIFY(runUntil({&owner, &other}, [&] { return others.lines.size() == 2; }));
    QCOMPARE(others.names.count(id), std::size_t(1));
    owner.removeObject(id);
    QVERIFY(runUntil({&owner, &other}, [&] { return others.lines.size() == 3; }));
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Cargo= Speed=1", "- Ada"}));
    QCOMPARE(own.lines, QStringList());
}

void TestExerciseLink::interactionAndMessageGoAcross()
{
    DtExerciseConn sender("a", myRange);
    DtExerciseConn other("a", myRange);
    QStringList texts;
    other.addInteractionCallback(&noteText<Signal>, &texts);
    MessageRecorder messages(other);
    MessageRecorder own(sender);
    QVERIFY(sendText(sender, "flag"));
    QVERIFY(sender.sendMessage(DtValueBuffer(DtExerciseConn::theMaximumMessage, 7)));
    QVERIFY(sender.sendMessage(DtValueBuffer()));
    QVERIFY(runUntil({&sender, &other}, [&] { return messages.messages.size() == 2; }));
    QCOMPARE(texts, QStringList("flag"));
    QVERIFY(messages.messages[0] == DtValueBuffer(DtExerciseConn::theMaximumMessage, 7));
    QVERIFY(messages.messages[1].empty());
    QVERIFY(own.messages.empty());
}

void TestExerciseLink::anotherExerciseOnThePortsHearsNothing()
{
    DtExerciseConn owner("a", myRange);
    DtExerciseConn other("ab", myRange);
    Recorder others(other);
    MessageRecorder messages(other);
    owner.addObject("Vessel", "Ada");
    owner.sendMessage(octetsOf("hello"));
    runFor({&owner, &other}, 50);
    QCOMPARE(others.lines, QStringList());
    QVERIFY(messages.messages.empty());
}

void TestExerciseLink::eachHearsOnceWhereWaysMeet()
{
    DtExerciseConn local("a");
    DtExerciseConn first("a", myRange);
    DtExerciseConn second("a", myRange);
    Recorder locals(local), firsts(first), seconds(second);
    local.addObject("Vessel", "Loc");
    first.addObject("Vessel", "Fir");
    second.addObject("Vessel", "Sec");
    runFor({&local, &first, &second}, 100);
    for (Recorder* recorder : {&locals, &firsts, &seconds})
        recorder->lines.sort();
    QCOMPARE(locals.lines, QStringList({"+ Fir", "+ Sec"}));
    QCOMPARE(firsts.lines, QStringList({"+ Loc", "+ Sec"}));
    QCOMPARE(seconds.lines, QStringList({"+ Fir", "+ Loc"}));
}

void TestExerciseLink::objectNumbersOfConnectionsDiffer()
{
    DtExerciseConn local("a");
    DtExerciseConn first("a", myRange);
    DtExerciseConn second("a", myRange);
    std::set<DtExerciseObjectId> numbers;
    for (DtExerciseConn* connection : {&local, &first, &second})
        for (int count = 0; count < 3; ++count)
        {
            numbers.insert(connection->addObject("Vessel", "Ada"));
            numbers.insert(connection->newObjectId());
        }
    QCOMPARE(numbers.size(), std::size_t(18));
    QCOMPARE(numbers.count(0), std::size_t(0));
}

void TestExerciseLink::lateJoinerLearnsOfStandingObjects()
{
    DtExerciseConn owner("a", myRange);
    const DtExerciseObjectId ada = owner.addObject("Vessel", "Ada");
    owner.updateObject(ada, {
                                {"Cargo", octetsOf("coal")},
                                {"Speed", octetsOf("1")   }
    });
    owner.updateObject(ada, valuesOf("Speed", "2"));
    owner.addObject("Vessel", "Bee");
    owner.removeObject(owner.addObject("Vessel", "Cog"));
    DtExerciseConn joiner("a", myRange);
    Recorder others(joiner);
    QVERIFY(runUntil({&owner, &joiner}, [&] { return others.lines.size() == 3; }));
    runFor({&owner, &joiner}, 50);
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Cargo=coal Speed=2", "+ Bee"}));
}

// More than one datagram in all, and an object that is more than one by itself.
void TestExerciseLink::lateJoinerLearnsOfManyAndOfLargeObjects()
{
    DtExerciseConn owner("a", myRange);
    const std::string text(2000, 't');
    for (int count = 0; count < 150; ++count)
        owner.updateObject(owner.addObject("Vessel", "V" + std::to_string(count)), valuesOf("Text", text));
    const DtExerciseObjectId large = owner.addObject("Vessel", "Large");
    for (char attribute = 'a'; attribute < 'f'; ++attribute)
        owner.updateObject(large, valuesOf(std::string(1, attribute), std::string(59000, attribute)));
    owner.addObject("Vessel", "Last");
    DtExerciseConn joiner("a", myRange);
    Recorder others(joiner);
    QVERIFY(runUntil({&owner, &joiner}, [&] { return others.lines.contains("+ Last"); }));
    QCOMPARE(others.names.size(), std::size_t(152));
    QCOMPARE(others.lines.filter(QString::fromStdString(": Text=" + text)).size(), 150);
    for (char attribute = 'a'; attribute < 'f'; ++attribute)
        QCOMPARE(others.lines.filter(QString::fromStdString(std::string(59000, attribute))).size(), 1);
}

// As much as one value may take, and an object in front of it on the same page.
void TestExerciseLink::lateJoinerLearnsOfTheLongestValue()
{
    DtExerciseConn owner("a", myRange);
    owner.addObject("Vessel", "Ada");
    const DtValueBuffer longest(DtExerciseConn::theMaximumMessage - 8 - 1, 'x');
    QVERIFY(owner.updateObject(owner.addObject(std::string(1024, 'c'), std::string(1024, 'n')), {
                                                                                                    {"v", longest}
    }));
    owner.addObject("Vessel", "Zoe");
    DtExerciseConn joiner("a", myRange);
    Recorder others(joiner);
    QVERIFY(runUntil({&owner, &joiner}, [&] { return others.lines.contains("+ Zoe"); }));
    QCOMPARE(others.lines.size(), 4);
    QCOMPARE(others.lines[2], QString(1024, 'n') + ": v=" + textOf(longest));
}

void TestExerciseLink::lateJoinerGetsFromEachItsOwnObjects()
{
    DtExerciseConn first("a", myRange), second("a", myRange);
    first.newObjectId(); // so that the numbers below the connections' own differ
    first.addObject("Vessel", "Fir");
    second.addObject("Vessel", "Sec");
    DtExerciseConn joiner("a", myRange);
    Recorder others(joiner);
    runUntil({&first, &second, &joiner}, [&] { return others.lines.size() == 2; });
    runFor({&first, &second, &joiner}, 50);
    others.lines.sort();
    QCOMPARE(others.lines, QStringList({"+ Fir", "+ Sec"}));
}

void TestExerciseLink::lateObserverLearnsOfStandingObjects()
{
    DtExerciseConn owner("a", myRange);
    DtExerciseConn other("a", myRange);
    Recorder early(other);
    owner.updateObject(owner.addObject("Vessel", "Ada"), valuesOf("Speed", "1"));
    QVERIFY(runUntil({&owner, &other}, [&] { return early.lines.size() == 2; }));
    Recorder late(other);
    other.drainInput();
    QCOMPARE(late.lines, early.lines);
    QCOMPARE(early.lines.size(), 2);
}

void TestExerciseLink::destroyedConnectionTakesItsObjectsAlong()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    {
        DtExerciseConn owner("a", myRange);
        owner.addObject("Vessel", "Ada");
        owner.addObject("Vessel", "Bee");
        QVERIFY(runUntil({&owner, &other}, [&] { return others.lines.size() == 2; }));
    }
    QVERIFY(runUntil({&other}, [&] { return others.lines.size() == 4; }));
    QCOMPARE(others.lines, QStringList({"+ Ada", "+ Bee", "- Ada", "- Bee"}));
}

void TestExerciseLink::silentConnectionTakesItsObjectsAlong()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    HandMade peer(myRange);
    peer.heartbeat = 20;
    QElapsedTimer timer;
    timer.start();
    peer.add(1, "Ada");
    QVERIFY(runUntil({&other}, [&] { return others.lines.contains("- Ada"); }));
    QVERIFY(timer.elapsed() >= 5 * 20);
    QCOMPARE(others.lines, QStringList({"+ Ada", "- Ada"}));
}

void TestExerciseLink::connectionThatSpeaksAgainIsAskedAgain()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    HandMade peer(myRange);
    peer.heartbeat = 20;
    peer.add(1, "Ada");
    QVERIFY(runUntil({&other}, [&] { return others.lines.contains("- Ada"); }));
    DtPlace place;
    QVERIFY(peer.isAsked(other, place));
    others.lines.clear();
    peer.heartbeat = 60000;
    peer.send(DtDatagram::Alive);
    QVERIFY(peer.isAsked(other, place));
    peer.answer(place, {
                           {1, "V", "Ada", valuesOf("Speed", "2")}
    });
    QVERIFY(runUntil({&other}, [&] { return others.lines.size() == 2; }));
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Speed=2"}));
}

void TestExerciseLink::connectionThatHasNothingToSayStaysKnown()
{
    DtExerciseConn owner("a", myRange);
    DtExerciseConn other("a", myRange);
    owner.setHeartbeat(0.1); // silence counts after half a second
    Recorder others(other);
    owner.addObject("Vessel", "Ada");
    runFor({&owner, &other}, 800);
    QCOMPARE(others.lines, QStringList("+ Ada"));
}

void TestExerciseLink::lostDatagramIsMadeGood()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    HandMade peer(myRange);
    DtPlace place;
    peer.add(1, "Ada");
    peer.add(2, "Bee");
    peer.update(2, {
                       {"Cargo", octetsOf("coal")},
                       {"Speed", octetsOf("1")   }
    });
    QVERIFY(peer.isAsked(other, place));
    QVERIFY(place == DtPlace());
    peer.answer(place, {
                           {1,    "V",   "Ada",            {}  },
                           { 2, "V", "Bee", valuesOf("Speed", "1")}
    });
    QVERIFY(runUntil({&other}, [&] { return others.lines.size() == 3; }));
    others.lines.clear();
    peer.loseOne();
    peer.send(DtDatagram::Alive);
    QVERIFY(peer.isAsked(other, place));
    peer.answer(place,
                {
                    {2, "V", "Bee", {{"Cargo", octetsOf("coal")}, {"Speed", octetsOf("2")}}}
    },
                placeOf(2, "Speed"));
    QVERIFY(peer.isAsked(other, place));
    QVERIFY(place == placeOf(2, "Speed"));
    QCOMPARE(others.lines, QStringList("Bee: Speed=2")); // what is not new is not told
    peer.answer(place, {
                           {3, "V", "Cog", {}}
    });
    QVERIFY(runUntil({&other}, [&] { return others.lines.size() == 3; }));
    QCOMPARE(others.lines, QStringList({"Bee: Speed=2", "+ Cog", "- Ada"}));
}

void TestExerciseLink::lossWhilePagesComeAsksOnceMore()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    HandMade peer(myRange);
    DtPlace place;
    peer.send(DtDatagram::Alive);
    QVERIFY(peer.isAsked(other, place));
    peer.loseOne();
    peer.answer(place, {});
    QVERIFY(peer.isAsked(other, place));
    QVERIFY(place == DtPlace());
    peer.answer(place, {
                           {1, "V", "Ada", {}}
    });
    QVERIFY(runUntil({&other}, [&] { return others.lines == QStringList("+ Ada"); }));
}

void TestExerciseLink::pageThatDoesNotComeIsAskedForAgain()
{
    DtExerciseConn other("a", myRange);
    HandMade peer(myRange);
    DtPlace place;
    peer.send(DtDatagram::Alive);
    QVERIFY(peer.isAsked(other, place));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(peer.isAsked(other, place));
    QVERIFY(timer.elapsed() > 100);
    QVERIFY(place == DtPlace());
}

void TestExerciseLink::pageThatWasNotAskedForIsPassedOver()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    HandMade peer(myRange);
    DtPlace place;
    peer.send(DtDatagram::Alive);
    QVERIFY(peer.isAsked(other, place));
    peer.answer(placeOf(7, "x"), {
                                     {1, "V", "Ada", {}}
    }); // another place than the one asked for
    peer.answer(place, {});
    peer.answer(place, {
                           {2, "V", "Bee", {}}
    }); // a second time
    runFor({&other}, 30);
    QCOMPARE(others.lines, QStringList());
}

void TestExerciseLink::successorOnAPortIsAnother()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    {
        HandMade peer(myRange, 0x70);
        peer.add(1, "Ada");
        QVERIFY(runUntil({&other}, [&] { return others.lines.size() == 1; }));
    }
    HandMade successor(myRange, 0x90);
    successor.add(1, "Bee");
    QVERIFY(runUntil({&other}, [&] { return others.lines.size() == 3; }));
    QCOMPARE(others.lines, QStringList({"+ Ada", "- Ada", "+ Bee"}));
}

// Far more than a socket's buffer holds while the other side does not read.
void TestExerciseLink::burstThatIsTooMuchIsMadeGood()
{
    DtExerciseConn owner("a", myRange);
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    const DtExerciseObjectId gone = owner.addObject("Vessel", "Gone");
    QVERIFY(runUntil({&owner, &other}, [&] { return others.lines.size() == 1; }));
    std::vector<DtExerciseObjectId> standing;
    for (int count = 0; count < 100; ++count)
        standing.push_back(owner.addObject("Vessel", "V" + std::to_string(count)));
    for (int round = 0; round < 10; ++round)
        for (DtExerciseObjectId id : standing)
            owner.updateObject(id, valuesOf("Text", std::string(12000, 'a') + std::to_string(round)));
    owner.removeObject(gone);
    QVERIFY(runUntil({&owner, &other},
                     [&]
                     {
                         const QString latest = QString(12000, 'a') + "9";
                         return others.names.size() == 100 && others.lines.contains("- Gone") &&
                                others.lines.filter(latest).size() >= 100;
                     }));
}

void TestExerciseLink::tooLongValueIsNamedAndTheOthersGo()
{
    DtExerciseConn owner("a", myRange);
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    const DtExerciseObjectId id = owner.addObject("Vessel", "Ada");
    const std::size_t longest = DtExerciseConn::theMaximumMessage - 8 - 1; // two lengths and the name
    std::vector<std::string> refused;
    QVERIFY(!owner.updateObject(
        id,
        {
            {"a",            DtValueBuffer(longest + 1)},
            {               "b", octetsOf("1")                          },
            { std::string(256, 'n'),                           octetsOf("2")}
    },
        &refused));
    QCOMPARE(refused, std::vector<std::string>({"a", std::string(256, 'n')}));
    QVERIFY(!owner.updateObject(id, {
                                        {"a", DtValueBuffer(longest + 1)}
    }));
    QVERIFY(owner.updateObject(id, {
                                       {"c", DtValueBuffer(longest, 'c')}
    }));
    QVERIFY(runUntil({&owner, &other}, [&] { return others.lines.size() == 3; }));
    QCOMPARE(others.lines[1], QString("Ada: b=1"));
    QCOMPARE(others.lines[2].size(), static_cast<int>(longest + QString("Ada: c=").size()));
}

void TestExerciseLink::manyValuesComeAsSeveralUpdates()
{
    DtExerciseConn owner("a", myRange);
    DtUdpPort other(myRange);
    DtAttributeValues values;
    for (char attribute = 'a'; attribute < 'f'; ++attribute)
        values[std::string(1, attribute)] = DtValueBuffer(25000, static_cast<unsigned char>(attribute));
    QVERIFY(owner.updateObject(owner.addObject("Vessel", "Ada"), values));
    int slot = -1, updates = 0;
    DtAttributeValues taken;
    for (DtValueBuffer octets; other.receive(octets, slot);)
    {
        DtDatagram datagram;
        DtObjectContent content;
        if (DtDecodeDatagram(octets, "a", datagram) && datagram.kind == DtDatagram::Updated &&
            DtDecodeUpdated(datagram.content, content))
        {
            taken.insert(content.values.begin(), content.values.end());
            ++updates;
        }
    }
    QVERIFY(taken == values);
    QCOMPARE(updates, 3);
}

void TestExerciseLink::tooLongInteractionAndMessageStay()
{
    DtExerciseConn sender("a", myRange);
    DtExerciseConn local("a");
    DtExerciseConn other("a", myRange);
    QStringList texts;
    local.addInteractionCallback(&noteText<Signal>, &texts);
    other.addInteractionCallback(&noteText<Signal>, &texts);
    const std::size_t rest = 2 + std::string("Signal").size() + 4 + 4 + 8 + std::string("Text").size();
    QVERIFY(!sendText(sender, std::string(DtExerciseConn::theMaximumMessage - rest + 1, 't')));
    QVERIFY(!sender.sendMessage(DtValueBuffer(DtExerciseConn::theMaximumMessage + 1)));
    QVERIFY(!local.sendMessage(DtValueBuffer(DtExerciseConn::theMaximumMessage + 1)));
    runFor({&local, &other}, 30);
    QCOMPARE(texts, QStringList());
    QVERIFY(sendText(sender, std::string(DtExerciseConn::theMaximumMessage - rest, 't')));
    QVERIFY(runUntil({&local, &other}, [&] { return texts.size() == 2; }));
}

void TestExerciseLink::numberOfObjectsIsBounded()
{
    DtExerciseConn owner("a", myRange);
    QCOMPARE(owner.addObject("Vessel", std::string(1025, 'n')), DtExerciseObjectId(0));
    QCOMPARE(owner.addObject(std::string(1025, 'c'), "n"), DtExerciseObjectId(0));
    DtExerciseObjectId last = 0;
    for (std::size_t count = 0; count < DtExerciseConn::theMostObjects; ++count)
        last = owner.addObject("Vessel", "");
    QVERIFY(last != 0);
    QCOMPARE(owner.addObject("Vessel", ""), DtExerciseObjectId(0));
    owner.removeObject(last);
    QVERIFY(owner.addObject(std::string(1024, 'c'), std::string(1024, 'n')) != 0);
}

void TestExerciseLink::numberOfAttributesIsBounded()
{
    DtExerciseConn owner("a", myRange);
    const DtExerciseObjectId id = owner.addObject("Vessel", "Ada");
    DtAttributeValues values;
    for (std::size_t count = 0; count < DtExerciseConn::theMostAttributes; ++count)
        values["a" + std::to_string(count)] = octetsOf("1");
    QVERIFY(owner.updateObject(id, values));
    std::vector<std::string> refused;
    QVERIFY(!owner.updateObject(id,
                                {
                                    {"a5", octetsOf("2")},
                                    {"b",  octetsOf("2")}
    },
                                &refused));
    QCOMPARE(refused, std::vector<std::string>({"b"}));
}

void TestExerciseLink::whatOthersSendIsBounded()
{
    DtExerciseConn other("a", myRange);
    Recorder others(other);
    HandMade peer(myRange);
    peer.add(0, "none");
    peer.add(1, std::string(1025, 'n'));
    peer.add(2, "Ada");
    for (int batch = 0; batch < 3; ++batch)
    {
        DtAttributeValues values;
        for (int count = 0; count < 500; ++count)
            values[std::to_string(batch) + "a" + std::to_string(count)] = octetsOf("x");
        peer.update(2, values);
    }
    QVERIFY(runUntil({&other}, [&] { return others.lines.size() == 4; }));
    QCOMPARE(others.lines.join(" ").count("=x"), static_cast<int>(DtExerciseConn::theMostAttributes));
    std::vector<DtObjectContent> objects;
    DtPlace place;
    QVERIFY(peer.isAsked(other, place));
    for (DtU32 object = 1; object <= 3000; ++object)
        objects.push_back({object, "V", "", {}});
    for (DtU32 page = 0; page < 2; ++page)
    {
        const DtPlace next = placeOf(page + 1, "");
        peer.answer(place, objects, next);
        QVERIFY(peer.isAsked(other, place));
        QVERIFY(place == next);
        for (DtObjectContent& object : objects)
            object.object += 3000;
    }
    QCOMPARE(others.names.size(), DtExerciseConn::theMostObjects);
}

QX_REGISTER_TEST(TestExerciseLink)
#include "testExerciseLink.moc"
