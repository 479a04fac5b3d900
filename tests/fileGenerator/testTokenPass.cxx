#include "registerTest.h"

#include "fileGenerator/tokenPass.h"

#include <QtTest/QtTest>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace
{
struct DtPerson
{
    DtString name;
    DtString town;
    mutable std::vector<std::string> asked; // rows worked out so far
};

const DtTokenRow<DtPerson> thePersonRows[] = {
    {"<!Greeting!>", [](const DtPerson&) { return DtString("Hello <!Name!>"); }      },
    {"<!Name!>",
     [](const DtPerson& p)
     {
         p.asked.emplace_back("Name");
         return p.name;
     }                                                                               },
    {"<!Town!>",
     [](const DtPerson& p)
     {
         p.asked.emplace_back("Town");
         return p.town;
     }                                                                               },
    {"<!Back!>",     [](const DtPerson&) { return DtString("back to <!Greeting!>"); }},
    {"<!Nothing!>",  [](const DtPerson&) { return DtString(); }                      },
};

const DtTokenRow<DtPerson> theLaterRows[] = {
    {"<!Name!>", [](const DtPerson&) { return DtString("never"); }           },
    {"<!Late!>", [](const DtPerson& p) { return DtString("late ") + p.town; }},
};

const DtTokenTable<DtPerson>& personTable()
{
    static const DtTokenTable<DtPerson> theTable(thePersonRows);
    return theTable;
}

const DtTokenTable<DtPerson>& laterTable()
{
    static const DtTokenTable<DtPerson> theTable(theLaterRows);
    return theTable;
}

// A table whose values are given by the test.
class DtGivenSource : public DtTokenSource
{
public:
    DtGivenSource(const DtTokenIndex& index, const std::vector<std::string>& values)
        : DtTokenSource(index), myValues(values)
    {
    }

protected:
    DtString workOut(int row) const override { return myValues[static_cast<std::size_t>(row)]; }

private:
    const std::vector<std::string>& myValues;
};
} // namespace

class TestTokenPass : public QObject
{
    Q_OBJECT

private:
    DtPerson myPerson;

    DtString expanded(const char* text)
    {
        DtTokenValues<DtPerson> values(personTable(), &myPerson);
        DtTokenValues<DtPerson> later(laterTable(), &myPerson);
        DtString line(text);
        DtExpandTokens(line, {&values, nullptr, &later});
        return line;
    }

private Q_SLOTS:
    void init() { myPerson = {"Ann", "Bath", {}}; }

    void lineComesOut_data();
    void lineComesOut();
    void valuesAreWorkedOutOnceUntilCleared();
    void lineWithoutTokenAsksForNothing();
    void allValuesAreWorkedOutInRowOrder();
    void anotherContextGivesOtherValues();
    void indexFindsFirstRowOfAText();
    void oneScanAgreesWithOrderedPasses();
    void assignedTextMayHoldZeroBytes();
};

void TestTokenPass::lineComesOut_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char *name, *line, *expected;
    } theRows[] = {
        {"no token stays as it is",                  "a < b !> c",                 "a < b !> c"          },
        {"every occurrence is replaced",             "<!Name!><!Name!>, <!Town!>", "AnnAnn, Bath"        },
        {"unknown token stays in line",              "<!Who!> is <!Name!>",        "<!Who!> is Ann"      },
        {"token of a later row in a value goes too", "<!Greeting!>!",              "Hello Ann!"          },
        {"token of an earlier row in a value stays", "<!Back!>",                   "back to <!Greeting!>"},
        {"earlier link of the chain wins",           "<!Name!> <!Late!>",          "Ann late Bath"       },
        {"token inside an opening is found",         "<!Who <!Name!>",             "<!Who Ann"           },
        {"opening without an end stays",             "<!Name!> <!Town",            "Ann <!Town"          },
        {"empty value may join a later token",       "<!To<!Nothing!>wn!>",        "<!Town!>"            },
        {"removed token may join an earlier one",    "<<!Town!>!Name!>",           "<Bath!Name!>"        },
        {"case counts",                              "<!name!>",                   "<!name!>"            },
        {"closing bracket alone",                    "!><!Name!>!>",               "!>Ann!>"             },
        {"overlapping brackets are no token",        "<!><!Name!>",                "<!>Ann"              },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.line << row.expected;
}

void TestTokenPass::lineComesOut()
{
    QFETCH(QString, line);
    QFETCH(QString, expected);
    QCOMPARE(QString(expanded(qPrintable(line)).c_str()), expected);
}

