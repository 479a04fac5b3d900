// Code of the user's own in a project, from its file to the running program.

#include "registerTest.h"

#include "codeGenApp/smallModels.h"
#include "fileGenerator/omtProject.h"
#include "stagedSample.h"

namespace
{

// A byte of 7 and the value in one more.
const char theEncoder[] = "    writer.putByte(7);\n    writer.putByte(static_cast<DtU8>(%1));\n";
const char theDecoder[] = "    DtU8 octets[2];\n    if (!reader.getBytes(octets, 2) || octets[0] != 7)\n    {\n"
                          "        return false;\n    }\n    %1(octets[1]);\n";

const char theProgram[] = R"(
#include <cstdio>
static bool is(const DtAttributeValues& values, const char* name, const DtValueBuffer& octets)
{
    const DtAttributeValues::const_iterator found = values.find(name);
    return found != values.end() && found->second == octets;
}
static int check(const char* what, bool holds)
{
    std::printf("%s %s\n", what, holds ? "yes" : "NO");
    return holds ? 0 : 1;
}
int main()
{
    int faults = 0;
    DtBoatStateRepository boat;
    boat.setSpeed(42);
    boat.setDraught(3);
    DtAttributeValues values;
    faults += check("object is encoded", DtBoatEncoder().encode(boat, values));
    faults += check("custom encoder runs", is(values, "Speed", {7, 42}));
    faults += check("other attribute is generated", is(values, "Draught", {0, 0, 0, 3}));
    DtBoatStateRepository seen;
    faults += check("object is decoded", DtBoatDecoder().decode(values, seen));
    faults += check("custom decoder runs", seen.speed() == 42 && seen.draught() == 3);
    values["Speed"] = {8, 42};
    faults += check("custom decoder may refuse", !DtBoatDecoder().decode(values, seen) && seen.speed() == 42);

    DtHornInter horn;
    horn.setVolume(5);
    horn.setSecret(9);
    values.clear();
    DtInteractionWithEncDec& sent = horn;
    faults += check("interaction is encoded", sent.encode(values));
    faults += check("custom encoder of a parameter runs", is(values, "Volume", {7, 5}));
    faults += check("parameter that is left out is not sent", values.count("Secret") == 0 && values.size() == 1);
    DtHornInter heard;
    DtInteractionWithEncDec& received = heard;
    faults += check("interaction is decoded", received.decode(values));
    faults += check("custom decoder of a parameter runs", heard.volume() == 5 && heard.secret() == 0);
    return faults;
}
)";

// The texts that the window offered in its early days, with their tokens filled in: projects have kept them.
const char theEarlyForm[] = "    // The form on the wire: datatype, representation, encoding; elements of a\n"
                            "    // fixed array, octets of a number, 1 if the least significant comes first.\n"
                            "    const DtWireForm form(\"%1\", \"%2\", R\"qx(%3)qx\",\n        %4);\n";
const char theEarlyEncoder[] = "    if (!DtWriteValue(writer, %1.%2(), form))\n    {\n        return false;\n    }\n";
const char theEarlyDecoder[] = "    auto value = %1.%2();\n    if (!DtReadValue(reader, value, form))\n    {\n"
                               "        return false;\n    }\n    %1.set%3(value);\n";
const char theEarlyEnumeratorNote[] = "    // An enumerator goes out as its number, a DtU8. To send another:\n"
                                      "    //     writer.putInteger(number, sizeof(DtU8));\n";

struct DtEarlyMember
{
    const char *owner, *name, *datatype, *representation, *encoding, *numbers, *note;
};

const DtEarlyMember theEarlyMembers[] = {
    {"HLAobjectRoot.Boat",      "Speed",  "HLAinteger32BE", "",         "HLAvariableArray", "-1, 4, 0", ""                    },
    {"HLAobjectRoot.Boat",      "Lamp",   "Lamp",           "HLAoctet", "HLAvariableArray", "-1, 1, 0", theEarlyEnumeratorNote},
    {"HLAobjectRoot.Boat",      "Marks",  "Marks",          "HLAoctet", "HLAfixedArray",    "3, 1, 0",  ""                    },
    {"HLAobjectRoot.Boat",      "Left",   "Place",          "",         "HLAfixedRecord",   "-1, 0, 0", ""                    },
    {"HLAinteractionRoot.Horn", "Volume", "HLAinteger32BE", "",         "HLAvariableArray", "-1, 4, 0", ""                    },
};

