#include "registerTest.h"

#include "fileGenerator/omtProject.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"

#include <QtTest/QtTest>

#include <memory>

namespace
{

QString text(const DtString& string)
{
    return QString::fromUtf8(string.c_str());
}

// The full names of the records, with a blank behind each.
template <typename Record>
QString namesOf(const std::set<Record>& records)
{
    QString names;
    for (const Record& record : records)
        names += text(record.fullName()) + " ";
    return names;
}

template <typename Member>
QString memberNames(const std::set<Member>& members)
{
    QString names;
    for (const Member& member : members)
        names += text(member.name()) + " ";
    return names;
}

DtOmtObject objectWithAttribute(const DtString& fullName, const DtString& attributeName, const DtString& rename)
{
    DtOmtAttribute attribute;
    attribute.setName(attributeName);
    attribute.setFullName(attributeName);
    attribute.setOwningObject(fullName);
    attribute.setRename(rename);
    DtOmtObject object;
    object.setFullName(fullName);
    object.addAttribute(attribute);
    return object;
}

template <typename Member>
Member* named(const char* name)
{
    auto* member = new Member(nullptr); // the class that it is added to owns it
    member->setName(name);
    return member;
}

} // namespace

class TestOmtProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newProjectIsEmpty();
    void itemTypesHaveTheirNumbers();
    void firstClassKeepsItsNameAndOthersCount();
    void sameFullNameGetsSameName();
    void countStartsAnewForEachBase();
    void numberIsTheLowestFree();
    void nameWithoutDotIsItsOwnBase();
    void objectsAndInteractionsShareTheNames();
    void manyEqualNamesAreCountedOn();
    void storedRecordIsNotReplaced();
    void nodeGivesItsOwnAttributes();
    void removedAttributesOfNodeAreSkipped();
    void nodeGivesItsOwnParameters();
    void missingNodeAddsNothing();
    void classByNameHasNoAttributes();
    void interactionByNameKeepsFlagAndRename();
    void lookUpsOfUnknownClassesAreEmpty();
    void renameOfClassIsFound();
    void renameOfNamedMemberIsFoundThroughItsClassOnly();
    void renameOfNamelessMemberIsFound();
    void removeTakesOneRecordAndOnlyIfThere();
    void childrenAreRemovedBySubstring();
    void interactionChildrenAreRemovedBySubstring();
    void otherItemTypesRemoveNothing();
    void emptyTextRemovesAll();
    void setsAreReplaced();
    void predefinedTypesAreOverwrittenAndReplaced();
    void initialPredefinedTypesAreComplete_data();
    void initialPredefinedTypesAreComplete();
    void customCodingIsOverwritten();
    void unknownCustomCodingLeavesTheArgumentAlone();
    void modelFilesMayRepeat();
    void textsAreKept();
    void copyHasContentButNoNames();
    void assignmentEmptiesTheNames();
    void selfAssignmentKeepsAll();
    void changeOfCopyStaysThere();
    void changeOfOriginalDoesNotReachCopy();
    void copiesShareTheirRecords();
    void copyOutlivesTheOriginal();
};

void TestOmtProject::newProjectIsEmpty()
{
    const DtOmtProject project;
    QVERIFY(project.getObjects().empty() && project.getInteractions().empty());
    QVERIFY(project.predefinedTypes().empty() && project.customCodings().empty() && project.fomDefFiles().empty());
    QVERIFY(project.baseName().isEmpty() && project.includeDir().isEmpty() && project.classPrefix().isEmpty());
}

void TestOmtProject::itemTypesHaveTheirNumbers()
{
    QCOMPARE(int(DtOmtProject::ObjectItem), 0);
    QCOMPARE(int(DtOmtProject::InteractionItem), 1);
}

void TestOmtProject::firstClassKeepsItsNameAndOthersCount()
{
    DtOmtProject project;
    QCOMPARE(text(project.getUniqueName("X.Foo")), QString("Foo"));
    QCOMPARE(text(project.getUniqueName("Y.Foo")), QString("Foo1"));
    QCOMPARE(text(project.getUniqueName("Z.Foo")), QString("Foo2"));
}

