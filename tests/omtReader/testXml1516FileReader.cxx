#include "modelText.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <algorithm>

namespace
{
using DtPrint = QString (*)(DtOMTTree&); // the texts of the node that a test is about

// Each of the names as an attribute with its name for a text.
QByteArray attributesNamed(const QStringList& names)
{
    QByteArray text;
    for (const QString& name : names)
        text += " " + name.toUtf8() + "='" + name.toUtf8() + "'";
    return text;
}

QByteArray objects(const QByteArray& inRoot)
{
    return "<objects><objectClass name='HLAobjectRoot'>" + inRoot + "</objectClass></objects>";
}

QByteArray interactions(const QByteArray& inRoot)
{
    return "<interactions><interactionClass name='HLAinteractionRoot'>" + inRoot + "</interactionClass></interactions>";
}

QByteArray dataTypes(const QByteArray& group, const QByteArray& items)
{
    return "<dataTypes><" + group + ">" + items + "</" + group + "></dataTypes>";
}

QByteArray enumeration(const QByteArray& enumerators)
{
    return dataTypes("enumeratedDataTypes", "<enumeratedData name='e'>" + enumerators + "</enumeratedData>");
}

QString tagsOf(const QByteArray& text)
{
    const auto tree = readDocument<DtXML1516FileReader>(text);
    return namesOf(tree->getTagNodeList(), tree->getTagEndNode());
}

QString enumeratorsOf(const DtEnumeratedDatatypeNode& node)
{
    QStringList texts;
    for (auto it = node.getEnumerationNodeList(); it != node.getEnumerationNodeEnd(); ++it)
        texts += QString("%1=%2").arg(toQt((*it)->getEnum())).arg((*it)->getNumber());
    return texts.join(' ');
}
} // namespace

Q_DECLARE_METATYPE(DtPrint)

