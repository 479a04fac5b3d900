#include "registerTest.h"

#include "contextTestSupport.h"

#include "foundation/exception.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

#include <map>
#include <set>

// The context that is made of a model: its lists, their keys, and what each key holds.
class TestContextModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void keysAreThese_data();
    void keysAreThese();
    void noListHasFurtherKeys();
    void fullModelHasEveryKeyAndNoOther();
    void everyListStandsUnderItsKeyWithItsCount();

    void attributesStandInTheOrderOfTheModel();
    void attributeTellsWhatTheModelTells();
    void objectTellsWhatTheModelTells();
    void classesAreThoseOfTheSelection();
    void rootClassesAreLeftOut();
    void classIsFoundByItsFullName();
    void parentThatWasNotVisitedHasNoUniqueId();
    void uniqueIdsOfAnEarlierRunAreForgotten();
    void sameNameInOtherBranchGetsANumber();
    void uniqueNamesAreSharedByObjectsAndInteractions();
    void removedAttributesLeaveNoEntries();
    void interactionDiffersFromObject();
    void interactionTellsWhatTheModelTells();

    void unusedDatatypesAreLeftOut();
    void simpleDatatypesEndWithTheOctet();
    void octetHasATypeOrNone();
    void representationHasATypeOrNone();
    void enumerationHasItsTypeOrAnother();
    void arraysTellTheirPadding_data();
    void arraysTellTheirPadding();
    void recordsTellTheirFields();
    void variantsTellTheirPadding_data();
    void variantsTellTheirPadding();
    void variantsTellTheirAlternatives();
    void complexDatatypesTellTheirComponents();
    void cancelEndsThreeOfTheLists();

    void settingsStandInTheRoot();
    void protocolIsThatOfTheVersion_data();
    void protocolIsThatOfTheVersion();
    void omtNameBecomesFed_data();
    void omtNameBecomesFed();
    void everyEntryHasIdentifiersOfItsOwn();
    void identifiersPassOverTexts();
    void identifiersAreRandom();
    void uniqueNamesAreCounted();
    void manyEqualNamesAreCountedQuickly();
    void textsHaveSafeForms();
    void secondContextIsAddedToTheFirst();
    void withoutATreeThereIsAnException();

private:
    void use(const QByteArray& content);
    void setType(const char* name, const char* type);
    const DtMapSubstitute& at(const QString& path) const { return mapAt(myWriter->context(), path); }

    std::unique_ptr<DtContextFixture> myFixture;
    std::unique_ptr<DtOMTTree> myTree;
    std::unique_ptr<DtOMTWriter> myWriter;
};

