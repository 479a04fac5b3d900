// The texts of the standard management models: what stands in them, element by element, whether a reader takes it or
// not.

#include "omtReader/xmlDocument.h"
#include "registerTest.h"
#include "standardMims.h"

#include <QtCore/QJsonArray>

#include <map>

namespace
{
using Outline = QStringList; // one line for each element: indent, name, attributes, text

QString toText(const xmlChar* text)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

// ---- the outline that the facts ask for

enum Place
{
    Fact,      // an element with the text of the fact, or with prose where the fact is null
    Facts,     // one such element for each text of the list
    List,      // the same inside an element that has the name of the key
    Member,    // a construct for each object of the list
    Attribute, // an attribute of the construct's own element
    Prose,     // an element with a sentence of our own: always there, or with the fact of the key when there is one
    Kind,      // an element that says the fact in our own words, see theKinds
    Silent,    // in the facts only
};

struct Row
{
    const char* construct;
    const char* element;
    Place place;
    const char* key; // of the fact; empty when it is the name of the element

    QString keyName() const { return QString::fromLatin1(*key != '\0' || place == Prose ? key : element); }
};

// The elements of each construct, in the order of the standard's files. Both years share the table: what one of them
// has not is not in its facts.
//   construct              element                   place      key
const Row theRows[] = {
    {"modelIdentification", "name",                   Fact,      ""              },
    {"modelIdentification", "type",                   Fact,      ""              },
    {"modelIdentification", "version",                Fact,      ""              },
    {"modelIdentification", "modificationDate",       Fact,      ""              },
    {"modelIdentification", "securityClassification", Fact,      ""              },
    {"modelIdentification", "purpose",                Prose,     ""              },
    {"modelIdentification", "applicationDomain",      Fact,      ""              },
    {"modelIdentification", "description",            Prose,     ""              },
    {"objectClass",         "name",                   Fact,      ""              },
    {"objectClass",         "sharing",                Fact,      ""              },
    {"objectClass",         "dimension",              List,      "dimensions"    },
    {"objectClass",         "semantics",              Prose,     ""              },
    {"objectClass",         "attribute",              Member,    "attributes"    },
    {"objectClass",         "objectClass",            Member,    "children"      },
    {"attribute",           "name",                   Fact,      ""              },
    {"attribute",           "dataType",               Fact,      ""              },
    {"attribute",           "updateType",             Fact,      ""              },
    {"attribute",           "updateCondition",        Fact,      ""              },
    {"attribute",           "updateConditionKind",    Silent,    ""              },
    {"attribute",           "valueRequired",          Fact,      ""              },
    {"attribute",           "ownership",              Fact,      ""              },
    {"attribute",           "sharing",                Fact,      ""              },
    {"attribute",           "dimension",              List,      "dimensions"    },
    {"attribute",           "transportation",         Fact,      ""              },
    {"attribute",           "order",                  Fact,      ""              },
    {"attribute",           "semantics",              Prose,     ""              },
    {"interactionClass",    "name",                   Fact,      ""              },
    {"interactionClass",    "sharing",                Fact,      ""              },
    {"interactionClass",    "dimension",              List,      "dimensions"    },
    {"interactionClass",    "transportation",         Fact,      ""              },
    {"interactionClass",    "order",                  Fact,      ""              },
    {"interactionClass",    "semantics",              Prose,     ""              },
    {"interactionClass",    "parameter",              Member,    "parameters"    },
    {"interactionClass",    "interactionClass",       Member,    "children"      },
    {"parameter",           "name",                   Fact,      ""              },
    {"parameter",           "dataType",               Fact,      ""              },
    {"parameter",           "semantics",              Prose,     ""              },
    {"dimension",           "notes",                  Attribute, ""              },
    {"dimension",           "noteReferences",         Attribute, ""              },
    {"dimension",           "name",                   Fact,      ""              },
    {"dimension",           "dataType",               Fact,      ""              },
    {"dimension",           "dataType",               List,      "inputDataTypes"},
    {"dimension",           "inputDataDescription",   Prose,     "inputDataTypes"},
    {"dimension",           "upperBound",             Fact,      ""              },
    {"dimension",           "normalization",          Fact,      ""              },
    {"dimension",           "outputDataSemantics",    Fact,      ""              },
    {"dimension",           "value",                  Fact,      ""              },
    {"transportation",      "name",                   Fact,      ""              },
    {"transportation",      "reliable",               Fact,      ""              },
    {"transportation",      "semantics",              Prose,     ""              },
    {"basicData",           "name",                   Fact,      ""              },
    {"basicData",           "size",                   Fact,      ""              },
    {"basicData",           "interpretation",         Kind,      "kind"          },
    {"basicData",           "endian",                 Fact,      ""              },
    {"basicData",           "encoding",               Prose,     ""              },
    {"simpleData",          "name",                   Fact,      ""              },
    {"simpleData",          "representation",         Fact,      ""              },
    {"simpleData",          "units",                  Fact,      ""              },
    {"simpleData",          "resolution",             Fact,      ""              },
    {"simpleData",          "accuracy",               Fact,      ""              },
    {"simpleData",          "semantics",              Prose,     ""              },
    {"referenceDataType",   "name",                   Fact,      ""              },
    {"referenceDataType",   "representation",         Fact,      ""              },
    {"referenceDataType",   "referenceClass",         Fact,      ""              },
    {"referenceDataType",   "referencedAttribute",    Fact,      ""              },
    {"referenceDataType",   "semantics",              Prose,     ""              },
    {"enumeratedData",      "name",                   Fact,      ""              },
    {"enumeratedData",      "representation",         Fact,      ""              },
    {"enumeratedData",      "semantics",              Prose,     ""              },
    {"enumeratedData",      "enumerator",             Member,    "enumerators"   },
    {"enumerator",          "name",                   Fact,      ""              },
    {"enumerator",          "value",                  Facts,     "values"        },
    {"arrayData",           "name",                   Fact,      ""              },
    {"arrayData",           "dataType",               Fact,      ""              },
    {"arrayData",           "cardinality",            Fact,      ""              },
    {"arrayData",           "encoding",               Fact,      ""              },
    {"arrayData",           "semantics",              Prose,     ""              },
    {"fixedRecordData",     "name",                   Fact,      ""              },
    {"fixedRecordData",     "encoding",               Fact,      ""              },
    {"fixedRecordData",     "semantics",              Prose,     ""              },
    {"fixedRecordData",     "field",                  Member,    "fields"        },
    {"field",               "name",                   Fact,      ""              },
    {"field",               "dataType",               Fact,      ""              },
    {"field",               "semantics",              Prose,     ""              },
    {"note",                "label",                  Fact,      ""              },
    {"note",                "semantics",              Prose,     ""              },
};

// The construct in each section that is a list.
const std::map<QString, const char*> theSections = {
    {"objects",                  "objectClass"      },
    {"interactions",             "interactionClass" },
    {"dimensions",               "dimension"        },
    {"transportations",          "transportation"   },
    {"basicDataRepresentations", "basicData"        },
    {"simpleDataTypes",          "simpleData"       },
    {"referenceDataTypes",       "referenceDataType"},
    {"enumeratedDataTypes",      "enumeratedData"   },
    {"arrayDataTypes",           "arrayData"        },
    {"fixedRecordDataTypes",     "fixedRecordData"  },
    {"variantRecordDataTypes",   "variantRecordData"},
    {"notes",                    "note"             },
};

// Our words for each kind of basic data, at the start of its interpretation.
const std::pair<const char*, const char*> theKinds[] = {
    {"two's complement signed integer", "Whole number with a sign, "           },
    {"unsigned integer",                "Whole number without a sign, "        },
    {"IEEE 754 binary floating point",  "Real number, "                        },
    {"uninterpreted bits",              "Bits without a meaning of their own, "},
};

QString line(int depth, const QString& element, const QString& text = QString())
{
    return QString(2 * depth, ' ') + element + (text.isEmpty() ? "" : ": " + text);
}

const char theProse[] = "(prose)";

// Turns facts into the outline of their document, and remembers the facts that no row knew.
class FactsOutline
{
public:
    explicit FactsOutline(const QJsonObject& facts) : myFacts(facts)
    {
        myLines += line(0, "objectModel xsi:schemaLocation=" + file()["schemaLocation"].toString());
        addSections("sectionsInOrder", 1);
        checkTopLevel();
    }
    const Outline& lines() const { return myLines; }
    const QStringList& unknownFacts() const { return myUnknownFacts; }

private:
    static QStringList texts(const QJsonValue& list) { return list.toVariant().toStringList(); }
    QJsonObject file() const { return myFacts["file"].toObject(); }