void TestOmtProject::sameFullNameGetsSameName()
{
    DtOmtProject project;
    project.getUniqueName("X.Foo");
    QCOMPARE(text(project.getUniqueName("Y.Foo")), QString("Foo1"));
    QCOMPARE(text(project.getUniqueName("Y.Foo")), QString("Foo1"));
    QCOMPARE(text(project.getUniqueName("X.Foo")), QString("Foo"));
    QCOMPARE(text(project.getUniqueName("Z.Foo")), QString("Foo2")); // the repeats used no number up
}

void TestOmtProject::countStartsAnewForEachBase()
{
    DtOmtProject project;
    project.getUniqueName("X.Foo");
    project.getUniqueName("Y.Foo");
    QCOMPARE(text(project.getUniqueName("X.Foo1")), QString("Foo11"));
    QCOMPARE(text(project.getUniqueName("Y.Foo1")), QString("Foo12"));
}

void TestOmtProject::numberIsTheLowestFree()
{
    DtOmtProject project;
    QCOMPARE(text(project.getUniqueName("A.Foo2")), QString("Foo2"));
    QCOMPARE(text(project.getUniqueName("A.Foo")), QString("Foo"));
    QCOMPARE(text(project.getUniqueName("B.Foo")), QString("Foo1"));
    QCOMPARE(text(project.getUniqueName("A.Foo3")), QString("Foo3"));
    QCOMPARE(text(project.getUniqueName("C.Foo")), QString("Foo4")); // 2 and 3 are taken
}

void TestOmtProject::nameWithoutDotIsItsOwnBase()
{
    DtOmtProject project;
    QCOMPARE(text(project.getUniqueName("Foo")), QString("Foo"));
    QCOMPARE(text(project.getUniqueName("A.Foo")), QString("Foo1"));
    QCOMPARE(text(project.getUniqueName("")), QString(""));
    QCOMPARE(text(project.getUniqueName("A.")), QString("1"));
}

void TestOmtProject::objectsAndInteractionsShareTheNames()
{
    DtOmtProject project;
    project.addObject("Objects.Fire", false, "");
    project.addInteraction("Interactions.Fire", false, "");
    QCOMPARE(text(project.getObjectFromName("Objects.Fire")->name()), QString("Fire"));
    QCOMPARE(text(project.getInteractionFromName("Interactions.Fire")->name()), QString("Fire1"));
}

void TestOmtProject::manyEqualNamesAreCountedOn()
{
    const int count = 20000; // counting from 1 each time would take minutes
    DtOmtProject project;
    DtString last;
    for (int i = 0; i < count; ++i)
        last = project.getUniqueName("A" + DtString(i) + ".Foo");
    QCOMPARE(text(last), QString("Foo%1").arg(count - 1));
}

void TestOmtProject::storedRecordIsNotReplaced()
{
    DtOmtProject project;
    project.addObject("A", true, "First");
    project.addObject("A", true, "Second");
    QCOMPARE(text(project.getRenameForObject("A")), QString("First"));
    project.addInteraction("I", true, "First");
    DtOmtInteraction interaction;
    interaction.setFullName("I");
    project.addInteraction(interaction);
    QCOMPARE(text(project.getRenameForInteraction("I")), QString("First"));
}

void TestOmtProject::nodeGivesItsOwnAttributes()
{
    DtObjectClassFedNode root(nullptr);
    root.setName("Root");
    root.addAttribute(named<DtAttributeFedNode>("inherited"));
    DtObjectClassFedNode ship(&root);
    ship.setName("Ship");
    ship.addAttribute(named<DtAttributeFedNode>("speed"));
    ship.addAttribute(named<DtAttributeFedNode>("course"));
    DtOmtProject project;
    project.getUniqueName("Other.Ship");
    project.addObject(&ship);
    const DtOmtObject* object = project.getObjectFromName("Root.Ship");
    QVERIFY(object != nullptr);
    QCOMPARE(text(object->name()), QString("Ship1"));
    QVERIFY(!object->shouldRename() && object->rename().isEmpty());
    QCOMPARE(memberNames(object->attributes()), QString("course speed "));
    QVERIFY(object->attributes().begin()->fullName().isEmpty());
    QVERIFY(object->attributes().begin()->owningObject().isEmpty());
}