namespace
{
const char theDatatypes[] =
    "<dataTypes><basicDataRepresentations>"
    "<basicData><name>HLAoctet</name><size>8</size><endian>Big</endian><interpretation>8 bits</interpretation>"
    "<encoding>none</encoding></basicData>"
    "<basicData><name>Int32</name><size>32</size><endian>Little</endian></basicData>"
    "<basicData><name>Int64</name><size>64</size></basicData></basicDataRepresentations>"
    "<simpleDataTypes><simpleData><name>Metre</name><representation>Int64</representation><units>m</units>"
    "<resolution>fine</resolution><accuracy>perfect</accuracy><semantics>Length.</semantics></simpleData></"
    "simpleDataTypes>"
    "<enumeratedDataTypes><enumeratedData><name>Colour</name><representation>Int32</representation>"
    "<semantics>Hue.</semantics><enumerator><name>dark red</name><value>1</value></enumerator>"
    "<enumerator><name>Blue</name><value>7</value></enumerator></enumeratedData></enumeratedDataTypes>"
    "<arrayDataTypes><arrayData><name>Lengths</name><dataType>Metre</dataType><cardinality>Dynamic</cardinality>"
    "<encoding>HLAvariableArray</encoding><semantics>Several.</semantics></arrayData></arrayDataTypes>"
    "<fixedRecordDataTypes><fixedRecordData><name>Place</name><encoding>HLAfixedRecord</encoding>"
    "<semantics>Where.</semantics><field><name>x y</name><dataType>Metre</dataType><semantics>Both.</semantics></field>"
    "<field><name>hue</name><dataType>Colour</dataType></field></fixedRecordData></fixedRecordDataTypes>"
    "<variantRecordDataTypes><variantRecordData><name>Any</name><discriminant>kind</discriminant>"
    "<dataType>Colour</dataType><encoding>HLAvariantRecord</encoding><semantics>One of.</semantics>"
    "<alternative><enumerator>Blue</enumerator><name>where</name><dataType>Place</dataType><semantics>There.</"
    "semantics>"
    "</alternative></variantRecordData></variantRecordDataTypes></dataTypes>";

const char theClasses[] =
    "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>Ship</name><sharing>PublishSubscribe</sharing>"
    "<semantics>Floats.</semantics>"
    "<attribute><name>Zone Name</name><dataType>Any</dataType><updateType>Static</updateType>"
    "<updateCondition>never</updateCondition><ownership>Divest</ownership><sharing>Publish</sharing>"
    "<dimensions><dimension>North</dimension><dimension>East</dimension></dimensions>"
    "<transportation>HLAreliable</transportation><order>Receive</order><semantics>Its zone.</semantics></attribute>"
    "<attribute><name>Length</name><dataType>Lengths</dataType></attribute>"
    "<objectClass><name>Tug</name></objectClass></objectClass></objectClass></objects>"
    "<interactions><interactionClass><name>HLAinteractionRoot</name><interactionClass><name>Horn</name>"
    "<sharing>Subscribe</sharing><dimensions><dimension>North</dimension></dimensions>"
    "<transportation>HLAbestEffort</transportation><order>TimeStamp</order><semantics>Loud.</semantics>"
    "<parameter><name>Tone Pitch</name><dataType>Colour</dataType><semantics>High.</semantics></parameter>"
    "<interactionClass><name>Whistle</name></interactionClass>"
    "</interactionClass></interactionClass></interactions>";

// The keys of each list but the two identifiers at its end. "(Id)" is a text with an identifier beside it and "(t)" one
// without; both have safe forms. "(l)" is a list.
const char theRootKeys[] =
    "NumRepresentations Representations(l) NumSimpleDatatypes SimpleDatatypes(l) NumComplexDatatypes "
    "ComplexDatatypes(l) NumEnumerations Enumerations(l) NumArrays Arrays(l) NumFixedRecords FixedRecords(l) "
    "NumVariantRecords VariantRecords(l) NumObjects Objects(l) NumInteractions Interactions(l) "
    "NumReferences References(l) "
    "FomDefinitionFileName(t) Namespace(t) Include(t) Prefix(t) BaseName(t) MIMincluded TemplateDir(t) "
    "Language(t) Protocol SolutionUUID1 SolutionUUID2 ProjectUUID1 ProjectUUID2";
const char theRepresentationsKeys[] =
    "RepresentationName(t) RepresentationEncoding(t) RepresentationEndian(t) RepresentationInterpretation(t) "
    "RepresentationNote(t) RepresentationSize(t) RepresentationBoundary RepresentationType(t)";
const char theSimpleDatatypesKeys[] =
    "SimpleName(t) SimpleType(t) SimpleRepresentation(t) SimpleBoundary SimpleUnits(t) SimpleAccuracy(t) "
    "SimpleResolution(t) SimpleDescription(t)";
const char theComplexDatatypesKeys[] = "ComplexName(Id) ComplexNote(t) NumComponents Components(l)";
const char theComponentsKeys[] =
    "ComponentName(Id) ComponentAccuracy(t) ComponentAccuracyCondition(t) ComponentCardinality(t) "
    "ComponentCardinalityMaximum ComponentCardinalityMinimum ComponentCardinalityType "
    "ComponentConditional(t) ComponentConditionalValue(t) ComponentNote(t) ComponentKind "
    "ComponentRepresentation(t) ComponentType(t) ComponentIsSimple ComponentBoundary";
const char theEnumerationsKeys[] =
    "EnumerationName(Id) EnumerationDescription(t) EnumerationNote(t) EnumerationRepresentation(Id) "
    "EnumerationBoundary EnumerationType(t) NumEnumerators Enumerators(l)";
const char theArraysKeys[] =
    "ArrayName(Id) ArrayEncoding(Id) ArrayDatatype(Id) ArrayCardinality(t) ArrayCardinalityMin "
    "ArrayCardinalityMax ArrayDescription(t) ArrayNote(t) ArrayPadding ArrayKind ArrayRepresentation(t) "
    "ArrayType(t) ArrayIsSimple ArrayBoundary";
const char theFixedRecordsKeys[] =
    "FixedRecName(Id) FixedRecEncoding(Id) FixedRecDescription(t) FixedRecNote(t) FixedBoundary NumFields "
    "Fields(l)";
const char theFieldsKeys[] =
    "FieldName(Id) FieldDatatype(Id) FieldDescription(t) FieldNote(t) FieldKind FieldRepresentation(t) "
    "FieldType(t) FieldIsSimple FieldBoundary";
const char theVariantRecordsKeys[] =
    "VariantName(Id) VariantEncoding(Id) VariantDiscriminant(Id) VariantDatatype(Id) VariantBoundary "
    "VariantDescription(t) VariantNote(t) VariantPadding VariantKind VariantRepresentation(t) VariantType(t) "
    "VariantIsSimple NumAlternatives Alternatives(l)";
const char theAlternativesKeys[] =
    "AlternativeName(Id) AlternativeEnumerator(Id) AlternativeDatatype(Id) AlternativeDescription(t) "
    "AlternativeNote(t) AlternativeKind AlternativeRepresentation(t) AlternativeType(t) AlternativeIsSimple "
    "AlternativeBoundary";
const char theObjectsKeys[] =
    "NumAttributes Attributes(l) ObjectFullName(t) ObjectName(Id) ObjectDescriptor(t) ObjectNote(t) "
    "ObjectSharing(t) ObjectUniqueId(t) ObjectParentFullName(t) ObjectParentName(t) ObjectParentUniqueId(t)";
const char theAttributesKeys[] =
    "AttributeAccuracy(t) AttributeAccuracyCondition(t) AttributeCardinality(t) AttributeCardinalityMax "
    "AttributeCardinalityMin AttributeCardinalityType AttributeDatatype(Id) AttributeDescription(t) "
    "AttributeFullName(t) AttributeName(Id) AttributeNote(t) AttributeOrder(t) AttributeSharing(t) "
    "AttributeTransferAccept(t) AttributeTransportation(t) AttributeUpdateCondition(t) "
    "AttributeUpdateType(t) AttributeKind AttributeRepresentation(t) AttributeType(t) AttributeIsSimple "
    "AttributeBoundary NumDimensions AttributeDimensions(l)";
const char theInteractionsKeys[] =
    "NumParameters Parameters(l) InteractionFullName(t) InteractionName(Id) InteractionDescriptor(t) "
    "InteractionNote(t) InteractionSharing(t) InteractionOrder(t) InteractionTransportation(t) "
    "InteractionUniqueId(t) NumDimensions InteractionDimensions(l) InteractionParentFullName(t) "
    "InteractionParentName(t) InteractionParentUniqueId(t)";
const char theParametersKeys[] =
    "ParameterAccuracy(t) ParameterAccuracyCondition(t) ParameterCardinality(t) ParameterCardinalityMax "
    "ParameterCardinalityMin ParameterCardinalityType ParameterDatatype(t) ParameterDescription(t) "
    "ParameterFullName(t) ParameterName(t) ParameterNameId ParameterNote(t) ParameterOrder(t) "
    "ParameterSharing(t) ParameterTransportation(t) ParameterKind ParameterRepresentation(t) "
    "ParameterType(t) ParameterIsSimple ParameterBoundary";

QByteArray objects(const QByteArray& content)
{
    return "<objects><objectClass><name>HLAobjectRoot</name>" + content + "</objectClass></objects>";
}

// Objects of these names below each other.
QByteArray nested(const QList<QByteArray>& names)
{
    QByteArray text;
    for (int index = names.size() - 1; index >= 0; --index)
        text = "<objectClass><name>" + names[index] + "</name>" + text + "</objectClass>";
    return text;
}

// The keys of the tree below a map, by the list that the map is an entry of.
void collectKeys(const DtMapSubstitute& map, const DtString& list, std::map<DtString, std::set<DtString>>& keys)
{
    for (const DtMapSubstitute::Entry& entry : map)
    {
        keys[list].insert(entry.first);
        const DtMapSubstitute* inner = DtMapSubstitute::mapOf(entry.second);
        if (inner == nullptr)
            continue;
        for (const DtMapSubstitute::Entry& item : *inner)
            collectKeys(*DtMapSubstitute::mapOf(item.second), entry.first, keys);
    }
}

QString printKeys(const std::map<DtString, std::set<DtString>>& lists)
{
    QString text;
    for (const auto& [list, keys] : lists)
        for (const DtString& key : keys)
            text += toQt(list) + '.' + toQt(key) + '\n';
    return text;
}

void collectIdentifiers(const DtMapSubstitute& map, QStringList& identifiers)
{
    identifiers += valueOf(map, "UUID1");
    identifiers += valueOf(map, "UUID2");
    for (const DtMapSubstitute::Entry& entry : map)
    {
        const DtMapSubstitute* list = DtMapSubstitute::mapOf(entry.second);
        if (list == nullptr)
            continue;
        QVERIFY2(list->get("UUID1") == nullptr, entry.first.c_str());
        for (const DtMapSubstitute::Entry& item : *list)
            collectIdentifiers(*DtMapSubstitute::mapOf(item.second), identifiers);
    }
}

bool isIdentifier(const QString& text)
{
    return QRegularExpression("^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$").match(text).hasMatch();
}
} // namespace