DtString latin(const QString& text)
{
    return text.toLatin1().constData();
}

void addEarlyTexts(DtOmtProject& project)
{
    for (const DtEarlyMember& member : theEarlyMembers)
    {
        const QString object = QString(member.owner).endsWith("Boat") ? "state" : "interaction";
        const QString accessor = QString(member.name).toLower();
        const QString form =
            QString(theEarlyForm).arg(member.datatype, member.representation, member.encoding, member.numbers);
        project.addCustomCoding(DtString(member.owner) + "." + member.name,
                                {latin(member.note + form + QString(theEarlyEncoder).arg(object, accessor)),
                                 latin(form + QString(theEarlyDecoder).arg(object, accessor, member.name))});
    }
}

QByteArray earlyModel()
{
    const QByteArray lamp = element("enumeratedData", "<name>Lamp</name><representation>HLAoctet</representation>"
                                                      "<enumerator><name>On</name><value>1</value></enumerator>");
    const QByteArray marks = element("arrayData", "<name>Marks</name><dataType>HLAoctet</dataType><cardinality>3"
                                                  "</cardinality><encoding>HLAfixedArray</encoding>");
    const QByteArray place = element("fixedRecordData", "<name>Place</name><encoding>HLAfixedRecord</encoding><field>"
                                                        "<name>X</name><dataType>HLAfloat64BE</dataType></field>");
    const QByteArray types = element("enumeratedDataTypes", lamp) + element("arrayDataTypes", marks) +
                             element("fixedRecordDataTypes", place);
    QByteArray module =
        moduleText(objectText("Boat", attributeText("Speed") + attributeText("Lamp", "Lamp") +
                                          attributeText("Marks", "Marks") + attributeText("Left", "Place")),
                   interactionText("Horn", parameterText("Volume")));
    return module.replace("</objectModel>", element("dataTypes", types) + "</objectModel>");
}

QByteArray recordText(const char* name, const char* datatype)
{
    const auto field = [datatype](const char* each)
    { return element("field", element("name", each) + element("dataType", datatype)); };
    return element("fixedRecordData",
                   element("name", name) + element("encoding", "HLAfixedRecord") + field("Left") + field("Right"));
}

// Datatypes with open arrays in them: the array Row and these records.
QByteArray withOpenTypes(QByteArray module, const QByteArray& records)
{
    const QByteArray row = element("arrayData", "<name>Row</name><dataType>HLAoctet</dataType><cardinality>Dynamic"
                                                "</cardinality><encoding>HLAvariableArray</encoding>");
    const QByteArray types = element("arrayDataTypes", row) + element("fixedRecordDataTypes", records);
    return module.replace("</objectModel>", element("dataTypes", types) + "</objectModel>");
}

// A class and an interaction with a value of two open arrays, which has no encoding, and one of an unknown datatype.
QByteArray uncodedModel()
{
    return withOpenTypes(moduleText(objectText("Boat", attributeText("Speed") + attributeText("Load", "Pair") +
                                                           attributeText("Riddle", "Unknown")),
                                    interactionText("Horn", parameterText("Volume") + parameterText("Load", "Pair") +
                                                                parameterText("Riddle", "Unknown"))),
                         recordText("Pair", "Row"));
}

// Functions that write the octet 7 and read it, of an object class or an interaction, by the head of each.
QByteArray coderText(const char* guard, std::initializer_list<QByteArray> encoders,
                     std::initializer_list<QByteArray> decoders)
{
    QByteArray text = QByteArray("#ifndef ") + guard + "\n#define " + guard + "\n";
    for (const QByteArray& head : encoders)
        text += head + ", DtWireWriter& writer)\n{\n    writer.putByte(7);\n    return true;\n}\n";
    for (const QByteArray& head : decoders)
        text += head + ", DtWireReader& reader)\n{\n    DtU8 octet = 0;\n" +
                "    return reader.getBytes(&octet, 1) && octet == 7;\n}\n";
    return text + "#endif\n";
}