void TestOmtProject::removedAttributesOfNodeAreSkipped()
{
    DtObjectClassFedNode object(nullptr);
    object.setName("A");
    object.addAttribute(named<DtAttributeFedNode>("x"));
    object.removeAttributes();
    DtInteractionClassFedNode interaction(nullptr);
    interaction.setName("I");
    interaction.addParameter(named<DtParameterFedNode>("p"));
    interaction.removeParameters();
    DtOmtProject project;
    project.addObject(&object);
    project.addInteraction(&interaction);
    QVERIFY(project.getObjectFromName("A")->attributes().empty());
    QVERIFY(project.getInteractionFromName("I")->parameters().empty());
}

void TestOmtProject::nodeGivesItsOwnParameters()
{
    DtInteractionClassFedNode node(nullptr);
    node.setName("Fire");
    node.addParameter(named<DtParameterFedNode>("target"));
    DtOmtProject project;
    project.addInteraction(&node);
    QCOMPARE(memberNames(project.getInteractionFromName("Fire")->parameters()), QString("target "));
}

void TestOmtProject::missingNodeAddsNothing()
{
    DtOmtProject project;
    project.addObject(static_cast<const DtObjectClassFedNode*>(nullptr));
    project.addInteraction(static_cast<const DtInteractionClassFedNode*>(nullptr));
    QVERIFY(project.getObjects().empty() && project.getInteractions().empty());
}

void TestOmtProject::classByNameHasNoAttributes()
{
    DtOmtProject project;
    project.addObject("A.B", true, "C");
    const DtOmtObject* object = project.getObjectFromName("A.B");
    QCOMPARE(text(object->name()), QString("B"));
    QCOMPARE(text(object->rename()), QString("C"));
    QVERIFY(object->shouldRename());
    QVERIFY(object->attributes().empty());
}

void TestOmtProject::interactionByNameKeepsFlagAndRename()
{
    DtOmtProject project;
    project.addInteraction("I", true, "J");
    QVERIFY(project.getInteractionFromName("I")->shouldRename());
    QCOMPARE(text(project.getRenameForInteraction("I")), QString("J"));
}

void TestOmtProject::lookUpsOfUnknownClassesAreEmpty()
{
    const DtOmtProject project;
    QVERIFY(!project.isObjectInProj("A") && !project.isInteractionInProj("A"));
    QVERIFY(project.getObjectFromName("A") == nullptr && project.getInteractionFromName("A") == nullptr);
    QVERIFY(project.getRenameForObject("A").isEmpty() && project.getRenameForInteraction("A").isEmpty());
    QVERIFY(project.getRenameForAttribute("A", "x").isEmpty() && project.getRenameForParameter("A", "x").isEmpty());
    QVERIFY(!project.isPredefinedType("A"));
}

void TestOmtProject::renameOfClassIsFound()
{
    DtOmtProject project;
    project.addObject("A", true, "B");
    QVERIFY(project.isObjectInProj("A"));
    QVERIFY(!project.isInteractionInProj("A"));
    QCOMPARE(text(project.getRenameForObject("A")), QString("B"));
}

void TestOmtProject::renameOfNamedMemberIsFoundThroughItsClassOnly()
{
    DtOmtProject project;
    project.addObject(objectWithAttribute("A", "x", "y"));
    QCOMPARE(text(project.getRenameForAttribute("A", "x")), QString(""));
    QCOMPARE(text(project.getObjectFromName("A")->getAttributeFromName("x").rename()), QString("y"));
    DtOmtParameter parameter;
    parameter.setName("p");
    parameter.setRename("q");
    DtOmtInteraction interaction;
    interaction.setFullName("I");
    interaction.addParameter(parameter);
    project.addInteraction(interaction);
    QCOMPARE(text(project.getRenameForParameter("I", "p")), QString(""));
    QCOMPARE(text(project.getInteractionFromName("I")->getParameterFromName("p").rename()), QString("q"));
}

void TestOmtProject::renameOfNamelessMemberIsFound()
{
    DtOmtProject project;
    project.addObject(objectWithAttribute("A", "", "y"));
    QCOMPARE(text(project.getRenameForAttribute("A", "x")), QString("y"));
}

