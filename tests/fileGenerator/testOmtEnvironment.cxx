#include "registerTest.h"

#include "fileGenerator/omtEnvironment.h"
#include "omtReader/omtTree.h"

#include <QtTest/QtTest>

#include <sstream>

namespace
{

QString dump(DtOMTTree& tree)
{
    DtOMTEnvironment environment;
    environment.populateFromOmtTree(&tree);
    std::ostringstream out;
    out << environment;
    return QString::fromStdString(out.str());
}

// The lines of one branch, its own line left out.
QString branch(DtOMTTree& tree, const QString& name)
{
    QString lines;
    bool isInside = false;
    for (const QString& line : dump(tree).split('\n', Qt::SkipEmptyParts))
    {
        if (line.startsWith(' '))
            lines += isInside ? line + "\n" : QString();
        else
            isInside = line == name + " (branch)";
    }
    return lines;
}

template <typename Node>
Node* named(const char* name)
{
    auto* node = new Node; // what it is added to owns it
    node->setName(name);
    return node;
}

template <typename Member>
Member* member(const char* name, const char* datatype, const char* cardinality)
{
    auto* node = named<Member>(name);
    node->setDatatype(datatype);
    node->setCardinality(cardinality);
    return node;
}

template <typename Component>
Component* component(const char* name, const char* datatype)
{
    auto* node = named<Component>(name);
    node->setDatatype(datatype);
    return node;
}

DtObjectClassFedNode* addObjectClass(DtOMTTree& tree, const char* name, DtObjectClassFedNode* parent)
{
    auto* node = named<DtObjectClassFedNode>(name);
    node->setParentObject(parent);
    if (parent != nullptr)
        parent->addChildObject(node);
    else
        tree.setObjectClassRoot(node);
    tree.addObjectClassNode(node);
    return node;
}

DtInteractionClassFedNode* addInteractionClass(DtOMTTree& tree, const char* name, DtInteractionClassFedNode* parent)
{
    auto* node = named<DtInteractionClassFedNode>(name);
    node->setParentObject(parent);
    if (parent != nullptr)
        parent->addChildInteraction(node);
    else
        tree.setInteractionClassRoot(node);
    tree.addInteractionClassNode(node);
    return node;
}

} // namespace

class TestOmtEnvironment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void branchesStandFromTheStart();
    void missingTreeLeavesTheBranchesEmpty();
    void subclassesStandAheadOfAttributes();
    void subclassesStandAheadOfParameters();
    void rootClassesHaveNoEntry();
    void removedMembersHaveNoEntry();
    void basicTypesGetTheCommonInteger();
    void longerNameCountsAsCommonInteger();
    void simpleTypesShowTheirRepresentation();
    void arraysShowElementAndCardinality();
    void complexTypesStandAheadOfFixedOnes();
    void variantsShowTheirAlternatives();
    void enumerationsStayEmpty();
};

void TestOmtEnvironment::branchesStandFromTheStart()
{
    std::ostringstream out;
    out << DtOMTEnvironment();
    QCOMPARE(QString::fromStdString(out.str()),
             QString("enumerations (branch)\nobjects (branch)\ninteractions (branch)\nbasic datatypes (branch)\n"
                     "datatypes (branch)\nsimple datatypes (branch)\narray datatypes (branch)\n"
                     "variant datatypes (branch)\n"));
}

void TestOmtEnvironment::missingTreeLeavesTheBranchesEmpty()
{
    DtOMTEnvironment environment;
    environment.populateFromOmtTree(nullptr);
    std::ostringstream out;
    out << environment;
    QCOMPARE(QString::fromStdString(out.str()).count('\n'), 8);
}

void TestOmtEnvironment::subclassesStandAheadOfAttributes()
{
    DtOMTTree tree;
    DtObjectClassFedNode* vehicle = addObjectClass(tree, "Vehicle", addObjectClass(tree, "Root", nullptr));
    vehicle->addAttribute(member<DtAttributeFedNode>("speed", "Metres", "1+"));
    addObjectClass(tree, "Ship", vehicle)->addAttribute(member<DtAttributeFedNode>("draught", "Depth", "1"));
    QCOMPARE(branch(tree, "objects"), QString("  Vehicle (object name) = Root.Vehicle\n"
                                              "    Ship (object name) = Root.Vehicle.Ship\n"
                                              "      draught (ShipAttribute) = Depth\n"
                                              "        draughtAttrCardinality (cardinality) = 1\n"
                                              "    speed (VehicleAttribute) = Metres\n"
                                              "      speedAttrCardinality (cardinality) = 1+\n"));
}

void TestOmtEnvironment::subclassesStandAheadOfParameters()
{
    DtOMTTree tree;
    DtInteractionClassFedNode* fire = addInteractionClass(tree, "Fire", addInteractionClass(tree, "Root", nullptr));
    fire->addParameter(member<DtParameterFedNode>("target", "Id", "2"));
    addInteractionClass(tree, "Salvo", fire);
    QCOMPARE(branch(tree, "interactions"), QString("  Fire (interaction name) = Root.Fire\n"
                                                   "    Salvo (interaction name) = Root.Fire.Salvo\n"
                                                   "    target (FireParameter) = Id\n"
                                                   "      targetParamCardinality (cardinality) = 2\n"));
}

