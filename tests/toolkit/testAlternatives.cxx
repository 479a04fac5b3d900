// What a variant record holds.

#include "registerTest.h"

#include <qx/alternatives.h>

#include <QtTest/QtTest>

#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace
{
// Counts its objects; throws instead of becoming one more, when it is told to.
struct Counted
{
    explicit Counted(int start = 0) : number(start) { begin(); }
    Counted(const Counted& other) : number(other.number) { begin(); }
    Counted(Counted&& other) : number(other.number) // NOLINT: it may throw
    {
        other.number = -1;
        begin();
    }
    Counted& operator=(const Counted&) = default;
    Counted& operator=(Counted&&) = default;
    ~Counted() { --theCount; }

    static void begin()
    {
        if (theyThrow)
            throw std::runtime_error("no more");
        ++theCount;
    }

    static int theCount;
    static bool theyThrow;
    int number;
};
int Counted::theCount = 0;
bool Counted::theyThrow = false;

// An alternative that holds further ones.
struct Tree;
struct Branches
{
    std::vector<Tree> trees;
};
using Parts = DtAlternatives<std::string, Branches, int>;
struct Tree
{
    Parts part;
};

using Numbers = DtAlternatives<int, double, int>;
using Texts = DtAlternatives<std::string, std::vector<int>, double>;
const std::string theLongText(100, 'x'); // has memory of its own

struct Wide
{
    alignas(32) char octets[96];
};

static_assert(sizeof(Numbers) == 2 * sizeof(double), "the alternatives share their room");
static_assert(sizeof(DtAlternatives<Wide, char>) == 128 && alignof(DtAlternatives<Wide, char>) == 32, "");
static_assert(sizeof(DtAlternatives<bool, bool>) == 2 * sizeof(int), "");
static_assert(std::is_nothrow_move_constructible<Texts>::value && std::is_nothrow_move_assignable<Texts>::value, "");
static_assert(std::is_nothrow_move_constructible<Parts>::value, "");
static_assert(!std::is_nothrow_move_constructible<DtAlternatives<int, Counted>>::value, "");
} // namespace

class TestAlternatives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Counted::theCount = 0;
        Counted::theyThrow = false;
    }

    void newOneHoldsNothing()
    {
        const Numbers numbers;
        QCOMPARE(numbers.heldPlace(), -1);
        QCOMPARE(numbers.get<0>(), 0);
        QCOMPARE(numbers.get<1>(), 0.0);
        QCOMPARE(DtAlternatives<>().heldPlace(), -1);
    }

    void placesOfOneTypeAreToldApart()
    {
        Numbers numbers;
        numbers.set<2>(7);
        QCOMPARE(numbers.heldPlace(), 2);
        QCOMPARE(numbers.get<2>(), 7);
        QCOMPARE(numbers.get<0>(), 0);
        QCOMPARE(numbers.hold<0>(), 0);
        QCOMPARE(numbers.get<2>(), 0);
    }

    void defaultValueIsOneForAll()
    {
        const Texts first, second;
        const std::string* seen[2] = {nullptr, nullptr};
        std::thread other([&] { seen[0] = &first.get<0>(); });
        seen[1] = &second.get<0>();
        other.join();
        QCOMPARE(seen[0], seen[1]);
        QVERIFY(seen[0]->empty());
    }

    void heldValueKeepsItsMemory()
    {
        Texts texts;
        texts.set<0>(theLongText);
        const char* const memory = texts.get<0>().data();
        texts.hold<0>() = "short";
        QCOMPARE(texts.get<0>().data(), memory);
        texts.set<0>(std::string(50, 'y'));
        Texts further;
        further.set<0>("z");
        texts = further;
        QVERIFY(texts.get<0>() == "z" && further.get<0>() == "z");
    }

    void valueIsMovedNotCopied()
    {
        std::string text = theLongText;
        const char* const memory = text.data();
        Texts texts;
        texts.set<0>(std::move(text));
        QCOMPARE(texts.get<0>().data(), memory);
        Texts taken(std::move(texts));
        QCOMPARE(taken.get<0>().data(), memory);
        Texts assigned;
        assigned.hold<1>().push_back(1);
        assigned = std::move(taken);
        QCOMPARE(assigned.get<0>().data(), memory);
        Texts same;
        same.hold<0>() = "same place";
        same = std::move(assigned);
        QCOMPARE(same.get<0>().data(), memory);
    }

    void nothingMayBeAssigned()
    {
        Texts texts;
        texts.set<0>(theLongText);
        texts = Texts();
        QCOMPARE(texts.heldPlace(), -1);
        const Texts none;
        texts.set<0>(theLongText);
        texts = none;
        QCOMPARE(texts.heldPlace(), -1);
        texts = none;
        QCOMPARE(texts.heldPlace(), -1);
    }

    void otherPlaceDropsTheValue()
    {
        DtAlternatives<Counted, int> values;
        values.set<0>(Counted(3));
        QCOMPARE(Counted::theCount, 1);
        values.keep(0);
        QCOMPARE(values.get<0>().number, 3);
        values.keep(1);
        QCOMPARE(values.heldPlace(), -1);
        QCOMPARE(Counted::theCount, 0);
        values.hold<0>();
        values.hold<1>();
        QCOMPARE(Counted::theCount, 0);
        {
            DtAlternatives<Counted, int> copied;
            copied.set<0>(Counted(4));
            values = copied;
            QCOMPARE(Counted::theCount, 2);
        }
        QCOMPARE(Counted::theCount, 1);
        values.clear();
        QCOMPARE(Counted::theCount, 0);
    }

    // Of itself, or of what it holds: the old value goes only when the new one is safe.
    void partOfTheValueMayTakeItsPlace()
    {
        Tree tree;
        tree.part.hold<1>().trees.resize(2);
        tree.part.hold<1>().trees[0].part.set<0>(theLongText);
        tree.part.hold<1>().trees[1].part.set<2>(5);
        Tree copied(tree), moved(tree), set(tree);
        copied = copied.part.hold<1>().trees[0];
        QCOMPARE(copied.part.get<0>(), theLongText);
        moved = std::move(moved.part.hold<1>().trees[1]);
        QCOMPARE(moved.part.get<2>(), 5);
        set.part.set<0>(set.part.hold<1>().trees[0].part.get<0>());
        QCOMPARE(set.part.get<0>(), theLongText);
        tree.part.set<0>(std::move(tree.part.hold<1>().trees[0].part.hold<0>()));
        QCOMPARE(tree.part.get<0>(), theLongText);
        const Tree& itself = tree;
        tree = itself;
        QCOMPARE(tree.part.get<0>(), theLongText);
    }

    void holdsNothingWhenTheNewValueThrows()
    {
        DtAlternatives<int, Counted> values, source;
        source.set<1>(Counted(6));
        values.set<0>(5);
        Counted::theyThrow = true;
        QVERIFY_EXCEPTION_THROWN(values.hold<1>(), std::runtime_error);
        QCOMPARE(values.heldPlace(), -1);
        values.set<0>(5);
        QVERIFY_EXCEPTION_THROWN(values = source, std::runtime_error);
        QCOMPARE(values.get<0>(), 5); // the copy is made first
        QVERIFY_EXCEPTION_THROWN((DtAlternatives<int, Counted>(source)), std::runtime_error);
        Counted::theyThrow = false;
        QCOMPARE(Counted::theCount, 1);
    }
};

QX_REGISTER_TEST(TestAlternatives)
#include "testAlternatives.moc"