    void addSections(const char* order, int depth)
    {
        for (const QJsonValue& each : file()[QLatin1String(order)].toArray())
            addSection(each.toString(), depth);
    }

    void addSection(const QString& name, int depth)
    {
        mySections += name;
        if (name == "modelIdentification")
            return addConstruct(name, myFacts[name].toObject(), depth);
        myLines += line(depth, name);
        if (name == "dataTypes")
            return addSections("dataTypeSectionsInOrder", depth + 1);
        for (const QJsonValue& each : myFacts[name].toArray())
            addConstruct(theSections.at(name), each.toObject(), depth + 1);
    }

    void addConstruct(const QString& element, const QJsonObject& facts, int depth)
    {
        QStringList unknown = facts.keys();
        const int place = myLines.size();
        QString head = element;
        for (const Row& row : theRows)
        {
            if (element != row.construct)
                continue;
            unknown.removeAll(row.keyName());
            if (row.place == Attribute && facts.contains(row.keyName()))
                head += QString(" %1=").arg(row.element) + texts(facts[row.keyName()]).join(' ');
            addRow(row, facts, depth + 1);
        }
        myLines.insert(place, line(depth, head));
        for (const QString& key : unknown)
            myUnknownFacts += element + "." + key;
    }

    void addRow(const Row& row, const QJsonObject& facts, int depth)
    {
        const QString key = row.keyName();
        if (!key.isEmpty() && !facts.contains(key))
            return;
        const QJsonValue fact = facts[key];
        switch (row.place)
        {
        case Fact:
        case Kind:
            myLines += line(depth, row.element, fact.isNull() ? theProse : fact.toVariant().toString());
            break;
        case List:
            myLines += line(depth++, key);
            Q_FALLTHROUGH();
        case Facts:
            for (const QString& text : texts(fact))
                myLines += line(depth, row.element, text);
            break;
        case Member:
            for (const QJsonValue& each : fact.toArray())
                addConstruct(row.element, each.toObject(), depth);
            break;
        case Prose:
            myLines += line(depth, row.element, theProse);
            break;
        case Attribute:
        case Silent:
            break;
        }
    }

