#include "registerTest.h"
#include "testSupport.h"

#include "fileGenerator/omtEnvReader.h"
#include "fileGenerator/omtEnvWriter.h"
#include "foundation/exception.h"
#include "foundation/restored.h"
#include "omtReader/omtTree.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QTreeWidget>

#include <functional>
#include <memory>
#include <optional>
#include <sstream>

namespace
{

// The namespace of the 2010 form with the given content.
QByteArray model(const QByteArray& content, const QByteArray& name = "Test")
{
    return "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">"
           "<modelIdentification><name>" +
           name + "</name></modelIdentification>" + content + "</objectModel>\n";
}

QByteArray objectClasses(const QByteArray& content)
{
    return "<objects><objectClass><name>HLAobjectRoot</name>" + content + "</objectClass></objects>";
}

QByteArray interactionClasses(const QByteArray& content)
{
    return "<interactions><interactionClass><name>HLAinteractionRoot</name>" + content +
           "</interactionClass></interactions>";
}

QByteArray objectClass(const QByteArray& name, const QByteArray& content = "")
{
    return "<objectClass><name>" + name + "</name>" + content + "</objectClass>";
}

QByteArray interactionClass(const QByteArray& name, const QByteArray& content = "")
{
    return "<interactionClass><name>" + name + "</name>" + content + "</interactionClass>";
}

void printItem(const QTreeWidgetItem* item, int indent, QString& result)
{
    result += QString(indent, ' ') + item->text(0) + (item->isExpanded() ? " open\n" : "\n");
    for (int i = 0; i < item->childCount(); ++i)
        printItem(item->child(i), indent + 1, result);
}

QString print(const QTreeWidget& list)
{
    QString result;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        printItem(list.topLevelItem(i), 0, result);
    return result;
}

// What the map says, sorted.
QString print(const DtOMTEnvReader::DtNodeMap& map)
{
    QStringList lines;
    for (const auto& [item, node] : map)
        lines += item->text(0) + "=" + node->getFullName().c_str();
    lines.sort();
    return lines.join(' ');
}

} // namespace

class TestOmtEnvReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void xmlFileIsRead();
    void managementModelIsIncludedAsTheSettingSays();
    void otherExtensionsAreNotOpened_data();
    void otherExtensionsAreNotOpened();
    void omtFileIsReadByItsExtension();
    void causeOfAnUnreadOmtFileIsTold_data();
    void causeOfAnUnreadOmtFileIsTold();
    void missingFileIsTold();
    void malformedFileIsToldByItsFaultAlone();
    void missingModuleBehindASoundOneIsTold();
    void failedReadKeepsMapsAndEmptiesTree();
    void secondReadReplacesTree();

    void modulesAreMergedInOrder();
    void modulesOfForeignExtensionGiveNoTreeButOk_data();
    void modulesOfForeignExtensionGiveNoTreeButOk();
    void failedModulesGiveNoTreeButOk();
    void errorTextGetsItsLineEnd();
    void emptyListOfModulesGivesNoTreeButOk();

    void typedModulesAreMerged();
    void typedModulesAreNotChosenByExtension();
    void typedModulesOfAnotherTypeFail();
    void onlyTheFirstOmtFileIsRead();
    void onlyTheFirstOldXmlFileIsRead();
    void emptyListGivesNoTree_data();
    void emptyListGivesNoTree();
    void failedTypedReadEmptiesTreeAndMaps_data();
    void failedTypedReadEmptiesTreeAndMaps();
    void unknownTypeKeepsTheTreeAndClearsTheMaps();

    void objectListShowsAllClassesOpen();
    void interactionListShowsAllClassesOpen();
    void rootWithoutClassesIsASingleClosedItem();
    void modelWithoutRootAddsNothing();
    void mapsLeadFromItemToClass();
    void givenParentIsNotUsed();
    void namesAreShownAsUtf8();
    void objectListWithoutTreeThrows();
    void interactionListWithoutTreeThrows();

private:
    DtFilename file(const QString& name, const QByteArray& content) const
    {
        writeTextFile(myDirectory->filePath(name), content);
        return DtFilename(myDirectory->filePath(name).toUtf8().constData());
    }
    DtOMTTree* keep(DtOMTTree* tree)
    {
        myTrees.emplace_back(tree);
        return tree;
    }
    void readModel(DtOMTEnvReader& reader, const QByteArray& content);

    std::unique_ptr<QTemporaryDir> myDirectory;
    std::vector<std::unique_ptr<DtOMTTree>> myTrees;
    std::optional<DtRestored<DtSettings>> mySettings;
};