void TestContextModel::init()
{
    myFixture = std::make_unique<DtContextFixture>();
    myWriter = std::make_unique<DtOMTWriter>();
}

void TestContextModel::cleanup()
{
    myWriter.reset();
    myTree.reset();
    myFixture.reset();
}

// Reads the model, selects all of it and builds its context.
void TestContextModel::use(const QByteArray& content)
{
    myTree = myFixture->read(evolvedModel(content));
    QVERIFY(myTree != nullptr);
    selectAll(*myWriter, *myTree);
    myWriter->checkUsedSubDatatypesFiles();
    myWriter->buildContext();
}

void TestContextModel::setType(const char* name, const char* type)
{
    myWriter->executeCommandLine_prepare(DtString("setDatatype \"") + name + "\" \"" + type + "\"");
}

void TestContextModel::keysAreThese_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("keys");
    const struct
    {
        const char* name;
        QString list, keys;
    } theRows[] = {
        {"root",                   "",                      theRootKeys                                          },
        {"representations",        "Representations",       theRepresentationsKeys                               },
        {"simple",                 "SimpleDatatypes",       theSimpleDatatypesKeys                               },
        {"references",             "References",
         "ReferenceName(t) ReferenceRepresentation(t) ReferenceBoundary ReferenceClass(t) ReferenceAttribute(t) "
         "ReferenceDescription(t)"                                                                               },
        {"complex",                "ComplexDatatypes",      theComplexDatatypesKeys                              },
        {"components",             "Components",            theComponentsKeys                                    },
        {"enumerations",           "Enumerations",          theEnumerationsKeys                                  },
        {"enumerators",            "Enumerators",           "EnumeratorName(Id) EnumeratorValue EnumeratorNumber"},
        {"arrays",                 "Arrays",                theArraysKeys                                        },
        {"fixed",                  "FixedRecords",          theFixedRecordsKeys                                  },
        {"fields",                 "Fields",                theFieldsKeys                                        },
        {"variant",                "VariantRecords",        theVariantRecordsKeys                                },
        {"alternatives",           "Alternatives",          theAlternativesKeys                                  },
        {"objects",                "Objects",               theObjectsKeys                                       },
        {"attributes",             "Attributes",            theAttributesKeys                                    },
        {"attribute dimensions",   "AttributeDimensions",   "Dimension(t)"                                       },
        {"interactions",           "Interactions",          theInteractionsKeys                                  },
        {"parameters",             "Parameters",            theParametersKeys                                    },
        {"interaction dimensions", "InteractionDimensions", "Dimension(t)"                                       },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.list << row.keys + " UUID1 UUID2";
}

void TestContextModel::keysAreThese()
{
    const std::map<DtKeyForm, QString> marks = {
        {DtKeyForm::Plain, ""    },
        {DtKeyForm::Text,  "(t)" },
        {DtKeyForm::Name,  "(Id)"},
        {DtKeyForm::List,  "(l)" },
    };
    QFETCH(QString, list);
    QStringList keys;
    for (const DtContextKey& key : DtOMTWriter::contextKeys())
        if (toQt(key.list) == list)
            keys += toQt(key.key) + marks.at(key.form);
    QTEST(keys.join(' '), "keys");
}

void TestContextModel::noListHasFurtherKeys()
{
    std::set<DtString> lists;
    for (const DtContextKey& key : DtOMTWriter::contextKeys())
        lists.insert(key.list);
    QCOMPARE(int(lists.size()), 19); // the rows above
}

void TestContextModel::fullModelHasEveryKeyAndNoOther()
{
    for (const char* name : {"HLAoctet", "Int32", "Int64"})
        setType(name, "int");
    myTree = myFixture->read(evolvedModel(QByteArray(theClasses) + theDatatypes));
    DtComplexDatatypeNode* complex = new DtComplexDatatypeNode;
    complex->setName("Old");
    DtTestModel::addComponent(complex, "part", "Metre", "1");
    myTree->addComplexDatatypeNode(complex);
    myTree->getObjectClassNode("HLAobjectRoot.Ship")->getAttributes().back()->setDatatype("Old");
    auto* more = new DtAttributeFedNode;
    more->setName("more");
    more->setDatatype("Lengths");
    myTree->getObjectClassNode("HLAobjectRoot.Ship")->addAttribute(more);
    auto* simple = new DtAttributeFedNode(*more);
    simple->setDatatype("Metre");
    myTree->getObjectClassNode("HLAobjectRoot.Ship")->addAttribute(simple);
    auto* reference = new DtReferenceDatatypeNode;
    reference->setName("Link");
    reference->setRepresentation("Metre");
    myTree->addReferenceDatatypeNode(reference);
    auto* link = new DtAttributeFedNode(*more);
    link->setDatatype("Link");
    myTree->getObjectClassNode("HLAobjectRoot.Ship")->addAttribute(link);
    // The alternatives are to have a single value among them.
    auto* alternative = new DtAlternativeComponentNode;
    alternative->setName("colour");
    alternative->setDatatype("Colour");
    myTree->getVariantDatatypeNode("Any")->addComponentNode(alternative);
    selectAll(*myWriter, *myTree);
    myWriter->checkUsedSubDatatypesFiles();
    myWriter->buildContext();

    std::map<DtString, std::set<DtString>> expected;
    for (const DtContextKey& key : DtOMTWriter::contextKeys())
        for (const DtString& spelling : key.spellings())
            expected[key.list].insert(spelling);
    std::map<DtString, std::set<DtString>> found;
    collectKeys(myWriter->context(), "", found);
    QCOMPARE(printKeys(found), printKeys(expected));
}