void TestOmtProject::removeTakesOneRecordAndOnlyIfThere()
{
    DtOmtProject project;
    for (const char* name : {"A", "A.B", "C"})
    {
        project.addObject(name, false, "");
        project.addInteraction(name, false, "");
    }
    DtOmtObject object;
    object.setFullName("A");
    object.setRename("something else");
    project.removeObject(object);
    project.removeObject(object);
    QCOMPARE(namesOf(project.getObjects()), QString("A.B C "));
    DtOmtInteraction interaction;
    interaction.setFullName("A.B");
    project.removeInteraction(interaction);
    project.removeInteraction(interaction);
    QCOMPARE(namesOf(project.getInteractions()), QString("A C "));
}

void TestOmtProject::childrenAreRemovedBySubstring()
{
    DtOmtProject project;
    for (const char* name : {"A", "A.B", "A.B.C", "A.BC", "AB.C", "X.A.B"})
        project.addObject(name, false, "");
    project.removeAllChildren("A.B", DtOmtProject::ObjectItem);
    QCOMPARE(namesOf(project.getObjects()), QString("A AB.C "));
}

void TestOmtProject::interactionChildrenAreRemovedBySubstring()
{
    DtOmtProject project;
    project.addObject("A.B", false, "");
    for (const char* name : {"A", "A.B", "A.BC"})
        project.addInteraction(name, false, "");
    project.removeAllChildren("A.B", DtOmtProject::InteractionItem);
    QCOMPARE(namesOf(project.getInteractions()), QString("A "));
    QCOMPARE(namesOf(project.getObjects()), QString("A.B "));
}

void TestOmtProject::otherItemTypesRemoveNothing()
{
    DtOmtProject project;
    project.addObject("A", false, "");
    project.addInteraction("A", false, "");
    project.removeAllChildren("A", static_cast<DtOmtProject::itemType>(2));
    QVERIFY(project.isObjectInProj("A") && project.isInteractionInProj("A"));
}

void TestOmtProject::emptyTextRemovesAll()
{
    DtOmtProject project;
    project.addObject("A", false, "");
    project.addObject("B", false, "");
    project.removeAllChildren("", DtOmtProject::ObjectItem);
    QVERIFY(project.getObjects().empty());
}

void TestOmtProject::setsAreReplaced()
{
    DtOmtProject project;
    project.addObject("A", false, "");
    project.setObjects({objectWithAttribute("B", "x", "")});
    QCOMPARE(namesOf(project.getObjects()), QString("B "));
    project.addInteraction("I", false, "");
    project.setInteractions({});
    QVERIFY(project.getInteractions().empty());
}

void TestOmtProject::predefinedTypesAreOverwrittenAndReplaced()
{
    DtOmtProject project;
    project.addPredefinedType("T", "DtU8");
    project.addPredefinedType("T", "DtU16");
    QCOMPARE(text(project.predefinedTypes().at("T")), QString("DtU16"));
    project.setPredefinedType({
        {"U", "DtU32"}
    });
    QVERIFY(!project.isPredefinedType("T"));
    QVERIFY(project.isPredefinedType("U"));
}

