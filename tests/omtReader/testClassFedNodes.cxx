#include "modelText.h"
#include "omtReader/noteNode.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
std::unique_ptr<DtObjectClassFedNode> named(const char* name)
{
    auto node = std::make_unique<DtObjectClassFedNode>();
    node->setName(name);
    return node;
}

template <typename Member>
Member* member(const char* name, const char* datatype)
{
    auto* node = new Member;
    node->setName(name);
    node->setDatatype(datatype);
    return node;
}

// The rule for paths word by word, one child after the other.
DtObjectClassFedNode* plainFind(DtObjectClassFedNode* node, const std::string& path)
{
    const std::string& name = node->getName().stdString();
    if (path.compare(0, name.size(), name) != 0)
        return nullptr;
    if (path.size() == name.size())
        return node;
    for (DtObjectClassFedNode* child : node->getChildObjects())
        if (DtObjectClassFedNode* found = plainFind(child, path.substr(name.size() + 1)))
            return found;
    return nullptr;
}
} // namespace

class TestClassFedNodes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laterAttributeOfANameIsFound()
    {
        DtObjectClassFedNode node;
        node.addAttribute(member<DtAttributeFedNode>("a", "first"));
        node.addAttribute(member<DtAttributeFedNode>("a", "second"));
        node.addAttribute(nullptr);
        QCOMPARE(node.getAttributes().size(), std::size_t(2));
        QCOMPARE(toQt(node.findAttribute("a")->getDatatype()), QString("second"));
        QCOMPARE(node.findAttribute("a")->getParentObject(), &node);
        QVERIFY(node.findAttribute("b") == nullptr);
    }

    void earlierParameterOfANameIsFound()
    {
        DtInteractionClassFedNode node;
        node.addParameter(member<DtParameterFedNode>("a", "first"));
        node.addParameter(member<DtParameterFedNode>("a", "second"));
        node.addParameter(nullptr);
        QCOMPARE(node.getParameters().size(), std::size_t(2));
        QCOMPARE(toQt(node.findParameter("a")->getDatatype()), QString("first"));
        QCOMPARE(node.findParameter("a")->getParentObject(), &node);
        QVERIFY(node.findParameter("b") == nullptr);
    }

    void associateAttributeDoesNothing()
    {
        DtObjectClassFedNode node;
        DtAttributeFedNode attribute;
        node.associateAttribute(&attribute);
        QVERIFY(node.getAttributes().empty());
        QVERIFY(attribute.getParentObject() == nullptr);
    }

    void removedMembersLeaveNullEntries()
    {
        DtObjectClassFedNode node;
        node.addAttribute(member<DtAttributeFedNode>("a", ""));
        node.removeAttributes();
        QCOMPARE(node.getAttributes(), std::list<DtAttributeFedNode*>{nullptr});
        QVERIFY(node.findAttribute("a") == nullptr);
        DtInteractionClassFedNode interaction;
        interaction.addParameter(member<DtParameterFedNode>("a", ""));
        interaction.removeParameters();
        QCOMPARE(interaction.getParameters(), std::list<DtParameterFedNode*>{nullptr});
        QVERIFY(interaction.findParameter("a") == nullptr);
        const DtObjectClassFedNode copy(node); // null entries are not copied
        QVERIFY(copy.getAttributes().empty());
        QVERIFY(DtInteractionClassFedNode(interaction).getParameters().empty());
    }

    void copyOfObjectClassHasAttributesButNoChildren()
    {
        DtObjectClassFedNode parent, node(&parent), child;
        node.setName("Node");
        node.setDescriptor("text");
        node.setSharing("Publish");
        node.setIdentifier(3);
        node.setParentIdentifier(2);
        node.addAttribute(member<DtAttributeFedNode>("a", "t"));
        node.addChildObject(&child);
        node.addChildObject(nullptr);
        const DtObjectClassFedNode copy(node);
        QCOMPARE(printClass(&copy), QString("Node [a]\n"));
        QCOMPARE(toQt(copy.getDescriptor() + copy.getSharing()), QString("textPublish"));
        QCOMPARE(copy.getIdentifier() * 10 + copy.getParentIdentifier(), 32);
        QVERIFY(copy.findAttribute("a") != node.findAttribute("a"));
        QCOMPARE(copy.findAttribute("a")->getParentObject(), static_cast<const DtFedNode*>(&copy));
        QCOMPARE(copy.getParentObject(), &parent);
    }

    void copyOfInteractionClassHasParametersAndDimensions()
    {
        DtInteractionClassFedNode parent, node(&parent), child;
        node.setName("Node");
        node.setDescriptor("text");
        node.setSharing("Publish");
        node.setIdentifier(3);
        node.setParentIdentifier(2);
        node.setTransportation("HLAreliable");
        node.setOrder("Receive");
        node.addDimension("d");
        node.addParameter(member<DtParameterFedNode>("p", "t"));
        node.addChildInteraction(&child);
        const DtInteractionClassFedNode copy(node);
        QCOMPARE(printClass(&copy), QString("Node [p]\n"));
        QCOMPARE(toQt(copy.getDescriptor() + copy.getSharing()), QString("textPublish"));
        QCOMPARE(copy.getIdentifier() * 10 + copy.getParentIdentifier(), 32);
        QCOMPARE(toQt(copy.getTransportation() + copy.getOrder()), QString("HLAreliableReceive"));
        QCOMPARE(copy.getDimensions(), std::list<DtString>{"d"});
        QVERIFY(copy.findParameter("p") != node.findParameter("p"));
        QVERIFY(copy.getParameters().front()->getParentObject() == &copy);
        QCOMPARE(copy.getParentObject(), &parent);
    }

    void separatorOfAPathMayBeAnyCharacter()
    {
        const auto root = named("ObjectRoot"), base = named("Base");
        root->addChildObject(base.get());
        QCOMPARE(root->findChildObject("ObjectRoot.Base"), base.get());
        QCOMPARE(root->findChildObject("ObjectRootXBase"), base.get());
        QCOMPARE(root->findChildObject("ObjectRoot"), root.get());
        QVERIFY(root->findChildObject("Base") == nullptr);
        QVERIFY(root->findChildObject("ObjectRoot.Bas") == nullptr);
        QVERIFY(root->findChildObject("") == nullptr);
        QVERIFY(root->findChildObject(nullptr) == nullptr);
    }

    void pathOneCharacterLongerLeadsOnlyToAChildWithoutName()
    {
        const auto root = named("R"), plain = named("A"), nameless = named("");
        root->addChildObject(plain.get());
        QVERIFY(root->findChildObject("R.") == nullptr);
        root->addChildObject(nameless.get());
        QCOMPARE(root->findChildObject("R."), nameless.get());
    }

    void childThatSharesAPrefixIsTriedInListOrder()
    {
        const auto root = named("R"), shortName = named("Base"), longName = named("BaseEntity"), odd = named("ntity");
        root->addChildObject(shortName.get());
        root->addChildObject(longName.get());
        QCOMPARE(root->findChildObject("R.BaseEntity"), longName.get());
        shortName->addChildObject(odd.get()); // "Base", one character, "ntity"
        QCOMPARE(root->findChildObject("R.BaseEntity"), odd.get());
    }

    void interactionPathsFollowTheSameRule()
    {
        DtInteractionClassFedNode root, child;
        root.setName("R");
        child.setName("C");
        root.addChildInteraction(&child);
        QCOMPARE(root.findChildInteraction("R.C"), &child);
        QVERIFY(root.findChildInteraction("R.D") == nullptr);
    }

    // Many siblings are looked up by an index of their names, which a child added later enters too.
    void manyInteractionsAreFoundByTheirNames()
    {
        DtInteractionClassFedNode root;
        root.setName("R");
        std::vector<std::unique_ptr<DtInteractionClassFedNode>> nodes;
        const auto add = [&nodes](DtInteractionClassFedNode& parent, const std::string& name)
        {
            nodes.push_back(std::make_unique<DtInteractionClassFedNode>());
            nodes.back()->setName(name);
            parent.addChildInteraction(nodes.back().get());
            return nodes.back().get();
        };
        for (int i = 0; i < 40; ++i)
            add(root, "C" + std::to_string(i));
        for (int i = 0; i < 40; ++i)
            QCOMPARE(root.findChildInteraction(("R.C" + std::to_string(i)).c_str()),
                     nodes[static_cast<std::size_t>(i)].get());
        QVERIFY(root.findChildInteraction("R.C40") == nullptr);
        DtInteractionClassFedNode* late = add(root, "C40");
        QCOMPARE(root.findChildInteraction("R.C40"), late);
        add(root, "C7"); // of equal names the first counts
        QCOMPARE(root.findChildInteraction("R.C7"), nodes[7].get());
        DtInteractionClassFedNode* below = add(*nodes[39], "Below");
        QCOMPARE(root.findChildInteraction("R.C39.Below"), below);
        QVERIFY(root.findChildInteraction("R.C38.Below") == nullptr);
        QCOMPARE(root.getChildInteractions().size(), std::size_t(42));
    }

    // Names are made of few letters, so that prefixes, repeated and empty names meet often; classes have few children
    // and many, which are looked up in different ways.
    void lookUpAgreesWithThePlainRule()
    {
        std::vector<std::unique_ptr<DtObjectClassFedNode>> nodes;
        unsigned int state = 12345;
        const auto random = [&state](unsigned int limit)
        { return (state = state * 1664525u + 1013904223u) / 65536 % limit; };
        const auto word = [&random](unsigned int longest)
        {
            std::string text;
            for (unsigned int length = random(longest + 1); length > 0; --length)
                text += "ab."[random(3)];
            return text;
        };
        nodes.push_back(named("a"));
        int hits = 0;
        for (int round = 0; round < 3000; ++round)
        {
            if (round % 10 == 0)
            {
                DtObjectClassFedNode* parent = nodes[random(static_cast<unsigned int>(nodes.size())) / 8].get();
                nodes.push_back(named(word(4).c_str()));
                parent->addChildObject(nodes.back().get());
            }
            const std::string path = "a." + word(9);
            DtObjectClassFedNode* expected = plainFind(nodes[0].get(), path);
            QCOMPARE(nodes[0]->findChildObject(path.c_str()), expected);
            hits += expected != nullptr ? 1 : 0;
        }
        QVERIFY(hits > 100);
        QVERIFY(nodes[0]->getChildObjects().size() > 16);
    }

    void manySiblingsAreFoundQuickly()
    {
        const auto root = named("Root");
        std::vector<std::unique_ptr<DtObjectClassFedNode>> nodes;
        for (int i = 0; i < 20000; ++i)
        {
            nodes.push_back(named(("Class" + std::to_string(i)).c_str()));
            root->addChildObject(nodes.back().get());
        }
        QElapsedTimer timer;
        timer.start();
        for (const auto& node : nodes)
            QCOMPARE(root->findChildObject(("Root." + node->getName().stdString()).c_str()), node.get());
        QVERIFY2(timer.elapsed() < 5000, "linear look-ups take minutes");
    }

    void deepPathNeedsNoStack()
    {
        std::vector<std::unique_ptr<DtObjectClassFedNode>> nodes;
        std::string path;
        for (int i = 0; i < 100000; ++i)
        {
            nodes.push_back(named("n"));
            path += i == 0 ? "n" : ".n";
            if (i > 0)
                nodes[nodes.size() - 2]->addChildObject(nodes.back().get());
        }
        QCOMPARE(nodes[0]->findChildObject(path.c_str()), nodes.back().get());
    }

    void numberOfANoteIsItsLabel()
    {
        DtNoteNode note;
        QCOMPARE(toQt(note.getLabel()), QString("0"));
        note.setNumber(7);
        QCOMPARE(toQt(note.getLabel()), QString("7"));
        note.setLabel("3");
        QCOMPARE(note.getNumber(), 3);
        note.setLabel("alpha");
        QCOMPARE(note.getNumber(), 0);
    }
};

QX_REGISTER_TEST(TestClassFedNodes)
#include "testClassFedNodes.moc"