    // A part of the facts that is none of the sections has to be empty: "time", "tags" and the like.
    void checkTopLevel()
    {
        for (const QString& key : myFacts.keys())
        {
            const QJsonValue value = myFacts[key];
            const bool isEmpty = value.isNull() || value == QJsonArray();
            const bool isAboutTheFile = key == "about" || key == "attribution" || key == "file" || key == "counts";
            if (!isEmpty && !isAboutTheFile && !mySections.contains(key))
                myUnknownFacts += key;
        }
    }

    QJsonObject myFacts;
    Outline myLines;
    QStringList mySections;
    QStringList myUnknownFacts;
};

// ---- the outline that the document has

bool isProse(const QString& parent, const QString& element, const QString& text)
{
    static const QStringList theElements{"purpose", "description", "semantics", "inputDataDescription"};
    if (element == "updateCondition") // in words or a token
        return text.contains(' ') && text.endsWith('.');
    return !text.isEmpty() && (theElements.contains(element) || (parent == "basicData" && element == "encoding"));
}

QString factOf(const QString& parent, const QString& element, const QString& text)
{
    if (isProse(parent, element, text))
        return theProse;
    for (const auto& [kind, words] : theKinds)
        if (element == "interpretation" && text.startsWith(words))
            return kind;
    return text;
}

QString attributesOf(const xmlNode* node)
{
    QString text;
    for (const xmlAttr* each = node->properties; each != nullptr; each = each->next)
        text += " " + (each->ns == nullptr ? QString() : toText(each->ns->prefix) + ":") + toText(each->name) + "=" +
                toText(DtXmlText(each->children));
    return text;
}

void addElement(const xmlNode* node, int depth, Outline& lines)
{
    const QString name = toText(node->name);
    // What stands between elements is white space.
    const QString text = toText(DtXmlText(node->children)).trimmed();
    lines += line(depth, name + attributesOf(node), factOf(toText(node->parent->name), name, text));
    for (const xmlNode* child : DtXmlElements(node))
        addElement(child, depth + 1, lines);
}

DtXmlDocument documentOf(const StandardMim& mim)
{
    const QByteArray text = mim.text();
    return DtParseXmlBuffer(text.constData(), text.size());
}

Outline outlineOf(const StandardMim& mim)
{
    Outline lines;
    const DtXmlDocument document = documentOf(mim);
    addElement(xmlDocGetRootElement(document.get()), 0, lines);
    return lines;
}

// The number of lines that match a pattern behind their indent.
int countOf(const Outline& lines, const QString& pattern)
{
    return lines.filter(QRegularExpression("^ *" + pattern + "$")).size();
}

// The comments between the XML declaration and the root element.
QStringList commentsOf(const StandardMim& mim)
{
    QStringList comments;
    const DtXmlDocument document = documentOf(mim);
    for (const xmlNode* node = document->children; node->type == XML_COMMENT_NODE; node = node->next)
        comments += toText(node->content).trimmed();
    return comments;
}

const char theXmlDeclaration[] = "<?xml version=\"1.0\" encoding=\"utf-8\"?>"; // nothing stands ahead of it
} // namespace