class TestXml1516FileReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versionIsThatOfTheFormat() { QCOMPARE(int(readSections1516("")->hlaVersion()), 2); }

    void lastErrorIsEmpty()
    {
        DtXML1516FileReader reader(nullptr);
        reader.clearLastError();
        QCOMPARE(toQt(reader.getLastError()), QString());
    }

    void identificationIsInTheAttributesOfTheRoot()
    {
        QStringList names{"DTDversion", "name",     "version",    "type",      "purpose",    "appDomain",
                          "sponsor",    "date",     "references", "reference", "other",      "pocName",
                          "pocOrg",     "pocPhone", "pocEmail",   "pocType",   "description"};
        const QString expected = "name version type purpose appDomain sponsor date - - - - reference other - -";
        QCOMPARE(identificationTexts(*readSections1516("", attributesNamed(names))), expected);
        std::reverse(names.begin(), names.end());
        QCOMPARE(identificationTexts(*readSections1516("", attributesNamed(names))), expected);
    }

    void pointOfContactIsInTheAttributesOfTheRoot()
    {
        const auto tree =
            readSections1516("", attributesNamed({"pocEmail", "pocPhone", "pocOrg", "pocName", "pocTelephone"}));
        QCOMPARE(tree->getPOCList().size(), std::size_t(1));
        QCOMPARE(contactOf(tree->getPOCList()[0]), QString("- pocName - pocOrg pocPhone pocEmail -"));
    }

    void thereIsAPointOfContactWithoutAnyText()
    {
        const auto tree = readSections1516("");
        QCOMPARE(tree->getPOCList().size(), std::size_t(1));
        QCOMPARE(contactOf(tree->getPOCList()[0]), QString("- - - - - - -"));
    }

    void valuesOfEachConstruct_data();
    // Each value has its own name for a text.
    void valuesOfEachConstruct()
    {
        QFETCH(QByteArray, sections);
        QFETCH(QStringList, values);
        QFETCH(DtPrint, print);
        const auto printWith = [&](const QStringList& names)
        {
            DtCapture capture(DtWarn); // of roots that are missing
            return print(*readSections1516(QByteArray(sections).replace("%1", attributesNamed(names))));
        };
        QTEST(printWith(values), "expected");
        std::reverse(values.begin(), values.end());
        QTEST(printWith(values), "expected");
        values = values.filter(QRegularExpression("^name$"));
        QTEST(printWith(values), "withoutValues");
    }

    void synchronizationHasItsLabelForAName()
    {
        const auto tree = readSections1516("<synchronizations><synchronization capability='c' semantics='s' "
                                           "name='n' label='l' dataType='t'/></synchronizations>");
        const DtSynchroNode& node = **tree->getSynchroNodeList();
        QCOMPARE(textsOf({node.getName(), node.getDescription(), node.getDatatype(), node.getCapability()}),
                 QString("l s t c"));
    }

    // Each value has an attribute for its notes. What only looks like one is passed over, and members, here without
    // elements in them, keep theirs to themselves.
    void labelsOfNotesStandAtEveryValue()
    {
        const auto tree = readSections1516("<dataTypes><enumeratedDataTypes><enumeratedData name='e' notes='a' "
                                           "nameNotes='b c' Notes='x' notesOf='x' status='x' noteReferences='d'>"
                                           "<enumerator name='v' values='1' valuesNotes='f'/></enumeratedData>"
                                           "</enumeratedDataTypes></dataTypes>");
        const DtEnumeratedDatatypeNode& enumeration = *tree->getEnumeratedDatatypeNode("e");
        QCOMPARE(toQt(enumeration.noteLabels()), QString("a b c d"));
        QCOMPARE(toQt(enumeration.getEnumerationNode("v")->noteLabels()), QString("f"));
    }

    void noteIsNumberedByItsName_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("number");
        QTest::newRow("number") << QByteArray("7") << 7;
        QTest::newRow("text") << QByteArray("RPRnoteBase1") << 0;
        QTest::newRow("number ahead of a text") << QByteArray(" 12x") << 12;
        QTest::newRow("negative") << QByteArray("-3") << -3;
        QTest::newRow("empty") << QByteArray() << 0;
        QTest::newRow("too large") << QByteArray("4294967295") << -1;
    }

    void noteIsNumberedByItsName()
    {
        QFETCH(QByteArray, name);
        const auto tree = readSections1516("<notes><note name='" + name + "' semantics='s'/></notes>");
        QTEST((*tree->getNoteNodeList())->getNumber(), "number");
    }

    void notesOfOneNumberAllStay()
    {
        const auto tree = readSections1516("<notes><note name='MOM1' semantics='a'/>\n<note semantics='b' name='x'/>"
                                           "</notes>");
        QCOMPARE(std::distance(tree->getNoteNodeList(), tree->getNoteEndNode()), std::ptrdiff_t(2));
        QCOMPARE(toQt(tree->getNoteNode(0)->getText()), QString("a"));
    }

    void laterOfValueAndValuesIsTheNumber()
    {
        const auto tree = readSections1516(
            enumeration("<enumerator name='a' value='1' values='2'/><enumerator values='4' value='3' name='b'/>"
                        "<enumerator values=' 5, 6' name='c'/><enumerator name='d'/><enumerator value='7x' name='e'/>"
                        "<enumerator name='f' value='-8'/><enumerator name='g' value='4294967295'/>"));
        QCOMPARE(enumeratorsOf(*tree->getEnumeratedDatatypeNode("e")), QString("a=2 b=3 c=5 d=0 e=7 f=-8 g=-1"));
    }

    void enumeratorOfAKnownNameOrNumberIsDropped()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections1516(
            enumeration("<enumerator name='a' value='1'/><enumerator name='a' value='2'/><enumerator name='b' "
                        "value='1'/><enumerator name='c' value='2'/>"));
        QCOMPARE(enumeratorsOf(*tree->getEnumeratedDatatypeNode("e")), QString("a=1 c=2"));
        QCOMPARE(capture.text(), QString("Duplicated enum name auplicated enum number "));
    }

    void switchesAreTheAttributesOfOneElement()
    {
        const auto tree = readSections1516("<switches autoProvide='Enabled' serviceReporting='Disabled' other='true' "
                                           "lower='enabled' none=''><autoProvide isEnabled='true'/></switches>");
        QStringList texts;
        for (auto it = tree->getSwitchNodeList(); it != tree->getSwitchEndNode(); ++it)
            texts += toQt((*it)->getName()) + ((*it)->getEnabled() ? "+" : "-");
        QCOMPARE(texts.join(' '), QString("autoProvide+ serviceReporting- other- lower-"));
    }

    void everyChildNodeIsATag()
    {
        QCOMPARE(tagsOf(modelText1516("<tags>\n<updateReflectTag/>\n<!-- none --><lockTag/></tags>")),
                 QString("text updateReflectTag text comment lockTag"));
        QCOMPARE(tagsOf(modelText1516("<tags><?pi x?><a/><![CDATA[c]]><b/></tags>")), QString("pi a  b"));
        QCOMPARE(tagsOf("<!DOCTYPE objectModel SYSTEM 'hla.dtd'><objectModel><tags>&x;<a/></tags></objectModel>"),
                 QString("x a"));
        QCOMPARE(tagsOf(modelText1516("<tags/>")), QString());
    }

    void timeIsMadeByItsElement()
    {
        const auto tree = readSections1516("<time><other dataType='x'/><timeStamp dataType='a' semantics='b'/>"
                                           "<lookahead semantics='d' dataType='c'/></time>");
        const DtTimeRepNode& time = *tree->getTimeRepNode();
        QCOMPARE(textsOf({time.getFederationTimeDatatype(), time.getFederationTimeSemantics(),
                          time.getLookaheadDatatype(), time.getLookaheadSemantics()}),
                 QString("a b c d"));
    }

    void classesComeBehindTheirSubclasses()
    {
        const auto tree = readSections1516(objects("<attribute name='a'/><objectClass name='B'><objectClass name='C'/>"
                                                   "<attribute name='b'/></objectClass><objectClass name='D'/>") +
                                           interactions("<interactionClass name='I'><interactionClass name='J'>"
                                                        "<parameter name='p'/></interactionClass></interactionClass>"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot [a]\n  B [b]\n    C\n  D\n"));
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()),
                 QString("C B D HLAobjectRoot"));
        QCOMPARE(printClass(tree->interactionClassRoot()), QString("HLAinteractionRoot\n  I\n    J [p]\n"));
        QCOMPARE(namesOf(tree->getInteractionClassNodeBegin(), tree->getInteractionClassNodeEnd()),
                 QString("J I HLAinteractionRoot"));
        QCOMPARE(toQt(tree->getObjectClassNode("HLAobjectRoot.B")->findAttribute("b")->getFullName()),
                 QString("HLAobjectRoot.B.b"));
    }

    void warnings_data();
    void warnings()
    {
        QFETCH(QByteArray, sections);
        DtCapture capture(DtWarn);
        readSections1516(sections);
        QTEST(capture.text(), "expected");
    }

    void classTreeWithoutItsRootStaysInTheFlatList()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections1516("<objects><objectClass name='X'><objectClass name='Y'/></objectClass>"
                                           "</objects><interactions><interactionClass name='I'/></interactions>");
        QVERIFY(tree->objectClassRoot() == nullptr);
        QVERIFY(tree->interactionClassRoot() == nullptr);
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()), QString("Y X"));
        QCOMPARE(namesOf(tree->getInteractionClassNodeBegin(), tree->getInteractionClassNodeEnd()), QString("I"));
    }

    void furtherTopClassIsNotRead()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections1516("<objects><objectClass name='HLAobjectRoot'/><objectClass name='X'/>"
                                           "</objects><interactions><interactionClass name=''/>"
                                           "<interactionClass name='HLAinteractionRoot'/></interactions>");
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()), QString("HLAobjectRoot"));
        QCOMPARE(namesOf(tree->getInteractionClassNodeBegin(), tree->getInteractionClassNodeEnd()), QString());
    }

    void rootBelowAnotherClassIsNoRoot()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections1516("<objects><objectClass><objectClass name='HLAobjectRoot'/></objectClass>"
                                           "</objects>");
        QVERIFY(tree->objectClassRoot() == nullptr);
        QCOMPARE(toQt(tree->getObjectClassNode("HLAobjectRoot")->getFullName()), QString("HLAobjectRoot"));
    }

    void classWithoutANameIsKept()
    {
        const auto tree = readSections1516(objects("<objectClass sharing='s'><attribute name='a'/></objectClass>") +
                                           interactions("<interactionClass order='o'/>"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot\n   [a]\n"));
        QCOMPARE(printClass(tree->interactionClassRoot()), QString("HLAinteractionRoot\n  \n"));
    }

    void classWithAnEmptyNameIsDroppedWithAllBelowIt()
    {
        DtCapture capture(DtWarn);
        const auto tree =
            readSections1516(objects("<objectClass name=''><objectClass name='X'/><attribute name=''/></objectClass>") +
                             interactions("<interactionClass name=''><interactionClass name='Y'/></interactionClass>"));
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()), QString("HLAobjectRoot"));
        QCOMPARE(namesOf(tree->getInteractionClassNodeBegin(), tree->getInteractionClassNodeEnd()),
                 QString("HLAinteractionRoot"));
        QCOMPARE(capture.text().count('\n'), 2);
    }

    void memberWithAnEmptyNameIsDroppedAndItsClassKept()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections1516(objects("<attribute name=''/><attribute name='a'/><attribute/>") +
                                           interactions("<parameter name=''/><parameter name=' '/><parameter/>"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot [a ]\n"));
        QCOMPARE(tree->interactionClassRoot()->getParameters().size(), std::size_t(2)); // a blank is a name
    }

    void parameterAddsItselfAndAttributeDoesNot()
    {
        const DtXmlDocument document = DtParseXmlBuffer("<m name='m'/>", 13);
        xmlNode* root = xmlDocGetRootElement(document.get());
        DtXML1516FileReader reader(nullptr);
        DtObjectClassFedNode objectClass;
        const std::unique_ptr<DtAttributeFedNode> attribute(reader.processAttribute(root, &objectClass));
        QCOMPARE(toQt(attribute->getName()), QString("m"));
        QVERIFY(objectClass.getAttributes().empty());
        DtInteractionClassFedNode interaction;
        QVERIFY(reader.processParameter(root, &interaction) == interaction.getParameters().front());
    }

    void fixedRecordWithoutANameIsKept()
    {
        for (const char* name : {"", "name=''"})
        {
            DtCapture capture(DtWarn);
            const auto tree = readSections1516(
                dataTypes("fixedRecordDataTypes", QByteArray("<fixedRecordData ") + name +
                                                      " semantics='s'><field name='f'/><field/></fixedRecordData>"));
            const DtFixedDatatypeNode& node = *tree->getFixedDatatypeNode("");
            QCOMPARE(toQt(node.getDescription()), QString("s"));
            QCOMPARE(namesOf(node.getComponentNodeList(), node.getComponentNodeEnd()), QString("f"));
            QCOMPARE(capture.text(), QString("Warning: fixedRecordData field definition was missing a name\n"));
        }
    }

    void constructsWithoutANameAreDropped()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections1516(
            "<dataTypes><simpleDataTypes><simpleData name=''/><simpleData units='u'/></simpleDataTypes>"
            "<arrayDataTypes><arrayData name=''/></arrayDataTypes><basicDataRepresentations><basicData/>"
            "</basicDataRepresentations><variantRecordDataTypes><variantRecordData/></variantRecordDataTypes>"
            "<enumeratedDataTypes><enumeratedData/></enumeratedDataTypes></dataTypes><dimensions><dimension/>"
            "</dimensions><synchronizations><synchronization label=''/></synchronizations>");
        QVERIFY(tree->getSimpleDatatypeNodeList() == tree->getSimpleDatatypeEndNode());
        QVERIFY(tree->getArrayDatatypeNodeList() == tree->getArrayDatatypeEndNode());
        QVERIFY(tree->getBasicDataRepresentationNodeList() == tree->getBasicDataRepresentationEndNode());
        QVERIFY(tree->getVariantDatatypeNodeList() == tree->getVariantDatatypeEndNode());
        QVERIFY(tree->getEnumeratedDatatypeNodeList() == tree->getEnumeratedDatatypeEndNode());
        QVERIFY(tree->getDimensionNodeList() == tree->getDimensionEndNode());
        QVERIFY(tree->getSynchroNodeList() == tree->getSynchroEndNode());
        QCOMPARE(capture.text().count('\n'), 8);
    }

    void emptyTextIsSet()
    {
        const auto tree = readSections1516(objects("<attribute name='a' cardinality=''/>") +
                                           enumeration("<enumerator name='x' value='5' values=''/>"));
        const DtAttributeFedNode& attribute = *tree->objectClassRoot()->findAttribute("a");
        QCOMPARE(toQt(attribute.getCardinality()), QString());
        QCOMPARE(attribute.getCardinalityMaximum(), 1);
        QCOMPARE(enumeratorsOf(*tree->getEnumeratedDatatypeNode("e")), QString("x=0"));
    }

    void derivedNumbersComeFromTheTexts()
    {
        const auto tree = readSections1516(
            objects("<attribute name='a' cardinality='2-4'/>") +
            dataTypes("arrayDataTypes", "<arrayData encoding='HLAfixedArray' cardinality='[1..3]' name='a'/>"));
        QCOMPARE(tree->objectClassRoot()->findAttribute("a")->getCardinalityMaximum(), 4);
        const DtArrayDatatypeNode& array = *tree->getArrayDatatypeNode("a");
        QCOMPARE(array.getCardinalityType() * 10 + array.getCardinalityMaximum(), 23);
    }

    void nodesOfOneNameAllStay()
    {
        const auto tree = readSections1516(
            objects("<objectClass name='A' sharing='1'/><objectClass name='A' sharing='2'/>"
                    "<attribute name='a' dataType='1'/><attribute name='a' dataType='2'/>") +
            interactions("<parameter name='p' dataType='1'/><parameter name='p' dataType='2'/>") +
            dataTypes("simpleDataTypes", "<simpleData name='s' units='1'/><simpleData name='s' units='2'/>"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot [a a]\n  A\n  A\n"));
        QCOMPARE(toQt(tree->getObjectClassNode("HLAobjectRoot.A")->getSharing()), QString("1"));
        QCOMPARE(toQt(tree->objectClassRoot()->findAttribute("a")->getDatatype()), QString("2"));
        QCOMPARE(tree->interactionClassRoot()->getParameters().size(), std::size_t(2));
        QCOMPARE(toQt(tree->interactionClassRoot()->findParameter("p")->getDatatype()), QString("1"));
        QCOMPARE(namesOf(tree->getSimpleDatatypeNodeList(), tree->getSimpleDatatypeEndNode()), QString("s s"));
        QCOMPARE(toQt(tree->getSimpleDatatypeNode("s")->getUnits()), QString("1"));
    }

    void sectionsMayComeInAnyOrderAndAgain()
    {
        const auto tree =
            readSections1516(dataTypes("simpleDataTypes", "<simpleData name='a'/>") + interactions("") + objects("") +
                             "<dimensions><dimension name='d'/></dimensions>" +
                             dataTypes("simpleDataTypes", "<simpleData name='b'/></simpleDataTypes><simpleDataTypes>"
                                                          "<simpleData name='c'/>") +
                             "<dimensions><dimension name='e'/></dimensions>");
        QCOMPARE(namesOf(tree->getSimpleDatatypeNodeList(), tree->getSimpleDatatypeEndNode()), QString("a b c"));
        QCOMPARE(namesOf(tree->getDimensionNodeList(), tree->getDimensionEndNode()), QString("d e"));
        QVERIFY(tree->objectClassRoot() != nullptr && tree->interactionClassRoot() != nullptr);
    }

    void whatIsNotKnownIsIgnored()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections1516(
            "text<modelIdentification><name>n</name></modelIdentification><updateRates><updateRate name='u'/>"
            "</updateRates><poc/><simpleDataTypes><simpleData name='x'/></simpleDataTypes><!-- <objects/> -->"
            "<dataTypes><simpleData name='x'/><simpleDataTypes><arrayData name='x'/><x><simpleData name='x'/></x>"
            "</simpleDataTypes></dataTypes>" +
            objects("<x><objectClass name='X'/></x><parameter name='p'/>") +
            interactions("<attribute name='a'/><dimensions><dimension>d</dimension></dimensions>"));
        QCOMPARE(identificationTexts(*tree), QString("- - - - - - - - - - - - - - -"));
        QCOMPARE(tree->getPOCList().size(), std::size_t(1));
        QVERIFY(tree->getSimpleDatatypeNodeList() == tree->getSimpleDatatypeEndNode());
        QVERIFY(tree->getArrayDatatypeNodeList() == tree->getArrayDatatypeEndNode());
        QVERIFY(tree->getUpdateRateNodeList() == tree->getUpdateRateEndNode());
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot\n"));
        QCOMPARE(printClass(tree->interactionClassRoot()), QString("HLAinteractionRoot\n"));
        QVERIFY(tree->interactionClassRoot()->getDimensions().empty());
        QCOMPARE(capture.text(), QString());
    }

    void valuesInChildElementsAreNotRead()
    {
        const auto tree =
            readSections1516(objects("<sharing>s</sharing><attribute name='a'><dataType>t</dataType></attribute>") +
                             "<notes><note><semantics>t</semantics></note></notes>");
        QCOMPARE(toQt(tree->objectClassRoot()->getSharing()), QString());
        QCOMPARE(toQt(tree->objectClassRoot()->findAttribute("a")->getDatatype()), QString());
        QCOMPARE(toQt((*tree->getNoteNodeList())->getText()), QString());
    }

    void nameOfTheRootElementIsNotAsked()
    {
        const auto tree =
            readDocument<DtXML1516FileReader>("<other name='n'><objects><objectClass name='HLAobjectRoot'/></objects>"
                                              "</other>");
        QCOMPARE(toQt(tree->getName()), QString("n"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot\n"));
    }

    void referencesToCharactersAreResolved()
    {
        const auto tree = readSections1516("", "name='a&#10;b&#x41;' type='&lt;&amp;&gt;&quot;&apos;' purpose='a\nb'");
        QCOMPARE(toQt(tree->getName()), QString("a\nbA"));
        QCOMPARE(toQt(tree->getType()), QString("<&>\"'"));
        QCOMPARE(toQt(tree->getPurpose()), QString("a b")); // as XML has it
    }

    void textEndsAtAReferenceToAnEntity()
    {
        DtCapture capture(DtWarn);
        const auto tree = readDocument<DtXML1516FileReader>(
            "<!DOCTYPE objectModel [<!ENTITY e 'expanded'>]>\n<objectModel name='a&#65;&e;b' type='&e;b' purpose='c'>"
            "<objects><objectClass name='&e;'/></objects></objectModel>");
        QCOMPARE(textsOf({tree->getName(), tree->getType(), tree->getPurpose()}), QString("aA - c"));
        QCOMPARE(capture.text(), QString("Warning: objectClass definition was missing a name\n"
                                         "Warning: HLAobjectRoot is missing from 1516 XML file\n"));
    }

    // The parser leaves the reference out.
    void unknownEntityMayBeDeclaredOutside()
    {
        const auto tree = readDocument<DtXML1516FileReader>(
            "<!DOCTYPE objectModel SYSTEM \"hla.dtd\">\n<objectModel name='a&x;b' type='&x;' purpose='c'>&x;<tags>"
            "<t semantics='&x;s&y;'/></tags></objectModel>");
        QCOMPARE(textsOf({tree->getName(), tree->getType(), tree->getPurpose()}), QString("ab - c"));
        QCOMPARE(toQt(tree->getTagNode("t")->getDescription()), QString("s"));
    }

    void entitiesOverEntitiesAreNoTrouble_data()
    {
        QTest::addColumn<QByteArray>("entities");
        QTest::addColumn<bool>("isRefused"); // by the parser
        const auto chain = [](int length, int references)
        {
            QByteArray text = "<!ENTITY a0 'aaaaaaaaaaaaaaaaaaaa'>";
            for (int i = 1; i <= length; ++i)
                text += "<!ENTITY a" + QByteArray::number(i) + " '" +
                        ("&a" + QByteArray::number(i - 1) + ";").repeated(references) + "'>\n";
            return text + "<!ENTITY e '&a" + QByteArray::number(length) + ";'>";
        };
        QTest::newRow("short chain") << chain(3, 3) << false;
        QTest::newRow("long chain") << chain(20000, 1) << true;
        QTest::newRow("bomb") << chain(30, 20) << true;
        QTest::newRow("ring") << QByteArray("<!ENTITY e '&f;'><!ENTITY f '&e;'>") << true;
    }

    void entitiesOverEntitiesAreNoTrouble()
    {
        QFETCH(QByteArray, entities);
        const QByteArray text = "<!DOCTYPE objectModel [" + entities + "]>\n<objectModel name='n&e;'/>";
        const DtXmlErrors quiet;
        const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
        QTEST(document == nullptr, "isRefused");
        if (document == nullptr)
            return;
        xmlNode* root = xmlDocGetRootElement(document.get());
        const std::unique_ptr<DtOMTTree> tree(DtXML1516FileReader(nullptr).processObjectModel(root));
        QCOMPARE(toQt(tree->getName()), QString("n"));
    }

    void classesMayBeNestedAsDeepAsTheParserAllows()
    {
        const auto nested = [](int depth)
        {
            return modelText1516("<objects><objectClass name='HLAobjectRoot'>" +
                                 QByteArray("<objectClass name='C'>").repeated(depth) +
                                 QByteArray("</objectClass>").repeated(depth) + "</objectClass></objects>");
        };
        const auto tree = readDocument<DtXML1516FileReader>(nested(250));
        QCOMPARE(std::distance(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()), std::ptrdiff_t(251));
        const QByteArray tooDeep = nested(300);
        const DtXmlErrors quiet;
        QVERIFY(DtParseXmlBuffer(tooDeep.constData(), tooDeep.size()) == nullptr);
    }
};

void TestXml1516FileReader::valuesOfEachConstruct_data()
{
    QTest::addColumn<QByteArray>("sections"); // "%1" is where the values go
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("expected"); // texts of the node
    QTest::addColumn<QString>("withoutValues");
    QTest::addColumn<DtPrint>("print");
    const auto row = [](const char* name, const QByteArray& sections, const char* values, const char* expected,
                        const char* withoutValues, DtPrint print)
    {
        QTest::newRow(name) << sections << QString(values).split(' ') << QString(expected) << QString(withoutValues)
                            << print;
    };

    row("simpleData", dataTypes("simpleDataTypes", "<simpleData %1/>"),
        "name semantics representation units resolution accuracy encoding",
        "name semantics representation units resolution accuracy", "name - - - - -",
        [](DtOMTTree& tree)
        {
            const DtSimpleDatatypeNode& node = **tree.getSimpleDatatypeNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getRepresentation(), node.getUnits(),
                            node.getResolution(), node.getAccuracy()});
        });
    row("arrayData", dataTypes("arrayDataTypes", "<arrayData %1/>"), "name semantics dataType cardinality encoding",
        "name semantics dataType cardinality encoding", "name - - - -",
        [](DtOMTTree& tree)
        {
            const DtArrayDatatypeNode& node = **tree.getArrayDatatypeNodeList();
            return textsOf(
                {node.getName(), node.getDescription(), node.getDatatype(), node.getCardinality(), node.getEncoding()});
        });
    row("fixedRecordData", dataTypes("fixedRecordDataTypes", "<fixedRecordData %1/>"), "name semantics encoding",
        "name semantics -", "name - -",
        [](DtOMTTree& tree)
        {
            const DtFixedDatatypeNode& node = **tree.getFixedDatatypeNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getEncoding()});
        });
    row("field", dataTypes("fixedRecordDataTypes", "<fixedRecordData><field %1/></fixedRecordData>"),
        "name semantics dataType", "name semantics dataType", "name - -",
        [](DtOMTTree& tree)
        {
            const DtFieldComponentNode& node = **(*tree.getFixedDatatypeNodeList())->getComponentNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getDatatype()});
        });
    row("basicData", dataTypes("basicDataRepresentations", "<basicData %1/>"),
        "name size endian encoding interpretation", "name size endian encoding -", "name - - - -",
        [](DtOMTTree& tree)
        {
            const DtBasicDataRepresentationNode& node = **tree.getBasicDataRepresentationNodeList();
            return textsOf(
                {node.getName(), node.getSize(), node.getEndian(), node.getEncoding(), node.getInterpretation()});
        });
    row("variantRecordData", dataTypes("variantRecordDataTypes", "<variantRecordData %1/>"),
        "name semantics discriminant dataType encoding", "name semantics discriminant dataType encoding",
        "name - - - -",
        [](DtOMTTree& tree)
        {
            const DtVariantDatatypeNode& node = **tree.getVariantDatatypeNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getDiscriminant(), node.getDatatype(),
                            node.getEncoding()});
        });
    row("alternative",
        dataTypes("variantRecordDataTypes", "<variantRecordData name='v'><alternative %1/></variantRecordData>"),
        "name dataType semantics enumerator", "name semantics dataType enumerator", "name - - -",
        [](DtOMTTree& tree)
        {
            const DtAlternativeComponentNode& node = **(*tree.getVariantDatatypeNodeList())->getComponentNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getDatatype(), node.getEnumerator()});
        });
    row("enumeratedData", dataTypes("enumeratedDataTypes", "<enumeratedData %1/>"), "name semantics representation",
        "name semantics representation", "name - -",
        [](DtOMTTree& tree)
        {
            const DtEnumeratedDatatypeNode& node = **tree.getEnumeratedDatatypeNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getRepresentation()});
        });
    row("dimension", "<dimensions><dimension %1/></dimensions>", "name dataType normalization value upperBound",
        "name dataType normalization value upperBound", "name - - - -",
        [](DtOMTTree& tree)
        {
            const DtDimensionNode& node = **tree.getDimensionNodeList();
            return textsOf(
                {node.getName(), node.getDatatype(), node.getNormalization(), node.getValue(), node.getUpperBound()});
        });
    row("transportation", "<transportations><transportation %1/></transportations>",
        "name semantics reliable description", "name semantics -", "name - -",
        [](DtOMTTree& tree)
        {
            const DtDescriptionNode& node = **tree.getTransportationNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getReliable()});
        });
    row("note", "<notes><note %1/></notes>", "name semantics label", "semantics 0", "- 0",
        [](DtOMTTree& tree)
        {
            const DtNoteNode& node = **tree.getNoteNodeList();
            return textsOf({node.getText(), node.getLabel()});
        });
    row("tag", "<tags><updateReflectTag %1/></tags>", "name semantics dataType", "updateReflectTag semantics dataType",
        "updateReflectTag - -",
        [](DtOMTTree& tree)
        {
            const DtTagNode& node = **tree.getTagNodeList();
            return textsOf({node.getName(), node.getDescription(), node.getDatatype()});
        });
    const auto printTime = [](DtOMTTree& tree)
    {
        const DtTimeRepNode& node = *tree.getTimeRepNode();
        return textsOf({node.getFederationTimeDatatype(), node.getFederationTimeSemantics(),
                        node.getLookaheadDatatype(), node.getLookaheadSemantics()});
    };
    row("timeStamp", "<time><timeStamp %1/></time>", "dataType semantics name", "dataType semantics - -", "- - - -",
        printTime);
    row("lookahead", "<time><lookahead %1/></time>", "dataType semantics", "- - dataType semantics", "- - - -",
        printTime);
    row("objectClass", "<objects><objectClass %1/></objects>", "name sharing semantics", "name sharing semantics",
        "name - -",
        [](DtOMTTree& tree)
        {
            const DtObjectClassFedNode& node = **tree.getObjectClassNodeBegin();
            return textsOf({node.getName(), node.getSharing(), node.getDescriptor()});
        });
    row("attribute", "<objects><objectClass><attribute %1/></objectClass></objects>",
        "name semantics dataType updateType cardinality ownership accuracy updateCondition sharing transportation "
        "order "
        "dimensions",
        "name semantics dataType updateType cardinality ownership accuracy updateCondition - - -",
        "name - - - 1 - - - - - -",
        [](DtOMTTree& tree)
        {
            const DtAttributeFedNode& node = *(*tree.getObjectClassNodeBegin())->getAttributes().front();
            return textsOf({node.getName(), node.getDescription(), node.getDatatype(), node.getUpdateType(),
                            node.getCardinality(), node.getTransferAccept(), node.getAccuracy(),
                            node.getUpdateCondition(), node.getSharing(), node.getTransportation(), node.getOrder()}) +
                   (node.getDimensions().empty() ? "" : " dimensions");
        });
    row("interactionClass", "<interactions><interactionClass %1/></interactions>",
        "name sharing transportation order semantics dimensions", "name sharing transportation order semantics",
        "name - - - -",
        [](DtOMTTree& tree)
        {
            const DtInteractionClassFedNode& node = **tree.getInteractionClassNodeBegin();
            return textsOf({node.getName(), node.getSharing(), node.getTransportation(), node.getOrder(),
                            node.getDescriptor()}) +
                   (node.getDimensions().empty() ? "" : " dimensions");
        });
    row("parameter", "<interactions><interactionClass><parameter %1/></interactionClass></interactions>",
        "name semantics dataType cardinality sharing transportation order", "name semantics dataType 1 - - -",
        "name - - 1 - - -",
        [](DtOMTTree& tree)
        {
            const DtParameterFedNode& node = *(*tree.getInteractionClassNodeBegin())->getParameters().front();
            return textsOf({node.getName(), node.getDescription(), node.getDatatype(), node.getCardinality(),
                            node.getSharing(), node.getTransportation(), node.getOrder()});
        });
}

