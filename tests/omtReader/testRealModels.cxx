// Reads the real object models beside the repository, where there are any.

#include "modelText.h"
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
} // namespace

class TestRealModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nodesOfEachModelAreCounted_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << QString();
        for (const char* module : theModules)
            QTest::newRow(module) << QString("1516-2010/rpr2/RPR-%1_v2.0.xml").arg(module);
        for (const char* name :
             {"1516-2010/RestaurantFOMmodule.xml", "1516-2010/SineExample.xml", "1516-2025/NETN-BASE.xml",
              "1516-2025/NETN-MRM.xml", "1516-2025/RestaurantFOMmodule-2025.xml"})
            QTest::newRow(name) << QString(name);
    }

    void nodesOfEachModelAreCounted()
    {
        QFETCH(QString, name);
        const QString directory = QStringLiteral(QX_SHARED_DIR "/models/");
        if (name.isEmpty() || !QFile::exists(directory + name))
        {
            if (!name.isEmpty())
                qInfo("no real models here");
            return;
        }
        DtXMLFileReader reader;
        reader.includeMIM(false);
        DtCapture capture(DtWarn);
        const std::unique_ptr<DtOMTTree> tree(reader.readFile((directory + name).toUtf8().constData(), nullptr));
        QVERIFY2(tree != nullptr, reader.getLastError());
        QJsonObject expected =
            QJsonDocument::fromJson(readTextFile(directory + "counts.json")).object()[name].toObject();
        const QJsonObject counts = countsOf(*tree);
        for (const QString& key : counts.keys())
            QVERIFY2(
                counts[key] == expected[key],
                qPrintable(QString("%1: %2, not %3").arg(key).arg(counts[key].toInt()).arg(expected[key].toInt())));
    }

    void modulesMergeInTheirOrder()
    {
        std::vector<DtFilename> files;
        for (const char* module : theModules)
            files.emplace_back(modulePath(module).toUtf8().constData());
        if (!files.front().exists())
        {
            qInfo("no real models here");
            return;
        }
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
