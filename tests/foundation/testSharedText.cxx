#include "foundation/sharedText.h"
#include "foundationTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <string>

class TestSharedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesShareOneText();
    void anotherTextLeavesTheCopiesAlone();
    void textMayTakeItsOwnPlace();
    void textThatBeginsWithNulIsNotEmpty();
    void recentTextsShareWhatIsEqual();
    void recentTextOutlivesTheOthers();
};

void TestSharedText::copiesShareOneText()
{
    const DtSharedText text(DtString("a text"));
    const DtSharedText copy = text;
    QVERIFY(copy.get() == "a text");
    QCOMPARE(&copy.get(), &text.get());
    QVERIFY(DtSharedText().get() == "");
    QVERIFY(DtSharedText(DtString()).get() == "");
}

void TestSharedText::anotherTextLeavesTheCopiesAlone()
{
    DtSharedText text(DtString("one"));
    const DtSharedText copy = text;
    text = DtString("two");
    QVERIFY(text.get() == "two");
    QVERIFY(copy.get() == "one");
    text = DtSharedText();
    QVERIFY(text.get() == "");
    DtSharedText moved(std::move(text = DtString("three")));
    QVERIFY(moved.get() == "three");
}

void TestSharedText::textMayTakeItsOwnPlace()
{
    DtSharedText text(DtString("a text"));
    text = text.get(); // by its content
    QVERIFY(text.get() == "a text");
    const DtSharedText& itself = text;
    text = itself;
    QVERIFY(text.get() == "a text");
}

void TestSharedText::textThatBeginsWithNulIsNotEmpty()
{
    const DtString odd(std::string("\0a", 2));
    QVERIFY(DtSharedText(odd).get() == odd);
    QCOMPARE(DtSharedText(odd).get().length(), 2u);
    QCOMPARE(DtSharedText::recent(odd).get().length(), 2u);
}

void TestSharedText::recentTextsShareWhatIsEqual()
{
    const DtSharedText first = DtSharedText::recent("HLAreliable");
    QCOMPARE(&DtSharedText::recent("HLAreliable").get(), &first.get());
    QVERIFY(DtSharedText::recent("HLAbestEffort").get() == "HLAbestEffort");
    QVERIFY(DtSharedText::recent("").get() == "");
}

void TestSharedText::recentTextOutlivesTheOthers()
{
    const DtSharedText first = DtSharedText::recent("text 0");
    for (int index = 1; index < 2000; ++index)
        QCOMPARE(DtSharedText::recent(DtString("text ") + DtString(index)).get(), DtString("text ") + DtString(index));
    QVERIFY(first.get() == "text 0");
}

QX_REGISTER_TEST(TestSharedText)
#include "testSharedText.moc"
