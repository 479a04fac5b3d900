#include "fileGenerator/representationWalk.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <map>

namespace
{
// The names of the walk with arrows between them; one more arrow at the end of a ring.
QString walk(const char* start, const std::map<DtString, DtString>& representations)
{
    const auto next = [&representations](const DtString& name)
    {
        const auto found = representations.find(name);
        return found != representations.end() ? found->second : DtString();
    };
    const DtRepresentationChain chain = followRepresentations(start, next);
    QStringList names;
    for (const DtString& name : chain.names)
        names += name.c_str();
    return names.join(">") + (chain.isRing ? ">" : "");
}
} // namespace

class TestRepresentationWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chainRunsFromTheDatatypeToWhatHasNothingBelow()
    {
        QCOMPARE(walk("A", {}), QString("A"));
        QCOMPARE(walk("A",
                      {
                          {"A", "B"},
                          {"B", "C"},
                          {"D", "A"}
        }),
                 QString("A>B>C"));
        QCOMPARE(walk("B",
                      {
                          {"A", "B"},
                          {"B", "C"},
                          {"D", "A"}
        }),
                 QString("B>C"));
    }

    void ringEndsWhereANameComesAgain()
    {
        QCOMPARE(walk("A",
                      {
                          {"A", "A"}
        }),
                 QString("A>"));
        QCOMPARE(walk("A",
                      {
                          {"A", "B"},
                          {"B", "A"}
        }),
                 QString("A>B>"));
        QCOMPARE(walk("A",
                      {
                          {"A", "B"},
                          {"B", "C"},
                          {"C", "B"}
        }),
                 QString("A>B>C>"));
    }

    void longChainIsFollowedToItsEnd()
    {
        const int length = 100000;
        const auto next = [](const DtString& name)
        { return name.toInt() < length ? DtString(name.toInt() + 1) : DtString(); };
        const DtRepresentationChain chain = followRepresentations("1", next);
        QCOMPARE(chain.names.size(), std::size_t(length));
        QCOMPARE(chain.names.back(), DtString(length));
        QVERIFY(!chain.isRing);
    }
};

QX_REGISTER_TEST(TestRepresentationWalk)
#include "testRepresentationWalk.moc"
