#include "modelText.h"
#include "omtReader/parameterFedNode.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestFedNode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsStartEmpty()
    {
        const DtOMTNode node;
        QCOMPARE(toQt(node.getName()), QString());
        QCOMPARE(toQt(node.getNote()), QString());
        QCOMPARE(toQt(node.getUniqueName()), QString());
    }

    void omtNodeIsAssignable()
    {
        DtOMTNode node;
        node.setName("a");
        node.setNote("b");
        node.setUniqueName("c");
        DtOMTNode other;
        other = node;
        QCOMPARE(toQt(other.getName() + other.getNote() + other.getUniqueName()), QString("abc"));
    }

    void fullNameWithoutParentIsTheNameAndFollowsIt()
    {
        DtFedNode node;
        node.setName("a");
        QCOMPARE(toQt(node.getFullName()), QString("a"));
        node.setName("b");
        QCOMPARE(toQt(node.getFullName()), QString("b"));
    }

    void fullNameJoinsNamesByDotsAndStays()
    {
        DtFedNode top, middle(&top), leaf(&middle);
        top.setName("Top");
        middle.setName("Middle");
        leaf.setName("Leaf");
        QCOMPARE(toQt(leaf.getFullName()), QString("Top.Middle.Leaf"));
        QVERIFY(leaf.isFullNameSettled() && middle.isFullNameSettled() && !top.isFullNameSettled());
        leaf.setName("Other");
        leaf.setParentObject(nullptr);
        QCOMPARE(toQt(leaf.getFullName()), QString("Top.Middle.Leaf"));
    }

    void parentWithoutNameDoesNotContributeAndIsNotCached()
    {
        DtFedNode top, middle(&top), leaf(&middle);
        top.setName("Top");
        leaf.setName("Leaf");
        QCOMPARE(toQt(leaf.getFullName()), QString("Leaf"));
        middle.setName("Middle");
        QCOMPARE(toQt(leaf.getFullName()), QString("Top.Middle.Leaf"));
    }

    void copyKeepsParentButNotTheFullName()
    {
        DtFedNode top, leaf(&top);
        top.setName("Top");
        leaf.setName("Leaf");
        leaf.getFullName();
        DtFedNode copy(leaf);
        QCOMPARE(copy.getParentObject(), &top);
        copy.setName("Copy");
        QCOMPARE(toQt(copy.getFullName()), QString("Top.Copy"));
        DtFedNode assigned;
        assigned = leaf;
        assigned.setName("Assigned");
        QCOMPARE(toQt(assigned.getFullName()), QString("Top.Assigned"));
    }

    void equalityComparesNamesOnly()
    {
        DtFedNode top, first(&top), second;
        first.setName("a");
        second.setName("a");
        QVERIFY(first == second);
        second.setName("b");
        QVERIFY(!(first == second));
    }

    void ownParentEndsTheProgram()
    {
        const QString text = textOfAbort(
            []
            {
                DtFedNode node;
                node.setParentObject(&node);
            });
        QVERIFY2(text.contains("libsrc/omtReader/fedNode:64: ") && text.contains("`this != f'"), qPrintable(text));
    }

    void ringOfParentsGivesTheNameAlone()
    {
        DtFedNode first, second(&first), below(&second);
        first.setName("a");
        second.setName("b");
        below.setName("c");
        first.setParentObject(&second);
        QCOMPARE(toQt(below.getFullName()), QString("c"));
        QCOMPARE(toQt(first.getFullName()), QString("a"));
    }

    void deepFullNameNeedsNoStack()
    {
        std::vector<std::unique_ptr<DtFedNode>> nodes;
        for (int i = 0; i < 4000; ++i)
        {
            nodes.push_back(std::make_unique<DtFedNode>(i == 0 ? nullptr : nodes.back().get()));
            nodes.back()->setName("n");
        }
        QCOMPARE(nodes.back()->getFullName().length(), 7999u);
    }

    void derivedCardinality_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QList<int>>("expected"); // type, minimum, maximum
        QTest::newRow("open") << QByteArray("1+") << QList<int>{1, 1, 0};
        QTest::newRow("maximum below minimum") << QByteArray("3-1") << QList<int>{2, 3, 3};
        QTest::newRow("range") << QByteArray("0-4") << QList<int>{2, 0, 4};
        QTest::newRow("range with blank") << QByteArray(" 2- 4") << QList<int>{2, 2, 4};
        QTest::newRow("number") << QByteArray("5") << QList<int>{0, 5, 5};
        QTest::newRow("blank ahead of the sign") << QByteArray("1 +") << QList<int>{0, 1, 1};
        QTest::newRow("no maximum") << QByteArray("0-") << QList<int>{2, 0, 0};
        QTest::newRow("no number") << QByteArray("Dynamic") << QList<int>{0, 0, 0};
        QTest::newRow("too large") << QByteArray("99999999999") << QList<int>{0, 0, 0};
        QTest::newRow("empty") << QByteArray() << QList<int>{0, 1, 1};
        QTest::newRow("white space") << QByteArray(" \t") << QList<int>{0, 1, 1};
    }

    void derivedCardinality()
    {
        QFETCH(QByteArray, text);
        QFETCH(QList<int>, expected);
        DtAttributeFedNode node;
        node.setCardinality("7-9"); // what was derived before leaves no trace
        QCOMPARE(node.getCardinalityMaximum(), 9);
        node.setCardinality(text.constData());
        QCOMPARE((QList<int>{node.getCardinalityType(), node.getCardinalityMinimum(), node.getCardinalityMaximum()}),
                 expected);
    }

    void memberStartsWithCardinalityOne()
    {
        const DtParameterFedNode node;
        QCOMPARE(toQt(node.getCardinality()), QString("1"));
        QCOMPARE((QList<int>{node.getCardinalityType(), node.getCardinalityMinimum(), node.getCardinalityMaximum()}),
                 (QList<int>{0, 1, 1}));
    }
};

QX_REGISTER_TEST(TestFedNode)
#include "testFedNode.moc"