void TestTokenPass::valuesAreWorkedOutOnceUntilCleared()
{
    DtTokenValues<DtPerson> values(personTable(), &myPerson);
    DtString line("<!Name!><!Name!>");
    DtExpandTokens(line, {&values});
    line = "<!Name!>";
    myPerson.name = "Bob";
    DtExpandTokens(line, {&values});
    QCOMPARE(line.c_str(), "Ann");
    QCOMPARE(myPerson.asked.size(), std::size_t(1));
    values.clear();
    line = "<!Name!>";
    DtExpandTokens(line, {&values});
    QCOMPARE(line.c_str(), "Bob");
}

void TestTokenPass::lineWithoutTokenAsksForNothing()
{
    QCOMPARE(expanded("plain < ! text").c_str(), "plain < ! text");
    QVERIFY(myPerson.asked.empty());
    QVERIFY(!DtHasToken("< !"));
    QVERIFY(DtHasToken("a<!"));
}

void TestTokenPass::allValuesAreWorkedOutInRowOrder()
{
    DtTokenValues<DtPerson> values(personTable(), &myPerson);
    values.value(2);
    values.workOutAll();
    QCOMPARE(myPerson.asked, (std::vector<std::string>{"Town", "Name"}));
}

void TestTokenPass::anotherContextGivesOtherValues()
{
    const DtPerson other{"Cid", "York", {}};
    DtTokenValues<DtPerson> values(personTable(), &myPerson);
    QCOMPARE(values.value(1).c_str(), "Ann");
    values.setContext(&other);
    QCOMPARE(values.value(1).c_str(), "Cid");
    QVERIFY(values.context() == &other);
}

void TestTokenPass::indexFindsFirstRowOfAText()
{
    const DtTokenIndex index({"<!A!>", "<!B!>", "<!A!>", "<!LongerThanAWord!>"});
    QCOMPARE(index.find("<!A!>"), 0);
    QCOMPARE(index.find("<!B!>"), 1);
    QCOMPARE(index.find("<!LongerThanAWord!>"), 3);
    QCOMPARE(index.find("<!LongerThanAWork!>"), -1);
    QCOMPARE(index.find(""), -1);
    QCOMPARE(index.size(), 4);
    QCOMPARE(DtTokenIndex({}).find("<!A!>"), -1);
}

void TestTokenPass::oneScanAgreesWithOrderedPasses()
{
    const DtTokenIndex first({"<!A!>", "<!B!>", "<!C!>"});
    const DtTokenIndex second({"<!D!>", "<!A!>", "<!E!>"});
    const char* const pieces[] = {"<!A!>", "<!B!>", "<!C!>", "<!D!>", "<!E!>", "<!F!>", "<",   "!",
                                  ">",     "<!",    "!>",    "x",     "A",     "B!>",   "<!C", ""};
    std::mt19937 random(42);
    const auto text = [&](unsigned int longest)
    {
        std::string result;
        for (unsigned int i = random() % (longest + 1); i > 0; --i)
            result += pieces[random() % std::size(pieces)];
        return result;
    };
    for (int i = 0; i < 20000; ++i)
    {
        const std::vector<std::string> values = {text(2), text(1), text(2)};
        DtGivenSource one(first, values);
        DtGivenSource two(second, values);
        DtTokenSource* const chain[] = {&one, &two};
        const std::string line = text(6);
        std::string expected = line;
        for (DtTokenSource* source : chain)
            for (int row = 0; row < source->index().size(); ++row)
            {
                const std::string token(source->index().token(row));
                const std::string& value = values[static_cast<std::size_t>(row)];
                for (std::size_t at = expected.find(token); at != std::string::npos;
                     at = expected.find(token, at + value.size()))
                    expected.replace(at, token.size(), value);
            }
        DtString scanned(line);
        DtExpandTokens(scanned, chain, 2);
        QCOMPARE(scanned.c_str(), expected.c_str());
        DtString passed(line);
        DtExpandTokensInOrder(passed, chain, 2);
        QCOMPARE(passed.c_str(), expected.c_str());
    }
}

void TestTokenPass::assignedTextMayHoldZeroBytes()
{
    DtString target("before");
    DtAssignText(target, std::string_view("a\0b", 3));
    QCOMPARE(target.stdString(), std::string("a\0b", 3));
    DtAssignText(target, std::string(2000, 'x'));
    QCOMPARE(target.length(), 2000u);
    DtAssignText(target, "");
    QCOMPARE(target.c_str(), "");
}

QX_REGISTER_TEST(TestTokenPass)
#include "testTokenPass.moc"
