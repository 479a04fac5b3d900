#include "omtReader/visitDatatype.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
// The families in the order of a visit.
const char* const theFamilies[] = {"basic", "simple",  "enumerated", "array",
                                   "fixed", "complex", "variant",    "reference"};

template <typename Node>
Node* named(const char* name)
{
    auto* node = new Node;
    node->setName(name);
    return node;
}

void add(DtOMTTree& tree, const QByteArray& family, const char* name)
{
    if (family == "basic")
        tree.addBasicDataRepresentationNode(named<DtBasicDataRepresentationNode>(name));
    else if (family == "simple")
        tree.addSimpleDatatypeNode(named<DtSimpleDatatypeNode>(name));
    else if (family == "enumerated")
        tree.addEnumeratedDatatypeNode(named<DtEnumeratedDatatypeNode>(name));
    else if (family == "array")
        tree.addArrayDatatypeNode(named<DtArrayDatatypeNode>(name));
    else if (family == "fixed")
        tree.addFixedDatatypeNode(named<DtFixedDatatypeNode>(name));
    else if (family == "complex")
        tree.addComplexDatatypeNode(named<DtComplexDatatypeNode>(name));
    else if (family == "variant")
        tree.addVariantDatatypeNode(named<DtVariantDatatypeNode>(name));
    else if (family == "reference")
        tree.addReferenceDatatypeNode(named<DtReferenceDatatypeNode>(name));
}

// Family and name of the node that a visit meets; "unknown" without one.
QByteArray visited(const DtOMTTree& tree, const char* name)
{
    const auto text = [](const char* family, const DtOMTNode& node)
    { return QByteArray(family) + " " + node.getName().c_str(); };
    return visitDatatype(tree, name,
                         DtVisitor{[&](const DtBasicDataRepresentationNode& node) { return text("basic", node); },
                                   [&](const DtSimpleDatatypeNode& node) { return text("simple", node); },
                                   [&](const DtEnumeratedDatatypeNode& node) { return text("enumerated", node); },
                                   [&](const DtArrayDatatypeNode& node) { return text("array", node); },
                                   [&](const DtFixedDatatypeNode& node) { return text("fixed", node); },
                                   [&](const DtComplexDatatypeNode& node) { return text("complex", node); },
                                   [&](const DtVariantDatatypeNode& node) { return text("variant", node); },
                                   [&](const DtReferenceDatatypeNode& node) { return text("reference", node); },
                                   [](DtUnknownDatatype) { return QByteArray("unknown"); }});
}

// Answers for all families but arrays.
struct DtVisitorWithoutArrays
{
    void operator()(const DtBasicDataRepresentationNode& /*node*/) const {}
    void operator()(const DtSimpleDatatypeNode& /*node*/) const {}
    void operator()(const DtEnumeratedDatatypeNode& /*node*/) const {}
    void operator()(const DtFixedDatatypeNode& /*node*/) const {}
    void operator()(const DtComplexDatatypeNode& /*node*/) const {}
    void operator()(const DtVariantDatatypeNode& /*node*/) const {}
    void operator()(const DtReferenceDatatypeNode& /*node*/) const {}
    void operator()(DtUnknownDatatype /*none*/) const {}
};

struct DtVisitorOfKnownOnly
{
    void operator()(const DtOMTNode& /*node*/) const {}
};

struct DtVisitorOfAnyNode : DtVisitorOfKnownOnly
{
    using DtVisitorOfKnownOnly::operator();
    void operator()(DtUnknownDatatype /*none*/) const {}
};
} // namespace