void TestContextModel::everyListStandsUnderItsKeyWithItsCount()
{
    use(QByteArray(theClasses) + theDatatypes);
    QCOMPARE(valuesOf(myWriter->context(), "NumRepresentations NumSimpleDatatypes NumComplexDatatypes NumEnumerations "
                                           "NumArrays NumFixedRecords NumVariantRecords NumObjects NumInteractions"),
             QString("NumRepresentations=3 NumSimpleDatatypes=2 NumComplexDatatypes=0 NumEnumerations=1 NumArrays=1 "
                     "NumFixedRecords=1 NumVariantRecords=1 NumObjects=2 NumInteractions=2"));
    QCOMPARE(keysOf(at("Representations")), QString("HLAoctet Int32 Int64"));
    QCOMPARE(keysOf(at("SimpleDatatypes")), QString("Metre HLAoctet"));
    QCOMPARE(keysOf(at("Enumerations")), QString("Colour"));
    QCOMPARE(keysOf(at("Arrays")), QString("Lengths"));
    QCOMPARE(keysOf(at("FixedRecords")), QString("Place"));
    QCOMPARE(keysOf(at("VariantRecords")), QString("Any"));
    QCOMPARE(keysOf(at("Objects")), QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Tug"));
    QCOMPARE(keysOf(at("Interactions")), QString("HLAinteractionRoot.Horn HLAinteractionRoot.Horn.Whistle"));
}

void TestContextModel::attributesStandInTheOrderOfTheModel()
{
    use(QByteArray(theClasses) + theDatatypes);
    const DtMapSubstitute& ship = at("Objects>HLAobjectRoot.Ship");
    QCOMPARE(keysOf(*ship.getMap("Attributes")), QString("HLAobjectRoot.Ship.Zone Name HLAobjectRoot.Ship.Length"));
    QCOMPARE(valueOf(ship, "NumAttributes"), QString("2"));
    QCOMPARE(valueOf(at("Objects>HLAobjectRoot.Ship.Tug"), "NumAttributes"), QString("0"));
}

void TestContextModel::attributeTellsWhatTheModelTells()
{
    use(QByteArray(theClasses) + theDatatypes);
    const DtMapSubstitute& zone = at("Objects>HLAobjectRoot.Ship>Attributes>HLAobjectRoot.Ship.Zone Name");
    QCOMPARE(valuesOf(zone, "AttributeName AttributeNameId AttributeFullName AttributeDatatype AttributeDatatypeId "
                            "AttributeDescription AttributeCardinality AttributeCardinalityType "
                            "AttributeCardinalityMin AttributeCardinalityMax"),
             QString("AttributeName=Zone Name AttributeNameId=Zone__Name "
                     "AttributeFullName=HLAobjectRoot.Ship.Zone Name AttributeDatatype=Any AttributeDatatypeId=Any "
                     "AttributeDescription=Its zone. AttributeCardinality=1 AttributeCardinalityType=0 "
                     "AttributeCardinalityMin=1 AttributeCardinalityMax=1"));
    QCOMPARE(valuesOf(zone, "AttributeUpdateType AttributeUpdateCondition AttributeTransferAccept AttributeSharing "
                            "AttributeTransportation AttributeOrder AttributeAccuracy AttributeNote"),
             QString("AttributeUpdateType=Static AttributeUpdateCondition=never AttributeTransferAccept=Divest "
                     "AttributeSharing=Publish AttributeTransportation=HLAreliable AttributeOrder=Receive "
                     "AttributeAccuracy= AttributeNote="));
    QCOMPARE(valuesOf(zone, "AttributeKind AttributeType AttributeBoundary NumDimensions"),
             QString("AttributeKind=VariantRec AttributeType=Any AttributeBoundary=4 NumDimensions=2"));
    QCOMPARE(keysOf(*zone.getMap("AttributeDimensions")), QString("North East"));
    QCOMPARE(valueOf(mapAt(zone, "AttributeDimensions>East"), "Dimension"), QString("East"));
}

void TestContextModel::objectTellsWhatTheModelTells()
{
    use(QByteArray(theClasses) + theDatatypes);
    QCOMPARE(valuesOf(at("Objects>HLAobjectRoot.Ship"), "ObjectFullName ObjectName ObjectNameId ObjectDescriptor "
                                                        "ObjectSharing ObjectUniqueId ObjectParentFullName "
                                                        "ObjectParentName ObjectParentUniqueId"),
             QString("ObjectFullName=HLAobjectRoot.Ship ObjectName=Ship ObjectNameId=Ship ObjectDescriptor=Floats. "
                     "ObjectSharing=PublishSubscribe ObjectUniqueId=Ship ObjectParentFullName=HLAobjectRoot "
                     "ObjectParentName=HLAobjectRoot ObjectParentUniqueId="));
    QCOMPARE(valuesOf(at("Objects>HLAobjectRoot.Ship.Tug"), "ObjectParentFullName ObjectParentUniqueId"),
             QString("ObjectParentFullName=HLAobjectRoot.Ship ObjectParentUniqueId=Ship"));
}

void TestContextModel::classesAreThoseOfTheSelection()
{
    myTree = myFixture->read(evolvedModel(theClasses));
    myWriter->setOmtTree(myTree.get());
    myWriter->setObjectsToGenerate(
        selectionOf<DtOmtObject>({"HLAobjectRoot.Ship.Tug", "HLAobjectRoot.Gone", "HLAobjectRoot.Ship"}));
    myWriter->setInteractionsToGenerate(selectionOf<DtOmtInteraction>({"HLAinteractionRoot.Horn.Whistle"}));
    myWriter->buildContext();
    QCOMPARE(keysOf(at("Objects")), QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Tug"));
    QCOMPARE(keysOf(at("Interactions")), QString("HLAinteractionRoot.Horn.Whistle"));
}

void TestContextModel::rootClassesAreLeftOut()
{
    myTree = myFixture->read(evolvedModel(theClasses));
    myWriter->setOmtTree(myTree.get());
    myWriter->setObjectsToGenerate(selectionOf<DtOmtObject>({"HLAobjectRoot", ""})); // an empty name finds the root
    myWriter->setInteractionsToGenerate(selectionOf<DtOmtInteraction>({"HLAinteractionRoot", ""}));
    myWriter->buildContext();
    QCOMPARE(valuesOf(myWriter->context(), "NumObjects NumInteractions"), QString("NumObjects=0 NumInteractions=0"));
}

void TestContextModel::classIsFoundByItsFullName()
{
    myTree = myFixture->read(evolvedModel(theClasses));
    myWriter->setOmtTree(myTree.get());
    DtOmtObject renamed;
    renamed.setFullName("HLAobjectRoot.Ship");
    renamed.setName("Vessel"); // the short name of the project need not be that of the class
    myWriter->setObjectsToGenerate({renamed});
    myWriter->buildContext();
    QCOMPARE(valueOf(at("Objects>HLAobjectRoot.Ship"), "ObjectName"), QString("Ship"));
}

void TestContextModel::parentThatWasNotVisitedHasNoUniqueId()
{
    myTree = myFixture->read(evolvedModel(theClasses));
    myWriter->setOmtTree(myTree.get());
    myWriter->setObjectsToGenerate(selectionOf<DtOmtObject>({"HLAobjectRoot.Ship.Tug"}));
    myWriter->setInteractionsToGenerate(selectionOf<DtOmtInteraction>({"HLAinteractionRoot.Horn.Whistle"}));
    myWriter->buildContext();
    QCOMPARE(valuesOf(at("Objects>HLAobjectRoot.Ship.Tug"), "ObjectParentName ObjectParentUniqueId"),
             QString("ObjectParentName=Ship ObjectParentUniqueId="));
    QCOMPARE(
        valuesOf(at("Interactions>HLAinteractionRoot.Horn.Whistle"), "InteractionParentName InteractionParentUniqueId"),
        QString("InteractionParentName=Horn InteractionParentUniqueId="));
}

void TestContextModel::uniqueIdsOfAnEarlierRunAreForgotten()
{
    use(theClasses);
    DtOMTWriter later;
    later.setOmtTree(myTree.get());
    later.setObjectsToGenerate(selectionOf<DtOmtObject>({"HLAobjectRoot.Ship.Tug"}));
    later.buildContext();
    QCOMPARE(valuesOf(mapAt(later.context(), "Objects>HLAobjectRoot.Ship.Tug"), "ObjectUniqueId ObjectParentUniqueId"),
             QString("ObjectUniqueId=Tug ObjectParentUniqueId="));
}

void TestContextModel::sameNameInOtherBranchGetsANumber()
{
    use(objects(nested({"B", "Foo"}) + nested({"A", "Foo"}) + nested({"C", "Foo", "Foo"}) + nested({"Foo1"})));
    QStringList ids;
    for (const DtMapSubstitute::Entry& entry : at("Objects"))
        ids += toQt(entry.first).remove("HLAobjectRoot.") + '=' +
               valueOf(*DtMapSubstitute::mapOf(entry.second), "ObjectUniqueId");
    QCOMPARE(ids.join(' '), QString("A=A A.Foo=Foo B=B B.Foo=Foo0 C=C C.Foo=Foo1 C.Foo.Foo=Foo2 Foo1=Foo10"));
    QCOMPARE(valueOf(at("Objects>HLAobjectRoot.C.Foo.Foo"), "ObjectParentUniqueId"), QString("Foo1"));
}

void TestContextModel::uniqueNamesAreSharedByObjectsAndInteractions()
{
    use(objects(nested({"Same Name"})) +
        "<interactions><interactionClass><name>HLAinteractionRoot</name><interactionClass><name>Same Name</name>"
        "</interactionClass></interactionClass></interactions>");
    QCOMPARE(valueOf(at("Objects>HLAobjectRoot.Same Name"), "ObjectUniqueId"), QString("Same__Name"));
    QCOMPARE(valueOf(at("Interactions>HLAinteractionRoot.Same Name"), "InteractionUniqueId"), QString("Same__Name0"));
}

void TestContextModel::removedAttributesLeaveNoEntries()
{
    myTree = myFixture->read(evolvedModel(theClasses));
    myTree->getObjectClassNode("HLAobjectRoot.Ship")->removeAttributes();
    myTree->getInteractionClassNode("HLAinteractionRoot.Horn")->removeParameters();
    selectAll(*myWriter, *myTree);
    myWriter->buildContext();
    QCOMPARE(valueOf(at("Objects>HLAobjectRoot.Ship"), "NumAttributes"), QString("0"));
    QCOMPARE(valueOf(at("Interactions>HLAinteractionRoot.Horn"), "NumParameters"), QString("0"));
}

void TestContextModel::interactionDiffersFromObject()
{
    use(QByteArray(theClasses) + theDatatypes);
    const DtMapSubstitute& horn = at("Interactions>HLAinteractionRoot.Horn");
    QCOMPARE(keysOf(*horn.getMap("InteractionDimensions")), QString("North"));
    QCOMPARE(valueOf(horn, "NumDimensions"), QString("1"));
    const DtMapSubstitute& tone = mapAt(horn, "Parameters>HLAinteractionRoot.Horn.Tone Pitch");
    QCOMPARE(valuesOf(tone, "ParameterName ParameterNameId ParameterDatatype ParameterDatatypeId NumDimensions"),
             QString("ParameterName=Tone Pitch ParameterNameId=Tone__Pitch ParameterDatatype=Colour "
                     "ParameterDatatypeId=none NumDimensions=none"));
    for (const char* key : {"ParameterUpdateType", "ParameterUpdateCondition", "ParameterTransferAccept"})
        QVERIFY(tone.get(key) == nullptr);
}

void TestContextModel::interactionTellsWhatTheModelTells()
{
    use(QByteArray(theClasses) + theDatatypes);
    QCOMPARE(valuesOf(at("Interactions>HLAinteractionRoot.Horn"),
                      "InteractionName InteractionNameId InteractionFullName InteractionDescriptor InteractionSharing "
                      "InteractionOrder InteractionTransportation InteractionUniqueId InteractionParentName "
                      "NumParameters"),
             QString("InteractionName=Horn InteractionNameId=Horn InteractionFullName=HLAinteractionRoot.Horn "
                     "InteractionDescriptor=Loud. InteractionSharing=Subscribe InteractionOrder=TimeStamp "
                     "InteractionTransportation=HLAbestEffort InteractionUniqueId=Horn "
                     "InteractionParentName=HLAinteractionRoot NumParameters=1"));
    QCOMPARE(valuesOf(at("Interactions>HLAinteractionRoot.Horn>Parameters>HLAinteractionRoot.Horn.Tone Pitch"),
                      "ParameterFullName ParameterDescription ParameterCardinality ParameterKind ParameterType "
                      "ParameterBoundary"),
             QString("ParameterFullName=HLAinteractionRoot.Horn.Tone Pitch ParameterDescription=High. "
                     "ParameterCardinality=1 ParameterKind=Enum ParameterType=Colour ParameterBoundary=1"));
}

void TestContextModel::unusedDatatypesAreLeftOut()
{
    use(theDatatypes); // no class uses them
    QCOMPARE(valuesOf(myWriter->context(), "NumRepresentations NumSimpleDatatypes NumEnumerations NumArrays "
                                           "NumFixedRecords NumVariantRecords"),
             QString("NumRepresentations=3 NumSimpleDatatypes=2 NumEnumerations=0 NumArrays=0 NumFixedRecords=0 "
                     "NumVariantRecords=0"));
}

void TestContextModel::simpleDatatypesEndWithTheOctet()
{
    setType("Int64", "long long");
    use(theDatatypes);
    QCOMPARE(valuesOf(at("SimpleDatatypes>Metre"), "SimpleName SimpleType SimpleRepresentation SimpleBoundary "
                                                   "SimpleUnits SimpleAccuracy SimpleResolution SimpleDescription"),
             QString("SimpleName=Metre SimpleType=long long SimpleRepresentation=Int64 SimpleBoundary=8 SimpleUnits=m "
                     "SimpleAccuracy=perfect SimpleResolution=fine SimpleDescription=Length."));
    QCOMPARE(valuesOf(at("SimpleDatatypes>HLAoctet"), "SimpleName SimpleRepresentation SimpleBoundary SimpleUnits "
                                                      "SimpleAccuracy SimpleResolution SimpleDescription"),
             QString("SimpleName=HLAoctet SimpleRepresentation=HLAoctet SimpleBoundary=1 SimpleUnits=n/a "
                     "SimpleAccuracy=n/a SimpleResolution=n/a SimpleDescription=Datatype to match representation only, "
                     "added internally not present in FOM"));
}

void TestContextModel::octetHasATypeOrNone()
{
    use(theDatatypes);
    QCOMPARE(valueOf(at("SimpleDatatypes>HLAoctet"), "SimpleType"), QString("none"));
    QCOMPARE(valueOf(at("SimpleDatatypes>Metre"), "SimpleType"), QString("none"));
    QCOMPARE(toQt(*myWriter->typeOf("HLAoctet")), QString("HLAoctet")); // for what comes later
    QCOMPARE(toQt(*myWriter->typeOf("Metre")), QString("Int64"));
    myWriter->executeCommandLine_prepare("beginTypes");
    QVERIFY(myWriter->typeOf("HLAoctet") == nullptr);
    setType("HLAoctet", "byte");
    use(theDatatypes);
    QCOMPARE(valueOf(at("SimpleDatatypes>HLAoctet"), "SimpleType"), QString("byte"));
    QCOMPARE(toQt(*myWriter->typeOf("HLAoctet")), QString("byte"));
}

void TestContextModel::representationHasATypeOrNone()
{
    setType("Int32", "int");
    use(theDatatypes);
    QCOMPARE(valuesOf(at("Representations>HLAoctet"),
                      "RepresentationName RepresentationSize RepresentationEndian RepresentationInterpretation "
                      "RepresentationEncoding RepresentationBoundary RepresentationType"),
             QString("RepresentationName=HLAoctet RepresentationSize=8 RepresentationEndian=Big "
                     "RepresentationInterpretation=8 bits RepresentationEncoding=none RepresentationBoundary=1 "
                     "RepresentationType=none"));
    QCOMPARE(valuesOf(at("Representations>Int32"), "RepresentationBoundary RepresentationType"),
             QString("RepresentationBoundary=4 RepresentationType=int"));
}

void TestContextModel::enumerationHasItsTypeOrAnother()
{
    const QByteArray model = QByteArray(theClasses) + theDatatypes;
    setType("Int32", "int");
    use(model);
    const char* const keys = "EnumerationName EnumerationDescription EnumerationRepresentation "
                             "EnumerationRepresentationId EnumerationBoundary EnumerationType NumEnumerators";
    QCOMPARE(valuesOf(at("Enumerations>Colour"), keys),
             QString("EnumerationName=Colour EnumerationDescription=Hue. EnumerationRepresentation=Int32 "
                     "EnumerationRepresentationId=Int32 EnumerationBoundary=4 EnumerationType=int NumEnumerators=2"));
    QCOMPARE(valuesOf(at("Enumerations>Colour>Enumerators>dark red"),
                      "EnumeratorName EnumeratorNameId EnumeratorValue EnumeratorNumber"),
             QString("EnumeratorName=dark red EnumeratorNameId=dark__red EnumeratorValue=1 EnumeratorNumber=1"));
    QCOMPARE(keysOf(at("Enumerations>Colour>Enumerators")), QString("dark red Blue"));
    QCOMPARE(keysOf(at("Enumerations>Colour")).count("EnumerationRepresentation "), 1);

    myWriter->executeCommandLine_prepare("beginTypes");
    setType("HLAinteger16BE", "short"); // nothing tells the size of the enumeration, so it counts as two octets
    use(model);
    QCOMPARE(valuesOf(at("Enumerations>Colour"), keys),
             QString("EnumerationName=Colour EnumerationDescription=Hue. EnumerationRepresentation=Int32 "
                     "EnumerationRepresentationId=Int32 EnumerationBoundary=4 EnumerationType=short NumEnumerators=2"));
    QStringList representations;
    for (const DtMapSubstitute::Entry& entry : at("Enumerations>Colour"))
        if (entry.first == "EnumerationRepresentation")
            representations += toQt(*DtMapSubstitute::stringOf(entry.second));
    QCOMPARE(representations, QStringList({"Int32", "short"}));
}

void TestContextModel::arraysTellTheirPadding_data()
{
    QTest::addColumn<QByteArray>("datatype");
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QString>("values");
    const struct
    {
        const char* name;
        QByteArray datatype, encoding;
        const char* padding;
        int boundary, minimum, maximum;
    } theRows[] = {
        {"large elements",          "Int64",    "HLAvariableArray", "4",    8, 0, -1},
        {"elements like the count", "Int32",    "HLAvariableArray", "none", 4, 0, -1},
        {"octets",                  "HLAoctet", "HLAvariableArray", "none", 1, 0, -1},
        {"fixed",                   "Int64",    "HLAfixedArray",    "none", 8, 5, 5 },
    };
    const QString values = "ArrayPadding=%1 ArrayBoundary=%2 ArrayCardinalityMin=%3 ArrayCardinalityMax=%4";
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.datatype << row.encoding
                                << values.arg(row.padding).arg(row.boundary).arg(row.minimum).arg(row.maximum);
}

void TestContextModel::arraysTellTheirPadding()
{
    QFETCH(QByteArray, datatype);
    QFETCH(QByteArray, encoding);
    QByteArray model = QByteArray(theClasses) + theDatatypes;
    model.replace("<dataType>Metre</dataType><cardinality>Dynamic</cardinality><encoding>HLAvariableArray</encoding>",
                  "<dataType>" + datatype + "</dataType><cardinality>5</cardinality><encoding>" + encoding +
                      "</encoding>");
    use(model);
    // The second key tells of an element; that of the array itself is what getBoundary says of it.
    QTEST(valuesOf(at("Arrays>Lengths"), "ArrayPadding ArrayBoundary ArrayCardinalityMin ArrayCardinalityMax"),
          "values");
    QCOMPARE(valuesOf(at("Arrays>Lengths"), "ArrayName ArrayEncoding ArrayDatatype ArrayCardinality ArrayDescription"),
             QString("ArrayName=Lengths ArrayEncoding=%1 ArrayDatatype=%2 ArrayCardinality=5 ArrayDescription=Several.")
                 .arg(encoding.constData(), datatype.constData()));
}

void TestContextModel::recordsTellTheirFields()
{
    use(QByteArray(theClasses) + theDatatypes);
    QCOMPARE(valuesOf(at("FixedRecords>Place"), "FixedRecName FixedRecNameId FixedRecEncoding FixedRecEncodingId "
                                                "FixedRecDescription FixedRecNote FixedBoundary NumFields"),
             QString("FixedRecName=Place FixedRecNameId=Place FixedRecEncoding=HLAfixedRecord "
                     "FixedRecEncodingId=HLAfixedRecord FixedRecDescription=Where. FixedRecNote= FixedBoundary=8 "
                     "NumFields=2"));
    QCOMPARE(keysOf(at("FixedRecords>Place>Fields")), QString("x y hue"));
    QCOMPARE(valuesOf(at("FixedRecords>Place>Fields>x y"), "FieldName FieldNameId FieldDatatype FieldDatatypeId "
                                                           "FieldDescription FieldNote FieldKind FieldBoundary"),
             QString("FieldName=x y FieldNameId=x__y FieldDatatype=Metre FieldDatatypeId=Metre FieldDescription=Both. "
                     "FieldNote= FieldKind=Unknown FieldBoundary=8"));
}

void TestContextModel::variantsTellTheirPadding_data()
{
    QTest::addColumn<QByteArray>("discriminant");
    QTest::addColumn<QByteArray>("alternative");
    QTest::addColumn<QString>("values");
    const struct
    {
        const char* name;
        QByteArray discriminant, alternative;
        QString values;
    } theRows[] = {
        {"greater alternative", "Int32",    "Int64",    "VariantBoundary=4 VariantPadding=4"},
        {"equal",               "Int32",    "Int32",    "VariantBoundary=4 VariantPadding=4"},
        {"smaller alternative", "Int64",    "HLAoctet", "VariantBoundary=8 VariantPadding=8"},
        {"much greater",        "HLAoctet", "Int64",    "VariantBoundary=1 VariantPadding=7"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.discriminant << row.alternative << row.values;
}

void TestContextModel::variantsTellTheirPadding()
{
    QFETCH(QByteArray, discriminant);
    QFETCH(QByteArray, alternative);
    QByteArray model = QByteArray(theClasses) + theDatatypes;
    model.replace("<discriminant>kind</discriminant><dataType>Colour</dataType>",
                  "<discriminant>kind</discriminant><dataType>" + discriminant + "</dataType>");
    model.replace("<name>where</name><dataType>Place</dataType>",
                  "<name>small</name><dataType>HLAoctet</dataType></alternative><alternative><name>where</name>"
                  "<dataType>" +
                      alternative + "</dataType>");
    use(model);
    QTEST(valuesOf(at("VariantRecords>Any"), "VariantBoundary VariantPadding"), "values");
}

void TestContextModel::variantsTellTheirAlternatives()
{
    use(QByteArray(theClasses) + theDatatypes);
    QCOMPARE(valuesOf(at("VariantRecords>Any"), "VariantName VariantEncoding VariantDiscriminant VariantDatatype "
                                                "VariantDescription VariantNote VariantKind VariantType "
                                                "NumAlternatives"),
             QString("VariantName=Any VariantEncoding=HLAvariantRecord VariantDiscriminant=kind VariantDatatype=Colour "
                     "VariantDescription=One of. VariantNote= VariantKind=Enum VariantType=Colour NumAlternatives=1"));
    QCOMPARE(valuesOf(at("VariantRecords>Any>Alternatives>where"),
                      "AlternativeName AlternativeEnumerator AlternativeEnumeratorId AlternativeDatatype "
                      "AlternativeDescription AlternativeKind"),
             QString("AlternativeName=where AlternativeEnumerator=Blue AlternativeEnumeratorId=Blue "
                     "AlternativeDatatype=Place AlternativeDescription=There. AlternativeKind=FixedRec"));
}

void TestContextModel::complexDatatypesTellTheirComponents()
{
    DtTestModel model;
    model.addObject("HLAobjectRoot.A");
    model.addAttribute("HLAobjectRoot.A", "a", "Old Type");
    DtComplexDatatypeNode* complex = model.addComplex("Old Type");
    complex->setNote("n");
    DtComplexComponentNode* component = DtTestModel::addComponent(complex, "part", "long", "0-3");
    component->setAccuracy("good");
    component->setAccuracyCondition("always");
    DtTestModel::addComponent(complex, "choice", "long", "1 (part=2)");
    model.addComplex("Unused");
    selectAll(*myWriter, *model.tree());
    myWriter->checkUsedSubDatatypesFiles();
    myWriter->buildContext();
    QCOMPARE(keysOf(at("ComplexDatatypes")), QString("Old Type"));
    QCOMPARE(valuesOf(at("ComplexDatatypes>Old Type"), "ComplexName ComplexNameId ComplexNote NumComponents"),
             QString("ComplexName=Old Type ComplexNameId=Old__Type ComplexNote=n NumComponents=2"));
    QCOMPARE(valuesOf(at("ComplexDatatypes>Old Type>Components>part"),
                      "ComponentName ComponentAccuracy ComponentAccuracyCondition ComponentCardinality "
                      "ComponentCardinalityMinimum ComponentCardinalityMaximum ComponentCardinalityType "
                      "ComponentConditional ComponentConditionalValue ComponentKind ComponentType"),
             QString("ComponentName=part ComponentAccuracy=good ComponentAccuracyCondition=always "
                     "ComponentCardinality=0-3 ComponentCardinalityMinimum=0 ComponentCardinalityMaximum=3 "
                     "ComponentCardinalityType=1 ComponentConditional= ComponentConditionalValue= "
                     "ComponentKind=Unknown ComponentType=long"));
    QCOMPARE(valuesOf(at("ComplexDatatypes>Old Type>Components>choice"),
                      "ComponentCardinalityType ComponentConditional ComponentConditionalValue"),
             QString("ComponentCardinalityType=2 ComponentConditional=part ComponentConditionalValue=2"));
}

void TestContextModel::cancelEndsThreeOfTheLists()
{
    DtQtProgressMeter::instance()->setIsCancelled(true);
    use(QByteArray(theClasses) + theDatatypes);
    QCOMPARE(valuesOf(myWriter->context(), "NumRepresentations NumEnumerations NumArrays NumFixedRecords "
                                           "NumVariantRecords NumObjects"),
             QString("NumRepresentations=3 NumEnumerations=1 NumArrays=0 NumFixedRecords=0 NumVariantRecords=0 "
                     "NumObjects=2"));
}

void TestContextModel::settingsStandInTheRoot()
{
    DtOMTWriter::setNamespaceName("harbour");
    DtOMTWriter::setIncludeName("inc");
    DtOMTWriter::setPrefixName("Port");
    DtOMTWriter::setBaseName("base");
    DtOMTWriter::setFomDefinitionFileName("some/model.xml");
    myWriter->executeCommandLine_prepare("language Ada");
    myWriter->executeCommandLine_prepare("templateDir ada");
    use("");
    QCOMPARE(valuesOf(myWriter->context(), "Namespace Include Prefix BaseName FomDefinitionFileName MIMincluded "
                                           "TemplateDir Language"),
             QString("Namespace=harbour Include=inc Prefix=Port BaseName=base FomDefinitionFileName=some/model.xml "
                     "MIMincluded=TRUE TemplateDir=../data/ada Language=Ada"));
    DtOMTWriter::setMIMincluded(false);
    DtOMTWriter other;
    other.setOmtTree(myTree.get());
    other.buildContext();
    DtOMTWriter::setMIMincluded(true);
    QCOMPARE(valuesOf(other.context(), "MIMincluded TemplateDir"), QString("MIMincluded=none TemplateDir="));
}

void TestContextModel::protocolIsThatOfTheVersion_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("protocol");
    QTest::newRow("unknown") << 0 << "none";
    QTest::newRow("1.3") << 1 << "HLA13";
    QTest::newRow("1516") << 2 << "HLA1516";
    QTest::newRow("2010") << 3 << "HLA1516e";
    QTest::newRow("2025") << 4 << "none";
}

void TestContextModel::protocolIsThatOfTheVersion()
{
    QFETCH(int, version);
    const DtTestModel model;
    myWriter->setOmtTree(const_cast<DtTestModel&>(model).tree());
    myWriter->setHlaVersion(static_cast<DtHLAProtocolVersion>(version));
    myWriter->buildContext();
    QTEST(valueOf(myWriter->context(), "Protocol"), "protocol");
}

void TestContextModel::omtNameBecomesFed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("fed");
    const struct
    {
        const char* tag;
        QString name, fed;
    } theRows[] = {
        {"small",          "a/old.omt",   "a/old.fed"  },
        {"capital",        "Old.OMT",     "Old.fed"    },
        {"mixed",          "x.y.oMt",     "x.y.fed"    },
        {"nothing else",   ".omt",        ".fed"       },
        {"another ending", "old.omt.xml", "old.omt.xml"},
        {"no dot",         "omt",         "omt"        },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.fed;
}

void TestContextModel::omtNameBecomesFed()
{
    QFETCH(QString, name);
    DtOMTWriter::setFomDefinitionFileName(name.toUtf8().constData());
    use("");
    QTEST(valueOf(myWriter->context(), "FomDefinitionFileName"), "fed");
    QTEST(toQt(DtOMTWriter::fomDefinitionFileName()), "fed");
}

void TestContextModel::everyEntryHasIdentifiersOfItsOwn()
{
    use(QByteArray(theClasses) + theDatatypes);
    QStringList identifiers;
    collectIdentifiers(myWriter->context(), identifiers);
    for (const char* key : {"SolutionUUID1", "SolutionUUID2", "ProjectUUID1", "ProjectUUID2"})
        identifiers += valueOf(myWriter->context(), key);
    QVERIFY(identifiers.size() > 40);
    for (const QString& identifier : identifiers)
        QVERIFY2(isIdentifier(identifier), qPrintable(identifier));
    QCOMPARE(identifiers.removeDuplicates(), 0);
}

void TestContextModel::identifiersPassOverTexts()
{
    DtMapSubstitute map;
    map.put("text", "x");
    DtMapSubstitute& list = map.putMap("list");
    list.put("text", "y");
    list.putMap("entry");
    list.put("nothing", static_cast<DtUniversalSubstitute*>(nullptr));
    myWriter->addUUIDs(&map);
    QCOMPARE(keysOf(map), QString("text list UUID1 UUID2"));
    QCOMPARE(keysOf(list), QString("text entry nothing"));
    QCOMPARE(keysOf(*list.getMap("entry")), QString("UUID1 UUID2"));
}

void TestContextModel::identifiersAreRandom()
{
    const QString first = toQt(myWriter->makeUUID());
    QVERIFY(isIdentifier(first));
    QVERIFY(first != toQt(myWriter->makeUUID()));
    QCOMPARE(first[14], QChar('4'));
}

void TestContextModel::uniqueNamesAreCounted()
{
    QStringList names;
    for (const char* name : {"Foo", "Foo", "Bar", "Foo", "Foo0", "Bar0", "Bar", "Foo0", ""})
        names += toQt(myWriter->getUniqueName(name));
    QCOMPARE(names, QStringList({"Foo", "Foo0", "Bar", "Foo1", "Foo00", "Bar0", "Bar1", "Foo01", ""}));
    myWriter->executeCommandLine_prepare("beginTypes");
    QCOMPARE(toQt(myWriter->getUniqueName("Foo")), QString("Foo"));
    QCOMPARE(toQt(myWriter->getUniqueName("Foo")), QString("Foo0"));
}

void TestContextModel::manyEqualNamesAreCountedQuickly()
{
    QElapsedTimer time;
    time.start();
    DtString last;
    for (int count = 0; count < 100000; ++count)
        last = myWriter->getUniqueName("Foo");
    QCOMPARE(toQt(last), QString("Foo99998"));
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
}

void TestContextModel::textsHaveSafeForms()
{
    QByteArray model = QByteArray(theClasses) + theDatatypes;
    model.replace("Its zone.", "Its &lt;zone&gt; \"A\\B\"&#10;here");
    use(model);
    const DtMapSubstitute& zone = at("Objects>HLAobjectRoot.Ship>Attributes>HLAobjectRoot.Ship.Zone Name");
    QCOMPARE(valueOf(zone, "AttributeDescription"), QString("Its <zone> \"A\\B\"\nhere"));
    QCOMPARE(valueOf(zone, "AttributeDescriptionHtml"), QString("Its &lt;zone&gt; &quot;A\\B&quot;&#10;here"));
    QCOMPARE(valueOf(zone, "AttributeDescriptionQuoted"), QString("Its <zone> \\\"A\\\\B\\\"\\nhere"));
    QCOMPARE(valuesOf(zone, "AttributeNameHtml AttributeNameQuoted AttributeCardinalityMaxHtml AttributeNameIdHtml"),
             QString("AttributeNameHtml=Zone Name AttributeNameQuoted=Zone Name AttributeCardinalityMaxHtml=none "
                     "AttributeNameIdHtml=none"));
}

void TestContextModel::secondContextIsAddedToTheFirst()
{
    use(QByteArray(theClasses) + theDatatypes);
    const int entries = int(myWriter->context().size());
    myWriter->executeCommandLine_prepare("endTypes");
    QCOMPARE(int(myWriter->context().size()), 2 * entries);
    QCOMPARE(valueOf(at("Objects>HLAobjectRoot.Ship"), "ObjectUniqueId"), QString("Ship")); // of the first
    myWriter->executeCommandLine_prepare("beginTypes");
    QCOMPARE(int(myWriter->context().size()), 0);
    myWriter->executeCommandLine_prepare("endTypes");
    QCOMPARE(int(myWriter->context().size()), entries);
    QCOMPARE(valueOf(at("Objects>HLAobjectRoot.Ship"), "ObjectUniqueId"), QString("Ship"));
}

void TestContextModel::withoutATreeThereIsAnException()
{
    QVERIFY_EXCEPTION_THROWN(myWriter->buildContext(), DtException);
    QVERIFY_EXCEPTION_THROWN(myWriter->writeFile("model", "none.txt"), DtException);
}

QX_REGISTER_TEST(TestContextModel)
#include "testContextModel.moc"