void TestOmtProject::initialPredefinedTypesAreComplete_data()
{
    QTest::addColumn<QString>("toolkitType");
    QTest::addColumn<QString>("modelTypes"); // sorted, blanks inside a name as underscores
    const char* const rows[][2] = {
        {"DtU8",                     "HLAASCIIchar HLAUnsignedInteger8BE HLAoctet HLAunsignedInteger8BE Octet RPRUnsignedInteger8BE "
                 "RPRunsignedInteger8BE Unsignedinteger8 any char handle octet"                                        },
        {"DtU16",                    "HLAUnsignedInteger16BE HLAoctetPairBE HLAoctetPairLE HLAunicodeChar HLAunsignedInteger16BE "
                  "RPRUnsignedInteger16BE RPRunsignedInteger16BE UnsignedInteger16BE UnsignedInteger16LE UnsignedShort "
                  "Unsignedinteger16 Unsignedinteger16BE Unsignedinteger16LE unsigned_short unsignedShort"            },
        {"DtU32",                    "HLAUnsignedInteger32BE HLAunsignedInteger32BE RPRUnsignedInteger32BE RPRunsignedInteger32BE "
                  "UnsignedInteger32BE UnsignedInteger32LE UnsignedLong Unsignedinteger32BE Unsignedinteger32LE "
                  "unsigned_long unsignedLong"                                                                        },
        {"DtU64",                    "HLAUnsignedInteger64BE HLAunsignedInteger64BE RPRUnsignedInteger64BE RPRunsignedInteger64BE "
                  "UnsignedInteger64BE UnsignedInteger64LE Unsignedinteger64BE Unsignedinteger64LE unsigned_long_long"},
        {"DtInt16",                  "HLAinteger16BE HLAinteger16LE short"                                                             },
        {"DtInt32",                  "HLAcount HLAinteger32BE HLAinteger32LE long"                                                     },
        {"DtInt64",                  "HLAinteger64BE HLAinteger64LE long_long"                                                         },
        {"DtFloat32",                "HLAfloat32BE HLAfloat32LE float"                                                                 },
        {"DtFloat64",                "HLAfloat64BE HLAfloat64LE double"                                                                },
        {"bool",                     "HLAboolean OMT13boolean RPRboolean boolean"                                                      },
        {"DtString",                 "HLAASCIIstring HLAopaqueData HLAunicodeString MarkingArray11 MarkingArray31 string"              },
        {"DtGlobalObjectDesignator", "RTIObjectId RTIObjectIdStruct RTIobjectId RTIobjectIdStruct"                                     },
        {"DtVector64",               "WorldLocationStruct"                                                                             },
        {"DtVector32",               "AccelerationVectorStruct AngularVelocityVectorStruct VelocityVectorStruct"                       },
        {"DtEntityType",             "EntityTypeStruct"                                                                                },
        {"DtTaitBryan",              "OrientationStruct"                                                                               },
        {"DtEntityIdentifier",       "EntityIdentifierStruct"                                                                          },
        {"DtHlaLogicalTime",         "HLAlogicalTime timeType"                                                                         },
        {"DtHlaLogicalTimeInterval", "HLAlogicalTimeInterval HLAtimeInterval"                                                          },
    };
    for (const auto& row : rows)
        QTest::newRow(row[0]) << row[0] << row[1];
}

void TestOmtProject::initialPredefinedTypesAreComplete()
{
    QFETCH(QString, toolkitType);
    QFETCH(QString, modelTypes);
    DtOmtProject project;
    project.initializePredefinedTypes();
    QCOMPARE(project.predefinedTypes().size(), std::size_t(88));
    QStringList found;
    for (const auto& [modelType, type] : project.predefinedTypes())
        if (text(type) == toolkitType)
            found += text(modelType).replace(' ', '_');
    QCOMPARE(found.join(' '), modelTypes);
}

void TestOmtProject::customCodingIsOverwritten()
{
    DtOmtProject project;
    project.addCustomCoding("A.x", {"one", "two"});
    project.addCustomCoding("A.x", {"three", "four"});
    DtOmtProject::DtCodingPair coding;
    QVERIFY(project.customCodingsFromName("A.x", coding));
    QCOMPARE(text(coding.first), QString("three"));
    QCOMPARE(text(coding.second), QString("four"));
    QCOMPARE(project.customCodings().size(), std::size_t(1));
}

void TestOmtProject::unknownCustomCodingLeavesTheArgumentAlone()
{
    DtOmtProject::DtCodingPair coding("encoder", "decoder");
    QVERIFY(!DtOmtProject().customCodingsFromName("A.x", coding));
    QCOMPARE(text(coding.first), QString("encoder"));
    QCOMPARE(text(coding.second), QString("decoder"));
}

void TestOmtProject::modelFilesMayRepeat()
{
    DtOmtProject project;
    project.addFomDefFile("a.xml", "models");
    project.addFomDefFile("a.xml", "models");
    QCOMPARE(project.fomDefFiles().size(), std::size_t(2));
    QCOMPARE(text(project.fomDefFiles().front().second), QString("models"));
    project.setFomDefFiles({
        {"b.xml", ""}
    });
    QCOMPARE(text(project.fomDefFiles().front().first), QString("b.xml"));
}

