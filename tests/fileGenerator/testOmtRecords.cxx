#include "registerTest.h"

#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtObject.h"

#include <QtTest/QtTest>

namespace
{

QString text(const DtString& string)
{
    return QString::fromUtf8(string.c_str());
}

DtOmtAttribute attributeOf(const DtString& owner, const DtString& name)
{
    DtOmtAttribute attribute;
    attribute.setOwningObject(owner);
    attribute.setName(name);
    return attribute;
}

DtOmtObject objectNamed(const DtString& fullName)
{
    DtOmtObject object;
    object.setFullName(fullName);
    return object;
}

// A member that overrides every operation and keeps what it was told. The two kinds name the owner differently.
template <typename Record>
struct OwnMember : Record
{
    void setEncoding(const DtString& value) override { told += "E" + value; }
    DtString encoding() const override { return "own encoding"; }
    void setCustomGenerationRef(const DtString& value) override { told += "C" + value; }
    DtString customGenerationRef() const override { return "own text"; }
    void setNoGen(bool value) override { told += value ? "N1" : "N0"; }
    bool noGen() const override { return true; }

    DtString told;
};

struct OwnAttribute : OwnMember<DtOmtAttribute>
{
    void setOwningObject(const DtString& value) override { told += "O" + value; }
    DtString owningObject() const override { return "own owner"; }
};

struct OwnParameter : OwnMember<DtOmtParameter>
{
    void setOwningInteraction(const DtString& value) override { told += "O" + value; }
    DtString owningInteraction() const override { return "own owner"; }
};

template <typename Record>
void setCommonValues(Record& record)
{
    record.setEncoding("e");
    record.setCustomGenerationRef("c");
    record.setNoGen(false);
}

template <typename Record>
QString commonAnswers(const Record& record)
{
    return text(record.encoding() + ", " + record.customGenerationRef()) + (record.noGen() ? ", none" : "");
}

} // namespace

class TestOmtRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newRecordIsEmptyAndIsNotRenamed();
    void settersShowInGetters();
    void newMemberIsGeneratedWithoutCustomText();
    void operationsOfAMemberCanBeOverridden();
    void ownerIsTheOwningClass();
    void objectsAreOrderedByFullNameAlone();
    void objectEqualsItsFullName();
    void membersAreEqualByOwnerAndName();
    void setKeepsOneOfTwoMembersWithOneName();
    void membersAreOrderedByName();
    void attributeIsFoundByName();
    void unknownAttributeGivesTheKey();
    void parameterIsFoundByName();
    void unknownParameterGivesTheKey();
    void setMembersReplacesAll();
    void uuidOfIndexTwoMakesThree();
    void uuidHasTheTextForm();
    void copyCarriesUuidsAlong();
    void recordInSetKeepsItsUuid();
};

void TestOmtRecords::newRecordIsEmptyAndIsNotRenamed()
{
    const DtOmtNode node;
    QVERIFY(node.fullName().isEmpty() && node.name().isEmpty() && node.rename().isEmpty());
    QVERIFY(!node.shouldRename());
    QVERIFY(!DtOmtObject().shouldRename());
    QVERIFY(!DtOmtParameter().shouldRename());
}

void TestOmtRecords::settersShowInGetters()
{
    DtOmtNode node;
    node.setFullName("A.B");
    node.setName("B");
    node.setShouldRename(true);
    node.setRename("C");
    QCOMPARE(text(node.fullName()), QString("A.B"));
    QCOMPARE(text(node.name()), QString("B"));
    QVERIFY(node.shouldRename());
    QCOMPARE(text(node.rename()), QString("C"));
}

void TestOmtRecords::newMemberIsGeneratedWithoutCustomText()
{
    DtOmtParameter parameter;
    QVERIFY(!parameter.noGen());
    QVERIFY(parameter.customGenerationRef().isEmpty());
    QVERIFY(parameter.encoding().isEmpty());
    parameter.setNoGen(true);
    parameter.setCustomGenerationRef("text.txt");
    parameter.setEncoding("HLAfixedArray");
    QVERIFY(parameter.noGen());
    QCOMPARE(text(parameter.customGenerationRef()), QString("text.txt"));
    QCOMPARE(text(parameter.encoding()), QString("HLAfixedArray"));
}

void TestOmtRecords::operationsOfAMemberCanBeOverridden()
{
    OwnAttribute ownAttribute;
    DtOmtAttribute& attribute = ownAttribute;
    attribute.setOwningObject("o");
    setCommonValues(attribute);
    QCOMPARE(text(ownAttribute.told), QString("OoEeCcN0"));
    QCOMPARE(commonAnswers(attribute), QString("own encoding, own text, none"));
    QCOMPARE(text(attribute.owningObject()), QString("own owner"));

    OwnParameter ownParameter;
    DtOmtParameter& parameter = ownParameter;
    parameter.setOwningInteraction("o");
    setCommonValues(parameter);
    QCOMPARE(text(ownParameter.told), QString("OoEeCcN0"));
    QCOMPARE(commonAnswers(parameter), QString("own encoding, own text, none"));
    QCOMPARE(text(parameter.owningInteraction()), QString("own owner"));
}

void TestOmtRecords::ownerIsTheOwningClass()
{
    QCOMPARE(text(attributeOf("A.B", "x").owningObject()), QString("A.B"));
    DtOmtParameter parameter;
    parameter.setOwningInteraction("I");
    QCOMPARE(text(parameter.owningInteraction()), QString("I"));
}