void TestOmtEnvReader::init()
{
    myDirectory = std::make_unique<QTemporaryDir>();
    QVERIFY(myDirectory->isValid());
    mySettings.emplace(DtSettings::instance());
    DtOMTEnvWriter::setMIMincluded(false);
}

void TestOmtEnvReader::cleanup()
{
    mySettings.reset();
    myTrees.clear();
}

void TestOmtEnvReader::readModel(DtOMTEnvReader& reader, const QByteArray& content)
{
    bool ok = false;
    QVERIFY(keep(reader.readFile(file("m.xml", model(content)), ok)) != nullptr);
    QVERIFY(ok);
}

void TestOmtEnvReader::xmlFileIsRead()
{
    DtOMTEnvReader reader;
    QVERIFY(reader.tree() == nullptr);
    bool ok = false;
    DtOMTTree* tree = keep(reader.readFile(file("m.xml", model(objectClasses(objectClass("Ship")), "Fleet")), ok));
    QVERIFY(ok && tree != nullptr);
    QCOMPARE(reader.tree(), tree);
    QCOMPARE(QString(tree->getName().c_str()), QString("Fleet"));
    QVERIFY(tree->getObjectClassNode("HLAobjectRoot.Ship") != nullptr);
    QVERIFY(tree->getObjectClassNode("HLAobjectRoot.HLAmanager") == nullptr);
}

void TestOmtEnvReader::managementModelIsIncludedAsTheSettingSays()
{
    DtOMTEnvWriter::setMIMincluded(true);
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Ship")));
    QVERIFY(reader.tree()->getObjectClassNode("HLAobjectRoot.Ship") != nullptr);
    QVERIFY(reader.tree()->getObjectClassNode("HLAobjectRoot.HLAmanager") != nullptr);
}

void TestOmtEnvReader::otherExtensionsAreNotOpened_data()
{
    QTest::addColumn<QString>("fileName");
    for (const char* name : {"m.fdd", "m.XML", "m.Xml", "m.OMT", "m", "m.xml.txt"})
        QTest::newRow(name) << name;
}

void TestOmtEnvReader::otherExtensionsAreNotOpened()
{
    QFETCH(QString, fileName);
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = true;
    QVERIFY(reader.readFile(file(fileName, model(objectClasses(""))), ok) == nullptr);
    QVERIFY(!ok);
    QVERIFY(reader.tree() == nullptr);
    QCOMPARE(warnings.text(), QString());
}

void TestOmtEnvReader::omtFileIsReadByItsExtension()
{
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = false;
    const DtOMTTree* tree = keep(reader.readFile(file("m.omt", "(ObjectModel (Name \"Fleet\"))"), ok));
    QVERIFY(ok && tree != nullptr && reader.tree() == tree);
    QVERIFY(tree->getName() == "Fleet");
    QCOMPARE(int(tree->hlaVersion()), 1);
    QCOMPARE(warnings.text(), QString());
}

void TestOmtEnvReader::causeOfAnUnreadOmtFileIsTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("cause");
    const struct
    {
        const char* name;
        QByteArray text;
        QString cause;
    } theRows[] = {
        {"empty",     "",                                               "OMT Input file is empty\n"         },
        {"no model",  "(a) (b)",                                        "Could not find ObjectModel tag\n"  },
        {"no list",   "(ObjectModel . a)",                              "Could not find ObjectModel tree\n" },
        {"malformed", "(ObjectModel (Class (Name \"Ship\") (ID . 1)))", "Badly formatted ID in Class Ship\n"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.text << row.cause;
}

void TestOmtEnvReader::causeOfAnUnreadOmtFileIsTold()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, cause);
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = true;
    QVERIFY(reader.readFile(file("m.omt", text), ok) == nullptr);
    QVERIFY(!ok && reader.tree() == nullptr);
    QCOMPARE(warnings.text(), cause);
}

void TestOmtEnvReader::missingFileIsTold()
{
    const DtWithEnvironment unset("RTI_CONFIG", nullptr);
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = true;
    QVERIFY(reader.readFile(DtFilename("missing.xml"), ok) == nullptr);
    QVERIFY(!ok);
    QCOMPARE(warnings.text(), QString("RTI_CONFIG environment variable unbound\nNo such FED file: missing.xml\n"));
}

