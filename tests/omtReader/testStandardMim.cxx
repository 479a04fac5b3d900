// The management model inside the program, read back with the program's own reader.

#include "registerTest.h"
#include "testSupport.h"

#include "omtReader/omtTree.h"
#include "omtReader/standardMim.h"
#include "omtReader/xmlEvolvedFileReader.h"
#include "omtReader/xmlFileReader.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

#include <libxml/tree.h>

#include <memory>

namespace
{
std::unique_ptr<DtOMTTree> readMim()
{
    xmlDoc* document = nullptr;
    DtString error;
    const DtFedReadStatus status =
        DtXMLFileReader::parseBuffer(reinterpret_cast<const char*>(theHLAeStandardMIM_xml),
                                     static_cast<int>(theHLAeStandardMIM_xml_len), &document, error);
    if (status != DtFedReadSuccess)
        return nullptr;
    xmlNode* root = xmlDocGetRootElement(document);
    DtXMLEvolvedFileReader reader(nullptr);
    std::unique_ptr<DtOMTTree> tree(reader.processObjectModel(root));
    xmlFreeDoc(document);
    return tree;
}

QString text(const DtString& value)
{
    return QString::fromUtf8(value.c_str());
}

QString joined(const QStringList& words)
{
    return words.join('|');
}

// Facts of the tree as lines, in document order. A class stands behind its subclasses in the tree's list, so the
// walk goes over the children.
void addObject(const DtObjectClassFedNode& node, QStringList& lines)
{
    lines += joined({"object", text(node.getFullName()), text(node.getSharing())});
    for (const DtAttributeFedNode* each : node.getAttributes())
    {
        QStringList dimensions;
        for (const DtString& dimension : each->getDimensions())
            dimensions += text(dimension);
        lines += joined({"attribute", text(each->getName()), text(each->getDatatype()), text(each->getUpdateType()),
                         text(each->getTransferAccept()), text(each->getSharing()), text(each->getTransportation()),
                         text(each->getOrder()), dimensions.join(',')});
    }
    for (const DtObjectClassFedNode* child : node.getChildObjects())
        addObject(*child, lines);
}

void addInteraction(const DtInteractionClassFedNode& node, QStringList& lines)
{
    QStringList dimensions;
    for (const DtString& dimension : node.getDimensions())
        dimensions += text(dimension);
    lines += joined({"interaction", text(node.getFullName()), text(node.getSharing()), text(node.getTransportation()),
                     text(node.getOrder()), dimensions.join(',')});
    for (const DtParameterFedNode* each : node.getParameters())
        lines += joined({"parameter", text(each->getName()), text(each->getDatatype())});
    for (const DtInteractionClassFedNode* child : node.getChildInteractions())
        addInteraction(*child, lines);
}

void addDatatypes(const DtOMTTree& tree, QStringList& lines)
{
    for (auto i = tree.getBasicDataRepresentationNodeList(); i != tree.getBasicDataRepresentationEndNode(); ++i)
        lines += joined({"basic", text((*i)->getName()), text((*i)->getSize()), text((*i)->getEndian())});
    for (auto i = tree.getSimpleDatatypeNodeList(); i != tree.getSimpleDatatypeEndNode(); ++i)
        lines += joined({"simple", text((*i)->getName()), text((*i)->getRepresentation()), text((*i)->getUnits()),
                         text((*i)->getResolution()), text((*i)->getAccuracy())});
    for (auto i = tree.getEnumeratedDatatypeNodeList(); i != tree.getEnumeratedDatatypeEndNode(); ++i)
    {
        lines += joined({"enumerated", text((*i)->getName()), text((*i)->getRepresentation())});
        for (auto e = (*i)->getEnumerationNodeList(); e != (*i)->getEnumerationNodeEnd(); ++e)
            lines += joined({"enumerator", text((*e)->getEnum()), QString::number((*e)->getNumber())});
    }
    for (auto i = tree.getArrayDatatypeNodeList(); i != tree.getArrayDatatypeEndNode(); ++i)
        lines += joined({"array", text((*i)->getName()), text((*i)->getDatatype()), text((*i)->getCardinality()),
                         text((*i)->getEncoding())});
    for (auto i = tree.getFixedDatatypeNodeList(); i != tree.getFixedDatatypeEndNode(); ++i)
    {
        lines += joined({"fixed", text((*i)->getName()), text((*i)->getEncoding())});
        for (auto f = (*i)->getComponentNodeList(); f != (*i)->getComponentNodeEnd(); ++f)
            lines += joined({"field", text((*f)->getName()), text((*f)->getDatatype())});
    }
}

void addRest(const DtOMTTree& tree, QStringList& lines)
{
    for (auto i = tree.getDimensionNodeList(); i != tree.getDimensionEndNode(); ++i)
        lines += joined({"dimension", text((*i)->getName()), text((*i)->getDatatype()), text((*i)->getUpperBound()),
                         text((*i)->getNormalization()), text((*i)->getValue())});
    for (auto i = tree.getTransportationNodeList(); i != tree.getTransportationEndNode(); ++i)
        lines += joined({"transportation", text((*i)->getName()), text((*i)->getReliable())});
    for (auto i = tree.getNoteNodeList(); i != tree.getNoteEndNode(); ++i)
        lines += joined({"note", text((*i)->getLabel())});
}

QStringList treeFacts(const DtOMTTree& tree)
{
    QStringList lines{joined({"model", text(tree.getName()), text(tree.getType()), text(tree.getVersionNo()),
                              text(tree.getModificationDate()), text(tree.getSecurityClassification()),
                              text(tree.getApplicationDomain())})};
    addObject(*tree.objectClassRoot(), lines);
    addInteraction(*tree.interactionClassRoot(), lines);
    addDatatypes(tree, lines);
    addRest(tree, lines);
    return lines;
}

// The same lines from the file of facts.
QString value(const QJsonObject& object, const char* key)
{
    return object[QLatin1String(key)].toVariant().toString();
}

QString list(const QJsonObject& object, const char* key)
{
    return object[QLatin1String(key)].toVariant().toStringList().join(',');
}

QString values(const char* kind, const QJsonObject& object, std::initializer_list<const char*> keys)
{
    QStringList words{QString::fromLatin1(kind)};
    for (const char* key : keys)
        words += value(object, key);
    return joined(words);
}

QString fullName(const QString& parent, const QJsonObject& object)
{
    return (parent.isEmpty() ? QString() : parent + ".") + value(object, "name");
}

void addObjectFacts(const QJsonObject& object, const QString& parent, QStringList& lines)
{
    const QString name = fullName(parent, object);
    lines += joined({"object", name, value(object, "sharing")});
    for (const QJsonValue& each : object["attributes"].toArray())
        lines += values("attribute", each.toObject(),
                        {"name", "dataType", "updateType", "ownership", "sharing", "transportation", "order"}) +
                 "|" + list(each.toObject(), "dimensions");
    for (const QJsonValue& child : object["children"].toArray())
        addObjectFacts(child.toObject(), name, lines);
}

void addInteractionFacts(const QJsonObject& object, const QString& parent, QStringList& lines)
{
    const QString name = fullName(parent, object);
    lines += joined({"interaction", name, value(object, "sharing"), value(object, "transportation"),
                     value(object, "order"), list(object, "dimensions")});
    for (const QJsonValue& each : object["parameters"].toArray())
        lines += values("parameter", each.toObject(), {"name", "dataType"});
    for (const QJsonValue& child : object["children"].toArray())
        addInteractionFacts(child.toObject(), name, lines);
}

void addMembers(const QJsonObject& facts, const char* section, const char* kind,
                std::initializer_list<const char*> keys, QStringList& lines)
{
    for (const QJsonValue& each : facts[QLatin1String(section)].toArray())
    {
        const QJsonObject item = each.toObject();
        lines += values(kind, item, keys);
        for (const QJsonValue& enumerator : item["enumerators"].toArray())
            lines +=
                joined({"enumerator", value(enumerator.toObject(), "name"), list(enumerator.toObject(), "values")});
        for (const QJsonValue& field : item["fields"].toArray())
            lines += values("field", field.toObject(), {"name", "dataType"});
    }
}

QStringList fileFacts(const QJsonObject& facts)
{
    QStringList lines{
        values("model", facts["modelIdentification"].toObject(),
               {"name", "type", "version", "modificationDate", "securityClassification", "applicationDomain"})};
    for (const QJsonValue& each : facts["objects"].toArray())
        addObjectFacts(each.toObject(), QString(), lines);
    for (const QJsonValue& each : facts["interactions"].toArray())
        addInteractionFacts(each.toObject(), QString(), lines);
    addMembers(facts, "basicDataRepresentations", "basic", {"name", "size", "endian"}, lines);
    addMembers(facts, "simpleDataTypes", "simple", {"name", "representation", "units", "resolution", "accuracy"},
               lines);
    addMembers(facts, "enumeratedDataTypes", "enumerated", {"name", "representation"}, lines);
    addMembers(facts, "arrayDataTypes", "array", {"name", "dataType", "cardinality", "encoding"}, lines);
    addMembers(facts, "fixedRecordDataTypes", "fixed", {"name", "encoding"}, lines);
    addMembers(facts, "dimensions", "dimension", {"name", "dataType", "upperBound", "normalization", "value"}, lines);
    addMembers(facts, "transportations", "transportation", {"name", "reliable"}, lines);
    addMembers(facts, "notes", "note", {"label"}, lines);
    return lines;
}

int countOf(const QStringList& lines, const char* kind)
{
    return lines.filter(QRegularExpression("^" + QString::fromLatin1(kind) + "\\|")).size();
}
} // namespace