void TestOmtProject::textsAreKept()
{
    DtOmtProject project;
    project.setBaseName("base");
    project.setIncludeDir("include");
    project.setClassPrefix("Px");
    QCOMPARE(text(project.baseName() + project.includeDir() + project.classPrefix()), QString("baseincludePx"));
}

void TestOmtProject::copyHasContentButNoNames()
{
    DtOmtProject project;
    project.addObject("X.Foo", false, "");
    project.addObject("Y.Foo", false, "");
    project.addInteraction("I", false, "");
    project.addFomDefFile("a.xml", "");
    project.addCustomCoding("k", {});
    project.addPredefinedType("T", "DtU8");
    project.setBaseName("base");
    DtOmtProject copy(project);
    QCOMPARE(namesOf(copy.getObjects()), QString("X.Foo Y.Foo "));
    QCOMPARE(text(copy.getObjectFromName("Y.Foo")->name()), QString("Foo1"));
    QCOMPARE(namesOf(copy.getInteractions()), QString("I "));
    QCOMPARE(copy.fomDefFiles().size() + copy.customCodings().size(), std::size_t(2));
    QVERIFY(copy.isPredefinedType("T"));
    QCOMPARE(text(copy.baseName()), QString("base"));
    QCOMPARE(text(copy.getUniqueName("Y.Foo")), QString("Foo"));
    QCOMPARE(text(project.getUniqueName("Y.Foo")), QString("Foo1"));
}

void TestOmtProject::assignmentEmptiesTheNames()
{
    DtOmtProject project;
    project.addObject("X.Foo", false, "");
    DtOmtProject other;
    other.getUniqueName("X.Bar");
    other.getUniqueName("Y.Bar");
    other = project;
    QCOMPARE(namesOf(other.getObjects()), QString("X.Foo "));
    QCOMPARE(text(other.getUniqueName("Y.Bar")), QString("Bar"));
    QCOMPARE(text(other.getUniqueName("Z.Bar")), QString("Bar1"));
}

void TestOmtProject::selfAssignmentKeepsAll()
{
    DtOmtProject project;
    project.addObject("X.Foo", false, "");
    const DtOmtProject& same = project;
    project = same;
    QVERIFY(project.isObjectInProj("X.Foo"));
    QCOMPARE(text(project.getUniqueName("Y.Foo")), QString("Foo1"));
}

void TestOmtProject::changeOfCopyStaysThere()
{
    DtOmtProject project;
    project.addObject("A", false, "");
    project.addPredefinedType("T", "DtU8");
    DtOmtProject copy(project);
    copy.removeAllChildren("A", DtOmtProject::ObjectItem);
    copy.addPredefinedType("T", "DtU16");
    copy.setBaseName("copy");
    QVERIFY(project.isObjectInProj("A"));
    QCOMPARE(text(project.predefinedTypes().at("T")), QString("DtU8"));
    QVERIFY(project.baseName().isEmpty());
}

void TestOmtProject::changeOfOriginalDoesNotReachCopy()
{
    DtOmtProject project;
    project.addInteraction("I", false, "");
    const DtOmtProject copy(project);
    project.addInteraction("J", false, "");
    project.addFomDefFile("a.xml", "");
    project.addCustomCoding("k", {});
    QCOMPARE(namesOf(copy.getInteractions()), QString("I "));
    QVERIFY(copy.fomDefFiles().empty() && copy.customCodings().empty());
}

void TestOmtProject::copiesShareTheirRecords()
{
    DtOmtProject project;
    project.addObject("A", false, "");
    const DtOmtProject copy(project);
    QCOMPARE(copy.getObjectFromName("A"), project.getObjectFromName("A")); // a copy costs a pointer
    project.addObject("B", false, "");
    QVERIFY(copy.getObjectFromName("A") != project.getObjectFromName("A"));
}

void TestOmtProject::copyOutlivesTheOriginal()
{
    auto project = std::make_unique<DtOmtProject>();
    project->addObject("A", true, "B");
    const DtOmtProject copy(*project);
    project.reset();
    QCOMPARE(text(copy.getRenameForObject("A")), QString("B"));
}

QX_REGISTER_TEST(TestOmtProject)
#include "testOmtProject.moc"
