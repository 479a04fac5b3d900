#include "registerTest.h"

#include "contextTestSupport.h"

#include "fileGenerator/escapedText.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

// The tree of named values, and the safe forms of texts.
class TestContextMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesTellTheirKind();
    void textIsACopy();
    void entriesKeepTheirOrder();
    void repeatedKeyGivesItsFirstEntry();
    void putIdAddsTheIdentifier();
    void lookupsOfTheOtherKindGiveNull();
    void missingKeyGivesNull();
    void noValueIsNothing();
    void removeTakesOutTheFirstEntryAndKeepsItsValue();
    void clearDeletesTheValues();
    void destructorDeletesAllDepths();
    void largeMapBehavesLikeASmallOne();
    void lookupsInALargeMapAreQuick();
    void safeForms_data();
    void safeForms();
    void safeFormsStandUnderTheirKeys();
    void leftOutCharactersAreWarnedAboutOnce();
};

namespace
{
// Counts how many of its kind are alive.
class DtCountedValue : public DtUniversalSubstitute
{
public:
    DtCountedValue() : DtUniversalSubstitute(DtStringSubstituteType) { ++theCount; }
    ~DtCountedValue() override { --theCount; }
    static int theCount;
};
int DtCountedValue::theCount = 0;

DtString bytes(const QByteArray& text)
{
    return std::string(text.constData(), static_cast<std::size_t>(text.size()));
}
} // namespace

void TestContextMap::valuesTellTheirKind()
{
    QCOMPARE(int(DtStringSubstitute("x").type()), 1);
    QCOMPARE(int(DtMapSubstitute().type()), 2);
}

void TestContextMap::textIsACopy()
{
    DtString text("before");
    const DtStringSubstitute value(text);
    text = "after";
    QCOMPARE(*value.value(), DtString("before"));
}

void TestContextMap::entriesKeepTheirOrder()
{
    DtMapSubstitute map;
    for (const char* key : {"z", "a", "m", "a"})
        map.put(key, "value");
    QCOMPARE(keysOf(map), QString("z a m a"));
    QCOMPARE(int(map.size()), 4);
}

void TestContextMap::repeatedKeyGivesItsFirstEntry()
{
    DtMapSubstitute map;
    map.put("other", "0");
    map.put("key", "1");
    map.put("key", "2");
    QCOMPARE(valueOf(map, "key"), QString("1"));
    QCOMPARE(int(map.find("key") - map.begin()), 1);
}

void TestContextMap::putIdAddsTheIdentifier()
{
    DtMapSubstitute map;
    map.putId("Name", "a b-c");
    map.putId("Word", "class");
    QCOMPARE(keysOf(map), QString("Name NameId Word WordId"));
    QCOMPARE(valuesOf(map, "Name NameId Word WordId"), QString("Name=a b-c NameId=a__b__c Word=class WordId=_class"));
}

void TestContextMap::lookupsOfTheOtherKindGiveNull()
{
    DtMapSubstitute map;
    map.put("text", "value");
    map.putMap("map");
    QVERIFY(map.getMap("text") == nullptr);
    QVERIFY(map.getValue("map") == nullptr);
    QVERIFY(map.get("text") != nullptr && map.get("map") != nullptr);
    QCOMPARE(*map.getValue("text"), DtString("value"));
    QCOMPARE(static_cast<DtUniversalSubstitute*>(map.getMap("map")), map.get("map"));
}

void TestContextMap::missingKeyGivesNull()
{
    DtMapSubstitute map;
    map.put("Key", "value");
    QVERIFY(map.get("key") == nullptr && map.getValue("key") == nullptr && map.getMap("key") == nullptr);
    QVERIFY(map.find("key") == map.end());
    QVERIFY(DtMapSubstitute::stringOf(nullptr) == nullptr && DtMapSubstitute::mapOf(nullptr) == nullptr);
}

void TestContextMap::noValueIsNothing()
{
    DtMapSubstitute map;
    map.put("key", static_cast<DtUniversalSubstitute*>(nullptr));
    QCOMPARE(int(map.size()), 1);
    QVERIFY(map.get("key") == nullptr && map.getValue("key") == nullptr && map.getMap("key") == nullptr);
}

void TestContextMap::removeTakesOutTheFirstEntryAndKeepsItsValue()
{
    DtMapSubstitute map;
    auto* const counted = new DtCountedValue;
    map.put("key", counted);
    map.put("other", "x");
    map.put("key", "second");
    map.remove("key");
    QCOMPARE(DtCountedValue::theCount, 1);
    QCOMPARE(valueOf(map, "key"), QString("second"));
    map.remove("none");
    QCOMPARE(keysOf(map), QString("other key"));
    delete counted;
    QCOMPARE(DtCountedValue::theCount, 0);
}

