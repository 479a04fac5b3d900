// The standard management models inside the program, read back with the program's own readers.

#include "omtReader/omtTree.h"
#include "registerTest.h"
#include "standardMims.h"
#include "testSupport.h"

#include <QtCore/QJsonArray>

namespace
{
std::unique_ptr<DtOMTTree> readMim(const StandardMim& mim)
{
    const QByteArray text = mim.text();
    const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
    if (document == nullptr)
        qFatal("malformed management model");
    xmlNode* root = xmlDocGetRootElement(document.get());
    return std::unique_ptr<DtOMTTree>(mim.makeReader()->processObjectModel(root));
}

QString text(const DtString& value)
{
    return QString::fromUtf8(value.c_str());
}

QString joined(const QStringList& words)
{
    return words.join('|');
}

QString joined(const std::list<DtString>& texts)
{
    QStringList words;
    for (const DtString& each : texts)
        words += text(each);
    return words.join(',');
}

// A condition in words is the model's own; the standard's facts hold those that are a token.
QString condition(const DtString& value)
{
    return value == "NA" || value == "N/A" || value == "HLAsetTiming.HLAreportPeriod" ? text(value) : QString();
}

// Facts of the tree as lines, in document order. A class stands behind its subclasses in the tree's list, so the
// walk goes over the children.
void addObject(const DtObjectClassFedNode& node, QStringList& lines)
{
    lines += joined({"object", text(node.getFullName()), text(node.getSharing())});
    for (const DtAttributeFedNode* each : node.getAttributes())
        lines +=
            joined({"attribute", text(each->getName()), text(each->getDatatype()), text(each->getUpdateType()),
                    condition(each->getUpdateCondition()), text(each->getTransferAccept()), text(each->getSharing()),
                    text(each->getTransportation()), text(each->getOrder()), joined(each->getDimensions())});
    for (const DtObjectClassFedNode* child : node.getChildObjects())
        addObject(*child, lines);
}

void addInteraction(const DtInteractionClassFedNode& node, QStringList& lines)
{
    lines += joined({"interaction", text(node.getFullName()), text(node.getSharing()), text(node.getTransportation()),
                     text(node.getOrder()), joined(node.getDimensions())});
    for (const DtParameterFedNode* each : node.getParameters())
        lines += joined({"parameter", text(each->getName()), text(each->getDatatype())});
    for (const DtInteractionClassFedNode* child : node.getChildInteractions())
        addInteraction(*child, lines);
}

template <typename Iterator>
void addNames(const char* kind, Iterator begin, Iterator end, QStringList& lines)
{
    for (; begin != end; ++begin)
        lines += joined({kind, text((*begin)->getName())});
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
    addNames("variant", tree.getVariantDatatypeNodeList(), tree.getVariantDatatypeEndNode(), lines);
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
    addNames("tag", tree.getTagNodeList(), tree.getTagEndNode(), lines);
    addNames("synchronization", tree.getSynchroNodeList(), tree.getSynchroEndNode(), lines);
    addNames("switch", tree.getSwitchNodeList(), tree.getSwitchEndNode(), lines);
    addNames("updateRate", tree.getUpdateRateNodeList(), tree.getUpdateRateEndNode(), lines);
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
                        {"name", "dataType", "updateType", "updateCondition", "ownership", "sharing", "transportation",
                         "order"}) +
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
    addMembers(facts, "variantRecordDataTypes", "variant", {"name"}, lines);
    addMembers(facts, "dimensions", "dimension", {"name", "dataType", "upperBound", "normalization", "value"}, lines);
    addMembers(facts, "transportations", "transportation", {"name", "reliable"}, lines);
    addMembers(facts, "notes", "note", {"label"}, lines);
    addMembers(facts, "tags", "tag", {"name"}, lines);
    addMembers(facts, "synchronizations", "synchronization", {"name"}, lines);
    addMembers(facts, "switches", "switch", {"name"}, lines);
    addMembers(facts, "updateRates", "updateRate", {"name"}, lines);
    return lines;
}

int countOf(const QStringList& lines, const char* kind)
{
    return lines.filter(QRegularExpression("^" + QString::fromLatin1(kind) + "\\|")).size();
}

