// Connections within one process.

#include "registerTest.h"

#include "exerciseFixture.h"

#include <QtTest/QtTest>

namespace
{
// Takes out another callback when it is called, and puts a third in.
struct Meddler
{
    DtExerciseConn* connection;
    QStringList* texts;

    static void meddle(Signal*, void* self)
    {
        auto* const meddler = static_cast<Meddler*>(self);
        meddler->connection->removeInteractionCallback(&noteText<Signal>, meddler->texts);
        meddler->connection->addInteractionCallback(&noteText<HornSignal>, meddler->texts);
    }
};
} // namespace

class TestExerciseConn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void othersHearOfAnObjectAndTheOwnerDoesNot();
    void nothingComesBeforeDrainInput();
    void anotherExerciseHearsNothing();
    void lateObserverHearsOfStandingObjectsWithLatestValues();
    void observerOfAClassHearsOfItsSubclasses();
    void objectsGoWithTheirConnection();
    void objectOfAnotherCannotBeChanged();
    void interactionReachesItsClassAndTheClassesAbove();
    void parameterWithoutWireFormStaysOut();
    void removedCallbackIsOneRegistration();
    void callbackMayChangeTheRegistrations();
    void removedObserverHearsNothingMore();
    void connectionWithoutPortHasNone();
    void waitEndsAtOnceWithInput();
    void waitEndsWithItsTime();
    void queueThatRunsOverTellsTheObjectsAnew();
    void queueIsBoundedInOctetsToo();
};

void TestExerciseConn::othersHearOfAnObjectAndTheOwnerDoesNot()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    Recorder own(owner);
    Recorder others(other);
    const DtExerciseObjectId id = owner.addObject("Vessel", "Ada");
    QVERIFY(owner.updateObject(id, valuesOf("Speed", "1")));
    owner.removeObject(id);
    owner.drainInput();
    other.drainInput();
    QCOMPARE(own.lines, QStringList());
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Speed=1", "- Ada"}));
}

void TestExerciseConn::nothingComesBeforeDrainInput()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    Recorder others(other);
    owner.addObject("Vessel", "Ada");
    QCOMPARE(others.lines, QStringList());
    other.drainInput();
    QCOMPARE(others.lines, QStringList("+ Ada"));
}

void TestExerciseConn::anotherExerciseHearsNothing()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("b");
    Recorder others(other);
    owner.addObject("Vessel", "Ada");
    sendText(owner, "hello");
    QVERIFY(!other.waitForInput(0));
}

void TestExerciseConn::lateObserverHearsOfStandingObjectsWithLatestValues()
{
    DtExerciseConn owner("a");
    const DtExerciseObjectId id = owner.addObject("Vessel", "Ada");
    owner.updateObject(id, {
                               {"Cargo", octetsOf("coal")},
                               {"Speed", octetsOf("1")   }
    });
    owner.updateObject(id, valuesOf("Speed", "2"));
    DtExerciseConn other("a");
    Recorder others(other);
    other.drainInput();
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Cargo=coal Speed=2"}));
}

void TestExerciseConn::observerOfAClassHearsOfItsSubclasses()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    Recorder vessels(other, "Vessel");
    Recorder all(other, "HLAobjectRoot");
    for (const char* name : {"Vessel", "Vessel.Tug", "Vessels", "Buoy"})
        owner.addObject(name, name);
    other.drainInput();
    QCOMPARE(vessels.lines, QStringList({"+ Vessel", "+ Vessel.Tug"}));
    QCOMPARE(all.lines.size(), 4);
}

void TestExerciseConn::objectsGoWithTheirConnection()
{
    DtExerciseConn other("a");
    Recorder others(other);
    {
        DtExerciseConn owner("a");
        owner.addObject("Vessel", "Ada");
    }
    other.drainInput();
    QCOMPARE(others.lines, QStringList({"+ Ada", "- Ada"}));
}

void TestExerciseConn::objectOfAnotherCannotBeChanged()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    Recorder others(other);
    const DtExerciseObjectId id = owner.addObject("Vessel", "Ada");
    QVERIFY(!other.updateObject(id, valuesOf("Speed", "1")));
    other.removeObject(id);
    QVERIFY(!owner.updateObject(id + 1, valuesOf("Speed", "1")));
    owner.updateObject(id, valuesOf("Speed", "2"));
    other.drainInput();
    QCOMPARE(others.lines, QStringList({"+ Ada", "Ada: Speed=2"}));
}

void TestExerciseConn::interactionReachesItsClassAndTheClassesAbove()
{
    DtExerciseConn sender("a");
    DtExerciseConn other("a");
    QStringList signalTexts, hornTexts, ownTexts;
    other.addInteractionCallback(&noteText<Signal>, &signalTexts);
    other.addInteractionCallback(&noteText<HornSignal>, &hornTexts);
    sender.addInteractionCallback(&noteText<Signal>, &ownTexts);
    QVERIFY(sendText(sender, "flag"));
    HornSignal horn;
    horn.text = "toot";
    QVERIFY(sender.sendInteraction(horn));
    sender.drainInput();
    other.drainInput();
    QCOMPARE(signalTexts, QStringList({"flag", "toot"}));
    QCOMPARE(hornTexts, QStringList("toot"));
    QCOMPARE(ownTexts, QStringList());
}