void TestXml1516FileReader::warnings_data()
{
    QTest::addColumn<QByteArray>("sections");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QByteArray& sections, const QString& expected)
    { QTest::newRow(name) << sections << expected; };
    row("no sections", "", "");
    row("no classes", "<objects/><interactions/>",
        "Warning: HLAobjectRoot is missing from 1516 XML file\n"
        "Warning: HLAinteractionRoot is missing from 1516 XML file\n");
    row("other top class", "<objects><objectClass name='X'><objectClass name='HLAobjectRoot'/></objectClass></objects>",
        "Warning: HLAobjectRoot is missing from 1516 XML file\n");
    row("other top interaction", "<interactions><interactionClass name='X'/></interactions>",
        "Warning: HLAinteractionRoot is missing from 1516 XML file\n");
    row("wrong object root", "<objects><objectClass><objectClass name='HLAobjectRoot'/></objectClass></objects>",
        "Warning: Object root is not \"HLAobjectRoot\" in 1516 XML file\n");
    row("wrong interaction root",
        "<interactions><interactionClass><interactionClass name='HLAinteractionRoot'/></interactionClass>"
        "</interactions>",
        "Warning: Interaction root is not \"HLAinteractionRoot\" in 1516 XML file\n");
    row("further object roots",
        "<objects><objectClass name='HLAobjectRoot'/><objectClass/><objectClass name=''/></objects>",
        QString("Warning: Additional object node found at the root level when parsing 1516 XML file has been "
                "ignored.\n")
            .repeated(2));
    row("further interaction root",
        "<interactions><interactionClass name='HLAinteractionRoot'/><interactionClass/></interactions>",
        "Warning: Additional interaction node found at the root level when parsing 1516 XML file has been ignored.\n");
    row("second section of objects", objects("") + objects(""),
        "Warning: Object root is not \"HLAobjectRoot\" in 1516 XML file\n");
    row("dropped top class", "<objects><objectClass name=''/></objects>",
        "Warning: objectClass definition was missing a name\nWarning: HLAobjectRoot is missing from 1516 XML file\n");
    const auto missing = [&](const QByteArray& sections, const char* element, const char* what = "name")
    { row(element, sections, QString("Warning: %1 definition was missing a %2\n").arg(element, what)); };
    missing(objects("<objectClass name=''><objectClass name=''/></objectClass>"), "objectClass");
    missing(objects("<attribute name=''/>"), "attribute");
    missing(interactions("<interactionClass name=''/>"), "interactionClass");
    missing(interactions("<parameter name=''/>"), "parameter");
    missing(dataTypes("simpleDataTypes", "<simpleData name=''/>"), "simpleData");
    missing(dataTypes("arrayDataTypes", "<arrayData/>"), "arrayData");
    missing(dataTypes("fixedRecordDataTypes", "<fixedRecordData><field name=''/></fixedRecordData>"),
            "fixedRecordData field");
    missing(dataTypes("basicDataRepresentations", "<basicData/>"), "basicData");
    missing(dataTypes("variantRecordDataTypes", "<variantRecordData name=''/>"), "variantRecordData");
    missing(dataTypes("enumeratedDataTypes", "<enumeratedData><enumerator/></enumeratedData>"), "enumeratedData");
    missing(enumeration("<enumerator value='1'/>"), "enumerator");
    missing("<dimensions><dimension value='1'/></dimensions>", "dimension");
    missing("<synchronizations><synchronization name='x'/></synchronizations>", "synchronization", "label");
    row("names not asked for",
        "<notes><note/></notes><transportations><transportation/></transportations><tags><a name=''/></tags>" +
            dataTypes("variantRecordDataTypes", "<variantRecordData name='v'><alternative/></variantRecordData>") +
            dataTypes("fixedRecordDataTypes", "<fixedRecordData/>"),
        "");
    row("classes and members without a name",
        objects("<objectClass/><attribute/>") + interactions("<interactionClass/><parameter/>"), "");
}

QX_REGISTER_TEST(TestXml1516FileReader)
#include "testXml1516FileReader.moc"
