// Reads the real object models beside the repository, where there are any.

#include "modelText.h"
#include "omtReader/omtFileReader.h"
#include "omtReader/xmlFileReader.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

namespace
{
const char* const theModules[] = {"Foundation", "Enumerations", "Base", "Physical", "Warfare", "Switches"};

QString modulePath(const QString& module)
{
    return QStringLiteral(QX_SHARED_DIR "/models/1516-2010/rpr2/RPR-%1_v2.0.xml").arg(module);
}

template <typename Iterator, typename Count>
int sum(Iterator begin, Iterator end, Count count)
{
    int total = 0;
    for (; begin != end; ++begin)
        total += static_cast<int>(count(**begin));
    return total;
}

const auto each = [](const auto&) { return 1; };
const auto components = [](const auto& node)
{ return std::distance(node.getComponentNodeList(), node.getComponentNodeEnd()); };

QJsonObject countsOf(const DtOMTTree& tree)
{
    const auto classes = [&](auto count)
    { return sum(tree.getObjectClassNodeBegin(), tree.getObjectClassNodeEnd(), count); };
    const auto interactions = [&](auto count)
    { return sum(tree.getInteractionClassNodeBegin(), tree.getInteractionClassNodeEnd(), count); };
    const auto enumerated = [&](auto count)
    { return sum(tree.getEnumeratedDatatypeNodeList(), tree.getEnumeratedDatatypeEndNode(), count); };
    const auto fixed = [&](auto count)
    { return sum(tree.getFixedDatatypeNodeList(), tree.getFixedDatatypeEndNode(), count); };
    const auto variant = [&](auto count)
    { return sum(tree.getVariantDatatypeNodeList(), tree.getVariantDatatypeEndNode(), count); };
    const auto enumerators = [](const auto& node)
    { return std::distance(node.getEnumerationNodeList(), node.getEnumerationNodeEnd()); };
    QJsonObject counts;
    counts["object_classes"] = classes(each);
    counts["attributes"] = classes([](const auto& node) { return node.getAttributes().size(); });
    counts["interaction_classes"] = interactions(each);
    counts["parameters"] = interactions([](const auto& node) { return node.getParameters().size(); });
    counts["basic"] = sum(tree.getBasicDataRepresentationNodeList(), tree.getBasicDataRepresentationEndNode(), each);
    counts["simple"] = sum(tree.getSimpleDatatypeNodeList(), tree.getSimpleDatatypeEndNode(), each);
    counts["enumerated"] = enumerated(each);
    counts["enumerators"] = enumerated(enumerators);
    counts["array"] = sum(tree.getArrayDatatypeNodeList(), tree.getArrayDatatypeEndNode(), each);
    counts["fixed"] = fixed(each);
    counts["fields"] = fixed(components);
    counts["variant"] = variant(each);
    counts["alternatives"] = variant(components);
    const auto complex = [&](auto count)
    { return sum(tree.getComplexDatatypeNodeList(), tree.getComplexDatatypeEndNode(), count); };
    counts["complex"] = complex(each);
    counts["components"] = complex(components);
    counts["update_rates"] = sum(tree.getUpdateRateNodeList(), tree.getUpdateRateEndNode(), each);
    counts["sync"] = sum(tree.getSynchroNodeList(), tree.getSynchroEndNode(), each);
    counts["notes"] = sum(tree.getNoteNodeList(), tree.getNoteEndNode(), each);
    counts["dimensions"] = sum(tree.getDimensionNodeList(), tree.getDimensionEndNode(), each);
    counts["transportations"] = sum(tree.getTransportationNodeList(), tree.getTransportationEndNode(), each);
    counts["switches"] = sum(tree.getSwitchNodeList(), tree.getSwitchEndNode(), each);
    // White space between the tags is none of the file's.
    const auto tags = [](const auto& node) { return node.getName() == "text" ? 0 : 1; };
    counts["tags"] = sum(tree.getTagNodeList(), tree.getTagEndNode(), tags);
    return counts;
}

// A count that our readers give otherwise than a count of the file's elements, and the rule that it comes from.
struct DtDifference
{
    const char* model;
    const char* key;
    int more; // than in the file
    const char* rule;
};

const DtDifference theDifferences[] = {
    {"omt13/RPR_v2.0_excerpt.omt",     "object_classes",      1, "the reader adds the root"},
    {"omt13/RPR_v2.0_excerpt.omt",     "interaction_classes", 1, "the reader adds the root"},
    {"omt13/Restaurant_converted.omt", "object_classes",      1, "the reader adds the root"},
    {"omt13/Restaurant_converted.omt", "interaction_classes", 1, "the reader adds the root"},
};

int difference(const QString& model, const QString& key)
{
    for (const DtDifference& row : theDifferences)
        if (model == row.model && key == row.key)
            return row.more;
    return 0;
}

std::unique_ptr<DtOMTTree> readModel(const QString& path)
{
    const QByteArray file = path.toUtf8();
    if (path.endsWith(".omt"))
        return std::unique_ptr<DtOMTTree>(DtOMTFileReader().readFile(file.constData(), nullptr));
    DtXMLFileReader reader;
    reader.includeMIM(false);
    return std::unique_ptr<DtOMTTree>(reader.readFile(file.constData(), nullptr));
}

QJsonObject expectedCounts()
{
    const QString file = QStringLiteral(QX_SHARED_DIR "/models/counts.json");
    return QFile::exists(file) ? QJsonDocument::fromJson(readTextFile(file)).object() : QJsonObject();
}
} // namespace

class TestRealModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nodesOfEachModelAreCounted_data()
    {
        QTest::addColumn<QString>("name");
        if (expectedCounts().isEmpty())
            QTest::newRow("none") << QString();
        for (const QString& name : expectedCounts().keys())
            QTest::newRow(qPrintable(name)) << name;
    }

    void nodesOfEachModelAreCounted()
    {
        QFETCH(QString, name);
        if (name.isEmpty())
            QSKIP("The models are not here.");
        const DtCapture warnings(DtWarn);
        const std::unique_ptr<DtOMTTree> tree = readModel(QStringLiteral(QX_SHARED_DIR "/models/") + name);
        QVERIFY(tree != nullptr);
        const QJsonObject expected = expectedCounts()[name].toObject();
        const QJsonObject counts = countsOf(*tree);
        for (const QString& key : counts.keys())
        {
            const int count = expected[key].toInt() + difference(name, key);
            QVERIFY2(counts[key].toInt() == count,
                     qPrintable(QString("%1: %2, not %3").arg(key).arg(counts[key].toInt()).arg(count)));
        }
        QCOMPARE(warnings.text(), QString());
    }

    void modulesMergeInTheirOrder()
    {
        std::vector<DtFilename> files;
        for (const char* module : theModules)
            files.emplace_back(modulePath(module).toUtf8().constData());
        if (!files.front().exists())
            QSKIP("The models are not here.");
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFiles(files, DtFomEvolved, nullptr));
        QVERIFY2(tree != nullptr, reader.getLastError());
        QVERIFY(tree->getName().findString("Foundation") < tree->getName().length());
        QCOMPARE(tree->getReferences().back().type.stdString(), std::string("Composed_From"));
        const QJsonObject counts = countsOf(*tree);
        QCOMPARE(counts["enumerators"].toInt(), 3954);
        QCOMPARE(counts["enumerated"].toInt(), 90);
        QCOMPARE(counts["switches"].toInt(), 11);
        // Base: root, BaseEntity and EmbeddedSystem; Physical adds the classes below BaseEntity.
        DtObjectClassFedNode* entity = tree->getObjectClassNode("HLAobjectRoot.BaseEntity");
        QVERIFY(entity != nullptr && entity->findAttribute("Spatial") != nullptr);
        QCOMPARE(toQt(tree->getObjectClassNode("HLAobjectRoot.BaseEntity.PhysicalEntity.Platform")->getFullName()),
                 QString("HLAobjectRoot.BaseEntity.PhysicalEntity.Platform"));
    }
};

QX_REGISTER_TEST(TestRealModels)
#include "testRealModels.moc"
