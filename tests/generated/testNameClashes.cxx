// Models whose names C++ cannot hold side by side: what is generated compiles, or a warning says what does not.

#include "registerTest.h"

#include "stagedSample.h"

namespace
{
QByteArray attribute(const char* name, const char* datatype)
{
    return QByteArray("<attribute><name>") + name + "</name><dataType>" + datatype + "</dataType></attribute>";
}

QByteArray enumeration(const char* name, const char* representation, std::initializer_list<const char*> enumerators)
{
    QByteArray text =
        QByteArray("<enumeratedData><name>") + name + "</name><representation>" + representation + "</representation>";
    int number = 0;
    for (const char* each : enumerators)
        text += QByteArray("<enumerator><name>") + each + "</name><value>" + QByteArray::number(number++) +
                "</value></enumerator>";
    return text + "</enumeratedData>";
}

QByteArray parts(const char* element, std::initializer_list<std::pair<const char*, const char*>> rows)
{
    QByteArray text;
    for (const auto& [name, datatype] : rows)
        text += QByteArray("<") + element + "><name>" + name + "</name><dataType>" + datatype + "</dataType></" +
                element + ">";
    return text;
}

QByteArray record(const char* name, std::initializer_list<std::pair<const char*, const char*>> fields)
{
    return QByteArray("<fixedRecordData><name>") + name + "</name><encoding>HLAfixedRecord</encoding>" +
           parts("field", fields) + "</fixedRecordData>";
}

QByteArray model(const QByteArray& objectClasses, const QByteArray& interactionClasses, const QByteArray& datatypes)
{
    return "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">"
           "<modelIdentification><name>Clash</name></modelIdentification>"
           "<objects><objectClass><name>HLAobjectRoot</name>" +
           objectClasses + "</objectClass></objects><interactions><interactionClass><name>HLAinteractionRoot</name>" +
           interactionClasses + "</interactionClass></interactions><dataTypes>" + datatypes +
           "</dataTypes></objectModel>\n";
}

QByteArray objectClass(const char* name, const QByteArray& content)
{
    return QByteArray("<objectClass><name>") + name + "</name>" + content + "</objectClass>";
}

QByteArray enumerations(const QByteArray& content)
{
    return "<enumeratedDataTypes>" + content + "</enumeratedDataTypes>";
}

QByteArray records(const QByteArray& content)
{
    return "<fixedRecordDataTypes>" + content + "</fixedRecordDataTypes>";
}

void compareLines(const DtStagedOutput& output, const QStringList& expected)
{
    QCOMPARE(output.warnings().split('\n', Qt::SkipEmptyParts), expected);
}

QString compileErrors(const DtStagedOutput& output, const QByteArray& further = QByteArray())
{
    return output.compile(output.files(".*\\.cxx"), further, {"-std=c++17"});
}
} // namespace

class TestNameClashes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumeratorsThatAreCalledAlikeAreTold();
    void enumerationsThatAreCalledAlikeAreTold();
    void datatypesThatAreCalledAlikeAreTold();
    void datatypeThatIsCalledLikeTheToolkitsIsTold();
    void membersThatAreCalledAlikeAreTold();
    void enumeratorBeyondItsRepresentationIsTold();
    void enumeratorKeepsAllTheBitsOfItsValue();
    void hyphensAndSmallLettersNameTypes();
    void wordsOfTheLanguageAndEmptyClassesCompile();
    void discriminantThatSelectsNothingIsTold();
    void membersMayBeCalledLikeWhatTheClassesHold();
    void truthValuesNameATypeAsDiscriminants();
};