void TestOmtEnvReader::malformedFileIsToldByItsFaultAlone()
{
    const DtWithEnvironment unset("RTI_CONFIG", nullptr);
    const DtFilename malformed = file("m.xml", model("<objects>"));
    const QRegularExpression onlyFault(QStringLiteral("^[^\n]*m\\.xml:2: [^\n]+\n$"));
    for (const auto& read :
         std::initializer_list<std::function<DtOMTTree*(DtOMTEnvReader&, bool&)>>{
             [&](DtOMTEnvReader&reader, bool&ok) { return reader.readFile(malformed, ok); },
             [&](DtOMTEnvReader&reader, bool&ok) {
                 return reader.readFiles({file("a.xml", model("")), malformed}, ok);
             },
             [&](DtOMTEnvReader&reader, bool&ok) { return reader.readMultipleFiles({malformed}, ok, DtFom1516); },
             [&](DtOMTEnvReader&reader, bool&ok) { return reader.readMultipleFiles({malformed}, ok, DtFomEvolved); }})
    {
        const DtCapture warnings(DtWarn);
        DtOMTEnvReader reader;
        bool ok = true;
        QVERIFY(read(reader, ok) == nullptr);
        QVERIFY2(onlyFault.match(warnings.text()).hasMatch(), qPrintable(warnings.text()));
    }
}

// The fault of the first read says nothing of the second.
void TestOmtEnvReader::missingModuleBehindASoundOneIsTold()
{
    const DtWithEnvironment unset("RTI_CONFIG", nullptr);
    DtOMTEnvReader reader;
    bool ok = true;
    const DtFilename sound = file("a.xml", model(""));
    {
        const DtCapture warnings(DtWarn);
        reader.readFiles({sound, file("m.xml", model("<objects>"))}, ok);
    }
    const DtCapture warnings(DtWarn);
    QVERIFY(reader.readFiles({sound, DtFilename("missing.xml")}, ok) == nullptr);
    QCOMPARE(warnings.text(), QString("RTI_CONFIG environment variable unbound\nNo such FED file: missing.xml\n"));
}

void TestOmtEnvReader::failedReadKeepsMapsAndEmptiesTree()
{
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Ship")));
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    bool ok = true;
    QVERIFY(reader.readFile(file("bad.xml", "<"), ok) == nullptr);
    QVERIFY(reader.tree() == nullptr);
    QCOMPARE(reader.objectWidgetToRootNodeMap().size(), std::size_t(1));
}

void TestOmtEnvReader::secondReadReplacesTree()
{
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Ship")));
    const DtOMTTree* first = reader.tree();
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    readModel(reader, objectClasses(objectClass("Boat")));
    QVERIFY(reader.tree() != first);
    QVERIFY(first->getObjectClassNode("HLAobjectRoot.Ship") != nullptr); // not deleted
    QVERIFY(reader.objectWidgetToRootNodeMap().empty());
}

void TestOmtEnvReader::modulesAreMergedInOrder()
{
    DtOMTEnvReader reader;
    bool ok = false;
    DtOMTTree* tree = keep(reader.readFiles({file("a.xml", model(objectClasses(objectClass("Ship")), "A")),
                                             file("b.fdd", model(objectClasses(objectClass("Boat")), "B"))},
                                            ok));
    QVERIFY(ok && tree != nullptr);
    QCOMPARE(reader.tree(), tree);
    QCOMPARE(QString(tree->getName().c_str()), QString("A"));
    QVERIFY(tree->getObjectClassNode("HLAobjectRoot.Ship") != nullptr);
    QVERIFY(tree->getObjectClassNode("HLAobjectRoot.Boat") != nullptr);
    QCOMPARE(int(tree->hlaVersion()), 0);
}

void TestOmtEnvReader::modulesOfForeignExtensionGiveNoTreeButOk_data()
{
    QTest::addColumn<QString>("fileName");
    for (const char* name : {"a.fdd", "a.omt", "a.XML", "a"})
        QTest::newRow(name) << name;
}

void TestOmtEnvReader::modulesOfForeignExtensionGiveNoTreeButOk()
{
    QFETCH(QString, fileName);
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = false;
    QVERIFY(reader.readFiles({file(fileName, model(objectClasses(""))), file("b.xml", model(objectClasses("")))}, ok) ==
            nullptr);
    QVERIFY(ok);
    QCOMPARE(warnings.text(), QString());
}

void TestOmtEnvReader::failedModulesGiveNoTreeButOk()
{
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = false;
    QVERIFY(reader.readFiles({file("a.xml", model(objectClasses(""))), DtFilename("missing.xml")}, ok) == nullptr);
    QVERIFY(ok);
    QVERIFY(warnings.text().endsWith("No such FED file: missing.xml\n"));
}

void TestOmtEnvReader::errorTextGetsItsLineEnd()
{
    const DtWithEnvironment root("RTI_CONFIG", "/");
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = false;
    reader.readMultipleFiles({DtFilename("missing.xml")}, ok, DtFomEvolved);
    QCOMPARE(warnings.text(), QString("No such FED file: missing.xml\n"));
}