class TestStandardMimText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithTheDeclarationAndNoByteOrderMark_data() { addStandardMims(); }
    void beginsWithTheDeclarationAndNoByteOrderMark()
    {
        QFETCH(int, mim);
        QVERIFY(theStandardMims[mim].text().startsWith(theXmlDeclaration));
        const QJsonObject file = theStandardMims[mim].facts()["file"].toObject();
        if (file.isEmpty())
            QSKIP(theMissingFacts);
        QCOMPARE(QString(theXmlDeclaration), file["xmlDeclaration"].toString());
        QCOMPARE(file["bom"], QJsonValue(false));
    }

    void everyLineEndsAsInTheStandard_data() { addStandardMims(); }
    void everyLineEndsAsInTheStandard()
    {
        QFETCH(int, mim);
        const StandardMim& model = theStandardMims[mim];
        const QByteArray text = model.text();
        const bool hasCrLf = model.lineEnd == QByteArray("\r\n");
        QVERIFY(text.endsWith(model.lineEnd));
        QVERIFY(text.count('\n') > 2000);
        QCOMPARE(text.count("\r\n"), hasCrLf ? text.count('\n') : 0);
        QCOMPARE(text.count('\r'), text.count("\r\n"));
        const QJsonObject facts = model.facts();
        if (facts.isEmpty())
            QSKIP(theMissingFacts);
        QCOMPARE(facts["file"].toObject()["crlf"], QJsonValue(hasCrLf));
    }

    void lengthLeavesOutTheZeroBehindTheText_data() { addStandardMims(); }
    void lengthLeavesOutTheZeroBehindTheText()
    {
        QFETCH(int, mim);
        const StandardMim& model = theStandardMims[mim];
        QCOMPARE(qstrlen(reinterpret_cast<const char*>(model.bytes)), model.length);
        const QString name = QString("/libsrc/omtReader/HLAstandardMIM-%1.xml").arg(model.year);
        QCOMPARE(model.text(), readTextFile(QX_SOURCE_DIR + name));
    }

    void attributionStandsAheadOfTheRoot_data() { addStandardMims(); }
    void attributionStandsAheadOfTheRoot()
    {
        QFETCH(int, mim);
        const StandardMim& model = theStandardMims[mim];
        QCOMPARE(commentsOf(model).value(0), QString(model.attribution));
        const QJsonObject facts = model.facts();
        if (facts.isEmpty())
            QSKIP(theMissingFacts);
        QCOMPARE(QString(model.attribution), facts["attribution"].toString());
    }

    void rootIsInTheNamespaceOfTheStandard_data() { addStandardMims(); }
    void rootIsInTheNamespaceOfTheStandard()
    {
        QFETCH(int, mim);
        const StandardMim& model = theStandardMims[mim];
        const DtXmlDocument document = documentOf(model);
        const xmlNode* root = xmlDocGetRootElement(document.get());
        QCOMPARE(toText(root->name), QString("objectModel"));
        QCOMPARE(toText(root->ns->href), QString(model.nameSpace()));
        QCOMPARE(root->ns->prefix, nullptr);
        const QJsonObject file = model.facts()["file"].toObject();
        if (file.isEmpty())
            QSKIP(theMissingFacts);
        QCOMPARE(toText(root->name), file["root"].toString());
        QCOMPARE(toText(root->ns->href), file["namespace"].toString());
    }

    void everyElementIsThatOfTheFacts_data() { addStandardMims(); }
    void everyElementIsThatOfTheFacts()
    {
        QFETCH(int, mim);
        const QJsonObject facts = theStandardMims[mim].facts();
        if (facts.isEmpty())
            QSKIP(theMissingFacts);
        const FactsOutline expected(facts);
        QCOMPARE(expected.unknownFacts(), QStringList());
        const Outline actual = outlineOf(theStandardMims[mim]);
        for (int index = 0; index < qMin(expected.lines().size(), actual.size()); ++index)
            QVERIFY2(actual[index] == expected.lines()[index], qPrintable(actual.mid(qMax(0, index - 5), 6).join('\n') +
                                                                          "\ninstead of\n" + expected.lines()[index]));
        QCOMPARE(actual.size(), expected.lines().size());
        // The reader's test compares the other counts.
        QCOMPARE(countOf(actual, "referenceDataType"), facts["counts"].toObject()["reference"].toInt(-1));
    }

    // What the readers leave out, for where there is no file of facts.
    void elementsThatNoReaderTakesAreThere_data()
    {
        QTest::addColumn<int>("mim");
        QTest::addColumn<QString>("pattern"); // of a line of the outline, less its indent
        QTest::addColumn<int>("count");
        const struct
        {
            const char* pattern;
            int counts[2]; // by place in the table of models
        } theCounts[] = {
            {"objectModel xsi:schemaLocation=.* .*", {1, 1}    },
            {"dimensions",                           {50, 23}  },
            {"dimension: HLAfederate",               {49, 22}  },
            {"dimension: HLAserviceGroup",           {1, 1}    },
            {"valueRequired: true",                  {0, 58}   },
            {"valueRequired: false",                 {0, 1}    },
            {"updateCondition: \\(prose\\)",         {15, 23}  },
            {"dimension notes=MOM1",                 {1, 0}    },
            {"dimension noteReferences=MOM1",        {0, 1}    },
            {"inputDataTypes",                       {0, 5}    },
            {"inputDataDescription: \\(prose\\)",    {0, 5}    },
            {"outputDataSemantics: NA",              {0, 5}    },
            {"referenceDataType",                    {0, 2}    },
            {"referenceClass: HLAobjectRoot.*",      {0, 2}    },
            {"referencedAttribute: HLA.*Handle",     {0, 2}    },
            {"variantRecordDataTypes",               {1, 1}    },
            {"semantics: \\(prose\\)",               {286, 355}},
        };
        for (int mim : {0, 1})
            for (const auto& row : theCounts)
                QTest::addRow("%s %s", theStandardMims[mim].year, row.pattern) << mim << row.pattern << row.counts[mim];
    }
    void elementsThatNoReaderTakesAreThere()
    {
        QFETCH(int, mim);
        QFETCH(QString, pattern);
        QFETCH(int, count);
        QCOMPARE(countOf(outlineOf(theStandardMims[mim]), pattern), count);
    }
};

QX_REGISTER_TEST(TestStandardMimText)
#include "testStandardMimText.moc"