void writeUserFiles(const QString& directory, const QString& side)
{
    const auto write = [&](const QString& file, const QByteArray& text)
    { writeTextFile(directory + "/" + file + side + "User.h", text); };
    write("boatEncoder", coderText("BOAT_ENCODER",
                                   {"bool DtBoatEncoder::encodeLoad(const DtBoatStateRepository&",
                                    "bool DtBoatEncoder::encodeRiddle(const DtBoatStateRepository&"},
                                   {}));
    write("boatDecoder", coderText("BOAT_DECODER", {},
                                   {"bool DtBoatDecoder::decodeLoad(DtBoatStateRepository&",
                                    "bool DtBoatDecoder::decodeRiddle(DtBoatStateRepository&"}));
    write("hornInterEncoder", coderText("HORN_ENCODER",
                                        {"bool DtHornInterEncoder::encodeLoad(const DtHornInter&",
                                         "bool DtHornInterEncoder::encodeRiddle(const DtHornInter&"},
                                        {}));
    write("hornInterDecoder", coderText("HORN_DECODER", {},
                                        {"bool DtHornInterDecoder::decodeLoad(DtHornInter&",
                                         "bool DtHornInterDecoder::decodeRiddle(DtHornInter&"}));
    write("hornInter", coderText("HORN_CODING",
                                 {"static bool encode_DtHornInter_Load(const DtHornInter&",
                                  "static bool encode_DtHornInter_Riddle(const DtHornInter&"},
                                 {"static bool decode_DtHornInter_Load(DtHornInter&",
                                  "static bool decode_DtHornInter_Riddle(DtHornInter&"}));
}

// What is encoded, and how many of the others can be decoded out of the octet 7.
const char theUncodedProgram[] = R"(
#include <cstdio>
template <class Encoder, class Decoder, class Value>
static void tell(const char* other, Value value)
{
    DtAttributeValues values;
    const bool isWhole = Encoder().encode(value, values);
    std::printf("%s", isWhole ? "all" : "some");
    for (const auto& each : values)
        std::printf(" %s %u", each.first.c_str(), static_cast<unsigned int>(each.second.size()));
    values.clear();
    values[other] = DtValueBuffer(4, 0);
    values["Load"] = {7};
    values["Riddle"] = {7};
    std::vector<std::string> refused;
    Decoder().decode(values, value, &refused);
    std::printf(" refused %u\n", static_cast<unsigned int>(refused.size()));
}
int main()
{
    tell<DtBoatEncoder, DtBoatDecoder>("Speed", DtBoatStateRepository());
    tell<DtHornInterEncoder, DtHornInterDecoder>("Volume", DtHornInter());
}
)";

const char theOpenProgram[] = R"(
#include <cstdio>
int main()
{
    DtInner inner;
    inner.setLeft(DtRow(std::vector<DtU8>(2, 7)));
    DtOuter outer;
    outer.setLeft(inner);
    outer.setRight(inner);
    DtWireWriter writer;
    outer.encode(writer);
    DtOuter seen;
    DtWireReader reader(writer.data(), writer.size());
    if (writer.ok() && seen.decode(reader) && seen == outer)
        std::printf("%u octets", static_cast<unsigned int>(writer.size()));
    else if (!writer.ok())
        std::printf("refused");
}
)";

DtString filledIn(const char* text, const char* value)
{
    return QString(text).arg(QString(value)).toUtf8().constData();
}

void leaveOut(DtOmtProject& project, const DtString& interaction, const DtString& parameter)
{
    std::set<DtOmtInteraction> changed;
    for (DtOmtInteraction each : project.getInteractions())
    {
        std::set<DtOmtParameter> parameters;
        for (DtOmtParameter member : each.parameters())
        {
            member.setNoGen(each.fullName() == interaction && member.name() == parameter);
            parameters.insert(member);
        }
        each.setParameters(parameters);
        changed.insert(each);
    }
    project.setInteractions(changed);
}
} // namespace