void TestExerciseConn::parameterWithoutWireFormStaysOut()
{
    DtExerciseConn sender("a");
    DtExerciseConn other("a");
    QStringList texts;
    other.addInteractionCallback(&noteText<Signal>, &texts);
    QVERIFY(!sendText(sender, "!"));
    other.drainInput();
    QCOMPARE(texts, QStringList(QString("")));
}

void TestExerciseConn::removedCallbackIsOneRegistration()
{
    DtExerciseConn sender("a");
    DtExerciseConn other("a");
    QStringList texts, kept;
    other.addInteractionCallback(&noteText<Signal>, &texts);
    other.addInteractionCallback(&noteText<Signal>, &texts);
    other.addInteractionCallback(&noteText<Signal>, &kept);
    other.removeInteractionCallback(&noteText<Signal>, &texts);
    sendText(sender, "a");
    other.drainInput();
    QCOMPARE(texts, QStringList("a"));
    QCOMPARE(kept, QStringList("a"));
}

void TestExerciseConn::callbackMayChangeTheRegistrations()
{
    DtExerciseConn sender("a");
    DtExerciseConn other("a");
    QStringList texts;
    Meddler meddler = {&other, &texts};
    other.addInteractionCallback(&Meddler::meddle, &meddler);
    other.addInteractionCallback(&noteText<Signal>, &texts);
    HornSignal horn;
    horn.text = "toot";
    sender.sendInteraction(horn);
    other.drainInput();
    QCOMPARE(texts, QStringList());
    sender.sendInteraction(horn);
    other.drainInput();
    QCOMPARE(texts, QStringList("toot"));
}

void TestExerciseConn::removedObserverHearsNothingMore()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    {
        const Recorder others(other);
        owner.addObject("Vessel", "Ada");
    }
    Recorder later(other);
    other.drainInput();
    QCOMPARE(later.lines, QStringList({"+ Ada", "Ada: "}));
}

void TestExerciseConn::connectionWithoutPortHasNone()
{
    QCOMPARE(DtExerciseConn().port(), static_cast<unsigned short>(0));
    QCOMPARE(DtExerciseConn("a", 0).port(), static_cast<unsigned short>(0));
}

void TestExerciseConn::waitEndsAtOnceWithInput()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    sendText(owner, "a");
    QElapsedTimer timer;
    timer.start();
    QVERIFY(other.waitForInput(4));
    QVERIFY(timer.elapsed() < 2000);
}

void TestExerciseConn::waitEndsWithItsTime()
{
    DtExerciseConn connection("a");
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!connection.waitForInput(0.05));
    QVERIFY(timer.elapsed() >= 50);
    QVERIFY(!connection.waitForInput(-1));
    QVERIFY(timer.elapsed() < 2000);
}

void TestExerciseConn::queueThatRunsOverTellsTheObjectsAnew()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    Recorder others(other);
    QStringList texts;
    other.addInteractionCallback(&noteText<Signal>, &texts);
    const DtExerciseObjectId ada = owner.addObject("Vessel", "Ada");
    owner.addObject("Vessel", "Bee");
    other.drainInput();
    others.lines.clear();
    owner.removeObject(ada);
    for (std::size_t count = 0; count < DtExerciseConn::theMostEvents; ++count)
        sendText(owner, "x");
    owner.updateObject(owner.addObject("Vessel", "Cog"), valuesOf("Speed", "3"));
    QVERIFY(other.waitForInput(0));
    other.drainInput();
    QCOMPARE(others.lines, QStringList({"- Ada", "+ Bee", "Bee: ", "+ Cog", "Cog: Speed=3"}));
    QCOMPARE(texts, QStringList());
    sendText(owner, "y");
    other.drainInput();
    QCOMPARE(texts, QStringList("y"));
}

void TestExerciseConn::queueIsBoundedInOctetsToo()
{
    DtExerciseConn owner("a");
    DtExerciseConn other("a");
    MessageRecorder messages(other);
    const DtValueBuffer longest(DtExerciseConn::theMaximumMessage, 1);
    const std::size_t most = DtExerciseConn::theMostQueuedOctets / DtExerciseConn::theMaximumMessage;
    for (std::size_t count = 0; count < most - 10; ++count)
        QVERIFY(owner.sendMessage(longest));
    other.drainInput();
    QCOMPARE(messages.messages.size(), most - 10);
    messages.messages.clear();
    for (std::size_t count = 0; count < most + 10; ++count)
        QVERIFY(owner.sendMessage(longest));
    other.drainInput();
    QCOMPARE(messages.messages.size(), std::size_t(0));
}

QX_REGISTER_TEST(TestExerciseConn)
#include "testExerciseConn.moc"
