#include "modelText.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

namespace
{
QByteArray objects(const QByteArray& inRoot)
{
    return "<objects><objectClass><name>HLAobjectRoot</name>" + inRoot + "</objectClass></objects>";
}

QByteArray interactions(const QByteArray& inRoot)
{
    return "<interactions><interactionClass><name>HLAinteractionRoot</name>" + inRoot +
           "</interactionClass></interactions>";
}

QString referencesOf(const QByteArray& reference)
{
    const auto tree = readSections("<modelIdentification>" + reference + "</modelIdentification>");
    QStringList texts;
    for (const DtOMTTreeReference& entry : tree->getReferences())
        texts += toQt(entry.type) + "|" + toQt(entry.identification);
    return texts.join(';');
}
// A model's only datatype.
QByteArray data(const QByteArray& kind, const QByteArray& content)
{
    const QByteArray group = kind == "basicData" ? QByteArray("basicDataRepresentations") : kind + "Types";
    return "<dataTypes><" + group + "><" + kind + ">" + content + "</" + kind + "></" + group + "></dataTypes>";
}

// A section that holds one element without content.
QByteArray sectionOf(const QByteArray& element)
{
    return "<" + element + "s><" + element + "/></" + element + "s>";
}

QString missing(const char* element, const char* what = "name")
{
    return QString("Warning: %1 definition was missing a %2\n").arg(element, what);
}

void addElementsWithoutTheirName()
{
    const QByteArray objectClasses = "<objectClass><name/><objectClass><name/></objectClass></objectClass>";
    const QByteArray interactionClass = "<interactionClass><name/></interactionClass>";
    const struct
    {
        const char* name;
        QByteArray sections;
        const char *element, *what;
    } theRows[] = {
        {"object class",      objects(objectClasses),                         "objectClass",      "name" },
        {"attribute",         objects("<attribute><name/></attribute>"),      "attribute",        "name" },
        {"interaction class", interactions(interactionClass),                 "interactionClass", "name" },
        {"parameter",         interactions("<parameter><name/></parameter>"), "parameter",        "name" },
        {"dimension",         sectionOf("dimension"),                         "dimension",        "name" },
        {"synchronization",   sectionOf("synchronization"),                   "synchronization",  "label"},
        {"updateRate",        sectionOf("updateRate"),                        "updateRate",       "name" },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.sections << missing(row.element, row.what);
}

void addDatatypesWithoutTheirName()
{
    const struct
    {
        const char* name;
        QByteArray kind, content;
        const char* element;
    } theRows[] = {
        {"simpleData",        "simpleData",        "",                            "simpleData"           },
        {"arrayData",         "arrayData",         "<name/>",                     "arrayData"            },
        {"fixedRecordData",   "fixedRecordData",   "",                            "fixedRecordData"      },
        {"field",             "fixedRecordData",   "<name>a</name><field/>",      "fixedRecordData field"},
        {"basicData",         "basicData",         "",                            "basicData"            },
        {"variantRecordData", "variantRecordData", "",                            "variantRecordData"    },
        {"enumeratedData",    "enumeratedData",    "<enumerator/>",               "enumeratedData"       },
        {"enumerator",        "enumeratedData",    "<name>a</name><enumerator/>", "enumerator"           },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << data(row.kind, row.content) << missing(row.element);
}

// The section of interactions that is like this one of objects.
QByteArray asInteractions(QByteArray objectSection)
{
    return objectSection.replace("object", "interaction");
}

void addFurtherWarnings()
{
    const QByteArray otherTop = "<objects><objectClass><name>X</name></objectClass></objects>";
    const QByteArray root = "<objectClass><name>HLAobjectRoot</name></objectClass>";
    const QByteArray rootBelow = "<objects><objectClass>" + root + "</objectClass></objects>";
    const QByteArray twoTops = "<objects>" + root + "<objectClass/></objects>";
    const QByteArray droppedTop = "<objects><objectClass><name/></objectClass></objects>";
    const QByteArray alternative = data("variantRecordData", "<name>a</name><alternative/>");
    const QByteArray others = sectionOf("note") + sectionOf("transportation") + "<tags><updateReflectTag/></tags>";
    const QString noRoot("Warning: HLAobjectRoot is missing from 1516 Evolved XML file\n");
    const QString noInteractionRoot("Warning: HLAinteractionRoot is missing from 1516 Evolved XML file\n");
    // Tells of a wrong root of the objects too.
    const QString wrongRoot("Warning: Interaction root is not \"HLAinteractionRoot\" in 1516 Evolved XML file\n");
    const QString additional("Warning: Additional %1 node found at the root level when parsing 1516 Evolved XML file "
                             "has been ignored.\n");
    const struct
    {
        const char* name;
        QByteArray sections;
        QString expected;
    } theRows[] = {
        {"no classes",                   "<objects/><interactions/>",           noRoot + noInteractionRoot     },
        {"other top class",              otherTop,                              noRoot                         },
        {"other top interaction",        asInteractions(otherTop),              noInteractionRoot              },
        {"wrong object root",            rootBelow,                             wrongRoot                      },
        {"wrong interaction root",       asInteractions(rootBelow),             wrongRoot                      },
        {"second object root",           twoTops,                               additional.arg("object")       },
        {"second interaction root",      asInteractions(twoTops),               additional.arg("interaction")  },
        {"second section of objects",    objects("") + objects(""),             wrongRoot                      },
        {"dropped top class",            droppedTop,                            missing("objectClass") + noRoot},
        {"class without a name element", objects("<objectClass/><attribute/>"), ""                             },
        {"alternative",                  alternative,                           ""                             },
        {"note, transportation and tag", others,                                ""                             },
        {"no sections",                  "",                                    ""                             },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.sections << row.expected;
}
} // namespace

class TestXmlEvolvedFileReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versionIsThatOfTheReader()
    {
        QCOMPARE(int(readSections("")->hlaVersion()), 3);
        QCOMPARE(int(readSections<DtXMLHla4FileReader>("")->hlaVersion()), 4);
    }

    void lastErrorIsEmpty()
    {
        DtXMLEvolvedFileReader reader(nullptr);
        QCOMPARE(toQt(reader.getLastError()), QString());
        reader.clearLastError();
    }

    void identificationIsRead()
    {
        const auto tree = readSections(
            "<modelIdentification><name>n</name><type>FOM</type><version>v</version>"
            "<modificationDate>d</modificationDate><securityClassification>s</securityClassification>"
            "<releaseRestriction>r</releaseRestriction><purpose>p</purpose><applicationDomain>a</applicationDomain>"
            "<description>e</description><useLimitation>l</useLimitation><useHistory>h</useHistory>"
            "<other>o</other><glyph>g</glyph></modelIdentification>");
        QCOMPARE(identificationTexts(*tree), QString("n v FOM p a - d s r e - - o l h"));
    }

    void everyPointOfContactIsRead()
    {
        const auto tree =
            readSections("<modelIdentification><poc><pocType>t</pocType><pocName>n</pocName><pocOrg>o</pocOrg>"
                         "<pocTelephone>p</pocTelephone><pocEmail>e</pocEmail></poc><poc/></modelIdentification>");
        QCOMPARE(tree->getPOCList().size(), std::size_t(2));
        QCOMPARE(contactOf(tree->getPOCList()[0]), QString("t n - o p e -"));
        QCOMPARE(contactOf(tree->getPOCList()[1]), QString("- - - - - - -"));
        QVERIFY(readSections("")->getPOCList().empty());
    }

    void referenceTakesTheTextAheadOfItsFirstElement()
    {
        QCOMPARE(referencesOf("<reference>\n<type>a</type><identification>b</identification></reference>"),
                 QString("\n|\n"));
        QCOMPARE(referencesOf("<reference>x<identification>b</identification><type>a</type></reference>"),
                 QString("x|x"));
        QCOMPARE(referencesOf("<reference><type>a</type><identification>b</identification></reference>"), QString("|"));
        QCOMPARE(referencesOf("<reference><!-- c -->x<type>a</type>y<identification>b</identification></reference>"),
                 QString("x|x"));
        QCOMPARE(referencesOf("<reference><![CDATA[<x>]]><type>a</type><identification>b</identification></reference>"),
                 QString("<x>|<x>"));
    }

    void everyReferenceIsRead()
    {
        QCOMPARE(referencesOf("<reference>x<type>a</type><identification>b</identification></reference><reference/>"
                              "<reference>y<type>a</type><identification>b</identification></reference>"),
                 QString("x|x;y|y"));
    }

    void referenceNeedsBothElementsWithText()
    {
        QCOMPARE(referencesOf("<reference>\n<type>a</type></reference>"), QString());
        QCOMPARE(referencesOf("<reference>\n<identification>a</identification></reference>"), QString());
        QCOMPARE(referencesOf("<reference>\n<type/><identification>a</identification></reference>"), QString());
    }

    void objectClassesAreReadSubclassesFirstInTheFlatList()
    {
        const auto tree = readSections(objects("<objectClass><attribute><name>a</name></attribute>"
                                               "<objectClass><name>C</name></objectClass>"
                                               "<semantics>s</semantics><sharing>Publish</sharing><name>B</name>"
                                               "</objectClass>"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot\n  B [a]\n    C\n"));
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()), QString("C B HLAobjectRoot"));
        const DtObjectClassFedNode* node = tree->getObjectClassNode("HLAobjectRoot.B");
        QCOMPARE(toQt(node->getDescriptor() + node->getSharing()), QString("sPublish"));
    }

    void attributeIsRead()
    {
        const auto tree = readSections(
            objects("<attribute><name>a</name><dataType>t</dataType><updateType>u</updateType>"
                    "<updateCondition>c</updateCondition><cardinality>0-4</cardinality><ownership>o</ownership>"
                    "<accuracy>y</accuracy><sharing>s</sharing><transportation>r</transportation><order>d</order>"
                    "<semantics>m</semantics><dimensions><dimension>x</dimension><dimension/><other>z</other>"
                    "<dimension>y</dimension></dimensions></attribute>"));
        const DtAttributeFedNode& node = *tree->objectClassRoot()->findAttribute("a");
        QCOMPARE(toQt(node.getDatatype() + node.getUpdateType() + node.getUpdateCondition() + node.getTransferAccept() +
                      node.getAccuracy() + node.getSharing() + node.getTransportation() + node.getOrder() +
                      node.getDescription()),
                 QString("tucoysrdm"));
        QCOMPARE(node.getCardinalityMaximum(), 4);
        QCOMPARE(node.getDimensions(), (std::list<DtString>{"x", "y"}));
    }

    void interactionClassAndParameterAreRead()
    {
        const auto tree = readSections(interactions(
            "<interactionClass><name>I</name><sharing>s</sharing><transportation>t</transportation><order>o</order>"
            "<semantics>m</semantics><dimensions><dimension>d</dimension></dimensions>"
            "<parameter><name>p</name><dataType>a</dataType><sharing>b</sharing><transportation>c</transportation>"
            "<order>e</order><semantics>f</semantics></parameter></interactionClass>"));
        QCOMPARE(printClass(tree->interactionClassRoot()), QString("HLAinteractionRoot\n  I [p]\n"));
        DtInteractionClassFedNode* node = tree->getInteractionClassNode("HLAinteractionRoot.I");
        QCOMPARE(toQt(node->getSharing() + node->getTransportation() + node->getOrder() + node->getDescriptor()),
                 QString("stom"));
        QCOMPARE(node->getDimensions(), std::list<DtString>{"d"});
        const DtParameterFedNode& parameter = *node->findParameter("p");
        QCOMPARE(toQt(parameter.getDatatype() + parameter.getSharing() + parameter.getTransportation() +
                      parameter.getOrder() + parameter.getDescription()),
                 QString("abcef"));
    }

    void warnings_data()
    {
        QTest::addColumn<QByteArray>("sections");
        QTest::addColumn<QString>("expected");
        addElementsWithoutTheirName();
        addDatatypesWithoutTheirName();
        addFurtherWarnings();
    }

    void warnings()
    {
        QFETCH(QByteArray, sections);
        DtCapture capture(DtWarn);
        readSections(sections);
        QTEST(capture.text(), "expected");
    }

    void classTreeWithoutItsRootStaysInTheFlatList()
    {
        const auto tree = readSections("<objects><objectClass><name>X</name><objectClass><name>Y</name></objectClass>"
                                       "</objectClass></objects>");
        QVERIFY(tree->objectClassRoot() == nullptr);
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()), QString("Y X"));
    }