class TestVisitDatatype : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachFamilyAnswersForItsNames_data()
    {
        QTest::addColumn<QByteArray>("family");
        for (const char* family : theFamilies)
            QTest::newRow(family) << QByteArray(family);
    }

    void eachFamilyAnswersForItsNames()
    {
        QFETCH(QByteArray, family);
        DtOMTTree tree;
        for (const char* each : theFamilies)
            add(tree, each, QByteArray("Of") + each);
        QCOMPARE(visited(tree, "Of" + family), family + " Of" + family);
    }

    void earlierFamilyAnswersForASharedName()
    {
        const int count = sizeof theFamilies / sizeof theFamilies[0];
        for (int later = 1; later < count; ++later)
        {
            DtOMTTree tree;
            add(tree, theFamilies[later], "Shared");
            QCOMPARE(visited(tree, "Shared"), QByteArray(theFamilies[later]) + " Shared");
            add(tree, theFamilies[later - 1], "Shared");
            QCOMPARE(visited(tree, "Shared"), QByteArray(theFamilies[later - 1]) + " Shared");
        }
    }

    void nameThatNoFamilyKnowsIsToldApart()
    {
        DtOMTTree tree;
        QCOMPARE(visited(tree, "None"), QByteArray("unknown"));
        for (const char* family : theFamilies)
            add(tree, family, "Known");
        for (const char* name : {"None", "known", ""})
            QCOMPARE(visited(tree, name), QByteArray("unknown"));
    }

    void eachFamilyThatKnowsANameIsVisitedInOrder()
    {
        DtOMTTree tree;
        for (const char* family : {"variant", "array", "simple"})
            add(tree, family, "Shared");
        add(tree, "fixed", "Other");
        QByteArrayList met;
        const auto visit = [&](const char* name)
        {
            met.clear();
            visitEachDatatype(tree, name,
                              DtVisitor{[&](const DtBasicDataRepresentationNode&) { met += "basic"; },
                                        [&](const DtSimpleDatatypeNode&) { met += "simple"; },
                                        [&](const DtEnumeratedDatatypeNode&) { met += "enumerated"; },
                                        [&](const DtArrayDatatypeNode&) { met += "array"; },
                                        [&](const DtFixedDatatypeNode&) { met += "fixed"; },
                                        [&](const DtComplexDatatypeNode&) { met += "complex"; },
                                        [&](const DtVariantDatatypeNode&) { met += "variant"; },
                                        [&](const DtReferenceDatatypeNode&) { met += "reference"; }});
            return met;
        };
        QCOMPARE(visit("Shared"), (QByteArrayList{"simple", "array", "variant"}));
        QCOMPARE(visit("Other"), QByteArrayList{"fixed"});
        QCOMPARE(visit("None"), QByteArrayList());
    }

    void nameOfAnyFamilyIsDefined()
    {
        for (const char* family : theFamilies)
        {
            DtOMTTree tree;
            QVERIFY(!isDefined(tree, "Known"));
            add(tree, family, "Known");
            QVERIFY2(isDefined(tree, "Known"), family);
            QVERIFY(!isDefined(tree, "None"));
        }
    }

    void arraysAndRecordsAreComposite()
    {
        for (const char* family : theFamilies)
        {
            DtOMTTree tree;
            add(tree, family, "Known");
            const bool isExpected = !QByteArrayList{"basic", "simple", "enumerated", "reference"}.contains(family);
            QVERIFY2(isComposite(tree, "Known") == isExpected, family);
            add(tree, "fixed", "Known"); // a second meaning counts too
            QVERIFY2(isComposite(tree, "Known"), family);
            QVERIFY(!isComposite(tree, "None"));
        }
    }

    void visitorKeepsItsState()
    {
        struct Counter
        {
            int count = 0;
            void operator()(const DtOMTNode& /*node*/) { ++count; }
            void operator()(DtUnknownDatatype /*none*/) { count += 10; }
        } counter;
        DtOMTTree tree;
        add(tree, "fixed", "Known");
        visitDatatype(tree, "Known", counter);
        visitDatatype(tree, "None", counter);
        QCOMPARE(counter.count, 11);
    }

    void visitorHasToAnswerForAllFamilies()
    {
        QVERIFY(theAnswersAreComplete<DtVisitorOfAnyNode>);
        QVERIFY(!theAnswersAreComplete<DtVisitorWithoutArrays>);
        QVERIFY(!theAnswersAreComplete<DtVisitorOfKnownOnly>);
        QVERIFY(theFamiliesAreComplete<DtVisitorOfKnownOnly>);
        QVERIFY(!theFamiliesAreComplete<DtVisitorWithoutArrays>);
    }
};

QX_REGISTER_TEST(TestVisitDatatype)
#include "testVisitDatatype.moc"