void TestNameClashes::enumeratorsThatAreCalledAlikeAreTold()
{
    const DtStagedOutput output(
        model(objectClass("Buoy", attribute("Kind", "Kind8")), "",
              enumerations(enumeration("Kind8", "HLAoctet", {"A-B", "AB", "A/B", "Nr. 1", "Nr_ 1"}))));
    compareLines(output, {"Warning: Enumerator AB of Kind8 is called AB_2: another one is called AB too.",
                          "Warning: Enumerator A/B of Kind8 is called AB_3: another one is called AB too.",
                          "Warning: Enumerator Nr_ 1 of Kind8 is called Nr__1_2: another one is called Nr__1 too."});
    const QString errors = compileErrors(output, "static_assert(static_cast<int>(DtKind8::eAB_3) == 2, \"\");\n");
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::enumerationsThatAreCalledAlikeAreTold()
{
    const DtStagedOutput output(model(
        objectClass("Buoy", attribute("One", "kind") + attribute("Two", "Kind")), "",
        enumerations(enumeration("kind", "HLAoctet", {"A"}) + enumeration("Kind", "HLAinteger16BE", {"A", "B"}))));
    compareLines(output, {"Warning: Enumeration Kind is left out: another one is called DtKind too."});
    const QString errors = compileErrors(output);
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::datatypesThatAreCalledAlikeAreTold()
{
    const DtStagedOutput output(model(objectClass("Buoy", attribute("One", "place") + attribute("Two", "Place")), "",
                                      records(record("place",
                                                     {
                                                         {"X", "HLAfloat64BE"}
    }) +
                                              record("Place", {{"Y", "HLAfloat32BE"}}))));
    compareLines(output, {"Warning: Datatypes place and Place are both called DtPlace in C++."});
    const QString errors = compileErrors(output);
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::datatypeThatIsCalledLikeTheToolkitsIsTold()
{
    const DtStagedOutput output(model(objectClass("Buoy", attribute("One", "Vector")), "",
                                      records(record("Vector", {
                                                                   {"X", "HLAfloat64BE"}
    }))));
    compareLines(output,
                 {"Warning: Datatype Vector is called DtVectorType in C++: the toolkit has a DtVector of its own. "
                  "A class prefix or a namespace gives generated code other names."});
    const QString errors = compileErrors(output);
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::membersThatAreCalledAlikeAreTold()
{
    const QByteArray parameters =
        parts("parameter", {
                               {"7th",  "HLAoctet"},
                               {"Call", "HLAoctet"},
                               {"call", "HLAoctet"}
    });
    const DtStagedOutput output(
        model(objectClass("Buoy", attribute("Size", "HLAoctet") + attribute("size", "HLAoctet") +
                                      attribute("theClass", "HLAoctet") + attribute("class", "Frame")),
              "<interactionClass><name>Ring</name>" + parameters + "</interactionClass>",
              records(record("Frame", {
                                          {"X", "HLAoctet"},
                                          {"x", "HLAoctet"}
    }))));
    compareLines(output,
                 {"Warning: Members X and x of Frame are called alike in C++.",
                  "Warning: Members Size and size of HLAobjectRoot.Buoy are called alike in C++.",
                  "Warning: Members theClass and class of HLAobjectRoot.Buoy are called alike in C++.",
                  "Warning: Member 7th of HLAinteractionRoot.Ring is called 7th in C++, which is no identifier.",
                  "Warning: Members Call and call of HLAinteractionRoot.Ring are called alike in C++."});
}

void TestNameClashes::enumeratorBeyondItsRepresentationIsTold()
{
    QByteArray kind = enumeration("Kind8", "HLAoctet", {"A", "B"});
    kind.replace("<value>1<", "<value>256<");
    const DtStagedOutput output(model(objectClass("Buoy", attribute("One", "Kind8")), "", enumerations(kind)));
    compareLines(output, {"Warning: Enumerator B of Kind8 does not fit into its representation."});
}

void TestNameClashes::enumeratorKeepsAllTheBitsOfItsValue()
{
    const QByteArray enumerators = "<enumerator><name>Wide</name><value>4294967294</value></enumerator>"
                                   "<enumerator><name>Whole</name><value>18446744073709551614</value></enumerator>";
    const DtStagedOutput output(model(objectClass("Buoy", attribute("One", "Mark")), "",
                                      enumerations("<enumeratedData><name>Mark</name><representation>"
                                                   "HLAinteger64BE</representation>" +
                                                   enumerators + "</enumeratedData>")));
    compareLines(output, {"Warning: Enumeration Mark has values that are no numbers from -2147483648 to 2147483647: "
                          "Wide, Whole",
                          "Warning: Enumerator Whole of Mark does not fit into its representation."});
    const QString errors =
        compileErrors(output, "static_assert(static_cast<DtInt64>(DtMark::eWide) == 4294967294, \"\");\n"
                              "static_assert(static_cast<DtInt64>(DtMark::eWhole) == -2, \"\");\n");
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::hyphensAndSmallLettersNameTypes()
{
    const QByteArray variant =
        "<variantRecordDataTypes><variantRecordData><name>signal-part</name><discriminant>Kind</discriminant>"
        "<dataType>signal-kind</dataType><alternative><enumerator>Long-Blast</enumerator><name>Seconds</name>"
        "<dataType>HLAfloat64BE</dataType></alternative><encoding>HLAvariantRecord</encoding>"
        "</variantRecordData></variantRecordDataTypes>";
    const DtStagedOutput output(
        model(objectClass("Buoy", attribute("One", "signal-kind") + attribute("Two", "signal-part")), "",
              enumerations(enumeration("signal-kind", "HLAinteger32LE", {"Silent", "Long-Blast"})) + variant));
    compareLines(output, {});
    const QString errors = compileErrors(
        output, "static_assert(std::is_same<DtSignal__part::Discriminant, DtSignal__kind>::value, \"\");\n");
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::wordsOfTheLanguageAndEmptyClassesCompile()
{
    const DtStagedOutput output(
        model(objectClass("Buoy", attribute("switch", "HLAoctet") + attribute("Operator", "Frame") +
                                      objectClass("Empty", objectClass("Light", attribute("new", "HLAoctet")))),
              "<interactionClass><name>Ring</name><interactionClass><name>Answer</name>" +
                  parts("parameter",
                        {
                            {"default", "HLAoctet"}
    }) +
                  "</interactionClass></interactionClass>",
              records(record("Frame", {{"for", "HLAoctet"}, {"Double", "HLAfloat64BE"}, {"encode", "HLAoctet"}}))));
    compareLines(output, {});
    const QString errors = compileErrors(output);
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::discriminantThatSelectsNothingIsTold()
{
    const QByteArray variant =
        "<variantRecordDataTypes><variantRecordData><name>Part</name><discriminant>Kind</discriminant>"
        "<dataType>HLAunicodeString</dataType><alternative><enumerator>A</enumerator><name>Seconds</name>"
        "<dataType>HLAoctet</dataType></alternative><encoding>HLAvariantRecord</encoding>"
        "</variantRecordData></variantRecordDataTypes>";
    const DtStagedOutput output(model(objectClass("Buoy", attribute("One", "Part")), "", variant));
    compareLines(output, {"Warning: The discriminant of DtPart is no number and no enumeration: HLAunicodeString. "
                          "A number of 32 bits stands for it."});
    const QString errors = compileErrors(output);
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestNameClashes::membersMayBeCalledLikeWhatTheClassesHold()
{
    QByteArray alternatives;
    QByteArray enumerators = "<name>Kind</name><representation>HLAoctet</representation>";
    int number = 0;
    for (const char* name : {"places_",
                             "kind_",
                             "discriminantForm_",
                             "alternativeBoundary_",
                             "select_",
                             "selector_",
                             "places",
                             "placeOf",
                             "select",
                             "selected",
                             "selector",
                             "discriminant",
                             "formOf",
                             "coding",
                             "own",
                             "encode",
                             "decode",
                             "netSize",
                             "octetBoundary",
                             "A",
                             "myA",
                             "setB",
                             "value"})
    {
        const QByteArray kind = QByteArray("e") + QByteArray::number(number);
        enumerators +=
            "<enumerator><name>" + kind + "</name><value>" + QByteArray::number(number++) + "</value></enumerator>";
        alternatives += "<alternative><enumerator>" + kind + "</enumerator><name>" + name +
                        "</name><dataType>HLAinteger16BE</dataType></alternative>";
    }
    const DtStagedOutput output(
        model(objectClass("Buoy", attribute("One", "Part") + attribute("Two", "Frame")), "",
              enumerations("<enumeratedData>" + enumerators + "</enumeratedData>") +
                  records(record("Frame",
                                 {
                                     {"A",   "HLAoctet"},
                                     {"myA", "HLAoctet"},
                                     {"own", "HLAoctet"}
    })) +
                  "<variantRecordDataTypes><variantRecordData><name>Part</name><discriminant>Which</discriminant>"
                  "<dataType>Kind</dataType>" +
                  alternatives + "<encoding>HLAvariantRecord</encoding></variantRecordData></variantRecordDataTypes>"));
    compareLines(output, {});
    const QString run = output.path() + "/members";
    const QString errors = output.compile(output.files("DataTypes/.*\\.cxx"), R"(
int main()
{
    DtPart part;
    part.setKind_(0x0102);
    DtWireWriter writer;
    part.encode(writer);
    if (writer.bytes() != std::vector<DtU8>({1, 0, 1, 2}))
        return 1;
    DtPart seen;
    DtWireReader reader(writer.data(), writer.size());
    if (!seen.decode(reader) || !(seen == part) || seen.kind_() != 0x0102 || seen.selected<int>() != 1)
        return 2;
    part.setMyA(5);
    DtFrame frame;
    frame.setMyA(3);
    return part.selected<int>() == 20 && part.a() == 0 && frame.a() == 0 && frame.myA() == 3 ? 0 : 3;
}
)",
                                          toolkitObjects() + QStringList{"-std=c++11"}, run);
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
    QCOMPARE(runProgram(output.path(), run, {}).exitCode, 0);
}

// Where the project maps them to bool; else the class of the enumeration has the name.
void TestNameClashes::truthValuesNameATypeAsDiscriminants()
{
    const char names[] = "static_assert(std::is_same<DtHLAboolean, bool>::value, \"\");\n"
                         "static_assert(std::is_same<DtRPRboolean, bool>::value, \"\");\n"
                         "static_assert(std::is_same<DtOMT13boolean, bool>::value, \"\");\n";
    const QByteArray text = model(objectClass("Buoy", attribute("One", "RPRboolean")), "",
                                  enumerations(enumeration("RPRboolean", "HLAoctet", {"False", "True"})));
    const DtStagedOutput mapped(text);
    const QString errors = compileErrors(mapped, names);
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
    const DtStagedOutput unmapped(text, "RPRboolean");
    const QString further = compileErrors(unmapped, "static_assert(std::is_enum<DtRPRboolean>::value, \"\");\n"
                                                    "static_assert(std::is_same<DtHLAboolean, bool>::value, \"\");\n");
    QVERIFY2(further.isEmpty(), qPrintable(further));
}

QX_REGISTER_TEST(TestNameClashes)
#include "testNameClashes.moc"