    void furtherTopClassIsNotRead()
    {
        const auto tree = readSections("<objects><objectClass><name/></objectClass><objectClass>"
                                       "<name>HLAobjectRoot</name></objectClass></objects>");
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()), QString());
    }

    void memberWithAnEmptyNameIsDroppedAndItsClassKept()
    {
        const auto tree = readSections(objects("<attribute><name></name></attribute><attribute><name>a</name>"
                                               "<name/></attribute><attribute/>") +
                                       interactions("<parameter><name> </name></parameter><parameter/>"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot [a ]\n"));
        QCOMPARE(tree->objectClassRoot()->getAttributes().size(), std::size_t(2));
        QCOMPARE(tree->interactionClassRoot()->getParameters().size(), std::size_t(2)); // a blank is a name
    }

    void datatypesAreRead()
    {
        const auto tree = readSections(
            "<dataTypes><simpleDataTypes><simpleData><name>s</name><representation>r</representation><units>u</units>"
            "<resolution>e</resolution><accuracy>a</accuracy><semantics>m</semantics></simpleData></simpleDataTypes>"
            "<arrayDataTypes><arrayData><name>a</name><dataType>t</dataType><cardinality>[1..3]</cardinality>"
            "<encoding>HLAfixedArray</encoding><semantics>m</semantics></arrayData></arrayDataTypes>"
            "<basicDataRepresentations><basicData><name>b</name><size>8</size><interpretation>i</interpretation>"
            "<endian>Big</endian><encoding>c</encoding></basicData></basicDataRepresentations></dataTypes>");
        const DtSimpleDatatypeNode& simple = *tree->getSimpleDatatypeNode("s");
        QCOMPARE(toQt(simple.getRepresentation() + simple.getUnits() + simple.getResolution() + simple.getAccuracy() +
                      simple.getDescription()),
                 QString("rueam"));
        const DtArrayDatatypeNode& array = *tree->getArrayDatatypeNode("a");
        QCOMPARE(toQt(array.getDatatype() + array.getDescription()), QString("tm"));
        QCOMPARE(array.getCardinalityType() * 10 + array.getCardinalityMaximum(), 23);
        const DtBasicDataRepresentationNode& basic = *tree->getBasicDataRepresentationNode("b");
        QCOMPARE(toQt(basic.getSize() + basic.getInterpretation() + basic.getEndian() + basic.getEncoding()),
                 QString("8iBigc"));
    }

    void recordsAreRead()
    {
        const auto tree = readSections(
            "<dataTypes><fixedRecordDataTypes><fixedRecordData><field><name>x</name><dataType>t</dataType>"
            "<semantics>m</semantics></field><encoding>e</encoding><semantics>s</semantics><name>f</name>"
            "</fixedRecordData></fixedRecordDataTypes><variantRecordDataTypes><variantRecordData><name>v</name>"
            "<discriminant>d</discriminant><dataType>t</dataType><alternative><enumerator>A, B</enumerator>"
            "<name>y</name><dataType>u</dataType><semantics>n</semantics></alternative><encoding>e</encoding>"
            "<semantics>s</semantics></variantRecordData></variantRecordDataTypes></dataTypes>");
        const DtFixedDatatypeNode& fixed = *tree->getFixedDatatypeNode("f");
        QCOMPARE(toQt(fixed.getEncoding() + fixed.getDescription()), QString("es"));
        QCOMPARE(toQt(fixed.getComponentNode("x")->getDatatype() + fixed.getComponentNode("x")->getDescription()),
                 QString("tm"));
        const DtVariantDatatypeNode& variant = *tree->getVariantDatatypeNode("v");
        QCOMPARE(
            toQt(variant.getDiscriminant() + variant.getDatatype() + variant.getEncoding() + variant.getDescription()),
            QString("dtes"));
        const DtAlternativeComponentNode& alternative = *variant.getComponentNode("y");
        QCOMPARE(toQt(alternative.getEnumerator() + alternative.getDatatype() + alternative.getDescription()),
                 QString("A, Bun"));
    }

    void enumeratorsAreRead()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections(
            "<dataTypes><enumeratedDataTypes><enumeratedData><name>e</name><representation>r</representation>"
            "<semantics>s</semantics><enumerator><value> 7x</value><name>a</name></enumerator>"
            "<enumerator><name>b</name><values>9</values></enumerator>"
            "<enumerator><name>c</name><value>4294967295</value></enumerator>"
            "<enumerator><name>a</name><value>8</value></enumerator></enumeratedData></enumeratedDataTypes></"
            "dataTypes>");
        const DtEnumeratedDatatypeNode& node = *tree->getEnumeratedDatatypeNode("e");
        QCOMPARE(toQt(node.getRepresentation() + node.getDescription()), QString("rs"));
        QCOMPARE(node.getEnumerationNode("a")->getNumber(), 7);
        QCOMPARE(node.getEnumerationNode("b")->getNumber(), 0); // only "value" counts
        QCOMPARE(node.getEnumerationNode("c")->getNumber(), -1);
        QCOMPARE(capture.text(), QString("Duplicated enum name aWarning: Enumeration e has values that are no numbers "
                                         "from -2147483648 to 2147483647: a, c\n"));
    }

    void referencesAreReadAndMerged()
    {
        const auto tree = readSections(
            "<dataTypes><referenceDataTypes><referenceDataType><name>Owner</name>"
            "<representation>HLAunicodeString</representation><referenceClass>HLAobjectRoot.Person</referenceClass>"
            "<referencedAttribute>Name</referencedAttribute><semantics>Who has it.</semantics></referenceDataType>"
            "<referenceDataType/></referenceDataTypes></dataTypes>");
        const DtReferenceDatatypeNode& node = *tree->getReferenceDatatypeNode("Owner");
        QCOMPARE(toQt(node.getRepresentation() + "|" + node.getReferenceClass() + "|" + node.getReferencedAttribute() +
                      "|" + node.getDescription()),
                 QString("HLAunicodeString|HLAobjectRoot.Person|Name|Who has it."));
        QCOMPARE(tree->referenceDatatypes().size(), std::size_t(1));
        DtOMTTree other;
        other.merge(tree.get());
        other.merge(tree.get());
        QCOMPARE(other.referenceDatatypes().size(), std::size_t(1));
        QVERIFY(other.getReferenceDatatypeNode("Owner") != &node);
    }

    // At the element and at those in it that hold values, not at members, which have notes of their own.
    void labelsOfNotesAreRead()
    {
        const auto tree = readSections(
            "<objects><objectClass notes='c1'><name noteReferences='c2 c3'>HLAobjectRoot</name>"
            "<attribute notes='a1'><name>x</name><updateCondition notes='a2'>u</updateCondition></attribute>"
            "</objectClass></objects><dataTypes><enumeratedDataTypes><enumeratedData notes='d'><name>e</name>"
            "<enumerator notes='n'><name>v</name><value>1</value></enumerator></enumeratedData></enumeratedDataTypes>"
            "</dataTypes>");
        const DtObjectClassFedNode& root = *tree->objectClassRoot();
        QCOMPARE(toQt(root.noteLabels()), QString("c1 c2 c3"));
        QCOMPARE(toQt(root.getAttributes().front()->noteLabels()), QString("a1 a2"));
        const DtEnumeratedDatatypeNode& enumeration = *tree->getEnumeratedDatatypeNode("e");
        QCOMPARE(toQt(enumeration.noteLabels()), QString("d"));
        QCOMPARE(toQt(enumeration.getEnumerationNode("v")->noteLabels()), QString("n"));
        QVERIFY(root.getNote().isEmpty() && enumeration.getNote().isEmpty());
    }

    // The number stays as it is, and with it who is left out; what it does not hold is kept beside it.
    void valueThatIsNoNumberIsToldAndKept()
    {
        DtCapture capture(DtWarn);
        const auto tree =
            readSections("<dataTypes><enumeratedDataTypes><enumeratedData><name>Side</name>"
                         "<enumerator><name>Here</name><value>H</value></enumerator>"
                         "<enumerator><name>There</name><value>T</value></enumerator>"
                         "<enumerator><name>Wide</name><value>18446744073709551613</value></enumerator>"
                         "<enumerator><name>Low</name><value>-9223372036854775808</value></enumerator>"
                         "<enumerator><name>Plain</name><value> +007 </value></enumerator></enumeratedData>"
                         "<enumeratedData><name>Plain</name><enumerator><name>One</name><value>1</value></enumerator>"
                         "<enumerator><name>None</name></enumerator></enumeratedData>"
                         "</enumeratedDataTypes></dataTypes>");
        QCOMPARE(capture.text(),
                 QString("Duplicated enum number Duplicated enum number Warning: Enumeration Side has values that are "
                         "no numbers from -2147483648 to 2147483647: Here, There (left out), Wide, "
                         "Low (left out)\n"));
        const DtEnumeratedDatatypeNode& node = *tree->getEnumeratedDatatypeNode("Side");
        QCOMPARE(node.getEnumerationNode("Here")->getNumber(), 0);
        QCOMPARE(toQt(node.getEnumerationNode("Here")->numberText()), QString("0"));
        QCOMPARE(toQt(node.getEnumerationNode("Wide")->numberText()), QString("18446744073709551613"));
        QCOMPARE(toQt(node.getEnumerationNode("Plain")->numberText()), QString("7"));
    }

    void smallTablesAreRead()
    {
        const auto tree = readSections(
            "<notes><note><label>alpha</label><semantics>t</semantics></note></notes>"
            "<dimensions><dimension><name>d</name><dataType>t</dataType><normalization>n</normalization>"
            "<value>v</value><upperBound>u</upperBound></dimension></dimensions>"
            "<synchronizations><synchronization><label>l</label><dataType>t</dataType><capability>c</capability>"
            "<semantics>s</semantics></synchronization><synchronizationPoint><label>x</label></synchronizationPoint>"
            "</synchronizations><transportations><transportation><name>n</name><reliable>Yes</reliable>"
            "<semantics>s</semantics></transportation></transportations>"
            "<updateRates><updateRate><name>n</name><rate> +2.5e1</rate><semantics>s</semantics></updateRate>"
            "</updateRates><time><timeStamp><dataType>a</dataType><semantics>b</semantics></timeStamp>"
            "<lookahead><dataType>c</dataType><semantics>d</semantics></lookahead></time>");
        QCOMPARE(toQt(tree->getNoteNode("alpha")->getText()), QString("t"));
        QCOMPARE(tree->getNoteNode("alpha")->getNumber(), 0);
        const DtDimensionNode& dimension = *tree->getDimensionNode("d");
        QCOMPARE(toQt(dimension.getDatatype() + dimension.getNormalization() + dimension.getValue() +
                      dimension.getUpperBound()),
                 QString("tnvu"));
        const DtSynchroNode& point = *tree->getSynchroNode("l");
        QCOMPARE(toQt(point.getDatatype() + point.getCapability() + point.getDescription()), QString("tcs"));
        QVERIFY(tree->getSynchroNode("x") == nullptr);
        QCOMPARE(
            toQt(tree->getTransportationNode("n")->getReliable() + tree->getTransportationNode("n")->getDescription()),
            QString("Yess"));
        QCOMPARE(tree->getUpdateRateNode("n")->rate(), 25.0);
        QCOMPARE(toQt(tree->getUpdateRateNode("n")->semantics()), QString("s"));
        DtTimeRepNode& time = *tree->getTimeRepNode();
        QCOMPARE(toQt(time.getFederationTimeDatatype() + time.getFederationTimeSemantics() +
                      time.getLookaheadDatatype() + time.getLookaheadSemantics()),
                 QString("abcd"));
    }

    void switchesAreRead()
    {
        const auto tree =
            readSections("<switches>\n<autoProvide isEnabled=\"true\"/><!-- none --><other isEnabled=\"Enabled\"/>"
                         "<off isEnabled=\"false\" resignAction=\"NoAction\"/>"
                         "<automaticResignAction isEnabled=\"true\" resignAction=\"NoAction\"/></switches>");
        QCOMPARE(namesOf(tree->getSwitchNodeList(), tree->getSwitchEndNode()),
                 QString("autoProvide other off automaticResignAction"));
        QVERIFY(tree->getSwitchNode("autoProvide")->getEnabled());
        QVERIFY(!tree->getSwitchNode("other")->getEnabled());
        QVERIFY(!tree->getSwitchNode("off")->getEnabled());
        QCOMPARE(toQt(tree->getSwitchNode("off")->getNote()), QString());
        QCOMPARE(toQt(tree->getSwitchNode("automaticResignAction")->getNote()), QString("NoAction"));
    }

    void childrenMayStandInAnyOrder()
    {
        const auto tree = readSections(
            "<objects><objectClass><objectClass><attribute><dataType>t</dataType><name>a</name></attribute>"
            "<name>O</name></objectClass><name>HLAobjectRoot</name></objectClass></objects>"
            "<interactions><interactionClass><interactionClass><parameter><name>p</name></parameter><name>I</name>"
            "</interactionClass><name>HLAinteractionRoot</name></interactionClass></interactions>"
            "<dataTypes><fixedRecordDataTypes><fixedRecordData><field><dataType>t</dataType><name>f</name></field>"
            "<name>R</name></fixedRecordData></fixedRecordDataTypes><enumeratedDataTypes><enumeratedData><enumerator>"
            "<value>7</value><name>v</name></enumerator><name>E</name></enumeratedData></enumeratedDataTypes>"
            "<variantRecordDataTypes><variantRecordData><alternative><name>l</name><enumerator>v</enumerator>"
            "</alternative><discriminant>d</discriminant><name>V</name></variantRecordData>"
            "</variantRecordDataTypes></dataTypes>");
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot\n  O [a]\n"));
        QCOMPARE(printClass(tree->interactionClassRoot()), QString("HLAinteractionRoot\n  I [p]\n"));
        QCOMPARE(toQt(tree->getObjectClassNode("HLAobjectRoot.O")->findAttribute("a")->getFullName()),
                 QString("HLAobjectRoot.O.a"));
        QCOMPARE(toQt((*tree->getFixedDatatypeNode("R")->getComponentNodeList())->getName()), QString("f"));
        QCOMPARE((*tree->getEnumeratedDatatypeNode("E")->getEnumerationNodeList())->getNumber(), 7);
        QCOMPARE(toQt((*tree->getVariantDatatypeNode("V")->getComponentNodeList())->getEnumerator()), QString("v"));
    }

    void everyChildElementIsATag()
    {
        const auto tree = readSections("<tags>\n<updateReflectTag><dataType>t</dataType><semantics>s</semantics>"
                                       "</updateReflectTag>\n<!-- none --><?none?>text<![CDATA[none]]>"
                                       "<lockTag><name>n</name></lockTag></tags>");
        QCOMPARE(namesOf(tree->getTagNodeList(), tree->getTagEndNode()), QString("updateReflectTag lockTag"));
        const DtTagNode& tag = *tree->getTagNode("updateReflectTag");
        QCOMPARE(toQt(tag.getDatatype() + tag.getDescription()), QString("ts"));
    }

    void embeddedNoteIsTaken()
    {
        DtOMTNode target;
        for (const QByteArray text : {"<a><note>m</note><note>n</note><note/></a>", "<a><name>x</name></a>"})
        {
            const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
            xmlNode* root = xmlDocGetRootElement(document.get());
            DtXMLEvolvedFileReader(nullptr).processEmbeddedNote(root, &target);
            QCOMPARE(toQt(target.getNote()), QString("n"));
        }
    }

    void textsMayStandInCdataAndBehindComments()
    {
        const auto tree = readSections("<modelIdentification><name><![CDATA[a<b]]></name>"
                                       "<type><!-- c -->FOM</type><purpose>&lt;&amp;&#10;x</purpose>"
                                       "</modelIdentification>");
        QCOMPARE(toQt(tree->getName()), QString("a<b"));
        QCOMPARE(toQt(tree->getType()), QString("FOM"));
        QCOMPARE(toQt(tree->getPurpose()), QString("<&\nx"));
    }

    void childElementWithoutTextIsSkipped()
    {
        const auto tree = readSections(
            objects("<attribute><name>a</name><cardinality/><dataType>t</dataType><dataType/><order><x>o</x></order>"
                    "<semantics> </semantics></attribute>") +
            "<dataTypes><simpleDataTypes><simpleData><name/><name>s</name></simpleData></simpleDataTypes>"
            "<enumeratedDataTypes><enumeratedData><name>e</name><enumerator><name>x</name><value>5</value><value/>"
            "</enumerator></enumeratedData></enumeratedDataTypes></dataTypes>"
            "<modelIdentification><name>n</name><name/><poc><pocName/></poc></modelIdentification>");
        const DtAttributeFedNode& attribute = *tree->objectClassRoot()->findAttribute("a");
        QCOMPARE(textsOf({attribute.getCardinality(), attribute.getDatatype(), attribute.getOrder()}),
                 QString("1 t -"));
        QCOMPARE(toQt(attribute.getDescription()), QString(" ")); // a blank is a text
        QVERIFY(tree->getSimpleDatatypeNode("s") != nullptr);
        QCOMPARE((*tree->getEnumeratedDatatypeNode("e")->getEnumerationNodeList())->getNumber(), 5);
        QCOMPARE(toQt(tree->getName()), QString("n"));
    }

    void laterOfTwoValuesStays()
    {
        const auto tree = readSections(objects("<sharing>a</sharing><sharing>b</sharing>"));
        QCOMPARE(toQt(tree->objectClassRoot()->getSharing()), QString("b"));
    }

    void valuesInAttributesAreNotRead()
    {
        DtCapture capture(DtWarn);
        const auto tree =
            readSections("<objects><objectClass name='HLAobjectRoot' sharing='s'/></objects>"
                         "<notes><note label='l'/></notes><dimensions><dimension name='d'/></dimensions>");
        QCOMPARE(toQt((*tree->getObjectClassNodeBegin())->getSharing()), QString());
        QCOMPARE(toQt((*tree->getNoteNodeList())->getLabel()), QString("0"));
        QCOMPARE(capture.text(), QString("Warning: HLAobjectRoot is missing from 1516 Evolved XML file\n"
                                         "Warning: dimension definition was missing a name\n"));
    }

    void noteIsFoundByLabelAndANumberedOneByNumber()
    {
        const auto tree = readSections("<notes><note><label>3</label><semantics>t</semantics></note><note>"
                                       "<label>alpha</label></note><note><semantics>u</semantics></note>"
                                       "<note><name>7</name></note></notes>");
        QCOMPARE(toQt(tree->getNoteNode(3)->getText()), QString("t"));
        QVERIFY(tree->getNoteNode(3) == tree->getNoteNode("3"));
        QCOMPARE(toQt(tree->getNoteNode(0)->getLabel()), QString("alpha"));
        QCOMPARE(toQt(tree->getNoteNode("0")->getText()), QString("u"));
        QVERIFY(tree->getNoteNode(7) == nullptr);
    }

    void updateRateIsReadAsAtofDoes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("rate");
        QTest::newRow("decimal") << QByteArray("0.25") << 0.25;
        QTest::newRow("text behind it") << QByteArray("5 Hz") << 5.0;
        QTest::newRow("text") << QByteArray("fast") << 0.0;
        QTest::newRow("negative") << QByteArray("-1e1") << -10.0;
        QTest::newRow("comma") << QByteArray("1,5") << 1.0;
    }

    void updateRateIsReadAsAtofDoes()
    {
        QFETCH(QByteArray, text);
        const auto tree =
            readSections("<updateRates><updateRate><rate>" + text + "</rate><name>n</name></updateRate></updateRates>");
        QTEST(tree->getUpdateRateNode("n")->rate(), "rate");
    }

    void nodesOfOneNameAllStay()
    {
        const auto tree = readSections(
            objects("<objectClass><name>A</name><sharing>1</sharing></objectClass><objectClass><name>A</name>"
                    "<sharing>2</sharing></objectClass><attribute><name>a</name><order>1</order></attribute>"
                    "<attribute><name>a</name><order>2</order></attribute>") +
            interactions("<parameter><name>p</name><order>1</order></parameter><parameter><name>p</name>"
                         "<order>2</order></parameter>") +
            "<dimensions><dimension><name>d</name><value>1</value></dimension><dimension><name>d</name><value>2</value>"
            "</dimension></dimensions>");
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot [a a]\n  A\n  A\n"));
        QCOMPARE(toQt(tree->getObjectClassNode("HLAobjectRoot.A")->getSharing()), QString("1"));
        QCOMPARE(toQt(tree->objectClassRoot()->findAttribute("a")->getOrder()), QString("2"));
        QCOMPARE(tree->interactionClassRoot()->getParameters().size(), std::size_t(2));
        QCOMPARE(toQt(tree->interactionClassRoot()->findParameter("p")->getOrder()), QString("1"));
        QCOMPARE(namesOf(tree->getDimensionNodeList(), tree->getDimensionEndNode()), QString("d d"));
        QCOMPARE(toQt(tree->getDimensionNode("d")->getValue()), QString("1"));
    }

    void fixedRecordWithoutANameIsDropped()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections("<dataTypes><fixedRecordDataTypes><fixedRecordData><name/><field/>"
                                       "</fixedRecordData></fixedRecordDataTypes></dataTypes>");
        QVERIFY(tree->getFixedDatatypeNodeList() == tree->getFixedDatatypeEndNode());
        QCOMPARE(capture.text(), QString("Warning: fixedRecordData definition was missing a name\n"));
    }

    void classWithoutANameElementIsKept()
    {
        const auto tree =
            readSections(objects("<objectClass><attribute><name>a</name></attribute></objectClass>") +
                         interactions("<interactionClass><parameter><name>p</name></parameter></interactionClass>"));
        QCOMPARE(printClass(tree->objectClassRoot()), QString("HLAobjectRoot\n   [a]\n"));
        QCOMPARE(printClass(tree->interactionClassRoot()), QString("HLAinteractionRoot\n   [p]\n"));
    }

    void parameterAddsItselfAndAttributeDoesNot()
    {
        const QByteArray text = "<m><name>m</name></m>";
        const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
        xmlNode* root = xmlDocGetRootElement(document.get());
        DtXMLEvolvedFileReader reader(nullptr);
        DtObjectClassFedNode objectClass;
        const std::unique_ptr<DtAttributeFedNode> attribute(reader.processAttribute(root, &objectClass));
        QCOMPARE(toQt(attribute->getName()), QString("m"));
        QVERIFY(objectClass.getAttributes().empty());
        DtInteractionClassFedNode interaction;
        QVERIFY(reader.processParameter(root, &interaction) == interaction.getParameters().front());
    }

    void attributeAndElementGiveTheTextOfTheirFirstChild()
    {
        const QByteArray text = "<!DOCTYPE a SYSTEM 'x.dtd'><a b='c' d='' e='&x;'>f<g/>h<i/><j>&x;k</j></a>";
        const DtXmlErrors quiet;
        const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
        xmlNode* root = xmlDocGetRootElement(document.get());
        DtXMLEvolvedFileReader reader(nullptr);
        QStringList texts;
        for (xmlAttr* attribute = root->properties; attribute != nullptr; attribute = attribute->next)
            texts += toQt(reader.childNodeString(attribute));
        texts += toQt(reader.childNodeString(root));
        for (xmlNode*& child : DtXmlElements(root))
            texts += toQt(reader.childNodeString(child));
        QCOMPARE(texts.join('|'), QString("c|||f|||"));
    }

    void unknownEntityMayBeDeclaredOutside()
    {
        const auto tree = readDocument<DtXMLEvolvedFileReader>(
            "<!DOCTYPE objectModel SYSTEM 'x.dtd'><objectModel>&x;<modelIdentification>&x;<name>n&x;m</name>"
            "<type>&x;</type></modelIdentification><tags>&x;<a/></tags></objectModel>");
        QCOMPARE(textsOf({tree->getName(), tree->getType()}), QString("n -"));
        QCOMPARE(namesOf(tree->getTagNodeList(), tree->getTagEndNode()), QString("a"));
    }

    void sectionsMayComeInAnyOrderAndAgain()
    {
        const QByteArray dimensions = "<dimensions><dimension><name>%1</name></dimension></dimensions>";
        const auto tree = readSections("<updateRates><updateRate><name>u</name></updateRate></updateRates>" +
                                       QByteArray(dimensions).replace("%1", "d") + interactions("") + objects("") +
                                       "<modelIdentification><name>n</name></modelIdentification>" +
                                       QByteArray(dimensions).replace("%1", "e"));
        QCOMPARE(namesOf(tree->getDimensionNodeList(), tree->getDimensionEndNode()), QString("d e"));
        QCOMPARE(toQt(tree->getName()), QString("n"));
        QVERIFY(tree->objectClassRoot() != nullptr && tree->interactionClassRoot() != nullptr);
    }

    void nameAndNamespaceOfTheRootElementAreNotAsked()
    {
        const auto tree = readDocument<DtXMLEvolvedFileReader>(
            "<x:other xmlns:x='urn:x'><x:modelIdentification><x:name>n</x:name></x:modelIdentification></x:other>");
        QCOMPARE(toQt(tree->getName()), QString("n"));
    }

    void classesMayBeNestedAsDeepAsTheParserAllows()
    {
        const auto nested = [](int depth)
        {
            return modelText("<interactions>" + QByteArray("<interactionClass><name>C</name>").repeated(depth) +
                             QByteArray("</interactionClass>").repeated(depth) + "</interactions>");
        };
        DtCapture capture(DtWarn);
        const auto tree = readDocument<DtXMLEvolvedFileReader>(nested(250));
        QCOMPARE(std::distance(tree->getInteractionClassNodeBegin(), tree->getInteractionClassNodeEnd()),
                 std::ptrdiff_t(250));
        const QByteArray tooDeep = nested(300);
        const DtXmlErrors quiet;
        QVERIFY(DtParseXmlBuffer(tooDeep.constData(), tooDeep.size()) == nullptr);
    }

    void unknownElementsAreIgnored()
    {
        DtCapture capture(DtWarn);
        const auto tree = readSections<DtXMLHla4FileReader>(
            "text<serviceUtilization/><simpleDataTypes><simpleData><name>x</name></simpleData></"
            "simpleDataTypes><dataTypes><referenceDataTypes><referenceDataType><name>x</name></referenceDataType>"
            "</referenceDataTypes></dataTypes>");
        QCOMPARE(capture.text(), QString());
        QVERIFY(tree->getSimpleDatatypeNode("x") == nullptr);
    }
};

QX_REGISTER_TEST(TestXmlEvolvedFileReader)
#include "testXmlEvolvedFileReader.moc"