class TestStandardMim : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWithoutAWarning()
    {
        const DtCapture warnings(DtWarn);
        QVERIFY(readMim() != nullptr);
        QCOMPARE(warnings.text(), QString());
    }

    void holdsTheCountsOfTheStandard_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("count");
        const std::pair<const char*, int> theCounts[] = {
            {"object",         4  },
            {"attribute",      45 },
            {"interaction",    85 },
            {"parameter",      101},
            {"basic",          13 },
            {"simple",         10 },
            {"enumerated",     9  },
            {"enumerator",     30 },
            {"array",          17 },
            {"fixed",          4  },
            {"field",          8  },
            {"dimension",      2  },
            {"transportation", 2  },
            {"note",           1  },
        };
        for (const auto& [kind, count] : theCounts)
            QTest::newRow(kind) << kind << count;
    }
    void holdsTheCountsOfTheStandard()
    {
        QFETCH(QString, kind);
        QFETCH(int, count);
        QCOMPARE(countOf(treeFacts(*readMim()), kind.toLatin1().constData()), count);
    }

    void holdsEveryFactInDocumentOrder()
    {
        const QByteArray file = readTextFile(QX_SHARED_DIR "/mim/mim2010.json");
        if (file.isEmpty())
        {
            qInfo("The file of facts is not here; the counts stand in another test.");
            return;
        }
        const QStringList expected = fileFacts(QJsonDocument::fromJson(file).object());
        const QStringList actual = treeFacts(*readMim());
        for (int index = 0; index < qMin(expected.size(), actual.size()); ++index)
            QCOMPARE(actual[index], expected[index]);
        QCOMPARE(actual.size(), expected.size());
    }

    void carriesItsAttribution()
    {
        const QByteArray text(reinterpret_cast<const char*>(theHLAeStandardMIM_xml),
                              static_cast<int>(theHLAeStandardMIM_xml_len));
        QVERIFY(text.contains("Reprinted with permission from IEEE 1516.1(TM)-2010"));
    }

    void everyReferencedDatatypeIsThere()
    {
        const std::unique_ptr<DtOMTTree> tree = readMim();
        for (const QString& line : treeFacts(*tree))
        {
            const QStringList words = line.split('|');
            if (words[0] != "attribute" && words[0] != "parameter" && words[0] != "field" && words[0] != "array")
                continue;
            const DtString type(words[2].toUtf8().constData());
            QVERIFY2(tree->getArrayDatatypeNode(type) || tree->getSimpleDatatypeNode(type) ||
                         tree->getEnumeratedDatatypeNode(type) || tree->getFixedDatatypeNode(type) ||
                         tree->getBasicDataRepresentationNode(type),
                     qPrintable(line));
        }
    }
};

QX_REGISTER_TEST(TestStandardMim)
#include "testStandardMim.moc"
