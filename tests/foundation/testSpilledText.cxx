#include "foundation/spilledText.h"
#include "foundationTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <string>

class TestSpilledText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsStandOneBehindTheOther();
    void nobodySeesAFile();
    void directoryThatIsNotThereTakesNoText();
    void readingEndsWhenItIsToldTo();
};

namespace
{
std::string whole(const DtSpilledText& text)
{
    std::string all;
    text.eachPart(
        [&all](std::string_view part)
        {
            all += part;
            return true;
        });
    return all;
}
} // namespace

void TestSpilledText::textsStandOneBehindTheOther()
{
    const QTemporaryDir directory;
    DtSpilledText text;
    QCOMPARE(whole(text), std::string());
    std::string expected;
    for (const char letter : {'a', 'b', 'c'})
    {
        const std::string piece(50000, letter); // the parts that are read end elsewhere
        QVERIFY(text.append(directory.path().toUtf8().constData(), piece));
        expected += piece;
    }
    QCOMPARE(text.size(), expected.size());
    QCOMPARE(whole(text), expected);
}

void TestSpilledText::nobodySeesAFile()
{
    const QTemporaryDir directory;
    DtSpilledText text;
    QVERIFY(text.append(directory.path().toUtf8().constData(), "text"));
    QCOMPARE(QDir(directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

void TestSpilledText::directoryThatIsNotThereTakesNoText()
{
    DtSpilledText text;
    QVERIFY(!text.append("/there/is/none", "text"));
    QCOMPARE(text.size(), std::size_t(0));
    QCOMPARE(whole(text), std::string());
}

void TestSpilledText::readingEndsWhenItIsToldTo()
{
    const QTemporaryDir directory;
    DtSpilledText text;
    QVERIFY(text.append(directory.path().toUtf8().constData(), std::string(200000, 'a')));
    int parts = 0;
    QVERIFY(!text.eachPart([&parts](std::string_view) { return ++parts < 2; }));
    QCOMPARE(parts, 2);
}

QX_REGISTER_TEST(TestSpilledText)
#include "testSpilledText.moc"