class TestCustomCode : public QObject
{
    Q_OBJECT

private:
    // Makes the project, with the texts, and saves it.
    static DtFilename savedProject(DtScratchProgram& program)
    {
        const DtString model = program.model(
            "boats.xml", moduleText(objectText("Boat", attributeText("Speed") + attributeText("Draught")),
                                    interactionText("Horn", parameterText("Volume") + parameterText("Secret"))));
        const DtFilename file(program.bytes(program.path("models/boats.qxproj")));
        const auto window = makeWindow(program);
        window->newOmtProject(file);
        window->loadFile(model, "");
        window->addAllObjectInteractions();
        DtOmtProject& project = *window->omtProject();
        project.addCustomCoding("HLAobjectRoot.Boat.Speed",
                                {filledIn(theEncoder, "state.speed()"), filledIn(theDecoder, "state.setSpeed")});
        project.addCustomCoding("HLAinteractionRoot.Horn.Volume", {filledIn(theEncoder, "interaction.volume()"),
                                                                   filledIn(theDecoder, "interaction.setVolume")});
        leaveOut(project, "HLAinteractionRoot.Horn", "Secret");
        window->saveOmtProject();
        return file;
    }

    static std::unique_ptr<DtCodeGenAppGui> makeWindow(DtScratchProgram& program)
    {
        return program.makeWindow(
            [](DtCodeGenInitializer& initializer)
            {
                initializer.setGenerateExamples(false);
                initializer.setIncludeStandardMIM(false);
            });
    }

private Q_SLOTS:
    void textsOfTheProjectRun()
    {
        DtScratchProgram program;
        const DtFilename file = savedProject(program);
        const auto window = makeWindow(program);
        window->loadOmtProject(file);
        window->setOutputDirectory(program.path("out/"));
        window->generateAllFiles();
        const DtStagedOutput output(program.path("out"));
        const QString run = output.path() + "/custom";
        const QString errors =
            output.compile(output.files("[^/]*\\.cxx"), theProgram, toolkitObjects() + QStringList{"-std=c++17"}, run);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        const DtProgramRun result = runProgram(output.path(), run, {});
        QVERIFY2(result.exitCode == 0, qPrintable(result.output));
        QCOMPARE(result.output.count(" yes"), 11);
    }

    void textsThatTheWindowOnceOfferedCompile()
    {
        DtScratchProgram program;
        const DtString model = program.model("boats.xml", earlyModel());
        const auto window = makeWindow(program);
        window->newOmtProject(DtFilename(program.bytes(program.path("models/boats.qxproj"))));
        window->loadFile(model, "");
        window->addAllObjectInteractions();
        addEarlyTexts(*window->omtProject());
        window->setOutputDirectory(program.path("out/"));
        window->generateAllFiles();
        const DtStagedOutput output(program.path("out"));
        QVERIFY(output.text("boatEncoderHLA.cxx").contains("R\"qx(HLAfixedArray)qx\",\n        3, 1, 0);"));
        const QString errors = output.compile(output.files(".*\\.cxx"), "", {"-std=c++11"});
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
    }

    void fileOfTheUserCodesWhatHasNoEncoding_data()
    {
        QTest::addColumn<bool>("isDis");
        QTest::addColumn<bool>("hasFiles");
        QTest::newRow("HLA with files") << false << true;
        QTest::newRow("HLA without files") << false << false;
        QTest::newRow("DIS with files") << true << true;
        QTest::newRow("DIS without files") << true << false;
    }
    void fileOfTheUserCodesWhatHasNoEncoding()
    {
        QFETCH(bool, isDis);
        QFETCH(bool, hasFiles);
        DtScratchProgram program;
        const std::unique_ptr<DtStagedOutput> output = uncodedOutput(program, hasFiles);
        const QString run = output->path() + (isDis ? "/runDis" : "/runHla");
        const QString errors =
            output->compile(sourcesOf(*output, isDis), theUncodedProgram, toolkitObjects() + optionsOf(isDis), run);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        QCOMPARE(runProgram(output->path(), run, {}).output,
                 QString(hasFiles ? "all Load 1 Riddle 1 Speed 4 refused 0\nall Load 1 Riddle 1 Volume 4 refused 0\n"
                                  : "some Speed 4 refused 2\nsome Volume 4 refused 2\n"));
    }

    // It takes every header for one that is there, and passes over the files of the user.
    void compilerThatCannotLookForFilesIsEnough_data()
    {
        QTest::addColumn<bool>("isDis");
        QTest::newRow("HLA") << false;
        QTest::newRow("DIS") << true;
    }
    void compilerThatCannotLookForFilesIsEnough()
    {
        QFETCH(bool, isDis);
        DtScratchProgram program;
        const std::unique_ptr<DtStagedOutput> output = uncodedOutput(program, true);
        writeTextFile(output->path() + "/DataTypes/unknown.h", "");
        writeTextFile(output->path() + "/old.h",
                      "#pragma GCC system_header\n#include <bits/stdc++.h>\n#undef __has_include\n");
        const QString errors = output->compile(sourcesOf(*output, isDis), "static_assert(sizeof(DtPair) > 1, \"\");\n",
                                               QStringList{"-include", "old.h"} + optionsOf(isDis));
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
    }

