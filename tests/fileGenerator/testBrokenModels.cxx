// Models that no standard allows, from their text to the generated files: nothing of what they hold ends a run.

#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/omtProject.h"
#include "omtReader/xml1516FileReader.h"
#include "omtReader/xmlDocument.h"
#include "omtReader/xmlEvolvedFileReader.h"

#include <QtTest/QtTest>

namespace
{
// An element with its values, which each form of the format writes in its own way, and the elements in it.
struct DtElement
{
    QByteArray name;
    QList<QPair<QByteArray, QByteArray>> values; // by name
    QList<DtElement> members;

    DtElement with(const QByteArray& value, const QByteArray& text) const
    {
        DtElement copy(*this);
        copy.values.push_back({value, text});
        return copy;
    }
};
using DtElements = QList<DtElement>;

// The form of 2010: values are child elements.
QByteArray evolvedText(const DtElement& element)
{
    QByteArray text = "<" + element.name + ">";
    for (const auto& [name, value] : element.values)
        text += "<" + name + ">" + value + "</" + name + ">";
    for (const DtElement& member : element.members)
        text += evolvedText(member);
    return text + "</" + element.name + ">";
}

// The form of 2000: values are attributes.
QByteArray text1516(const DtElement& element)
{
    QByteArray text = "<" + element.name;
    for (const auto& [name, value] : element.values)
        text += " " + name + "=\"" + value + "\"";
    text += ">";
    for (const DtElement& member : element.members)
        text += text1516(member);
    return text + "</" + element.name + ">";
}

template <typename Reader>
DtOMTTree* readModel(xmlNode* root)
{
    return Reader(nullptr).processObjectModel(root);
}

struct DtForm
{
    const char* name;
    const char* words; // in warnings
    DtHLAProtocolVersion version;
    bool needsRecordNames;
    QByteArray (*text)(const DtElement&);
    DtOMTTree* (*read)(xmlNode*);
};

const DtForm theForms[] = {
    {"2010", "1516 Evolved XML", DtHla1516e, true,  evolvedText, readModel<DtXMLEvolvedFileReader>},
    {"2000", "1516 XML",         DtHla1516,  false, text1516,    readModel<DtXML1516FileReader>   },
};

struct DtConstruct
{
    const char* table;
    const char* element;
    const char* part;        // element of the members; null when there are none
    const char* partWarning; // what the warning about a part without a name calls it; null when there is no warning
};

const DtConstruct theConstructs[] = {
    {"basicDataRepresentations", "basicData",         nullptr,       nullptr                },
    {"simpleDataTypes",          "simpleData",        nullptr,       nullptr                },
    {"enumeratedDataTypes",      "enumeratedData",    "enumerator",  "enumerator"           },
    {"arrayDataTypes",           "arrayData",         nullptr,       nullptr                },
    {"fixedRecordDataTypes",     "fixedRecordData",   "field",       "fixedRecordData field"},
    {"variantRecordDataTypes",   "variantRecordData", "alternative", nullptr                },
};

// A value of a construct or of its part, with its text in a datatype without fault.
struct DtValue
{
    const char* element;
    const char* name;
    const char* text;
};

const DtValue theValues[] = {
    {"basicData",         "name",           "%T"              },
    {"basicData",         "size",           "32"              },
    {"basicData",         "interpretation", "whole"           },
    {"basicData",         "endian",         "Big"             },
    {"basicData",         "encoding",       "octets"          },
    {"simpleData",        "name",           "%T"              },
    {"simpleData",        "representation", "HLAinteger32BE"  },
    {"enumeratedData",    "name",           "%T"              },
    {"enumeratedData",    "representation", "HLAinteger32BE"  },
    {"enumerator",        "name",           "One"             },
    {"enumerator",        "value",          "1"               },
    {"arrayData",         "name",           "%T"              },
    {"arrayData",         "dataType",       "HLAoctet"        },
    {"arrayData",         "cardinality",    "4"               },
    {"arrayData",         "encoding",       "HLAfixedArray"   },
    {"fixedRecordData",   "name",           "%T"              },
    {"fixedRecordData",   "encoding",       "HLAfixedRecord"  },
    {"field",             "name",           "first"           },
    {"field",             "dataType",       "HLAoctet"        },
    {"variantRecordData", "name",           "%T"              },
    {"variantRecordData", "discriminant",   "kind"            },
    {"variantRecordData", "dataType",       "Kind"            },
    {"variantRecordData", "encoding",       "HLAvariantRecord"},
    {"alternative",       "enumerator",     "One"             },
    {"alternative",       "name",           "one"             },
    {"alternative",       "dataType",       "HLAoctet"        },
};

// "-" leaves the value out; "%T" is the name of the datatype.
const char* const theFaults[] = {
    "-", "", "-1", "0", "99999999999999999999", "Missing", "%T", "[1 .. ", "[5..1]", "/..&lt;# ()", "1e9", "%s%n"};

bool isNone(const char* fault)
{
    return qstrcmp(fault, "-") == 0 || *fault == '\0';
}

DtElement element(const QByteArray& kind, const DtElements& members = DtElements())
{
    return DtElement{kind, {}, members};
}

DtElement named(const QByteArray& kind, const QByteArray& name, const DtElements& members = DtElements())
{
    return element(kind, members).with("name", name);
}

// The element with its values, of which the faulty one, if it is among them, has another text.
DtElement filledElement(const char* kind, const QByteArray& typeName, const DtValue* faulty, const char* fault)
{
    DtElement filled = element(kind);
    for (const DtValue& value : theValues)
    {
        const char* text = &value == faulty ? fault : value.text;
        if (qstrcmp(value.element, kind) == 0 && qstrcmp(text, "-") != 0)
            filled = filled.with(value.name, QByteArray(text).replace("%T", typeName));
    }
    return filled;
}

// One datatype of that name with a faulty value, without fault by default. Behind the part comes a second one without
// any value.
DtElement datatype(const DtConstruct& construct, const QByteArray& name, const DtValue* faulty = nullptr,
                   const char* fault = nullptr)
{
    DtElement type = filledElement(construct.element, name, faulty, fault);
    if (construct.part != nullptr)
        type.members = {filledElement(construct.part, name, faulty, fault), element(construct.part)};
    return type;
}

QString missing(const char* what)
{
    return QString("Warning: %1 definition was missing a name\n").arg(what);
}

// What the reader says about a datatype with that fault.
QString warningsOf(const DtForm& form, const DtConstruct& construct, const DtValue& faulty, const char* fault)
{
    const bool isNameless = qstrcmp(faulty.name, "name") == 0 && isNone(fault);
    const bool isOwn = qstrcmp(faulty.element, construct.element) == 0;
    const bool isRecord = qstrcmp(construct.element, "fixedRecordData") == 0;
    if (isNameless && isOwn && (form.needsRecordNames || !isRecord))
        return missing(construct.element); // and nothing of its parts
    if (construct.partWarning == nullptr)
        return QString();
    return missing(construct.partWarning).repeated(isNameless && !isOwn ? 2 : 1);
}

// And what it says about an enumerator with that value.
QString warningOfValue(int index, const char* fault)
{
    if (isNone(fault) || qstrcmp(fault, "-1") == 0 || qstrcmp(fault, "0") == 0)
        return QString();
    return QString("Warning: Enumeration T%1x has values that are no numbers from -2147483648 to 2147483647: One\n")
        .arg(index);
}

DtElement member(const QByteArray& kind, const QByteArray& name, const QByteArray& type)
{
    return named(kind, name).with("dataType", type);
}

// The class below the root of its hierarchy.
DtElement classes(const QByteArray& section, const QByteArray& kind, const QByteArray& root, const QByteArray& name,
                  const DtElements& members)
{
    return element(section, {named(kind, root, {named(kind, name, members)})});
}

DtElement objects(const DtElements& members)
{
    return classes("objects", "objectClass", "HLAobjectRoot", "Tank", members);
}

DtElement interactions(const DtElements& members)
{
    return classes("interactions", "interactionClass", "HLAinteractionRoot", "Fire", members);
}

DtElement basicData(const QByteArray& name, const QByteArray& size)
{
    return named("basicData", name).with("size", size).with("endian", "Big");
}

DtElement enumeration(const QByteArray& name, const QByteArray& representation, const QList<QByteArray>& values)
{
    DtElement type = named("enumeratedData", name).with("representation", representation);
    for (const QByteArray& value : values)
        type.members += named("enumerator", value).with("value", "1");
    return element("enumeratedDataTypes", {type});
}

DtElements soundTypes()
{
    return {element("basicDataRepresentations", {basicData("HLAoctet", "8"), basicData("HLAinteger32BE", "32")}),
            enumeration("Kind", "HLAoctet", {"One"})};
}

// A model whose two classes have a member of each of the types.
DtElements model(const DtElements& tables, const QList<QByteArray>& names)
{
    DtElements attributes;
    DtElements parameters;
    for (int i = 0; i < names.size(); ++i)
    {
        attributes += member("attribute", "a" + QByteArray::number(i), names[i]);
        parameters += member("parameter", "p" + QByteArray::number(i), names[i]);
    }
    return {objects(attributes), interactions(parameters), element("dataTypes", soundTypes() + tables)};
}

// All faults of one value, each in a datatype of its own.
DtElements modelOfFaults(const DtConstruct& construct, const DtValue& value)
{
    DtElements types;
    QList<QByteArray> names;
    for (const char* fault : theFaults)
    {
        const QByteArray name = "T" + QByteArray::number(types.size()) + "x";
        types += datatype(construct, name, &value, fault);
        names += name;
        names += QByteArray(fault).replace("%T", name);
    }
    return model({element(construct.table, types)}, names);
}

DtElement simple(const QByteArray& name, const QByteArray& representation)
{
    return element("simpleDataTypes", {named("simpleData", name).with("representation", representation)});
}

DtElement array(const QByteArray& name, const QByteArray& type, const QByteArray& cardinality = "Dynamic",
                const QByteArray& encoding = "HLAvariableArray")
{
    const DtElement array = member("arrayData", name, type).with("cardinality", cardinality).with("encoding", encoding);
    return element("arrayDataTypes", {array});
}

DtElement record(const QByteArray& name, const QList<QByteArray>& types)
{
    DtElement record = named("fixedRecordData", name);
    for (const QByteArray& type : types)
        record.members += member("field", "same", type);
    return element("fixedRecordDataTypes", {record});
}

DtElement variant(const QByteArray& name, const QByteArray& type, const QList<QByteArray>& types)
{
    DtElement variant = member("variantRecordData", name, type).with("discriminant", "kind");
    for (const QByteArray& each : types)
        variant.members += member("alternative", "same", each).with("enumerator", "[One .. ], ,HLAother");
    return element("variantRecordDataTypes", {variant});
}

// Every construct under that name.
DtElements everyConstruct(const QByteArray& name)
{
    DtElements types;
    for (const DtConstruct& construct : theConstructs)
        types += element(construct.table, {datatype(construct, name)});
    return types;
}

// A chain of types, each over the next, that ends nowhere.
DtElements chain(const std::function<DtElement(const QByteArray&, const QByteArray&)>& link)
{
    DtElements types;
    for (int i = 0; i < 60; ++i)
        types += link("C" + QByteArray::number(i), "C" + QByteArray::number(i + 1));
    return types;
}

void addRow(const QByteArray& name, const DtForm& form, const DtElements& sections, const QString& warnings)
{
    QTest::addRow("%s %s", form.name, name.constData())
        << static_cast<int>(&form - theForms) << form.text(element("objectModel", sections)) << warnings;
}

void addFaults(const DtForm& form, const DtConstruct& construct, const DtValue& value)
{
    QString warnings;
    int index = 0; // of the datatype that has the fault
    for (const char* fault : theFaults)
    {
        warnings += warningsOf(form, construct, value, fault);
        if (qstrcmp(value.element, "enumerator") == 0 && qstrcmp(value.name, "value") == 0)
            warnings += warningOfValue(index, fault);
        ++index;
    }
    addRow(QByteArray(value.element) + " " + value.name, form, modelOfFaults(construct, value), warnings);
}

void addSingleModels(const DtForm& form)
{
    const QByteArray longName(140, 'L');
    const QByteArray signs = "&lt;/#-&gt;&amp;";
    const QString emptyParts = missing("enumerator") + missing("fixedRecordData field"); // of everyConstruct
    const QString noRoots = QString("Warning: HLAobjectRoot is missing from %1 file\n"
                                    "Warning: HLAinteractionRoot is missing from %1 file\n")
                                .arg(form.words);
    const auto row = [&form](const char* name, const DtElements& sections, const QString& warnings = QString())
    { addRow(name, form, sections, warnings); };
    row("empty model", {});
    row("empty sections", {element("objects"), element("interactions"), element("dataTypes")}, noRoots);
    row("no classes", {element("dataTypes", everyConstruct("E"))}, emptyParts);
    row("classes without datatypes",
        {objects({member("attribute", "a", "E")}), interactions({member("parameter", "p", "E")})});
    row("members without a name or a type",
        {objects({element("attribute"), named("attribute", "")}),
         interactions({element("parameter"), element("parameter").with("dataType", "")})},
        missing("attribute"));
    row("members named as a type", model(everyConstruct("a0"), {"a0"}), emptyParts);
    row("one name for all constructs", model(everyConstruct("E"), {"E"}), emptyParts);
    row("all constructs twice", model(everyConstruct("E") + everyConstruct("E"), {"E"}), emptyParts.repeated(2));
    row("long names", model(everyConstruct(longName) + everyConstruct(longName + "2"), {longName, longName + "2"}),
        emptyParts.repeated(2));
    row("names of signs", model(everyConstruct(signs), {signs}), emptyParts);
    row("keywords", model(everyConstruct("class") + everyConstruct("int"), {"class", "int"}), emptyParts.repeated(2));
    row("names that differ in case", model(everyConstruct("Ab") + everyConstruct("aB"), {"Ab", "aB"}),
        emptyParts.repeated(2));
    row("simple types in a ring", model({simple("A", "B"), simple("B", "A")}, {"A", "B"}));
    row("record over a ring of simple types",
        model({record("R", {"A", "B"}), simple("A", "B"), simple("B", "A"), variant("V", "A", {"B"})}, {"R", "V"}));
    row("array of a simple type over it", model({array("A", "B"), simple("B", "A")}, {"A", "B"}));
    row("arrays in a ring", model({array("A", "B"), array("B", "A", "3", "HLAfixedArray")}, {"A", "B"}));
    row("record in its array", model({record("R", {"A"}), array("A", "R")}, {"R", "A"}));
    row("records in a ring", model({record("R", {"S", "S"}), record("S", {"R"})}, {"R", "S"}));
    row("variant over itself", model({variant("V", "V", {"V"})}, {"V"}));
    row("variant over a record over it", model({variant("V", "R", {"R", "NA"}), record("R", {"V"})}, {"V", "R"}));
    row("enumeration over itself", model({enumeration("N", "N", {"One"})}, {"N"}));
    row("variant over a simple type", model({variant("V", "A", {"HLAoctet"}), simple("A", "V")}, {"V"}));
    row("variant without a value", model({variant("V", "Kind", {"NA", "N/A", ""})}, {"V"}));
    row("variant without alternatives", model({variant("V", "Kind", {})}, {"V"}));
    row("record without fields", model({record("R", {})}, {"R"}));
    row("record of open arrays", model({record("R", {"A", "A"}), array("A", "HLAoctet"), array("B", "R")}, {"B"}));
    row("enumeration without values", model({enumeration("N", "HLAoctet", {})}, {"N"}));
    row("enumerators of one name", model({enumeration("N", "HLAoctet", {"One", "One", "-", "1", "class"})}, {"N"}),
        "Duplicated enum name One" + QString("uplicated enum number ").repeated(3));
    row("array of an enumeration", model({array("A", "Kind", "[1..]", "Custom")}, {"A"}));
    row("array of many dimensions", model({array("A", "HLAoctet", "1,,2,x,-3", "HLAfixedArray")}, {"A"}));
    row("padding of no octets", model({array("A", "HLAoctet", "", "paddingTo0")}, {"A"}));
    row("padding too wide", model({array("A", "HLAoctet", "", "paddingTo99999999999999")}, {"A"}));
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
    QTest::addColumn<int>("form");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("warnings");
    for (const DtForm& form : theForms)
    {
        for (const DtConstruct& construct : theConstructs)
            for (const DtValue& value : theValues)
                if (qstrcmp(value.element, construct.element) == 0 || qstrcmp(value.element, construct.part) == 0)
                    addFaults(form, construct, value);
        addSingleModels(form);
    }
}

void TestBrokenModels::modelIsReadAndGenerated()
{
    QFETCH(int, form);
    QFETCH(QByteArray, text);
    const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
    QVERIFY(document != nullptr);
    std::unique_ptr<DtOMTTree> tree;
    {
        DtCapture capture(DtWarn);
        tree.reset(theForms[form].read(xmlDocGetRootElement(document.get())));
        QTEST(capture.text(), "warnings");
    }
    QVERIFY(tree != nullptr);
    QCOMPARE(tree->hlaVersion(), theForms[form].version);

    DtOmtProject project;
    project.initializePredefinedTypes();
    project.addObject("HLAobjectRoot.Tank", false, "");
    project.addInteraction("HLAinteractionRoot.Fire", false, "");
    DtDataTypeMapper::instance()->setPredefinedTypes(project.predefinedTypes());
    DtDataTypeMapper::instance()->populateFromOmtTree(tree.get());
    for (const DtHLAProtocolVersion version :
         {theForms[form].version, DtHla13}) // the older one makes arrays of the members too
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