void TestOmtEnvironment::rootClassesHaveNoEntry()
{
    DtOMTTree tree;
    QCOMPARE(branch(tree, "objects"), QString());
    addObjectClass(tree, "Root", nullptr)->addAttribute(member<DtAttributeFedNode>("x", "T", "1"));
    addInteractionClass(tree, "Root", nullptr)->addParameter(member<DtParameterFedNode>("x", "T", "1"));
    QCOMPARE(branch(tree, "objects"), QString());
    QCOMPARE(branch(tree, "interactions"), QString());
}

void TestOmtEnvironment::removedMembersHaveNoEntry()
{
    DtOMTTree tree;
    DtObjectClassFedNode* object = addObjectClass(tree, "A", addObjectClass(tree, "Root", nullptr));
    object->addAttribute(member<DtAttributeFedNode>("x", "T", "1"));
    object->removeAttributes();
    DtInteractionClassFedNode* fire = addInteractionClass(tree, "I", addInteractionClass(tree, "Root", nullptr));
    fire->addParameter(member<DtParameterFedNode>("x", "T", "1"));
    fire->removeParameters();
    QCOMPARE(branch(tree, "objects"), QString("  A (object name) = Root.A\n"));
    QCOMPARE(branch(tree, "interactions"), QString("  I (interaction name) = Root.I\n"));
}

void TestOmtEnvironment::basicTypesGetTheCommonInteger()
{
    DtOMTTree tree;
    tree.addBasicDataRepresentationNode(named<DtBasicDataRepresentationNode>("HLAoctet"));
    QCOMPARE(branch(tree, "basic datatypes"), QString("  HLAoctet (basic type) = HLAoctet\n"
                                                      "  HLAinteger32BE (basic type) = HLAinteger32BE\n"));
}

void TestOmtEnvironment::longerNameCountsAsCommonInteger()
{
    DtOMTTree tree;
    tree.addBasicDataRepresentationNode(named<DtBasicDataRepresentationNode>("MyHLAinteger32BE"));
    QCOMPARE(branch(tree, "basic datatypes"), QString("  MyHLAinteger32BE (basic type) = MyHLAinteger32BE\n"));
}

void TestOmtEnvironment::simpleTypesShowTheirRepresentation()
{
    DtOMTTree tree;
    auto* node = named<DtSimpleDatatypeNode>("Metres");
    node->setRepresentation("HLAfloat32BE");
    tree.addSimpleDatatypeNode(node);
    QCOMPARE(branch(tree, "simple datatypes"), QString("  Metres (simple type) = HLAfloat32BE\n"));
}

void TestOmtEnvironment::arraysShowElementAndCardinality()
{
    DtOMTTree tree;
    tree.addArrayDatatypeNode(member<DtArrayDatatypeNode>("Path", "Point", "Dynamic"));
    QCOMPARE(branch(tree, "array datatypes"), QString("  Path (array type) = Point\n"
                                                      "    PathCardinality (cardinality) = Dynamic\n"));
}

void TestOmtEnvironment::complexTypesStandAheadOfFixedOnes()
{
    DtOMTTree tree;
    auto* fixed = named<DtFixedDatatypeNode>("Point");
    fixed->addComponentNode(component<DtFieldComponentNode>("x", "Metres"));
    tree.addFixedDatatypeNode(fixed);
    auto* complex = named<DtComplexDatatypeNode>("Track");
    complex->addComponentNode(member<DtComplexComponentNode>("points", "Point", "0-5"));
    tree.addComplexDatatypeNode(complex);
    QCOMPARE(branch(tree, "datatypes"), QString("  Track (datatype name)\n"
                                                "    points (component) = Point\n"
                                                "      pointsCardinality (cardinality) = 0-5\n"
                                                "  Point (datatype name)\n"
                                                "    x (component) = Metres\n"));
}

void TestOmtEnvironment::variantsShowTheirAlternatives()
{
    DtOMTTree tree;
    auto* variant = named<DtVariantDatatypeNode>("Shape");
    variant->addComponentNode(component<DtAlternativeComponentNode>("radius", "Metres"));
    tree.addVariantDatatypeNode(variant);
    QCOMPARE(branch(tree, "variant datatypes"), QString("  Shape (variant type)\n"
                                                        "    radius (component) = Metres\n"));
}

void TestOmtEnvironment::enumerationsStayEmpty()
{
    DtOMTTree tree;
    tree.addEnumeratedDatatypeNode(named<DtEnumeratedDatatypeNode>("Colour"));
    QCOMPARE(branch(tree, "enumerations"), QString());
    QVERIFY(!dump(tree).contains("Colour"));
}

QX_REGISTER_TEST(TestOmtEnvironment)
#include "testOmtEnvironment.moc"
