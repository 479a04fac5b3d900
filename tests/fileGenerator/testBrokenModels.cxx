// Models that no standard allows, from their text to the generated files: nothing of what they hold ends a run.

#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/omtProject.h"
#include "omtReader/xmlDocument.h"
#include "omtReader/xmlEvolvedFileReader.h"

#include <QtTest/QtTest>

namespace
{
// A value of a datatype and the element that holds it: the datatype's own or, if a part is named, one of its part.
struct DtValue
{
    const char* element;
    const char* text; // of a datatype without fault
    bool isInPart = false;
};

struct DtConstruct
{
    const char* table;
    const char* element;
    const char* part; // element of the members; null when there are none
    std::vector<DtValue> values;
};

const DtConstruct theConstructs[] = {
    {"basicDataRepresentations",
     "basicData",                              nullptr,
     {{"name", "%T"}, {"size", "32"}, {"interpretation", "whole"}, {"endian", "Big"}, {"encoding", "octets"}}       },
    {"simpleDataTypes",          "simpleData", nullptr,       {{"name", "%T"}, {"representation", "HLAinteger32BE"}}},
    {"enumeratedDataTypes",
     "enumeratedData",                         "enumerator",
     {{"name", "%T"}, {"representation", "HLAinteger32BE"}, {"name", "One", true}, {"value", "1", true}}            },
    {"arrayDataTypes",
     "arrayData",                              nullptr,
     {{"name", "%T"}, {"dataType", "HLAoctet"}, {"cardinality", "4"}, {"encoding", "HLAfixedArray"}}                },
    {"fixedRecordDataTypes",
     "fixedRecordData",                        "field",
     {{"name", "%T"}, {"encoding", "HLAfixedRecord"}, {"name", "first", true}, {"dataType", "HLAoctet", true}}      },
    {"variantRecordDataTypes",
     "variantRecordData",                      "alternative",
     {{"name", "%T"},
      {"discriminant", "kind"},
      {"dataType", "Kind"},
      {"encoding", "HLAvariantRecord"},
      {"enumerator", "One", true},
      {"name", "one", true},
      {"dataType", "HLAoctet", true}}                                                                               },
};

// "-" leaves the element out.
const char* const theFaults[] = {
    "-", "", "-1", "0", "99999999999999999999", "Missing", "%T", "[1 .. ", "[5..1]", "/..&lt;# ()", "1e9", "%s%n"};

QByteArray element(const QByteArray& name, const QByteArray& text)
{
    return "<" + name + ">" + text + "</" + name + ">";
}

// One datatype whose value of that index is replaced; none when the index is negative.
QByteArray datatype(const DtConstruct& construct, int index, const char* fault)
{
    QByteArray own;
    QByteArray part;
    for (int i = 0; i < static_cast<int>(construct.values.size()); ++i)
    {
        const DtValue& value = construct.values[i];
        const char* text = i == index ? fault : value.text;
        if (qstrcmp(text, "-") != 0)
            (value.isInPart ? part : own) += element(value.element, text);
    }
    if (construct.part != nullptr)
        own += element(construct.part, part) + element(construct.part, "");
    return element(construct.element, own);
}

QByteArray attribute(const QByteArray& name, const QByteArray& type)
{
    return element("attribute", element("name", name) + element("dataType", type));
}

QByteArray parameter(const QByteArray& name, const QByteArray& type)
{
    return element("parameter", element("name", name) + element("dataType", type));
}

QByteArray objects(const QByteArray& members)
{
    return element("objects", element("objectClass", "<name>HLAobjectRoot</name>" +
                                                         element("objectClass", "<name>Tank</name>" + members)));
}

QByteArray interactions(const QByteArray& members)
{
    return element("interactions",
                   element("interactionClass", "<name>HLAinteractionRoot</name>" +
                                                   element("interactionClass", "<name>Fire</name>" + members)));
}

const char theSoundTypes[] =
    "<basicDataRepresentations><basicData><name>HLAoctet</name><size>8</size><endian>Big</endian></basicData>"
    "<basicData><name>HLAinteger32BE</name><size>32</size><endian>Big</endian></basicData></basicDataRepresentations>"
    "<enumeratedDataTypes><enumeratedData><name>Kind</name><representation>HLAoctet</representation>"
    "<enumerator><name>One</name><value>1</value></enumerator></enumeratedData></enumeratedDataTypes>";

// A model whose two classes have a member of each of the types.
QByteArray model(const QByteArray& types, const QList<QByteArray>& names)
{
    QByteArray attributes;
    QByteArray parameters;
    for (int i = 0; i < names.size(); ++i)
    {
        attributes += attribute("a" + QByteArray::number(i), names[i]);
        parameters += parameter("p" + QByteArray::number(i), names[i]);
    }
    return objects(attributes) + interactions(parameters) + element("dataTypes", theSoundTypes + types);
}

// All faults of one value, each in a datatype of its own.
QByteArray modelOfFaults(const DtConstruct& construct, int index)
{
    QByteArray types;
    QList<QByteArray> names;
    int count = 0;
    for (const char* fault : theFaults)
    {
        const QByteArray name = "T" + QByteArray::number(count++) + "x";
        types += datatype(construct, index, fault).replace("%T", name);
        names += name;
        names += QByteArray(fault).replace("%T", name);
    }
    return model(element(construct.table, types), names);
}

QByteArray simple(const QByteArray& name, const QByteArray& representation)
{
    return element("simpleDataTypes",
                   element("simpleData", element("name", name) + element("representation", representation)));
}

QByteArray array(const QByteArray& name, const QByteArray& type, const QByteArray& cardinality = "Dynamic",
                 const QByteArray& encoding = "HLAvariableArray")
{
    return element("arrayDataTypes",
                   element("arrayData", element("name", name) + element("dataType", type) +
                                            element("cardinality", cardinality) + element("encoding", encoding)));
}

QByteArray record(const QByteArray& name, const QList<QByteArray>& types)
{
    QByteArray fields;
    for (const QByteArray& type : types)
        fields += element("field", element("name", "same") + element("dataType", type));
    return element("fixedRecordDataTypes", element("fixedRecordData", element("name", name) + fields));
}

QByteArray variant(const QByteArray& name, const QByteArray& type, const QList<QByteArray>& types)
{
    QByteArray alternatives;
    for (const QByteArray& each : types)
        alternatives += element("alternative", element("enumerator", "[One .. ], ,HLAother") + element("name", "same") +
                                                   element("dataType", each));
    return element("variantRecordDataTypes",
                   element("variantRecordData", element("name", name) + element("discriminant", "kind") +
                                                    element("dataType", type) + alternatives));
}

QByteArray enumeration(const QByteArray& name, const QByteArray& representation, const QList<QByteArray>& values)
{
    QByteArray enumerators;
    for (const QByteArray& value : values)
        enumerators += element("enumerator", element("name", value) + element("value", "1"));
    return element(
        "enumeratedDataTypes",
        element("enumeratedData", element("name", name) + element("representation", representation) + enumerators));
}

// Every construct under that name.
QByteArray everyConstruct(const QByteArray& name)
{
    QByteArray types;
    for (const DtConstruct& construct : theConstructs)
        types += element(construct.table, datatype(construct, -1, nullptr).replace("%T", name));
    return types;
}

// A chain of types, each over the next, that ends nowhere.
QByteArray chain(const std::function<QByteArray(const QByteArray&, const QByteArray&)>& link)
{
    QByteArray types;
    for (int i = 0; i < 60; ++i)
        types += link("C" + QByteArray::number(i), "C" + QByteArray::number(i + 1));
    return types;
}

void addSingleModels()
{
    const QByteArray longName(140, 'L');
    const QByteArray signs = "&lt;/#-&gt;&amp;";
    const auto row = [](const char* name, const QByteArray& sections) { QTest::newRow(name) << sections; };
    row("empty model", "");
    row("empty sections", "<objects/><interactions/><dataTypes/>");
    row("no classes", element("dataTypes", everyConstruct("E")));
    row("classes without datatypes", objects(attribute("a", "E")) + interactions(parameter("p", "E")));
    row("members without a name or a type", objects("<attribute/><attribute><name/></attribute>") +
                                                interactions("<parameter/><parameter><dataType/></parameter>"));
    row("members named as a type", model(everyConstruct("a0"), {"a0"}));
    row("one name for all constructs", model(everyConstruct("E"), {"E"}));
    row("all constructs twice", model(everyConstruct("E") + everyConstruct("E"), {"E"}));
    row("long names", model(everyConstruct(longName) + everyConstruct(longName + "2"), {longName, longName + "2"}));
    row("names of signs", model(everyConstruct(signs), {signs}));
    row("keywords", model(everyConstruct("class") + everyConstruct("int"), {"class", "int"}));
    row("names that differ in case", model(everyConstruct("Ab") + everyConstruct("aB"), {"Ab", "aB"}));
    row("simple types in a ring", model(simple("A", "B") + simple("B", "A"), {"A", "B"}));
    row("record over a ring of simple types",
        model(record("R", {"A", "B"}) + simple("A", "B") + simple("B", "A") + variant("V", "A", {"B"}), {"R", "V"}));
    row("array of a simple type over it", model(array("A", "B") + simple("B", "A"), {"A", "B"}));
    row("arrays in a ring", model(array("A", "B") + array("B", "A", "3", "HLAfixedArray"), {"A", "B"}));
    row("record in its array", model(record("R", {"A"}) + array("A", "R"), {"R", "A"}));
    row("records in a ring", model(record("R", {"S", "S"}) + record("S", {"R"}), {"R", "S"}));
    row("variant over itself", model(variant("V", "V", {"V"}), {"V"}));
    row("variant over a record over it", model(variant("V", "R", {"R", "NA"}) + record("R", {"V"}), {"V", "R"}));
    row("enumeration over itself", model(enumeration("N", "N", {"One"}), {"N"}));
    row("variant over a simple type", model(variant("V", "A", {"HLAoctet"}) + simple("A", "V"), {"V"}));
    row("variant without a value", model(variant("V", "Kind", {"NA", "N/A", ""}), {"V"}));
    row("variant without alternatives", model(variant("V", "Kind", {}), {"V"}));
    row("record without fields", model(record("R", {}), {"R"}));
    row("record of open arrays", model(record("R", {"A", "A"}) + array("A", "HLAoctet") + array("B", "R"), {"B"}));
    row("enumeration without values", model(enumeration("N", "HLAoctet", {}), {"N"}));
    row("enumerators of one name", model(enumeration("N", "HLAoctet", {"One", "One", "-", "1", "class"}), {"N"}));
    row("array of an enumeration", model(array("A", "Kind", "[1..]", "Custom"), {"A"}));
    row("array of many dimensions", model(array("A", "HLAoctet", "1,,2,x,-3", "HLAfixedArray"), {"A"}));
    row("padding of no octets", model(array("A", "HLAoctet", "", "paddingTo0"), {"A"}));
    row("padding too wide", model(array("A", "HLAoctet", "", "paddingTo99999999999999"), {"A"}));
    row("chain of simple types", model(chain(simple), {"C0"}));
    row("chain of arrays", model(chain([](const QByteArray& n, const QByteArray& t) { return array(n, t); }), {"C0"}));
    row("chain of records", model(chain(
                                      [](const QByteArray& n, const QByteArray& t) {
                                          return record(n, {t, t});
                                      }),
                                  {"C0"}));
}
} // namespace

class TestBrokenModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void modelIsReadAndGenerated_data();
    void modelIsReadAndGenerated();

private:
    std::unique_ptr<DtGeneratorFixture> myFixture;
    std::unique_ptr<DtInDirectory> myInData; // beside which the shipped templates lie
};

void TestBrokenModels::init()
{
    myFixture = std::make_unique<DtGeneratorFixture>();
    myInData = std::make_unique<DtInDirectory>(QX_SOURCE_DIR "/data");
}

void TestBrokenModels::cleanup()
{
    myInData.reset();
    myFixture.reset();
}

void TestBrokenModels::modelIsReadAndGenerated_data()
{
    QTest::addColumn<QByteArray>("sections");
    for (const DtConstruct& construct : theConstructs)
    {
        for (int i = 0; i < static_cast<int>(construct.values.size()); ++i)
            QTest::addRow("%s %s%s", construct.element, construct.values[i].isInPart ? construct.part : "",
                          construct.values[i].element)
                << modelOfFaults(construct, i);
    }
    addSingleModels();
}

void TestBrokenModels::modelIsReadAndGenerated()
{
    QFETCH(QByteArray, sections);
    const QByteArray text = "<objectModel>" + sections + "</objectModel>";
    const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
    QVERIFY(document != nullptr);
    xmlNode* root = xmlDocGetRootElement(document.get());
    const std::unique_ptr<DtOMTTree> tree(DtXMLEvolvedFileReader(nullptr).processObjectModel(root));
    QVERIFY(tree != nullptr);

    DtOmtProject project;
    project.initializePredefinedTypes();
    project.addObject("HLAobjectRoot.Tank", false, "");
    project.addInteraction("HLAinteractionRoot.Fire", false, "");
    DtDataTypeMapper::instance()->setPredefinedTypes(project.predefinedTypes());
    DtDataTypeMapper::instance()->populateFromOmtTree(tree.get());
    for (const DtHLAProtocolVersion version : {DtHla1516e, DtHla13}) // the older one makes arrays of the members too
    {
        DtDataTypeMapper::instance()->setPredefinedTypes(project.predefinedTypes());
        DtOMTEnvWriter writer;
        writer.setOmtTree(tree.get());
        writer.setHlaVersion(version);
        writer.setOmtProject(&project);
        writer.setObjectsToGenerate(project.getObjects());
        writer.setInteractionsToGenerate(project.getInteractions());
        QCOMPARE(writer.writeFile("model.xml"), 1);
        for (const DtString& name : writer.fileList())
            QVERIFY2(myFixture->hasOutput(name.c_str()), name.c_str());
        QVERIFY(myFixture->hasOutput("modelVC14_64.sln"));
    }
    QCOMPARE(QDir(myFixture->scratch(".")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({"bin", "data", "out"}));
}

QX_REGISTER_TEST(TestBrokenModels)
#include "testBrokenModels.moc"