bool isKnown(const DtOMTTree& tree, const DtString& type)
{
    return tree.getArrayDatatypeNode(type) || tree.getSimpleDatatypeNode(type) ||
           tree.getEnumeratedDatatypeNode(type) || tree.getFixedDatatypeNode(type) ||
           tree.getBasicDataRepresentationNode(type) || tree.getReferenceDatatypeNode(type);
}
} // namespace

class TestStandardMim : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWithoutAWarning_data() { addStandardMims(); }
    void readsWithoutAWarning()
    {
        QFETCH(int, mim);
        const DtCapture warnings(DtWarn);
        QCOMPARE(readMim(theStandardMims[mim])->hlaVersion(), theStandardMims[mim].version);
        QCOMPARE(warnings.text(), QString());
    }

    void holdsTheCountsOfTheStandard_data()
    {
        QTest::addColumn<int>("mim");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("countKey");
        QTest::addColumn<int>("count");
        const struct
        {
            const char *kind, *countKey;
            int counts[2]; // by place in the table of models
        } theCounts[] = {
            {"object",          "objectClasses",      {4, 4}    },
            {"attribute",       "attributes",         {45, 59}  },
            {"interaction",     "interactionClasses", {85, 93}  },
            {"parameter",       "parameters",         {101, 126}},
            {"basic",           "basic",              {13, 20}  },
            {"simple",          "simple",             {10, 13}  },
            {"enumerated",      "enumerated",         {9, 11}   },
            {"enumerator",      "enumerators",        {30, 100} },
            {"array",           "array",              {17, 28}  },
            {"fixed",           "fixedRecord",        {4, 5}    },
            {"field",           "fields",             {8, 11}   },
            {"variant",         "variantRecord",      {0, 0}    },
            {"dimension",       "dimensions",         {2, 5}    },
            {"transportation",  "transportations",    {2, 2}    },
            {"note",            "",                   {1, 1}    },
            {"tag",             "",                   {0, 0}    },
            {"synchronization", "",                   {0, 0}    },
            {"switch",          "",                   {0, 0}    },
            {"updateRate",      "",                   {0, 0}    },
        };
        for (int mim : {0, 1})
            for (const auto& row : theCounts)
                QTest::addRow("%s %s", theStandardMims[mim].year, row.kind)
                    << mim << row.kind << row.countKey << row.counts[mim];
    }
    void holdsTheCountsOfTheStandard()
    {
        QFETCH(int, mim);
        QFETCH(QString, kind);
        QFETCH(QString, countKey);
        QFETCH(int, count);
        QCOMPARE(countOf(treeFacts(*readMim(theStandardMims[mim])), kind.toLatin1().constData()), count);
        if (countKey.isEmpty())
            return; // the file does not count these
        const QJsonObject facts = theStandardMims[mim].facts();
        if (facts.isEmpty())
            QSKIP(theMissingFacts);
        QCOMPARE(facts["counts"].toObject()[countKey].toInt(-1), count);
    }

    void holdsEveryFactInDocumentOrder_data() { addStandardMims(); }
    void holdsEveryFactInDocumentOrder()
    {
        QFETCH(int, mim);
        const QJsonObject facts = theStandardMims[mim].facts();
        if (facts.isEmpty())
            QSKIP(theMissingFacts);
        const QStringList expected = fileFacts(facts);
        const QStringList actual = treeFacts(*readMim(theStandardMims[mim]));
        for (int index = 0; index < qMin(expected.size(), actual.size()); ++index)
            QCOMPARE(actual[index], expected[index]);
        QCOMPARE(actual.size(), expected.size());
    }

    void everyReferencedDatatypeIsThere_data() { addStandardMims(); }
    void everyReferencedDatatypeIsThere()
    {
        QFETCH(int, mim);
        const std::unique_ptr<DtOMTTree> tree = readMim(theStandardMims[mim]);
        QSet<QString> missing;
        for (const QString& line : treeFacts(*tree))
        {
            const QStringList words = line.split('|');
            static const QStringList theUsers{"attribute", "parameter", "field", "array", "simple", "enumerated"};
            if (theUsers.contains(words[0]) && !isKnown(*tree, words[2].toUtf8().constData()))
                missing += words[2];
        }
        QCOMPARE(missing, QSet<QString>());
    }
};

QX_REGISTER_TEST(TestStandardMim)
#include "testStandardMim.moc"