void TestOmtEnvReader::emptyListOfModulesGivesNoTreeButOk()
{
    DtOMTEnvReader reader;
    bool ok = false;
    QVERIFY(reader.readFiles({}, ok) == nullptr);
    QVERIFY(ok);
}

void TestOmtEnvReader::typedModulesAreMerged()
{
    DtOMTEnvReader reader;
    bool ok = false;
    DtOMTTree* tree = keep(reader.readMultipleFiles({file("a.xml", model(objectClasses(objectClass("Ship")), "A")),
                                                     file("b.xml", model(objectClasses(objectClass("Boat")), "B"))},
                                                    ok, DtFomEvolved));
    QVERIFY(ok && tree != nullptr);
    QCOMPARE(int(tree->hlaVersion()), 3);
    QVERIFY(tree->getObjectClassNode("HLAobjectRoot.Ship") != nullptr);
    QVERIFY(tree->getObjectClassNode("HLAobjectRoot.Boat") != nullptr);
}

void TestOmtEnvReader::typedModulesAreNotChosenByExtension()
{
    DtOMTEnvReader reader;
    bool ok = false;
    QVERIFY(keep(reader.readMultipleFiles({file("a.fdd", model(objectClasses("")))}, ok, DtFomEvolved)) != nullptr);
    QVERIFY(ok);
}

void TestOmtEnvReader::typedModulesOfAnotherTypeFail()
{
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = true;
    QVERIFY(reader.readMultipleFiles({file("a.xml", model(objectClasses("")))}, ok, DtFomHla4) == nullptr);
    QVERIFY(!ok);
    QVERIFY(warnings.text().contains("FOM file does not match expected type\n"));
}

void TestOmtEnvReader::onlyTheFirstOmtFileIsRead()
{
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = false;
    const DtOMTTree* tree = keep(reader.readMultipleFiles(
        {file("a.omt", "(ObjectModel (Name \"A\"))"), DtFilename("missing.omt")}, ok, DtFomOmt13));
    QVERIFY(ok && tree != nullptr && tree->getName() == "A");
    QCOMPARE(warnings.text(), QString());
}

void TestOmtEnvReader::onlyTheFirstOldXmlFileIsRead()
{
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = false;
    const DtOMTTree* tree = keep(reader.readMultipleFiles(
        {file("a.xml", "<objectModel name=\"A\"/>"), DtFilename("missing.xml")}, ok, DtFom1516));
    QVERIFY(ok && tree != nullptr && tree->getName() == "A");
    QCOMPARE(int(tree->hlaVersion()), 2);
    QCOMPARE(warnings.text(), QString());
}

void TestOmtEnvReader::emptyListGivesNoTree_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {1, 2, 3, 4})
        QTest::addRow("%d", type) << type;
}

void TestOmtEnvReader::emptyListGivesNoTree()
{
    QFETCH(int, type);
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    bool ok = true;
    QVERIFY(reader.readMultipleFiles({}, ok, static_cast<DtFomType>(type)) == nullptr);
    QVERIFY(!ok);
    QCOMPARE(warnings.text(), QString());
}

void TestOmtEnvReader::failedTypedReadEmptiesTreeAndMaps_data()
{
    emptyListGivesNoTree_data();
}

void TestOmtEnvReader::failedTypedReadEmptiesTreeAndMaps()
{
    QFETCH(int, type);
    const DtCapture warnings(DtWarn);
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Ship")) + interactionClasses(interactionClass("Fire")));
    const DtOMTTree* before = reader.tree();
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    reader.constructInteractionListView(&list, nullptr);
    bool ok = true;
    QVERIFY(reader.readMultipleFiles({file("bad", "<objectModel>")}, ok, static_cast<DtFomType>(type)) == nullptr);
    QVERIFY(!ok);
    QVERIFY(reader.tree() == nullptr);
    QVERIFY(reader.objectWidgetToRootNodeMap().empty() && reader.interactionWidgetToRootNodeMap().empty());
    QVERIFY(before->getObjectClassNode("HLAobjectRoot.Ship") != nullptr); // not deleted
}

void TestOmtEnvReader::unknownTypeKeepsTheTreeAndClearsTheMaps()
{
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Ship")) + interactionClasses(interactionClass("Fire")));
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    reader.constructInteractionListView(&list, nullptr);
    bool ok = true;
    QCOMPARE(reader.readMultipleFiles({DtFilename("missing.xml")}, ok, DtFomUnknown), reader.tree());
    QVERIFY(!ok);
    QVERIFY(reader.tree() != nullptr);
    QVERIFY(reader.objectWidgetToRootNodeMap().empty() && reader.interactionWidgetToRootNodeMap().empty());
}

