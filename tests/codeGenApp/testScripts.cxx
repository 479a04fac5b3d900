// The shipped scripts that write for other programs, genPython.txt and genJson.txt, and the page that tells how to
// write a script.

#include "registerTest.h"

#include "fileGenerator/omtProject.h"
#include "fileGenerator/omtWriter.h"
#include "scriptRun.h"
#include "smallModels.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <functional>
#include <map>
#include <set>

namespace
{
const QString theModels = QStringLiteral(QX_SHARED_DIR "/models/");
const QStringList theScripts = {"genJson.txt", "genPython.txt"};

struct DtModelRow
{
    const char* name;
    QStringList files;
    int objects; // classes, those of the standard management model included
    int interactions;
};

const std::vector<DtModelRow>& modelRows()
{
    static const std::vector<DtModelRow> theRows = {
        {"sample",           {QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml")}, 10, 91 },
        {"large model",      largeModel(),                                               23, 88 },
        {"large 1516 model", {theModels + "1516-2000/RPR_FOM_v2.0_1516-2000.xml"},       66, 153},
        {"text model",       {theModels + "omt13/RPR_v2.0_excerpt.omt"},                 12, 9  },
        {"2025 model",
         {theModels + "1516-2025/RestaurantFOMmodule-2025.xml",
          theModels + "1516-2025/RestaurantExtensionFOMmodule-2025.xml"},
         44,                                                                                 110},
    };
    return theRows;
}

// What both scripts write about models. The scratch program around it is gone when this is made.
class DtProducts
{
public:
    explicit DtProducts(const std::function<std::vector<DtString>(const DtScratchProgram&)>& models)
    {
        DtScratchProgram program;
        switchOnScripts(program, theScripts);
        runBatch(program, models(program));
        files = filesBelow(program.path("out"));
        json = readTextFile(program.path("out/model.json"));
        codec = readTextFile(program.path("out/model_codec.py"));
        writeTextFile(path() + "/model.json", json);
        writeTextFile(path() + "/model_codec.py", codec);
    }
    DtProducts(const char* name, const QByteArray& text)
        : DtProducts([&](const DtScratchProgram& program) { return std::vector<DtString>{program.model(name, text)}; })
    {
    }
    explicit DtProducts(const QStringList& models)
        : DtProducts([&](const DtScratchProgram& program) { return copiedModels(program, models); })
    {
    }

    QString path() const { return myDirectory.path(); }
    QJsonObject root() const { return QJsonDocument::fromJson(json).object(); }
    QJsonArray list(const char* name) const { return root()[name].toArray(); }
    // The entry of a list with that text under a key.
    QJsonObject entry(const char* listName, const QString& name, const char* key = "name") const
    {
        for (const QJsonValue& each : list(listName))
            if (each.toObject()[key].toString() == name)
                return each.toObject();
        return {};
    }
    DtPythonRun python(const QStringList& arguments) const { return runPython(path(), arguments); }
    DtPythonRun codecRun(const QStringList& arguments) const
    {
        return python(QStringList{"model_codec.py"} + arguments);
    }
    // What an expression over the module `m` prints.
    QString evaluated(const char* expression) const
    {
        return python({"-c", "import model_codec as m\nprint(" + QString::fromUtf8(expression) + ")"}).output.trimmed();
    }

    QStringList files;
    QByteArray json;
    QByteArray codec;

private:
    QTemporaryDir myDirectory;
};

const DtProducts& sample()
{
    static const DtProducts theProducts(modelRows().front().files);
    return theProducts;
}

// The first thing that is wrong with the products of a model.
QString faultOf(const DtProducts& products)
{
    if (products.files != QStringList({"model.json", "model_codec.py"}))
        return "files: " + products.files.join(' ');
    for (const QByteArray& product : {products.json, products.codec})
        if (product.contains("<!"))
            return "a token is left: " + QString::fromUtf8(product.mid(product.indexOf("<!"), 100));
    QJsonParseError error;
    QJsonDocument::fromJson(products.json, &error);
    return error.error == QJsonParseError::NoError ? QString() : error.errorString();
}

QString faultInPython(const DtProducts& products)
{
    for (const QStringList& arguments : {
             QStringList{"-m",     "json.tool",      "model.json",     "tidy.json"},
             QStringList{"-m",     "py_compile",     "model_codec.py"},
             QStringList{"-W", "error", "model_codec.py",    "--self-test"           }
    })
    {
        const DtPythonRun run = products.python(arguments);
        if (!run.isGood())
            return arguments.join(' ') + ": " + run.output.left(2000);
        if (arguments.last() == "--self-test")
            qInfo("%s", qPrintable(run.output.trimmed()));
    }
    return QString();
}

QByteArray enumerator(const QByteArray& name, const QByteArray& value)
{
    return element("enumerator", element("name", name) + element("value", value));
}

QByteArray field(const QByteArray& name, const QByteArray& type)
{
    return element("field", element("name", name) + element("dataType", type));
}

QByteArray record(const QByteArray& name, const QByteArray& fields)
{
    return element("fixedRecordData", element("name", name) + fields);
}

QByteArray arrayText(const QByteArray& name, const QByteArray& type, const QByteArray& cardinality,
                     const QByteArray& encoding)
{
    return element("arrayData", element("name", name) + element("dataType", type) +
                                    element("cardinality", cardinality) + element("encoding", encoding));
}

QByteArray alternative(const QByteArray& selector, const QByteArray& name, const QByteArray& type)
{
    return element("alternative", element("enumerator", selector) + element("name", name) + element("dataType", type));
}

QByteArray withDatatypes(const QByteArray& module, const QByteArray& datatypes)
{
    return QByteArray(module).replace("</objectModel>", element("dataTypes", datatypes) + "</objectModel>");
}

// Texts that would end a string, a comment or a line of a product which takes them as they are, or begin a token.
const char theHostileText[] = "\"\"\" \\\" ''' <!BaseName!> <#Objects> <?exists x> \\u0041 \\x41 %s {0} # //\n\t\r<";

QByteArray hostileModel()
{
    const QByteArray text =
        QByteArray(theHostileText).replace("<", "&lt;").replace("\n", "&#10;").replace("\r", "&#13;");
    QByteArray enumerators;
    int number = 0;
    for (const char* name :
         {"name", "value", "mro", "_x_", "__init__", "a-b", "a b", "7", "None", "real", "A, B", "\""})
        enumerators += enumerator(name, QByteArray::number(++number));
    QByteArray fields;
    for (const char* name : {"class", "class_", "__eq__", "a b", "a-b", "1", "\"\\", "&lt;!x!&gt;"})
        fields += field(name, "HLAoctet");
    return withDatatypes(
        moduleText(objectText("lambda", element("semantics", text) + attributeText("None", "a b") +
                                            attributeText("q\"\\", "mro") + attributeText("tree", "Tree") +
                                            attributeText("any", "yield") + attributeText("lost", "Nowhere") +
                                            attributeText("none", "") + attributeText("ring", "Ring") +
                                            attributeText("many", "Mega") + attributeText("idle", "Idle") +
                                            attributeText("self", "Itself"))),
        element("simpleDataTypes",
                element("simpleData", element("name", "Ring") + element("representation", "Ring2")) +
                    element("simpleData", element("name", "Ring2") + element("representation", "Ring"))) +
            element("enumeratedDataTypes",
                    element("enumeratedData", element("name", "mro") + element("representation", "HLAoctet") +
                                                  element("semantics", text) + enumerators)) +
            element("arrayDataTypes", arrayText("Trees", "Tree", "Dynamic", "HLAvariableArray") +
                                          arrayText("Mega", "HLAoctet", "99999999,99999999", "HLAfixedArray") +
                                          arrayText("Idle", "Empty", "Dynamic", "HLAvariableArray")) +
            element("fixedRecordDataTypes", record("a b", fields) + record("a-b", QByteArray()) +
                                                record("Empty", QByteArray()) +
                                                record("Tree", field("leaf", "HLAoctet") + field("branches", "Trees")) +
                                                record("Itself", field("again", "Itself"))) +
            element("variantRecordDataTypes",
                    element("variantRecordData", element("name", "yield") + element("discriminant", "d") +
                                                     element("dataType", "mro") +
                                                     element("encoding", "HLAvariantRecord") +
                                                     alternative("A, B", "discriminant", "HLAoctet") +
                                                     alternative("[a b .. None], 200", "def", "Tree") +
                                                     alternative("[20 .. 25]", "number", "HLAfloat64LE") +
                                                     alternative("nonsense", "never", "HLAoctet"))));
}

const char theOldModel[] =
    "(DIF HLA-OMT v1.3 (TYPE Single))\n(ObjectModel (Name \"Old\")\n"
    "  (EnumeratedDataType (Name \"Hue16\") (Enumeration (Enumerator \"Red\") (Representation 1)))\n"
    "  (ComplexDataType (Name \"Point\")\n"
    "    (ComplexComponent (FieldName \"Hue\") (DataType \"Hue16\") (Cardinality \"1\"))\n"
    "    (ComplexComponent (FieldName \"Size\") (DataType \"unsigned long\") (Cardinality \"2\"))\n"
    "    (ComplexComponent (FieldName \"Text\") (DataType \"octet\") (Cardinality \"0+\"))\n"
    "    (ComplexComponent (FieldName \"Dots\") (DataType \"short\") (Cardinality \"0-1 (Hue = Red)\")))\n"
    "  (Class (ID 1) (Name \"Barge\") (PSCapabilities PS)\n"
    "    (Attribute (Name \"Place\") (DataType \"Point\") (Cardinality \"1\"))\n"
    "    (Attribute (Name \"Track\") (DataType \"Point\") (Cardinality \"1+\"))))\n";

// A format later than that of the sample has a kind of datatypes more.
const char theLaterModel[] = "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2025\">"
                             "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>Buoy</name>"
                             "<attribute><name>Owner</name><dataType>OwnerReference</dataType></attribute>"
                             "</objectClass></objectClass></objects><dataTypes><referenceDataTypes><referenceDataType>"
                             "<name>OwnerReference</name><representation>HLAunicodeString</representation>"
                             "</referenceDataType></referenceDataTypes></dataTypes></objectModel>\n";

QString page()
{
    return QString::fromUtf8(readTextFile(QStringLiteral(QX_SOURCE_DIR "/docs/second-road.md")));
}

// The files that the page shows, or shows parts of, by name.
std::multimap<QString, QString> examples()
{
    static const QRegularExpression theExample("<!-- example (\\S+) -->\n```\n(.*?)```\n",
                                               QRegularExpression::DotMatchesEverythingOption);
    std::multimap<QString, QString> found;
    const QString text = page();
    for (auto each = theExample.globalMatch(text); each.hasNext();)
    {
        const QRegularExpressionMatch match = each.next();
        found.emplace(match.captured(1), match.captured(2));
    }
    return found;
}

QStringList inBackticks(const QString& text)
{
    static const QRegularExpression theCode("`([^`]+)`");
    QStringList words;
    for (auto each = theCode.globalMatch(text); each.hasNext();)
        words += each.next().captured(1);
    return words;
}

using Lines = std::set<QString>;

QString without(const Lines& lines, const Lines& others)
{
    QStringList rest;
    for (const QString& line : lines)
        if (others.count(line) == 0)
            rest += line;
    return rest.join('\n');
}

// "list.key form" of each row of the tables of keys, which stand under headings of level three and four.
Lines documentedKeys()
{
    Lines keys;
    QString list;
    bool isTable = false;
    for (const QString& line : page().split('\n'))
    {
        if (line.startsWith('#'))
        {
            list = inBackticks(line).value(0);
            isTable = !list.isEmpty() || line == "### The root";
        }
        const QStringList cells = line.split('|');
        if (isTable && cells.size() > 3)
            for (const QString& key : inBackticks(cells[1]))
                keys.insert(list + "." + key + " " + cells[2].trimmed());
    }
    return keys;
}

Lines keysOfTheCode()
{
    static const std::map<DtKeyForm, QString> theForms = {
        {DtKeyForm::Plain, "plain"},
        {DtKeyForm::Text,  "text" },
        {DtKeyForm::Name,  "name" },
        {DtKeyForm::List,  "list" },
    };
    Lines keys;
    for (const DtContextKey& key : DtOMTWriter::contextKeys())
        if (!(key.key == "UUID1") && !(key.key == "UUID2"))
            keys.insert(QString::fromUtf8(key.list.c_str()) + "." + key.key.c_str() + " " + theForms.at(key.form));
    return keys;
}

// The names that the page gives to the members of each kind of object in the JSON file.
std::map<QString, Lines> documentedShape()
{
    std::map<QString, Lines> shape;
    const QString text = page();
    for (const QString& line : text.mid(text.indexOf("\n## The JSON file")).split('\n'))
    {
        const QStringList cells = line.split('|');
        if (cells.size() < 4 || inBackticks(cells[1]).size() != 1)
            continue;
        const QStringList members = inBackticks(cells[2]);
        shape[inBackticks(cells[1]).front()] = Lines(members.begin(), members.end());
    }
    return shape;
}

// The names of the members that objects have, by the member that holds the objects, alone or in a list.
void collectShape(const QJsonValue& value, const QString& holder, std::map<QString, Lines>& shape)
{
    for (const QJsonValue& each : value.toArray())
        collectShape(each, holder, shape);
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
    {
        shape[holder].insert(member.key());
        collectShape(member.value(), member.key(), shape);
    }
}

QString printed(const std::map<QString, Lines>& shape)
{
    QString text;
    for (const auto& [holder, members] : shape)
        text += holder + ": " + QStringList(members.begin(), members.end()).join(' ') + '\n';
    return text;
}
} // namespace

class TestScripts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyModelGivesSoundFiles_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < static_cast<int>(modelRows().size()); ++index)
            QTest::newRow(modelRows()[static_cast<std::size_t>(index)].name) << index;
    }

    void everyModelGivesSoundFiles()
    {
        QFETCH(int, index);
        const DtModelRow& row = modelRows()[static_cast<std::size_t>(index)];
        if (row.files.isEmpty() || !QFile::exists(row.files.front()))
            QSKIP("The model is not here.");
        const DtProducts products(row.files);
        QCOMPARE(faultOf(products), QString());
        QCOMPARE(products.list("objectClasses").size(), row.objects);
        QCOMPARE(products.list("interactionClasses").size(), row.interactions);
        if (!hasPython())
            QSKIP(theMissingPython);
        QCOMPARE(faultInPython(products), QString());
    }

    void productsAreTheSameInEveryRun()
    {
        const DtProducts again(modelRows().front().files);
        QVERIFY(again.json == sample().json);
        QVERIFY(again.codec == sample().codec);
    }

    void onlySelectedClassesAndWhatTheyUseAreThere()
    {
        DtScratchProgram program;
        switchOnScripts(program, {"genJson.txt"});
        const DtString model = program.sampleModel();
        const auto window = program.makeWindow();
        window->newOmtProject(DtFilename(program.bytes(program.path("models/p.qxproj"))));
        QCOMPARE(window->loadFile(model, ""), 1);
        DtOmtObject object;
        object.setFullName("HLAobjectRoot.PortEntity");
        object.setName("PortEntity");
        window->omtProject()->addObject(object);
        window->setOutputDirectory(program.path("out/"));
        window->generateAllFiles();
        const QJsonObject root = QJsonDocument::fromJson(readTextFile(program.path("out/model.json"))).object();
        QCOMPARE(root["objectClasses"].toArray().size(), 1);
        QCOMPARE(root["interactionClasses"].toArray().size(), 0);
        QCOMPARE(root["variantRecords"].toArray().size(), 0);
        QVERIFY(root["fixedRecords"].toArray().size() > 0);
    }

    void jsonHasTheDocumentedShape()
    {
        std::map<QString, Lines> shape;
        collectShape(sample().root(), "", shape);
        collectShape(DtProducts("old.omt", theOldModel).root(), "", shape);
        collectShape(DtProducts("later.xml", theLaterModel).root(), "", shape);
        shape[""].erase("format");
        shape[""].erase("formatVersion");
        std::map<QString, Lines> expected = documentedShape();
        QCOMPARE(expected.erase("format`, `formatVersion"), std::size_t(0));
        for (const QString& member : shape[""])
            QVERIFY2(expected.count(member) == 1, qPrintable(member));
        shape.erase("");
        QCOMPARE(printed(shape), printed(expected));
    }

    void jsonTellsWhatTheModelTells()
    {
        const DtProducts& products = sample();
        QCOMPARE(products.root()["format"].toString(), QString("quorvex-model"));
        const QJsonObject model = products.root()["model"].toObject();
        QCOMPARE(model["name"].toString() + " " + model["protocol"].toString(), QString("sample HLA1516e"));
        QVERIFY(model["hasStandardManagementModel"].toBool());
        const QJsonObject vessel = products.entry("objectClasses", "Vessel");
        QCOMPARE(vessel["parent"].toString(), QString("HLAobjectRoot.PortEntity"));
        QVERIFY(products.entry("objectClasses", "PortEntity")["parent"].isString());
        const QJsonArray enumerators = products.entry("enumerations", "VesselState16")["enumerators"].toArray();
        QCOMPARE(enumerators.at(1).toObject()["value"].toInt(), 300);
        QCOMPARE(enumerators.at(2).toObject()["name"].toString(), QString("class"));
        const QJsonArray fields = products.entry("fixedRecords", "TideMark")["fields"].toArray();
        QCOMPARE(fields.at(0).toObject()["kind"].toString() + " " + fields.at(1).toObject()["kind"].toString(),
                 QString("FixedRec Simple"));
        QCOMPARE(products.entry("arrays", "DraughtTable")["kind"].toString(), QString("Other"));
        QCOMPARE(products.entry("arrays", "LampMatrix")["kind"].toString(), QString("Enum"));
        QCOMPARE(products.entry("arrays", "TideRing")["cardinality"].toString(), QString("[2..6]"));
    }

    void hostileTextsBreakNothing()
    {
        const DtProducts products("hostile.xml", hostileModel());
        QCOMPARE(faultOf(products), QString());
        QCOMPARE(products.entry("objectClasses", "lambda")["description"].toString(), QString(theHostileText));
        QCOMPARE(products.entry("enumerations", "mro")["description"].toString(), QString(theHostileText));
        if (!hasPython())
            QSKIP(theMissingPython);
        QCOMPARE(faultInPython(products), QString());
        QCOMPARE(products.evaluated("m.enumerations.mro_.__doc__ == " + QByteArray("bytes.fromhex('") +
                                    QByteArray(theHostileText).toHex() + "').decode()"),
                 QString("True"));
        QCOMPARE(products.evaluated("' '.join(each.name for each in m.enumerations.mro_)"),
                 QString("name_ value_ mro_ x_x_ x__init__ a_b a_b_2 x7 None_ real_ A__B x_"));
        QCOMPARE(products.evaluated("' '.join(m.records.a_b.__dataclass_fields__)"),
                 QString("class_ class__2 x__eq__ a_b a_b_2 x1 x__ x__x__"));
        QCOMPARE(
            products.evaluated("m.encode('a b', {'class': 1, 'class_': 2, '__eq__': 3, 'a b': 4, 'a-b': 5, '1': 6, "
                               "'\"\\\\': 7, '<' + '!x!>': 8}).hex()"),
            QString("0102030405060708"));
        QCOMPARE(products.evaluated("m.encode('yield', {'discriminant': 'A, B', 'discriminant_2': 7}).hex()"),
                 QString("0b0000000000000007"));
        QCOMPARE(products.evaluated("m.decode('yield', bytes.fromhex('09000000000000000500000000000000')[:16])"),
                 QString("yield_(discriminant=<mro_.None_: 9>, discriminant_2=None, def_=Tree(leaf=5, branches=[]), "
                         "number=None, never=None)"));
    }

    // Datatypes that lead back to themselves, counts that nothing bears, and names that lead nowhere.
    void hostileDatatypesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("expression");
        QTest::addColumn<QString>("fault");
        QTest::newRow("unknown") << QByteArray("m.encode('Nope', 1)")
                                 << "Nope: has no encoding: the model does not define this datatype";
        QTest::newRow("lost") << QByteArray("m.encode('Nowhere', 1)")
                              << "Nowhere: has no encoding: the model does not define this datatype";
        QTest::newRow("ring") << QByteArray("m.encode('Ring', 1)")
                              << "Ring: has no encoding: its representations lead back to it";
        QTest::newRow("size") << QByteArray("m.default('Mega')")
                              << "Mega: has no encoding: more elements than this codec takes";
        QTest::newRow("depth") << QByteArray("m.decode('Trees', bytes.fromhex('00000001' + '0100000000000001' * 9999))")
                               << "nested too deeply";
        QTest::newRow("itself") << QByteArray("m.default('Itself')") << "Itself: nested too deeply";
        QTest::newRow("idle") << QByteArray("m.decode('Idle', b'\\xff\\xff\\xff\\xff')")
                              << "Idle: too many elements without octets";
        QTest::newRow("attribute") << QByteArray("m.encode_attributes('lambda', {'x': 1})")
                                   << "x: HLAobjectRoot.lambda has no member of this name";
        QTest::newRow("class") << QByteArray("m.object_class('x')") << "x: no class is called so";
    }
    void hostileDatatypesAreRefused()
    {
        QFETCH(QByteArray, expression);
        QFETCH(QString, fault);
        if (!hasPython())
            QSKIP(theMissingPython);
        static const DtProducts theProducts("hostile.xml", hostileModel());
        const DtPythonRun run = theProducts.python({"-c", "import model_codec as m\n" + expression});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.output.trimmed().endsWith("CodecError: " + fault) || run.output.trimmed().endsWith(": " + fault),
                 qPrintable(run.output.right(500)));
    }

    void codecTellsWhereAValueIsWrong_data()
    {
        QTest::addColumn<QByteArray>("expression");
        QTest::addColumn<QString>("fault");
        const auto add = [](const char* expression, const char* fault)
        { QTest::newRow(fault) << QByteArray(expression) << QString::fromUtf8(fault); };
        add("m.encode('Count8', 256)", "Count8: 256 does not fit into 1 octet");
        add("m.encode('Celsius', -129)", "Celsius: -129 does not fit into 1 octet");
        add("m.encode('Count8', 1.5)", "Count8: 1.5 is no whole number");
        add("m.encode('Count8', '1')", "Count8: '1' is no whole number");
        add("m.encode('Knots', 1e300)", "Knots: 1e+300 is no number of 4 octets");
        add("m.encode('Knots', 'x')", "Knots: 'x' is no number of 4 octets");
        add("m.encode('VesselState8', 'Sunk')", "VesselState8: 'Sunk' is no enumerator");
        add("m.encode('ClockTime', {'Hour': 1, 'Minute': 2})", "ClockTime.Second: the field is missing");
        add("m.encode('ClockTime', {'Day': 1})", "ClockTime: 'Day' is none of its fields");
        add("m.encode('ClockTime', 5)", "ClockTime: 5 is no ClockTime");
        add("m.encode('BearingList', [1.0, None])", "BearingList[1]: None is no number of 8 octets");
        add("m.encode('BearingList', 5)", "BearingList: 5 is no array");
        add("m.encode('Seal-Code', b'1234567')", "Seal-Code: 7 elements where there have to be 8");
        add("m.encode('ShortText', 'much too long a text')", "ShortText: 20 elements where there have to be 16");
        add("m.encode('ReportText', 'a\\0b')", "ReportText[1]: an element that is zero would end the array");
        add("m.encode('HLAASCIIstring', '\\u20ac')", "HLAASCIIstring: '\u20ac' is no character of one octet");
        add("m.encode('FillTo32', [1])", "FillTo32: an array that fills up has no elements");
        add("m.encode('FlagBits', [])",
            "FlagBits: has no encoding: no layout is known for 'HLAbitArray' with this cardinality");
        add("m.encode('LampReport', {'discriminant': 1})",
            "LampReport.Period: the discriminant selects this, and it has no value");
        add("m.encode('LampReport', {'discriminant': 0, 'Period': 1.0})",
            "LampReport.Period: a value stands here, but the discriminant does not select it");
        add("m.encode('LampReport', {'discriminant': 'x'})", "LampReport.discriminant: 'x' is no enumerator");
        add("m.decode('PersonList', bytes.fromhex('0000000100000002'))",
            "PersonList[0].FullName[0]: the value ends too early: needs 2 octets at offset 8, where 0 are left");
        add("m.decode('ClockTime', b'1234')", "ClockTime: 1 octet too many behind the value");
        add("m.decode('LineList', b'\\xff\\xff\\xff\\xff')",
            "LineList[0]: the value ends too early: needs 4 octets at offset 4, where 0 are left");
        add("m.decode('Inspection', bytes.fromhex('02 00000003 010203'))",
            "Inspection.Hole: 1 octet too many in the alternative");
    }
    void codecTellsWhereAValueIsWrong()
    {
        QFETCH(QByteArray, expression);
        QFETCH(QString, fault);
        if (!hasPython())
            QSKIP(theMissingPython);
        const DtPythonRun run = sample().python(
            {"-c", "import model_codec as m\ntry:\n    " + expression + "\nexcept m.CodecError as e:\n    print(e)"});
        QCOMPARE(run.output.trimmed(), fault);
    }

    void codecTakesAndGivesValuesOfEveryForm_data()
    {
        QTest::addColumn<QByteArray>("expression");
        QTest::addColumn<QString>("value");
        const auto add = [](const char* expression, const char* value)
        { QTest::newRow(expression) << QByteArray(expression) << QString::fromUtf8(value); };
        add("m.encode('VesselState8', 'Aground/Sunk').hex()", "02");
        add("m.encode('VesselState8', m.enumerations.VesselState8.Under_Way).hex()", "01");
        add("repr(m.decode('VesselState8', b'\\1'))", "<VesselState8.Under_Way: 1>");
        add("repr(m.decode('VesselState8', b'\\x4d'))", "77");
        add("m.encode('HLAboolean', True).hex()", "00000001");
        add("m.encode('Letter', 'A').hex() + m.encode('Initial', '\\u00e9').hex()", "4100e9");
        add("m.encode('ShortText', 'AB').hex()", "41420000000000000000000000000000");
        add("m.decode('ShortText', b'AB'.ljust(16, b'\\0'))", "AB");
        add("m.decode('HLAunicodeString', bytes.fromhex('0000000300c4d83dde00'))", "\u00c4\U0001f600");
        add("m.decode('HLAopaqueData', bytes.fromhex('00000002ff00'))", "b'\\xff\\x00'");
        add("m.encode('ClockTime', m.records.ClockTime(Hour=6, Minute=30)).hex()", "061e00");
        add("m.decode('ClockTime', bytes.fromhex('061e00'))", "ClockTime(Hour=6, Minute=30, Second=0)");
        add("m.records.Cargo_Item.__doc__ is not None", "True");
        add("m.decode('LampReport', bytes.fromhex('0100000040200000'))",
            "LampReport(discriminant=<lampState.Flash: 1>, Period=2.5, Cause=None)");
        add("m.encode('TideMark', {'At': m.default('ClockTime'), 'Level': 5}).hex()", "000000000005");
        add("sorted(m.object_class('CargoShip').own)[:1], len(m.object_class('CargoShip').members) > "
            "len(m.object_class('Vessel').members) > len(m.object_class('PortEntity').members)",
            "['Dangerous'] True");
        add("{n: o.hex() for n, o in m.encode_attributes('Vessel', {'Speed': 2.5, 'Position': m.default('GeoPoint')})"
            ".items()}",
            "{'Speed': '40200000', 'Position': '0000000000000000000000000000000000000000'}");
        add("m.decode_attributes('HLAobjectRoot.PortEntity.Vessel', {'Speed': bytes.fromhex('40200000')})",
            "{'Speed': 2.5}");
        add("m.encode('HLAinteger16LE', -2).hex() + m.encode('string', 'a').hex()", "feff6100");
        add("m.plain('SignalMessage', m.decode('SignalMessage', bytes.fromhex('000100000000000009')))",
            "{'discriminant': 1, 'Strength': 9}");
    }
    void codecTakesAndGivesValuesOfEveryForm()
    {
        QFETCH(QByteArray, expression);
        QFETCH(QString, value);
        if (!hasPython())
            QSKIP(theMissingPython);
        QCOMPARE(sample().evaluated(expression.constData()), value);
    }

    void codecWorksOnTheCommandLine()
    {
        if (!hasPython())
            QSKIP(theMissingPython);
        const QString json = "{\"Hour\": 6, \"Minute\": 30, \"Second\": 59}";
        QCOMPARE(sample().codecRun({"--encode", "ClockTime", json}).output, QString("061e3b\n"));
        QCOMPARE(sample().codecRun({"--decode", "ClockTime", "061e3b"}).output, json + "\n");
        const DtPythonRun refused = sample().codecRun({"--decode", "ClockTime", "061e"});
        QCOMPARE(refused.exitCode, 1);
        QCOMPARE(refused.output, QString("model_codec: ClockTime.Second: the value ends too early: needs 1 octet at "
                                         "offset 2, where 0 are left\n"));
        QVERIFY(sample().codecRun({"--list"}).output.contains("\nTideMark: fixed record\n    At: ClockTime\n"));
        QCOMPARE(sample().codecRun({}).exitCode, 2);
    }

    // A self-test that cannot fail would say nothing.
    void selfTestNoticesAFaultyCodec_data()
    {
        QTest::addColumn<QByteArray>("right");
        QTest::addColumn<QByteArray>("wrong");
        QTest::addColumn<QString>("fault");
        QTest::newRow("value") << QByteArray("return int.from_bytes(octets, self.order, signed")
                               << QByteArray("return int.from_bytes(octets, \"big\", signed") << " becomes ";
        QTest::newRow("end") << QByteArray("while is_more():") << QByteArray("while is_more() and reader.left() > 0:")
                             << " is taken without its end";
        QTest::newRow("rest") << QByteArray("        if reader.left():") << QByteArray("        if False:")
                              << " is taken with an octet too many";
    }
    void selfTestNoticesAFaultyCodec()
    {
        QFETCH(QByteArray, right);
        QFETCH(QByteArray, wrong);
        QFETCH(QString, fault);
        if (!hasPython())
            QSKIP(theMissingPython);
        QCOMPARE(sample().codec.count(right), 1);
        const QTemporaryDir directory;
        writeTextFile(directory.path() + "/model_codec.py", QByteArray(sample().codec).replace(right, wrong));
        const DtPythonRun run = runPython(directory.path(), {"model_codec.py", "--self-test"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.output.contains(fault), qPrintable(run.output.left(1000)));
    }

    void oldModelsAreCodedLikeTheGeneratedCode()
    {
        const DtProducts products("old.omt", theOldModel);
        QCOMPARE(faultOf(products), QString());
        const QJsonObject text = products.entry("complexDatatypes", "Point")["components"].toArray().at(2).toObject();
        QCOMPARE(text["cardinality"].toString() + " " + text["type"].toString(), QString("0+ octet"));
        if (!hasPython())
            QSKIP(theMissingPython);
        QCOMPARE(faultInPython(products), QString());
        QCOMPARE(
            products.evaluated("m.encode('Point', {'Hue': 'Red', 'Size': [1, 2], 'Text': b'ab', 'Dots': -1}).hex()"),
            QString("0001000000000001000000026162"
                    "0000ffff"));
        QCOMPARE(products.evaluated("m.encode_attributes('Barge', {'Track': []})"),
                 QString("{'Track': b'\\x00\\x00\\x00\\x00'}"));
    }

    void pageListsTheKeysOfTheCode()
    {
        QCOMPARE(without(keysOfTheCode(), documentedKeys()), QString());
        QCOMPARE(without(documentedKeys(), keysOfTheCode()), QString());
        QVERIFY(page().contains("`UUID1` and `UUID2`"));
    }

    void exampleOfThePageGivesWhatItShows()
    {
        DtScratchProgram program;
        switchOnScripts(program, {"genCs.txt"});
        const std::multimap<QString, QString> files = examples();
        QCOMPARE(files.size(), std::size_t(4));
        for (const auto& [name, text] : files)
            if (name.startsWith("data/"))
                writeTextFile(program.path("") + name, text.toUtf8());
        const DtCapture warnings(DtWarn);
        runBatch(program, {program.sampleModel()});
        QCOMPARE(warnings.text(), QString());
        QCOMPARE(filesBelow(program.path("out")), QStringList("Model.cs"));
        const QString model = QString::fromUtf8(readTextFile(program.path("out/Model.cs")));
        QVERIFY(!model.contains("<!"));
        const auto shown = files.equal_range("out/Model.cs");
        QCOMPARE(std::distance(shown.first, shown.second), std::ptrdiff_t(2));
        for (auto part = shown.first; part != shown.second; ++part)
            QVERIFY2(model.contains("\n" + part->second), qPrintable(model));
    }

    void examplesOfThePageInPythonRun()
    {
        if (!hasPython())
            QSKIP(theMissingPython);
        const QString text = page();
        for (const char* heading : {"\n## The codec", "\n## The JSON file"})
        {
            const QString section = text.mid(text.indexOf(heading));
            QString code;
            for (const QString& line : section.mid(section.indexOf("\n    import")).split('\n'))
                if (line.startsWith("    ") || line.isEmpty())
                    code += line.mid(4) + '\n';
                else
                    break;
            const DtPythonRun run = sample().python({"-c", code});
            QVERIFY2(run.isGood() && code.size() > 100, qPrintable(code + run.output));
        }
    }
};

QX_REGISTER_TEST(TestScripts)
#include "testScripts.moc"
