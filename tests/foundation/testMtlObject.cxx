#include "foundation/mtlObject.h"
#include "foundationTest.h"
#include "mtlText.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <climits>

namespace
{
// Tells when it is deleted.
class DtWatchedObject : public DtlObj
{
public:
    explicit DtWatchedObject(int& deleted) : DtlObj(Kind::Symbol), myDeleted(deleted) {}
    ~DtWatchedObject() override { ++myDeleted; }

private:
    int& myDeleted;
};

DtlObjPtr symbol(const char* name)
{
    return DtcMakeSymbol(name);
}

DtlObjPtr text(const char* content)
{
    return DtlObjPtr(new DtlAtom(DtlObj::Kind::String, content));
}

DtlObjPtr integer(const char* digits)
{
    return DtlObjPtr(new DtlAtom(DtlObj::Kind::Integer, digits));
}

DtlObjPtr pair(const DtlObjPtr& head, const DtlObjPtr& tail = DtlObjPtr())
{
    auto* made = new DtlPair(head);
    made->setTail(tail);
    return DtlObjPtr(made);
}

DtlObjPtr longList(int length, const DtlObjPtr& element)
{
    DtlObjPtr list;
    for (int count = 0; count < length; ++count)
        list = pair(element, list);
    return list;
}

DtlObjPtr deepList(int depth)
{
    DtlObjPtr list;
    for (int count = 0; count < depth; ++count)
        list = pair(list);
    return list;
}
} // namespace

class TestMtlObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void objectGoesWithItsLastPointer()
    {
        int deleted = 0;
        {
            DtlObjPtr first(new DtWatchedObject(deleted));
            DtlObjPtr second(first);
            DtlObjPtr third;
            third = second;
            first = DtlObjPtr();
            second = DtlObjPtr();
            QCOMPARE(deleted, 0);
        }
        QCOMPARE(deleted, 1);
    }

    void referenceIsDroppedByHand()
    {
        int deleted = 0;
        DtlObjPtr pointer(new DtWatchedObject(deleted));
        const DtlObjPtr other(pointer);
        DecObjRefCnt(pointer.release());
        QCOMPARE(deleted, 0);
        DecObjRefCnt(DtlObjPtr(other).release());
        QCOMPARE(deleted, 0);
        QVERIFY(DtcListp(pointer));
        DecObjRefCnt(nullptr);
    }

    void movedPointerPointsToTheEmptyList()
    {
        DtlObjPtr from = symbol("a");
        const DtlObjPtr to = std::move(from);
        QCOMPARE(printMtl(to), QString("a"));
        QCOMPARE(printMtl(from), QString("()")); // NOLINT(bugprone-use-after-move): it has a value
    }

    void pointerMayTakeAPartOfItsOwnObject()
    {
        DtlObjPtr list = pair(symbol("a"), pair(symbol("b")));
        list = DtcCdr(list);
        QCOMPARE(printMtl(list), QString("(b)"));
        const DtlObjPtr& same = list;
        list = same;
        QCOMPARE(printMtl(list), QString("(b)"));
    }

    void pointerWithoutAnObjectIsTheEmptyList()
    {
        const DtlObjPtr none;
        QVERIFY(DtcListp(none));
        QVERIFY(DtcEq(none, DtlObjPtr(nullptr)));
        COMPARE_TEXT(none->string(), "");
        QCOMPARE(none->fixnum(), 0);
    }

    void partsOfAList()
    {
        const DtlObjPtr list = pair(symbol("a"), pair(symbol("b"), pair(symbol("c"))));
        QCOMPARE(printMtl(DtcCar(list)), QString("a"));
        QCOMPARE(printMtl(DtcCdr(list)), QString("(b c)"));
        QCOMPARE(printMtl(DtcCadr(list)), QString("b"));
    }

    void partsOfWhatHasNoneAreEmptyLists()
    {
        for (const DtlObjPtr& object : {DtlObjPtr(), symbol("a"), text("a"), integer("1")})
        {
            QCOMPARE(printMtl(DtcCar(object)), QString("()"));
            QCOMPARE(printMtl(DtcCdr(object)), QString("()"));
            QCOMPARE(printMtl(DtcCadr(object)), QString("()"));
        }
        QCOMPARE(printMtl(DtcCadr(pair(symbol("a")))), QString("()"));
    }

    void typeTests_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("isList");
        QTest::addColumn<bool>("isPair");
        QTest::addColumn<bool>("isString");
        QTest::addColumn<bool>("isSymbol");
        QTest::newRow("empty list") << 0 << true << false << false << false;
        QTest::newRow("list") << 1 << true << true << false << false;
        QTest::newRow("dotted pair") << 2 << true << true << false << false;
        QTest::newRow("string") << 3 << false << false << true << false;
        QTest::newRow("symbol") << 4 << false << false << false << true;
        QTest::newRow("integer") << 5 << false << false << false << false;
        QTest::newRow("symbol table") << 6 << false << false << false << false;
    }

    void typeTests()
    {
        const DtlObjPtr objects[] = {DtlObjPtr(), pair(symbol("a")), pair(symbol("a"), symbol("b")), text("a"),
                                     symbol("a"), integer("1"),      DtMtlEnvironment().env()};
        QFETCH(int, index);
        QTEST(DtcListp(objects[index]) != 0, "isList");
        QTEST(DtcConsp(objects[index]) != 0, "isPair");
        QTEST(DtcStringp(objects[index]) != 0, "isString");
        QTEST(DtcSymbolp(objects[index]) != 0, "isSymbol");
    }

    void textsAndNumbers()
    {
        COMPARE_TEXT(text("12")->string(), "12");
        QCOMPARE(text("12")->fixnum(), 0);
        COMPARE_TEXT(symbol("12")->string(), "12");
        QCOMPARE(symbol("12")->fixnum(), 0);
        COMPARE_TEXT(integer("-007")->string(), "-007");
        QCOMPARE(integer("-007")->fixnum(), -7);
        COMPARE_TEXT(pair(symbol("a"))->string(), "");
        QCOMPARE(pair(integer("3"))->fixnum(), 0);
    }

    void numberBeyondTheRangeIsItsLimit()
    {
        QCOMPARE(integer("2147483647")->fixnum(), INT_MAX);
        QCOMPARE(integer("2147483648")->fixnum(), INT_MAX);
        QCOMPARE(integer("-99999999999999999999999999")->fixnum(), INT_MIN);
    }

    void equality_data()
    {
        QTest::addColumn<QByteArray>("left");
        QTest::addColumn<QByteArray>("right");
        QTest::addColumn<bool>("isEqual");
        const auto row = [](const char* left, const char* right, bool isEqual)
        { QTest::newRow(left) << QByteArray(left) << QByteArray(right) << isEqual; };
        row("()", "()", true);
        row("a", "a", true);
        row("b", "B", false);
        row("\"a\"", "\"a\"", true);
        row("\"a\" ", "a", false);
        row("7", "+7", true);
        row("8", "9", false);
        row("12", "\"12\"", false);
        row("(a (b \"c\") 3)", "(a (b \"c\") 3)", true);
        row("(a (b \"c\") 3) ", "(a (b \"d\") 3)", false);
        row("(a b)", "(a b c)", false);
        row("(a b c)", "(a b)", false);
        row("(a . b)", "(a . b)", true);
        row("(a . b) ", "(a b)", false);
        row("(a)", "a", false);
        row("() ", "(())", false);
    }

    void equality()
    {
        QFETCH(QByteArray, left);
        QFETCH(QByteArray, right);
        QFETCH(bool, isEqual);
        DtTextInputStream leftStream(left);
        DtTextInputStream rightStream(right);
        const DtlObjPtr one = DtcRead(&leftStream, DtMtlEnvironment().env());
        const DtlObjPtr other = DtcRead(&rightStream, DtMtlEnvironment().env());
        QCOMPARE(DtcEqual(one, other) != 0, isEqual);
        QCOMPARE(DtcEqual(other, one) != 0, isEqual);
        QVERIFY(DtcEqual(one, one));
    }

    void freshSymbolEqualsAnInternedOneAndIsNotIt()
    {
        const DtMtlEnvironment environment;
        const DtlObjPtr fresh = DtcMakeSymbol("a");
        const DtlObjPtr interned = DtcIntern("a", environment.env());
        QVERIFY(DtcEqual(fresh, interned));
        QVERIFY(!DtcEq(fresh, interned));
        QVERIFY(!DtcEqual(fresh, DtcIntern("b", environment.env())));
        QVERIFY(DtcEq(interned, DtcIntern("a", environment.env())));
        QVERIFY(!DtcEq(interned, DtcIntern("a", DtMtlEnvironment().env())));
    }

    void symbolOutlivesItsEnvironment()
    {
        DtlObjPtr kept;
        {
            const DtMtlEnvironment environment;
            kept = DtcIntern("a", environment.env());
        }
        COMPARE_TEXT(kept->string(), "a");
    }

    void symbolInNoTableIsAFreshOne()
    {
        const DtlObjPtr first = DtcIntern("a", DtlObjPtr());
        QCOMPARE(printMtl(first), QString("a"));
        QVERIFY(!DtcEq(first, DtcIntern("a", DtlObjPtr())));
    }

    // Recursion would run out of stack in each of these.
    void longAndDeepListsAreDeletedAndCompared()
    {
        const int size = 1000000;
        int deleted = 0;
        {
            const DtlObjPtr element(new DtWatchedObject(deleted));
            const DtlObjPtr first = longList(size, element);
            const DtlObjPtr second = longList(size, element);
            QVERIFY(DtcEqual(first, second));
            QVERIFY(!DtcEqual(first, longList(size - 1, element)));
            QVERIFY(DtcEqual(deepList(size), deepList(size)));
            QVERIFY(!DtcEqual(deepList(size), deepList(size - 1)));
        }
        QCOMPARE(deleted, 1);
    }

    void sharedPartOfALongListStays()
    {
        DtlObjPtr rest;
        {
            const DtlObjPtr list = pair(symbol("a"), pair(symbol("b"), pair(symbol("c"))));
            rest = DtcCdr(list);
        }
        QCOMPARE(printMtl(rest), QString("(b c)"));
    }
};

QX_REGISTER_TEST(TestMtlObject)
#include "testMtlObject.moc"