void TestOmtEnvReader::objectListShowsAllClassesOpen()
{
    DtOMTEnvReader reader;
    readModel(reader,
              objectClasses(objectClass("Vehicle", objectClass("Ship") + objectClass("Boat")) + objectClass("Bird")));
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    QCOMPARE(print(list), QString("Objects open\n Vehicle open\n  Ship\n  Boat\n Bird\n"));
}

void TestOmtEnvReader::interactionListShowsAllClassesOpen()
{
    DtOMTEnvReader reader;
    readModel(reader, interactionClasses(interactionClass("Fire", interactionClass("Salvo"))));
    QTreeWidget list;
    reader.constructInteractionListView(&list, nullptr);
    QCOMPARE(print(list), QString("Interactions open\n Fire open\n  Salvo\n"));
}

void TestOmtEnvReader::rootWithoutClassesIsASingleClosedItem()
{
    DtOMTEnvReader reader;
    readModel(reader, objectClasses("") + interactionClasses(""));
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    reader.constructInteractionListView(&list, nullptr);
    QCOMPARE(print(list), QString("Objects\nInteractions\n"));
}

void TestOmtEnvReader::modelWithoutRootAddsNothing()
{
    DtOMTEnvReader reader;
    readModel(reader, "");
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    reader.constructInteractionListView(&list, nullptr);
    QCOMPARE(print(list), QString());
}

void TestOmtEnvReader::mapsLeadFromItemToClass()
{
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Vehicle", objectClass("Ship"))) +
                          interactionClasses(interactionClass("Fire")));
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    reader.constructInteractionListView(&list, nullptr);
    const DtOMTEnvReader& constReader = reader;
    QCOMPARE(print(constReader.objectWidgetToRootNodeMap()),
             QString("Ship=HLAobjectRoot.Vehicle.Ship Vehicle=HLAobjectRoot.Vehicle"));
    QCOMPARE(print(constReader.interactionWidgetToRootNodeMap()), QString("Fire=HLAinteractionRoot.Fire"));
    QCOMPARE(&reader.objectWidgetToRootNodeMap(), &constReader.objectWidgetToRootNodeMap());
    QCOMPARE(&reader.interactionWidgetToRootNodeMap(), &constReader.interactionWidgetToRootNodeMap());
}

void TestOmtEnvReader::givenParentIsNotUsed()
{
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Ship")));
    QTreeWidget list;
    auto* other = new QTreeWidgetItem(&list, QStringList("Other"));
    reader.constructObjectListView(&list, other);
    QCOMPARE(print(list), QString("Other\nObjects open\n Ship\n"));
}

void TestOmtEnvReader::namesAreShownAsUtf8()
{
    DtOMTEnvReader reader;
    readModel(reader, objectClasses(objectClass("Sch\xc3\xb6n")));
    QTreeWidget list;
    reader.constructObjectListView(&list, nullptr);
    QCOMPARE(print(list), QString::fromUtf8("Objects open\n Sch\xc3\xb6n\n"));
}

void TestOmtEnvReader::objectListWithoutTreeThrows()
{
    DtOMTEnvReader reader;
    QTreeWidget list;
    try
    {
        reader.constructObjectListView(&list, nullptr);
        QFAIL("no exception");
    }
    catch (const DtException& exception)
    {
        QCOMPARE(QString(exception.what()),
                 QString("DtException: readFile() must be called before constructing object list view."));
        std::ostringstream out;
        out << exception;
        const QString whole = QString::fromStdString(out.str());
        QVERIFY(whole.contains("virtual void DtOMTEnvReader::constructObjectListView(QTreeWidget*, QTreeWidgetItem*)"));
        QVERIFY(whole.contains("[omtEnvReader.cxx:"));
    }
}

void TestOmtEnvReader::interactionListWithoutTreeThrows()
{
    DtOMTEnvReader reader;
    QTreeWidget list;
    try
    {
        reader.constructInteractionListView(&list, nullptr);
        QFAIL("no exception");
    }
    catch (const DtException& exception)
    {
        QCOMPARE(QString(exception.what()),
                 QString("DtException: readFile() must be called before constructing interaction list view."));
        QVERIFY(QString(exception.where().c_str())
                    .contains("virtual void DtOMTEnvReader::constructInteractionListView(QTreeWidget*, "
                              "QTreeWidgetItem*)"));
    }
}

QX_REGISTER_TEST(TestOmtEnvReader)
#include "testOmtEnvReader.moc"