void TestContextMap::clearDeletesTheValues()
{
    DtMapSubstitute map;
    map.put("a", new DtCountedValue);
    map.put("a", new DtCountedValue);
    QCOMPARE(DtCountedValue::theCount, 2);
    map.clear();
    QCOMPARE(DtCountedValue::theCount, 0);
    QCOMPARE(int(map.size()), 0);
    map.put("a", "again");
    QCOMPARE(valueOf(map, "a"), QString("again"));
}

void TestContextMap::destructorDeletesAllDepths()
{
    {
        DtMapSubstitute map;
        map.putMap("a").putMap("b").put("c", new DtCountedValue);
        QCOMPARE(DtCountedValue::theCount, 1);
    }
    QCOMPARE(DtCountedValue::theCount, 0);
}

void TestContextMap::largeMapBehavesLikeASmallOne()
{
    DtMapSubstitute map;
    for (int number = 0; number < 500; ++number)
        map.put(DtString("key") + DtString(number), DtString(number));
    QCOMPARE(valueOf(map, "key499"), QString("499"));
    map.put("key7", "later");
    map.put("new", "1");
    map.put("new", "2");
    QCOMPARE(valuesOf(map, "key7 new"), QString("key7=7 new=1"));
    delete map.get("key7");
    map.remove("key7");
    QCOMPARE(valuesOf(map, "key7 key8 new none"), QString("key7=later key8=8 new=1 none=none"));
    QVERIFY(map.find("none") == map.end());
    QCOMPARE(int(map.find("key8") - map.begin()), 7);
    map.clear();
    QVERIFY(map.find("key8") == map.end());
}

void TestContextMap::lookupsInALargeMapAreQuick()
{
    DtMapSubstitute map;
    const int count = 100000; // with a walk for each, ten thousand million steps
    for (int number = 0; number < count; ++number)
        map.put(DtString("key") + DtString(number), DtString(number));
    QElapsedTimer time;
    time.start();
    for (const DtMapSubstitute::Entry& entry : map)
        QVERIFY(map.get(entry.first) == entry.second);
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
}

void TestContextMap::safeForms_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("html");
    QTest::addColumn<QByteArray>("quoted");
    const auto row = [](const char* name, const QByteArray& text, const QByteArray& html, const QByteArray& quoted)
    { QTest::newRow(name) << text << html << quoted; };
    row("plain", "Speed of the ship.", "Speed of the ship.", "Speed of the ship.");
    row("empty", "", "", "");
    row("XML", "a<b>&c", "a&lt;b&gt;&amp;c", "a<b>&c");
    row("quotes", "it's \"so\"", "it&#39;s &quot;so&quot;", "it's \\\"so\\\"");
    row("backslash", "a\\n", "a\\n", "a\\\\n");
    row("layout", "a\r\n\tb", "a&#13;&#10;&#9;b", "a\\r\\n\\tb");
    row("UTF-8", "\xc3\xa9\xe2\x82\xac", "\xc3\xa9\xe2\x82\xac", "\xc3\xa9\xe2\x82\xac");
    row("Latin-1", "caf\xe9", "caf\xc3\xa9", "caf\xc3\xa9");
    row("delete is a character", "a\x7f", "a\x7f", "a\x7f");
    row("control characters", QByteArray("a\x01\x0b\x1f\0b", 6), "ab", "ab");
    row("no characters",
        "a\xef\xbf\xbe\xef\xbf\xbf"
        "b",
        "ab", "ab");
    row("token", "<!Name!>", "&lt;!Name!&gt;", "\\u003c!Name!>");
    row("first half of a token", "a<b<", "a&lt;b&lt;", "a<b\\u003c");
    row("block", "<#Objects><?x>", "&lt;#Objects&gt;&lt;?x&gt;", "<#Objects><?x>");
}

void TestContextMap::safeForms()
{
    QFETCH(QByteArray, text);
    const DtSafeForms forms(bytes(text));
    QTEST(QByteArray::fromStdString(forms.html.stdString()), "html");
    QTEST(QByteArray::fromStdString(forms.quoted.stdString()), "quoted");
}

void TestContextMap::safeFormsStandUnderTheirKeys()
{
    DtMapSubstitute map;
    map.putSafeForms("Note", "<\"");
    QCOMPARE(keysOf(map), QString("NoteHtml NoteQuoted"));
    QCOMPARE(valuesOf(map, "NoteHtml NoteQuoted"), QString("NoteHtml=&lt;&quot; NoteQuoted=<\\\""));
}

void TestContextMap::leftOutCharactersAreWarnedAboutOnce()
{
    const DtCapture warnings(DtWarn);
    DtMapSubstitute map;
    map.putSafeForms("Note", "a\x01");
    QCOMPARE(warnings.text(), QString("Characters that XML cannot hold are left out of: a\n"));
}

QX_REGISTER_TEST(TestContextMap)
#include "testContextMap.moc"