    // The generator knows what a record holds from its turn on, and turns go by the model.
    void openArraysOfALaterRecordAreCoded_data()
    {
        QTest::addColumn<QByteArray>("records"); // with names of their own, for marks outlast a run
        QTest::addColumn<QStringList>("marked");
        QTest::addColumn<QString>("coded");
        const QByteArray inner = recordText("Inner", "Row");
        const QByteArray outer = recordText("Outer", "Inner");
        const QByteArray half =
            QByteArray(inner).replace("Right</name><dataType>Row", "Right</name><dataType>HLAoctet");
        QTest::newRow("A") << inner + outer << QStringList{"Inner", "Outer"} << "refused";
        QTest::newRow("B") << outer + inner << QStringList{"Inner"} << "refused";
        QTest::newRow("C") << half + outer << QStringList{"Outer"} << "refused";
        QTest::newRow("D") << outer + half << QStringList() << "15 octets";
    }
    void openArraysOfALaterRecordAreCoded()
    {
        QFETCH(QByteArray, records);
        QFETCH(QStringList, marked);
        QFETCH(QString, coded);
        const QByteArray row = QTest::currentDataTag();
        const auto named = [&row](QByteArray text)
        { return text.replace("Inner", "Inner" + row).replace("Outer", "Outer" + row); };
        const DtStagedOutput output(
            named(withOpenTypes(moduleText(objectText("Boat", attributeText("Load", "Outer"))), records)));
        QStringList warnings;
        for (const QString& each : marked)
            warnings += "Warning: Cannot encode/decode data type Dt" + each + row + ".";
        QCOMPARE(output.warnings().split('\n', Qt::SkipEmptyParts), warnings);
        const QString run = output.path() + "/open";
        const QString errors = output.compile(output.files("DataTypes/.*\\.cxx"), named(theOpenProgram),
                                              toolkitObjects() + QStringList{"-std=c++11"}, run);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        QCOMPARE(runProgram(output.path(), run, {}).output, coded);
    }

private:
    // With the headers of the DIS classes under the names by which they include each other.
    static std::unique_ptr<DtStagedOutput> uncodedOutput(DtScratchProgram& program, bool hasFiles)
    {
        generateUncoded(program);
        auto output = std::make_unique<DtStagedOutput>(program.path("out"));
        QFile::link(output->path() + "/boatPdu.h", output->path() + "/BoatPdu.h");
        if (hasFiles)
            for (const char* side : {"HLA", "DIS"})
                writeUserFiles(output->path(), side);
        return output;
    }
    static void generateUncoded(DtScratchProgram& program)
    {
        const DtCapture warnings(DtWarn);
        const DtString model = program.model("boats.xml", uncodedModel());
        const auto window = program.makeWindow(
            [](DtCodeGenInitializer& initializer)
            {
                initializer.setGenerateDis(true);
                initializer.setGenerateExamples(false);
                initializer.setGenerateErrors(false);
                initializer.setIncludeStandardMIM(false);
            });
        window->newOmtProject(DtFilename(program.bytes(program.path("models/boats.qxproj"))));
        window->loadFile(model, "");
        window->addAllObjectInteractions();
        window->setOutputDirectory(program.path("out/"));
        window->generateAllFiles();
    }
    static QStringList sourcesOf(const DtStagedOutput& output, bool isDis)
    {
        const QRegularExpression other(isDis ? "HLA\\.cxx$" : "(DIS|Pdu|hornInter)\\.cxx$");
        QStringList sources;
        for (const QString& file : output.files(".*\\.cxx"))
            if (!other.match(file).hasMatch())
                sources += file;
        return sources;
    }
    static QStringList optionsOf(bool isDis)
    {
        return isDis ? QStringList{"-std=c++11", "-DQX_DIS"} : QStringList{"-std=c++11"};
    }
};

QX_REGISTER_TEST(TestCustomCode)
#include "testCustomCode.moc"
