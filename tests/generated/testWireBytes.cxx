// The octets of every datatype of the sample model, by generated code that is compiled and run.

#include "registerTest.h"

#include "stagedSample.h"

#include <QtCore/QXmlStreamReader>

#include <memory>
#include <set>

namespace
{
const QString theList = QStringLiteral(QX_SOURCE_DIR "/tests/generated/wireVectors.txt");

// The classes whose attributes stand in the vectors, superclasses first.
const QStringList theClasses = {"portEntity", "vessel", "cargoShip", "tug__Pusher", "beacon"};

// Names of a kind of datatype, and why one of them has no vectors.
const std::set<QString> theDatatypeElements = {"basicData", "simpleData",      "enumeratedData",
                                               "arrayData", "fixedRecordData", "variantRecordData"};
const std::set<QString> theNotEncodable = {
    "FlagBits", // an array of bits, which no rule lays out
};

std::set<QString> namesIn(const QByteArray& model)
{
    std::set<QString> names;
    QXmlStreamReader reader(model);
    bool isDatatype = false;
    while (!reader.atEnd())
    {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (isDatatype && reader.name() == QLatin1String("name"))
            names.insert(reader.readElementText());
        isDatatype = theDatatypeElements.count(reader.name().toString()) > 0;
    }
    return names;
}

// The unit that wireVectors.cxx is compiled in needs one header for all.
QByteArray allDatatypes(const DtStagedOutput& output)
{
    QByteArray text = "#pragma once\n#include <qx/valueCoding.h>\n";
    for (const QString& header : output.files("DataTypes/.*\\.h"))
        text += "#include \"" + header.toUtf8() + "\"\n";
    for (const QString& name : theClasses)
        for (const char* suffix : {"EncoderHLA.h", "DecoderHLA.h"})
            text += "#include \"" + name.toUtf8() + suffix + "\"\n";
    return text;
}

QStringList sourcesOf(const DtStagedOutput& output)
{
    QStringList sources = output.files("DataTypes/(?!HLA).*\\.cxx");
    for (const QString& name : theClasses)
        for (const char* suffix : {"EncoderHLA.cxx", "DecoderHLA.cxx", "StateRepository.cxx"})
            sources += name + QString::fromLatin1(suffix);
    return sources;
}
} // namespace

class TestWireBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { myOutput.reset(); }
    void sampleLoadsWithoutWarning();
    void everyVectorGivesItsOctets();
    void faultyVectorsAreNoticed();
    void listHoldsTheVectors();
    void everyDatatypeOfTheSampleHasVectors();

private:
    DtProgramRun vectors(const QStringList& arguments = {}) const
    {
        return runProgram(myOutput->path(), myOutput->path() + "/vectors", arguments);
    }

    std::unique_ptr<DtStagedOutput> myOutput;
};

// The sanitizers tell of every octet that is read beyond a buffer.
void TestWireBytes::initTestCase()
{
    myOutput = std::make_unique<DtStagedOutput>();
    writeTextFile(myOutput->path() + "/allDatatypes.h", allDatatypes(*myOutput));
    const QString errors = myOutput->compile(
        sourcesOf(*myOutput), "#include \"wireVectors.cxx\"\n",
        toolkitObjects() + QStringList{"-std=c++17", "-fsanitize=address,undefined", "-fno-sanitize-recover=all"},
        "vectors");
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
}

void TestWireBytes::sampleLoadsWithoutWarning()
{
    DtScratchProgram program;
    const DtString model = program.sampleModel();
    const auto window = program.makeWindow();
    window->newOmtProject(DtFilename(program.bytes(program.path("models/p.qxproj"))));
    const DtCapture warnings(DtWarn);
    QCOMPARE(window->loadFile(model, ""), 1);
    QCOMPARE(warnings.text(), QString());
}

void TestWireBytes::everyVectorGivesItsOctets()
{
    const DtProgramRun run = vectors();
    QVERIFY2(run.exitCode == 0, qPrintable(run.output));
    const QRegularExpressionMatch end =
        QRegularExpression("^(\\d+) vectors, (\\d+) random values, 0 failures\n$").match(run.output);
    QVERIFY2(end.hasMatch(), qPrintable(run.output));
    qInfo("%s vectors, %s random values", qPrintable(end.captured(1)), qPrintable(end.captured(2)));
    QVERIFY(end.captured(1).toInt() >= 120);
    QVERIFY(end.captured(2).toInt() >= 500); // the rest of them is refused
}

void TestWireBytes::faultyVectorsAreNoticed()
{
    const DtProgramRun run = vectors({"--faulty"});
    QCOMPARE(run.exitCode, 1);
    for (const char* fault :
         {"ClockTime {}: gives 061e3b", "ClockTime {}: decodes to another value", "TideMark {}: not decoded",
          "TideMark {}: an octet too many is taken", "BearingList []: cut off behind octet 4 it is still taken",
          "SampleRun [1]: cut off behind octet 0 it is still taken", "ClockTime : encoded, though it has no wire form",
          "ClockTime 061e3b: taken, though it is no value", "ClockTime 061e3c: not read as it should be"})
        QVERIFY2(run.output.contains("FAILED " + QString::fromLatin1(fault) + "\n"), fault);
}

// WIRE_VECTORS_UPDATE=1 writes the list anew; it is for implementations in other languages.
void TestWireBytes::listHoldsTheVectors()
{
    const DtProgramRun run = vectors({"--list"});
    QCOMPARE(run.exitCode, 0);
    if (qEnvironmentVariableIntValue("WIRE_VECTORS_UPDATE") == 1)
        return writeTextFile(theList, run.output.toUtf8());
    QCOMPARE(run.output, QString::fromUtf8(readTextFile(theList)));
}

void TestWireBytes::everyDatatypeOfTheSampleHasVectors()
{
    std::set<QString> listed;
    for (const QString& line : QString::fromUtf8(readTextFile(theList)).split('\n'))
        listed.insert(line.section(" | ", 0, 0));
    const std::set<QString> names = namesIn(readTextFile(QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml")));
    QVERIFY(names.size() > 80);
    for (const QString& name : names)
        QVERIFY2((listed.count(name) > 0) != (theNotEncodable.count(name) > 0), qPrintable(name));
}

QX_REGISTER_TEST(TestWireBytes)
#include "testWireBytes.moc"
