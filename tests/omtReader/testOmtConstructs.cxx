// What the OMT text reader takes from the elements of a model, and its messages about them.

#include "omtText.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <climits>

namespace
{
QString memberText(const DtDatatypeFedNode& node)
{
    QStringList fields;
    for (const DtString& field : {node.getName(), node.getDatatype(), node.getCardinality(), node.getAccuracy(),
                                  node.getAccuracyCondition(), node.getDescription()})
        fields += toQt(field);
    return fields.join('|');
}

QString componentText(const DtComplexComponentNode& node)
{
    QStringList fields;
    for (const DtString& field :
         {node.getName(), node.getDatatype(), node.getCardinality(), node.getAccuracy(), node.getAccuracyCondition()})
        fields += toQt(field);
    return fields.join('|');
}

// "name=number" of each enumerator.
QString enumeratorsOf(const DtEnumeratedDatatypeNode& node)
{
    QStringList enumerators;
    for (auto at = node.getEnumerationNodeList(); at != node.getEnumerationNodeEnd(); ++at)
        enumerators += toQt((*at)->getEnum()) + '=' + QString::number((*at)->getNumber());
    return enumerators.join(' ');
}

// The text around one item.
struct DtPlace
{
    const char* before;
    const char* after;
};

const DtPlace theComponent = {"(ComplexDataType (Name \"C\") (ComplexComponent (FieldName \"f\") ", "))"};
const DtPlace theEnumerator = {"(EnumeratedDataType (Name \"E\") (Enumeration ", "))"};
const DtPlace theClass = {"(Class (Name \"Foo\") ", ")"};
const DtPlace theAttribute = {"(Class (Name \"Foo\") (Attribute (Name \"a\") ", "))"};
const DtPlace theInteraction = {"(Interaction (Name \"Foo\") ", ")"};
const DtPlace theParameter = {"(Interaction (Name \"Foo\") (Parameter (Name \"p\") ", "))"};
const DtPlace theNote = {"(Note ", ")"};
} // namespace