void TestOmtRecords::objectsAreOrderedByFullNameAlone()
{
    DtOmtObject a = objectNamed("A");
    DtOmtObject b = objectNamed("B");
    a.setName("Z");
    b.setName("Y");
    QVERIFY(a < b);
    QVERIFY(!(b < a));
    DtOmtObject other = objectNamed("A");
    other.setRename("X");
    QVERIFY(a == other);
    QVERIFY(!(a == b));
    DtOmtInteraction interaction;
    DtOmtInteraction sameInteraction;
    interaction.setFullName("I");
    sameInteraction.setFullName("I");
    sameInteraction.setName("n");
    QVERIFY(interaction == sameInteraction);
}

void TestOmtRecords::objectEqualsItsFullName()
{
    DtOmtObject object = objectNamed("A.B");
    object.setName("B");
    QVERIFY(object == DtString("A.B"));
    QVERIFY(!(object == DtString("B")));
}

void TestOmtRecords::membersAreEqualByOwnerAndName()
{
    QVERIFY(attributeOf("A", "x") == attributeOf("A", "x"));
    QVERIFY(!(attributeOf("A", "x") == attributeOf("B", "x")));
    QVERIFY(!(attributeOf("A", "x") == attributeOf("A", "y")));
    QVERIFY(!(attributeOf("A", "x") < attributeOf("A", "x")));
}

void TestOmtRecords::setKeepsOneOfTwoMembersWithOneName()
{
    QVERIFY(!(attributeOf("A", "x") < attributeOf("B", "x")));
    QVERIFY(!(attributeOf("B", "x") < attributeOf("A", "x")));
    const std::set<DtOmtAttribute> attributes = {attributeOf("B", "x"), attributeOf("A", "x")};
    QCOMPARE(attributes.size(), std::size_t(1));
    QCOMPARE(text(attributes.begin()->owningObject()), QString("B"));
}

void TestOmtRecords::membersAreOrderedByName()
{
    DtOmtAttribute first = attributeOf("Z", "a");
    first.setFullName("z");
    DtOmtAttribute second = attributeOf("A", "b");
    second.setFullName("a");
    QVERIFY(first < second);
}

void TestOmtRecords::attributeIsFoundByName()
{
    DtOmtObject object = objectNamed("A");
    DtOmtAttribute attribute = attributeOf("A", "x");
    attribute.setRename("y");
    attribute.setNoGen(true);
    object.addAttribute(attribute);
    QCOMPARE(text(object.getAttributeFromName("x").rename()), QString("y"));
    QVERIFY(object.getAttributeFromName("x").noGen());
    attribute.setRename("z");
    object.addAttribute(attribute); // is there already
    QCOMPARE(text(object.getAttributeFromName("x").rename()), QString("y"));
}

void TestOmtRecords::unknownAttributeGivesTheKey()
{
    const DtOmtAttribute key = objectNamed("A").getAttributeFromName("x");
    QCOMPARE(text(key.name()), QString("x"));
    QCOMPARE(text(key.fullName()), QString("x"));
    QCOMPARE(text(key.owningObject()), QString("A"));
    QVERIFY(!key.noGen());
    QVERIFY(key.rename().isEmpty());
}

void TestOmtRecords::parameterIsFoundByName()
{
    DtOmtInteraction interaction;
    DtOmtParameter parameter;
    parameter.setName("p");
    parameter.setRename("q");
    interaction.addParameter(parameter);
    QCOMPARE(text(interaction.getParameterFromName("p").rename()), QString("q"));
}

void TestOmtRecords::unknownParameterGivesTheKey()
{
    DtOmtInteraction interaction;
    interaction.setFullName("I");
    const DtOmtParameter key = interaction.getParameterFromName("p");
    QCOMPARE(text(key.name()), QString("p"));
    QCOMPARE(text(key.owningInteraction()), QString("I"));
}

void TestOmtRecords::setMembersReplacesAll()
{
    DtOmtObject object;
    object.addAttribute(attributeOf("A", "x"));
    object.setAttributes({attributeOf("A", "y"), attributeOf("A", "z")});
    QCOMPARE(object.attributes().size(), std::size_t(2));
    DtOmtInteraction interaction;
    interaction.addParameter(DtOmtParameter());
    interaction.setParameters({});
    QVERIFY(interaction.parameters().empty());
}

void TestOmtRecords::uuidOfIndexTwoMakesThree()
{
    const DtOmtObject object;
    const DtString third = object.uuid(2);
    const DtString first = object.uuid(0);
    const DtString second = object.uuid(1);
    QVERIFY(first != second && second != third && first != third);
    QCOMPARE(text(object.uuid(2)), text(third));
    QCOMPARE(text(object.uuid(0)), text(first));
    QVERIFY(object.uuid(3) != third);
}

void TestOmtRecords::uuidHasTheTextForm()
{
    const QRegularExpression form("^[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}$");
    QVERIFY(form.match(text(DtOmtNode().uuid(0))).hasMatch());
}

void TestOmtRecords::copyCarriesUuidsAlong()
{
    const DtOmtObject object;
    const DtString first = object.uuid(0);
    const DtOmtObject copy = object;
    QCOMPARE(text(copy.uuid(0)), text(first));
    QVERIFY(copy.uuid(1) != object.uuid(1)); // made after the copy
}

void TestOmtRecords::recordInSetKeepsItsUuid()
{
    const std::set<DtOmtObject> objects = {objectNamed("A")};
    const DtString first = objects.begin()->uuid(0);
    QCOMPARE(text(objects.begin()->uuid(0)), text(first));
}

QX_REGISTER_TEST(TestOmtRecords)
#include "testOmtRecords.moc"
