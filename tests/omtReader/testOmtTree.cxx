#include "modelText.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
template <typename Node>
Node* named(const char* name)
{
    auto* node = new Node;
    node->setName(name);
    return node;
}

// Adds one node of a name, told apart by a mark in its note.
template <typename Node>
Node* marked(const char* name, const char* mark)
{
    auto* node = named<Node>(name);
    node->setNote(mark);
    return node;
}

// One node of each kind, all of one name and marked.
void fill(DtOMTTree& tree, const char* name, const char* mark)
{
    tree.addFixedDatatypeNode(marked<DtFixedDatatypeNode>(name, mark));
    tree.addBasicDataRepresentationNode(marked<DtBasicDataRepresentationNode>(name, mark));
    tree.addVariantDatatypeNode(marked<DtVariantDatatypeNode>(name, mark));
    tree.addSimpleDatatypeNode(marked<DtSimpleDatatypeNode>(name, mark));
    tree.addArrayDatatypeNode(marked<DtArrayDatatypeNode>(name, mark));
    tree.addComplexDatatypeNode(marked<DtComplexDatatypeNode>(name, mark));
    tree.addEnumeratedDatatypeNode(marked<DtEnumeratedDatatypeNode>(name, mark));
    tree.addSwitchNode(marked<DtBoolAttrNode>(name, mark));
    tree.addTransportationNode(marked<DtDescriptionNode>(name, mark));
    tree.addDimensionNode(marked<DtDimensionNode>(name, mark));
    tree.addSynchroNode(marked<DtSynchroNode>(name, mark));
    tree.addTagNode(marked<DtTagNode>(name, mark));
    tree.addUpdateRateNode(marked<DtUpdateRateNode>(name, mark));
}

template <typename Iterator>
QString marksOf(Iterator begin, Iterator end)
{
    QString text;
    for (; begin != end; ++begin)
        text += toQt((*begin)->getName()) + toQt((*begin)->getNote()) + " ";
    return text;
}

// Names and marks of each list that fill adds to.
QStringList listsOf(const DtOMTTree& tree)
{
    return {marksOf(tree.getFixedDatatypeNodeList(), tree.getFixedDatatypeEndNode()),
            marksOf(tree.getBasicDataRepresentationNodeList(), tree.getBasicDataRepresentationEndNode()),
            marksOf(tree.getVariantDatatypeNodeList(), tree.getVariantDatatypeEndNode()),
            marksOf(tree.getSimpleDatatypeNodeList(), tree.getSimpleDatatypeEndNode()),
            marksOf(tree.getArrayDatatypeNodeList(), tree.getArrayDatatypeEndNode()),
            marksOf(tree.getComplexDatatypeNodeList(), tree.getComplexDatatypeEndNode()),
            marksOf(tree.getEnumeratedDatatypeNodeList(), tree.getEnumeratedDatatypeEndNode()),
            marksOf(tree.getSwitchNodeList(), tree.getSwitchEndNode()),
            marksOf(tree.getTransportationNodeList(), tree.getTransportationEndNode()),
            marksOf(tree.getDimensionNodeList(), tree.getDimensionEndNode()),
            marksOf(tree.getSynchroNodeList(), tree.getSynchroEndNode()),
            marksOf(tree.getTagNodeList(), tree.getTagEndNode()),
            marksOf(tree.getUpdateRateNodeList(), tree.getUpdateRateEndNode())};
}

QString flatObjects(const DtOMTTree& tree)
{
    return namesOf(tree.getObjectClassNodeBegin(), tree.getObjectClassNodeEnd());
}
} // namespace

class TestOmtTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachListKeepsOrderAndFindsTheFirstOfAName()
    {
        DtOMTTree tree;
        fill(tree, "a", "1");
        fill(tree, "b", "1");
        fill(tree, "a", "2");
        for (const QString& list : listsOf(tree))
            QCOMPARE(list, QString("a1 b1 a2 "));
        QCOMPARE(toQt(tree.getFixedDatatypeNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getBasicDataRepresentationNode("b")->getName()), QString("b"));
        QCOMPARE(toQt(tree.getVariantDatatypeNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getSimpleDatatypeNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getArrayDatatypeNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getComplexDatatypeNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getEnumeratedDatatypeNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getSwitchNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getTransportationNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getDimensionNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getSynchroNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getTagNode("a")->getNote()), QString("1"));
        QCOMPARE(toQt(tree.getUpdateRateNode("a")->getNote()), QString("1"));
        QVERIFY(tree.getSimpleDatatypeNode("A") == nullptr);
        QVERIFY(tree.getSimpleDatatypeNode("") == nullptr);
        tree.addSimpleDatatypeNode(nullptr);
        QCOMPARE(std::distance(tree.getSimpleDatatypeNodeList(), tree.getSimpleDatatypeEndNode()), std::ptrdiff_t(3));
    }

    void notesAreFoundByNumberAndLabel()
    {
        DtOMTTree tree;
        for (const char* label : {"alpha", "3", "03", "0"})
        {
            auto* note = new DtNoteNode;
            note->setLabel(label);
            tree.addNoteNode(note);
        }
        QCOMPARE(toQt(tree.getNoteNode(3)->getLabel()), QString("3"));
        QCOMPARE(toQt(tree.getNoteNode(0)->getLabel()), QString("alpha")); // no number counts as 0
        QCOMPARE(toQt(tree.getNoteNode("03")->getLabel()), QString("03"));
        QVERIFY(tree.getNoteNode(4) == nullptr);
        QVERIFY(tree.getNoteNode("beta") == nullptr);
        QCOMPARE(std::distance(tree.getNoteNodeList(), tree.getNoteEndNode()), std::ptrdiff_t(4));
    }

    void identificationIsKept()
    {
        DtOMTTree tree;
        QCOMPARE(int(tree.hlaVersion()), 0);
        tree.addPOC("type", "first", "last", "org", "phone", "mail");
        const DtOMTTreePOC& poc = tree.getPOCList().at(0);
        QCOMPARE(toQt(poc.type + "," + poc.firstName + "," + poc.lastName + "," + poc.organization + "," +
                      poc.telephone + "," + poc.email + "," + poc.other),
                 QString("type,first,last,org,phone,mail,"));
        tree.setReferences({
            {"a", "b"}
        });
        tree.addReference("c", "d");
        QCOMPARE(toQt(tree.getReferences().at(1).type + tree.getReferences().at(1).identification), QString("cd"));
        tree.setName("n");
        tree.setMOMVersion("m");
        DtOMTTree other;
        other.setName("gone");
        other.takeIdentification(tree);
        QCOMPARE(toQt(other.getName() + other.getMOMVersion()), QString("nm"));
        QCOMPARE(other.getReferences().size() + other.getPOCList().size(), std::size_t(3));
    }

    void emptyClassNameGivesTheRoot()
    {
        DtOMTTree tree;
        QVERIFY(tree.getObjectClassNode("") == nullptr);
        QVERIFY(tree.getInteractionClassNode("") == nullptr);
        DtObjectClassFedNode* root = addObjectClass(tree, "R", nullptr);
        QCOMPARE(tree.getObjectClassNode(""), root);
    }

    void withoutRootTheFlatListIsSearchedByFullName()
    {
        DtOMTTree tree;
        DtObjectClassFedNode* top = addObjectClass(tree, "T", nullptr);
        DtObjectClassFedNode* leaf = addObjectClass(tree, "L", top);
        addObjectClass(tree, "L", top);
        tree.setObjectClassRoot(nullptr);
        QCOMPARE(tree.getObjectClassNode("T.L"), leaf);
        QCOMPARE(tree.getObjectClassNode("T"), top);
        QVERIFY(tree.getObjectClassNode("TXL") == nullptr);
        QVERIFY(tree.getObjectClassNode("L") == nullptr);
    }

    void flatSearchSeesNamesThatStillChange()
    {
        DtOMTTree tree;
        DtObjectClassFedNode* first = addObjectClass(tree, "A", nullptr);
        DtObjectClassFedNode* second = addObjectClass(tree, "B", nullptr);
        tree.setObjectClassRoot(nullptr);
        QVERIFY(tree.getObjectClassNode("X") == nullptr);
        first->setName("X");
        QCOMPARE(tree.getObjectClassNode("X"), first);
        first->addChildObject(second);
        QCOMPARE(tree.getObjectClassNode("X.B"), second);
        QVERIFY(tree.getObjectClassNode("B") == nullptr);
        second->setName("C"); // the full name is settled by now
        QCOMPARE(tree.getObjectClassNode("X.B"), second);
    }

    void classesAreFoundByNumberAndWalkedBothWays()
    {
        DtOMTTree tree;
        DtObjectClassFedNode* root = addObjectClass(tree, "R", nullptr);
        auto* node = new DtObjectClassFedNode(root);
        node->setName("N");
        node->setIdentifier(7);
        tree.addObjectClassNode(node);
        QCOMPARE(tree.getObjectClassNodeByID(7), node);
        QCOMPARE(tree.getObjectClassNodeByID(0), root);
        QVERIFY(tree.getObjectClassNodeByID(8) == nullptr);
        QVERIFY(tree.getInteractionClassNodeByID(0) == nullptr);
        QCOMPARE(namesOf(tree.getObjectClassNodeRBegin(), tree.getObjectClassNodeREnd()), QString("N R"));
    }

    void mergeAddsSubclassesUnderTheRootThatStands()
    {
        DtOMTTree tree, other;
        DtObjectClassFedNode* root = addObjectClass(tree, "R", nullptr);
        addObjectClass(tree, "A", root, {"a"});
        DtObjectClassFedNode* otherRoot = addObjectClass(other, "R", nullptr);
        DtObjectClassFedNode* otherA = addObjectClass(other, "A", otherRoot, {"dropped"});
        DtObjectClassFedNode* b = addObjectClass(other, "B", otherA, {"b"});
        addObjectClass(other, "C", b);
        tree.merge(&other);
        QCOMPARE(tree.objectClassRoot(), root);
        QCOMPARE(printClass(root), QString("R\n  A [a]\n    B [b]\n      C\n"));
        QCOMPARE(flatObjects(tree), QString("R A C B")); // children first
        QCOMPARE(toQt(tree.getObjectClassNode("R.A.B.C")->getFullName()), QString("R.A.B.C"));
        QCOMPARE(printClass(otherRoot), QString("R\n  A [dropped]\n    B [b]\n      C\n")); // copied, not moved
    }

    void mergeFillsAClassWithoutAttributes()
    {
        DtOMTTree tree, other;
        DtObjectClassFedNode* a = addObjectClass(tree, "A", addObjectClass(tree, "R", nullptr));
        addObjectClass(other, "A", addObjectClass(other, "R", nullptr), {"x", "y"});
        tree.merge(&other);
        QCOMPARE(printClass(a), QString("A [x y]\n"));
        QCOMPARE(toQt(a->findAttribute("x")->getFullName()), QString("R.A.x"));
        QCOMPARE(a->findAttribute("x")->getParentObject(), static_cast<DtFedNode*>(a));
        QCOMPARE(flatObjects(tree), QString("R A"));
    }

    void mergeIntoAnEmptyTreeCopiesTheRoot()
    {
        DtOMTTree tree, other;
        DtObjectClassFedNode* root = addObjectClass(other, "R", nullptr, {"r"});
        addObjectClass(other, "A", root);
        addObjectClass(other, "A", root, {"a"}); // a second class of the name joins the first
        tree.merge(&other);
        QCOMPARE(printClass(tree.objectClassRoot()), QString("R [r]\n  A [a]\n"));
        QVERIFY(tree.objectClassRoot() != root);
        QVERIFY(tree.interactionClassRoot() == nullptr);
    }

    void mergeWithAnotherRootReplacesTheRoot()
    {
        DtOMTTree tree, other;
        addObjectClass(tree, "R", nullptr);
        addObjectClass(other, "S", nullptr);
        tree.merge(&other);
        QCOMPARE(printClass(tree.objectClassRoot()), QString("S\n"));
        QCOMPARE(flatObjects(tree), QString("R S"));
    }

    void mergedInteractionsFollowTheSameRules()
    {
        const auto first = readSections("<interactions><interactionClass><name>HLAinteractionRoot</name>"
                                        "<interactionClass><name>A</name></interactionClass>"
                                        "</interactionClass></interactions>");
        const auto second = readSections("<interactions><interactionClass><name>HLAinteractionRoot</name>"
                                         "<interactionClass><name>A</name><parameter><name>p</name></parameter>"
                                         "<interactionClass><name>B</name></interactionClass></interactionClass>"
                                         "</interactionClass></interactions>");
        first->merge(second.get());
        QCOMPARE(printClass(first->interactionClassRoot()), QString("HLAinteractionRoot\n  A [p]\n    B\n"));
        QCOMPARE(toQt(first->getInteractionClassNode("HLAinteractionRoot.A")->findParameter("p")->getFullName()),
                 QString("HLAinteractionRoot.A.p"));
    }

    void firstDefinitionOfAnEntryStands()
    {
        DtOMTTree tree, other;
        fill(tree, "a", "1");
        fill(other, "a", "2");
        fill(other, "b", "2");
        tree.merge(&other);
        for (const QString& list : listsOf(tree))
            QCOMPARE(list, QString("a1 b2 "));
        QVERIFY(tree.getTagNode("b") != other.getTagNode("b"));
    }

    void takenDatatypesStandAsMergedOnes()
    {
        DtOMTTree tree, other;
        fill(tree, "a", "1");
        for (const char* name : {"a", "b", "c"})
            fill(other, name, "2");
        fill(other, "b", "3");
        const DtFixedDatatypeNode* const taken = other.getFixedDatatypeNode("b");
        tree.takeDatatypes(other);
        QCOMPARE(tree.getFixedDatatypeNode("b"), const_cast<DtFixedDatatypeNode*>(taken));
        QCOMPARE(tree.getTagNode("b"), nullptr);
        const QStringList left = listsOf(other);
        for (int list = 0; list < left.size(); ++list)
            QCOMPARE(left[list], QString(list < 7 ? "a2 b3 " : "a2 b2 c2 b3 "));
        QCOMPARE(toQt(other.getFixedDatatypeNode("b")->getNote()), QString("3"));
        QCOMPARE(other.getFixedDatatypeNode("c"), nullptr);
        tree.merge(&other);
        for (const QString& list : listsOf(tree))
            QCOMPARE(list, QString("a1 b2 c2 "));
    }

    void notesMergeByLabel()
    {
        DtOMTTree tree, other;
        for (DtOMTTree* target : {&tree, &other, &other})
        {
            auto* note = new DtNoteNode;
            note->setLabel(target == &tree ? "1" : other.getNoteNode("1") == nullptr ? "1" : "2");
            note->setText(target == &tree ? "first" : "second");
            target->addNoteNode(note);
        }
        tree.merge(&other);
        QCOMPARE(toQt(tree.getNoteNode(1)->getText()), QString("first"));
        QCOMPARE(toQt(tree.getNoteNode(2)->getText()), QString("second"));
        QCOMPARE(std::distance(tree.getNoteNodeList(), tree.getNoteEndNode()), std::ptrdiff_t(2));
    }

    void referenceToAModuleDependsOnTheVersion_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<QString>("reference");
        QTest::newRow("none") << 0 << QString();
        QTest::newRow("1516") << 2 << QString();
        QTest::newRow("2010") << 3 << QString("Composed_From Other");
        QTest::newRow("2025") << 4 << QString("Composed_From Other");
    }

    void referenceToAModuleDependsOnTheVersion()
    {
        QFETCH(int, version);
        DtOMTTree tree, other;
        tree.setHlaVersion(static_cast<DtHLAProtocolVersion>(version));
        tree.setName("Mine");
        other.setName("Other");
        other.setPurpose("not taken");
        tree.merge(&other);
        QString text;
        for (const DtOMTTreeReference& reference : tree.getReferences())
            text += toQt(reference.type + " " + reference.identification);
        QTEST(text, "reference");
        QCOMPARE(toQt(tree.getName() + tree.getPurpose()), QString("Mine"));
    }

    void timeRepresentationIsMadeWhenAskedForAndThenStands()
    {
        DtOMTTree tree, other;
        other.getTimeRepNode()->setLookaheadDatatype("theirs");
        tree.merge(&other);
        QCOMPARE(toQt(tree.getTimeRepNode()->getLookaheadDatatype()), QString("theirs"));
        QVERIFY(tree.getTimeRepNode() != other.getTimeRepNode());
        DtOMTTree empty;
        QVERIFY(empty.getTimeRepNode() != nullptr);
        empty.merge(&other); // the empty node counts as present
        QCOMPARE(toQt(empty.getTimeRepNode()->getLookaheadDatatype()), QString());
    }

    void manyClassesMergeQuickly()
    {
        DtOMTTree tree, other;
        for (int i = 0; i < 50000; ++i)
            addObjectClass(other, ("C" + std::to_string(i)).c_str(), i == 0 ? nullptr : other.objectClassRoot());
        QElapsedTimer timer;
        timer.start();
        tree.merge(&other); // into an empty tree, then onto itself
        tree.merge(&other);
        QVERIFY2(timer.elapsed() < 20000, "a walk along all siblings takes many minutes");
        QCOMPARE(tree.objectClassRoot()->getChildObjects().size(), std::size_t(49999));
    }

    void deepHierarchyMergesWithoutStack()
    {
        DtOMTTree tree, other;
        DtObjectClassFedNode* parent = nullptr;
        for (int i = 0; i < 3000; ++i)
            parent = addObjectClass(other, "C", parent);
        other.setObjectClassRoot(*other.getObjectClassNodeBegin());
        tree.merge(&other);
        QCOMPARE(std::distance(tree.getObjectClassNodeBegin(), tree.getObjectClassNodeEnd()), std::ptrdiff_t(3000));
    }
};

QX_REGISTER_TEST(TestOmtTree)
#include "testOmtTree.moc"