class TestOmtConstructs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identificationIsTaken()
    {
        const DtTreePointer tree =
            readElements("(MOMVersion \"h\") (ModificationDate \"g\") (SponsorOrgName \"f\")"
                         "(ApplicationDomain \"e\") (Purpose \"d\") (Type \"c\") (VersionNumber \"b\") (Name \"a\")");
        QCOMPARE(identificationOf(*tree), QString("a|b|c|d|e|f|g|h"));
    }

    void identificationThatIsNoStringIsLeftOut_data()
    {
        QTest::addColumn<QByteArray>("value");
        for (const char* value : {"", "12", "FOM", "10/08/2015", "()", "(\"x\")", ". \"x\"", "x \"y\""})
            QTest::newRow(value) << QByteArray(value);
    }

    void identificationThatIsNoStringIsLeftOut()
    {
        QFETCH(QByteArray, value);
        QByteArray elements;
        for (const char* keyword : {"Name", "VersionNumber", "Type", "Purpose", "ApplicationDomain", "SponsorOrgName",
                                    "ModificationDate", "MOMVersion", "POCHonorificName", "POCEmail"})
            elements += QByteArray("(") + keyword + ' ' + value + ")\n";
        const DtTreePointer tree = readElements(elements);
        QCOMPARE(identificationOf(*tree), QString("|||||||"));
        QCOMPARE(contactOf(*tree), QString("||||||"));
    }

    void identificationThatIsNoStringKeepsTheOneBefore()
    {
        QCOMPARE(toQt(readElements("(Name \"a\") (Name b) (Name)")->getName()), QString("a"));
        QCOMPARE(toQt(readElements("(Name \"a\") (Name \"b\" [120, 66])")->getName()), QString("b"));
    }

    void pointOfContactIsOneRecord()
    {
        const DtTreePointer tree = readElements("(POCEmail \"f\") (POCPhone \"e\") (POCOrgName \"d\")"
                                                "(POCLastName \"c\") (POCFirstName \"b\") (POCHonorificName \"a\")");
        QCOMPARE(contactOf(*tree), QString("a|b|c|d|e|f|"));
        QCOMPARE(tree->getPOCList().size(), std::size_t(1));
    }

    void otherElementsOfTheModelAreIgnored()
    {
        const DtTreePointer tree =
            readElements("(RoutingSpace (Name \"x\")) x 12 \"x\" () (\"Name\" \"x\") ((Name \"x\")) (12 \"x\")"
                         "(name \"x\") (Name \"M\") . (Name \"y\")");
        QCOMPARE(toQt(tree->getName()), QString("M"));
    }

    void complexDatatypeIsTaken()
    {
        const DtTreePointer tree = readElements(
            "(ComplexDataType (Name \"C\") (Description \"no place for it\")"
            "(ComplexComponent (FieldName \"f\") (DataType \"unsigned long long\") (Cardinality \"0-1 (T = P)\")"
            "(Units \"m\") (Resolution \"1\") (Accuracy \"perfect\") (AccuracyCondition \"always\"))"
            "(ComplexComponent (FieldName \"g\")))");
        const DtComplexDatatypeNode* node = tree->getComplexDatatypeNode("C");
        QVERIFY(node != nullptr);
        QCOMPARE(namesOf(node->getComponentNodeList(), node->getComponentNodeEnd()), QString("f g"));
        const DtComplexComponentNode& component = *node->getComponentNode("f");
        QCOMPARE(componentText(component), QString("f|unsigned long long|0-1 (T = P)|perfect|always"));
        QCOMPARE(toQt(component.getConditionalComponent()) + '=' + toQt(component.getConditionalValue()),
                 QString("T=P"));
        QCOMPARE(component.getCardinalityMaximum(), 1);
        QCOMPARE(componentText(*node->getComponentNode("g")), QString("g||||"));
    }

    void enumeratedDatatypeIsTaken()
    {
        const DtTreePointer tree =
            readElements("(EnumeratedDataType (Name \"E\") (Enumeration (Enumerator \"A\") (Representation 1))"
                         "(Enumeration (Representation -2) (Enumerator B)) (Enumeration))");
        QCOMPARE(enumeratorsOf(*tree->getEnumeratedDatatypeNode("E")), QString("A=1 B=-2 =0"));
    }

    void duplicateEnumeratorIsLeftOutWithAWarning()
    {
        const DtOutcome outcome =
            readText("(ObjectModel (EnumeratedDataType (Name \"E\") (Enumeration (Enumerator \"A\") (Representation 1))"
                     "(Enumeration (Enumerator \"A\") (Representation 2))"
                     "(Enumeration (Enumerator \"B\") (Representation 1))))");
        QCOMPARE(enumeratorsOf(*outcome.tree->getEnumeratedDatatypeNode("E")), QString("A=1"));
        QCOMPARE(outcome.warnings, QString("Duplicated enum name Auplicated enum number "));
    }

    void classIsTaken()
    {
        const DtTreePointer tree = readElements(
            "(Class (ID 7) (Name \"Ship\") (PSCapabilities PS) (Description \"It swims\") (SuperClass 3)"
            "(Attribute (Name \"a\") (DataType \"float\") (Cardinality \"1+\") (Accuracy \"good\")"
            "(AccuracyCondition \"always\") (UpdateType \"Static\") (UpdateCondition \"NA\") (TransferAccept \"TA\")"
            "(Description \"Of a\")))");
        const DtObjectClassFedNode* node = tree->getObjectClassNodeByID(7);
        QVERIFY(node != nullptr);
        QCOMPARE(toQt(node->getName()) + '|' + toQt(node->getDescriptor()), QString("Ship|It swims"));
        QCOMPARE(node->getParentIdentifier(), 3);
        const DtAttributeFedNode* attribute = node->findAttribute("a");
        QVERIFY(attribute != nullptr);
        QCOMPARE(memberText(*attribute), QString("a|float|1+|good|always|Of a"));
        QCOMPARE(toQt(attribute->getUpdateType()) + '|' + toQt(attribute->getUpdateCondition()) + '|' +
                     toQt(attribute->getTransferAccept()),
                 QString("Static|NA|TA"));
        QVERIFY(attribute->getParentObject() == node);
    }

    void interactionIsTaken()
    {
        const DtTreePointer tree =
            readElements("(Interaction (ID 7) (Name \"Hit\") (Description \"It hurts\") (SuperInteraction 3)"
                         "(Parameter (Name \"p\") (DataType \"float\") (Cardinality \"2\") (Accuracy \"good\")"
                         "(AccuracyCondition \"always\") (Description \"Of p\")))");
        const DtInteractionClassFedNode* node = tree->getInteractionClassNodeByID(7);
        QVERIFY(node != nullptr);
        QCOMPARE(toQt(node->getName()) + '|' + toQt(node->getDescriptor()), QString("Hit|It hurts"));
        QCOMPARE(node->getParentIdentifier(), 3);
        QCOMPARE(memberText(*node->findParameter("p")), QString("p|float|2|good|always|Of p"));
    }

    void noteIsTaken()
    {
        const DtTreePointer tree = readElements("(Note (NoteNumber 12) (NoteText \"Twelve\")) (Note)");
        QCOMPARE(toQt(tree->getNoteNode(12)->getText()), QString("Twelve"));
        QCOMPARE(toQt(tree->getNoteNode("12")->getText()), QString("Twelve"));
        QCOMPARE(toQt(tree->getNoteNode(0)->getText()), QString());
    }

    void memberKeepsItsInitialCardinality()
    {
        const DtTreePointer tree = readElements("(Class (ID 1) (Attribute (Name \"a\")))");
        QCOMPARE(memberText(*tree->getObjectClassNodeByID(1)->findAttribute("a")), QString("a||1|||"));
    }

    void valueOfAText_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QByteArray& value, const char* text)
        { QTest::newRow(name) << value << text; };
        row("string", "\"two words\"", "two words");
        row("symbol", "Static", "Static");
        row("symbol of other characters", "10/08/2015", "10/08/2015");
        row("integer", "+007", "+007");
        row("nothing", "", "");
        row("empty string", "\"\"", "");
        row("empty list", "()", "");
        row("list", "(\"x\" y)", "");
        row("note references", "\"Spatial\" [120, 66]", "Spatial");
        row("note reference without a blank", "\"Spatial\"[12]", "Spatial");
        row("further values", "\"a\" \"b\" (c)", "a");
        row("comment", "; \"a\"\n\"b\"", "b");
        row("escaped quotes", "\"say \\\"a\\\"\"", "say \"a\"");
        row("escaped backslash", "\"a\\\\b\"", "a\\b");
        row("escaped line end", "\"a\\r\\nb\"", "a\r\nb");
        row("line end", "\"a\r\nb\n\"", "a\r\nb\n");
        row("parentheses", "\"0-1 (Type = PointRecord1Type)\"", "0-1 (Type = PointRecord1Type)");
        row("semicolon", "\"a; b\"", "a; b");
        row("NUL byte", QByteArray("\"a\0b\"", 5), "a");
        row("dotted list", "\"a\" . b", "a");
    }

    void valueOfAText()
    {
        QFETCH(QByteArray, value);
        const DtTreePointer tree = readElements("(Class (Description " + value + ") (ID 1))");
        QTEST(toQt(tree->getObjectClassNodeByID(1)->getDescriptor()), "text");
    }

    void valueOfANumber_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("number");
        const auto row = [](const char* name, const char* value, int number)
        { QTest::newRow(name) << QByteArray(value) << number; };
        row("integer", "12", 12);
        row("negative", "-12", -12);
        row("sign", "+12", 12);
        row("zeros", "0012", 12);
        row("string", "\"12\"", 0);
        row("symbol", "12,", 0);
        row("fraction", "1.5", 0);
        row("nothing", "", 0);
        row("list", "(12)", 0);
        row("largest", "2147483647", INT_MAX);
        row("too large", "2147483648", INT_MAX);
        row("too small", "-99999999999999999999", INT_MIN);
        row("further values", "1 2", 1);
    }

    void valueOfANumber()
    {
        QFETCH(QByteArray, value);
        const DtTreePointer tree = readElements("(Interaction (ID 1) (SuperInteraction " + value + "))");
        QTEST(tree->getInteractionClassNodeByID(1)->getParentIdentifier(), "number");
    }

    void lastOfSeveralValuesStays()
    {
        QCOMPARE(
            objectClasses(*readElements("(Class (Name \"a\") (Name \"b\") (Attribute (Name \"c\") (Name \"d\")))")),
            QString("ObjectRoot\n  b [d]\n"));
    }

    void otherElementsOfAConstructAreIgnored()
    {
        const DtTreePointer tree = readElements("(Class x 12 \"x\" () (\"Name\" \"x\") ((Name \"x\")) (name \"x\") Name"
                                                "(Parameter . x) (Name \"C\") [12] . (Name \"y\"))");
        QCOMPARE(objectClasses(*tree), QString("ObjectRoot\n  C\n"));
    }

    void badlyFormattedItem_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("error");
        const auto row = [](const DtPlace& place, const QByteArray& keyword, const char* error)
        { QTest::newRow(error) << place.before + ('(' + keyword + " . x)") + place.after << error; };
        row(theComponent, "FieldName", "Badly formatted Field Name in Complex Component f in Datatype C");
        row(theComponent, "DataType", "Badly formatted Datatype in Complex Component f in Datatype C");
        row(theComponent, "Cardinality", "Badly formatted Cardinality in Complex Component f in Datatype C");
        row(theComponent, "Accuracy", "Badly formatted Accuracy in Complex Component f in Datatype C");
        row(theComponent, "AccuracyCondition",
            "Badly formatted Accuracy Condition in Complex Component f in Datatype C");
        row(theEnumerator, "Enumerator", "Badly formatted Enumerator in Enumeration in Datatype E");
        row(theEnumerator, "Representation", "Badly formatted Representation in Enumeration in Datatype E");
        row(theClass, "Name", "Badly formatted Name in Class Foo");
        row(theClass, "ID", "Badly formatted ID in Class Foo");
        row(theClass, "Description", "Badly formatted Description in Class Foo");
        row(theClass, "SuperClass", "Badly formatted SuperClass in Class Foo");
        row(theClass, "Attribute", "Badly formatted Attribute in Class Foo");
        row(theAttribute, "Name", "Badly formatted Name in Attribute a in Class Foo");
        row(theAttribute, "DataType", "Badly formatted Datatype in Attribute a in Class Foo");
        row(theAttribute, "Cardinality", "Badly formatted Cardinality in Attribute a in Class Foo");
        row(theAttribute, "Accuracy", "Badly formatted Accuracy in Attribute a in Class Foo");
        row(theAttribute, "AccuracyCondition", "Badly formatted Accuracy Condition in Attribute a in Class Foo");
        row(theAttribute, "UpdateType", "Badly formatted Update Type in Attribute a in Class Foo");
        row(theAttribute, "UpdateCondition", "Badly formatted Update Condition in Attribute a in Class Foo");
        row(theAttribute, "TransferAccept", "Badly formatted TransferAccept in Attribute a in Class Foo");
        row(theAttribute, "Description", "Badly formatted Description in Attribute a in Class Foo");
        row(theInteraction, "Name", "Badly formatted Name in Interaction Foo");
        row(theInteraction, "ID", "Badly formatted ID in Interaction Foo");
        row(theInteraction, "Description", "Badly formatted Description in Interaction Foo");
        row(theInteraction, "SuperInteraction", "Badly formatted SuperInteraction in Interaction Foo");
        row(theInteraction, "Parameter", "Badly formatted Parameter in Interaction Foo");
        row(theParameter, "Name", "Badly formatted Name in Parameter p in Interaction  Foo");
        row(theParameter, "DataType", "Badly formatted DataType in Parameter p in Interaction  Foo");
        row(theParameter, "Cardinality", "Badly formatted Cardinality in Parameter p in Interaction  Foo");
        row(theParameter, "Accuracy", "Badly formatted Accuracy in Parameter p in Interaction  Foo");
        row(theParameter, "AccuracyCondition", "Badly formatted Accuracy Condition in Parameter p in Interaction  Foo");
        row(theParameter, "Description", "Badly formatted Description in Parameter p in Interaction  Foo");
        row(theNote, "NoteText", "Badly formatted NoteText in Note");
        row(theNote, "NoteNumber", "Badly formatted NoteNumber in Note");
    }

    void badlyFormattedItem() { checkThatItFails(); }

    void badlyFormattedElement_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("error");
        const auto row = [](const QByteArray& element, const char* error)
        { QTest::newRow(element.constData()) << element << error; };
        row("(ComplexDataType . x)", "Badly formatted Complex Datatype");
        row("(ComplexDataType (Name . \"x\"))", "Badly formatted Name in Complex Datatype ");
        row("(ComplexDataType (Name \"C\") (Name . 12))", "Badly formatted Name in Complex Datatype C");
        row("(ComplexDataType (Name \"C\") (ComplexComponent . x))", "Badly formatted Complex Component in Datatype C");
        row("(ComplexDataType (ComplexComponent . x) (Name \"C\"))", "Badly formatted Complex Component in Datatype ");
        row("(EnumeratedDataType . x)", "Badly formatted Enumerated Datatype");
        row("(EnumeratedDataType (Name . x))", "Badly formatted Name in Enumerated Datatype ");
        row("(EnumeratedDataType (Name \"E\") (Name . x))", "Badly formatted Name in Enumerated Datatype E");
        row("(EnumeratedDataType (Name \"E\") (Enumeration . x))",
            "Badly formatted Enumeration in Enumerated Datatype E");
        row("(Class . x)", "Badly formatted Class");
        row("(Class (Name . x))", "Badly formatted Name in Class ");
        row("(Class (Attribute (Name \"a\") (Name . x)) (Name \"Foo\"))",
            "Badly formatted Name in Attribute a in Class ");
        row("(Interaction . x)", "Badly formatted Interaction");
        row("(Interaction (Name . x))", "Badly formatted Name in Interaction ");
        row("(Note . x)", "Badly formatted Note");
    }

    void badlyFormattedElement() { checkThatItFails(); }

    // A list of the file that is a dotted pair is found out by the construct around these two.
    void constructThatIsNoListFails()
    {
        DtOMTFileReader reader;
        const DtlObjPtr symbol = DtcMakeSymbol("x");
        DtEnumeratedDatatypeNode datatype;
        QVERIFY_EXCEPTION_THROWN(reader.processEnumeration(symbol, &datatype), DtOMTReadException);
        QCOMPARE(toQt(reader.getLastError()), QString("Badly formatted Enumeration"));
        DtInteractionClassFedNode interaction;
        QVERIFY_EXCEPTION_THROWN(reader.processParameter(symbol, &interaction), DtOMTReadException);
        QCOMPARE(toQt(reader.getLastError()), QString("Badly formatted Parameter"));
        QVERIFY(interaction.getParameters().empty());
    }

private:
    void checkThatItFails()
    {
        QFETCH(QByteArray, element);
        const DtOutcome outcome = readText("(ObjectModel (Name \"M\") " + element + ")");
        QVERIFY(outcome.hasThrown);
        QVERIFY(outcome.tree == nullptr);
        QTEST(outcome.error, "error");
    }
};

QX_REGISTER_TEST(TestOmtConstructs)
#include "testOmtConstructs.moc"
