// The generated Python codec against the octets that were worked out by hand, and against the generated C++: values of
// every datatype go from the one to the other and back.

#include "registerTest.h"

#include "codeGenApp/compiledOutput.h"
#include "codeGenApp/scriptRun.h"
#include "codeGenApp/smallModels.h"

#include <QtCore/QXmlStreamReader>

#include <memory>
#include <set>

namespace
{
const QString theDirectory = QStringLiteral(QX_SOURCE_DIR "/tests/generated");
const std::set<QString> theDatatypeElements = {"basicData", "simpleData",      "enumeratedData",
                                               "arrayData", "fixedRecordData", "variantRecordData"};

// The datatypes that a model file defines. A name is an element in the newer formats and an attribute in the older one.
QStringList datatypesIn(const QByteArray& model)
{
    QStringList names;
    QXmlStreamReader reader(model);
    bool isDatatype = false;
    while (!reader.atEnd())
    {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (isDatatype && reader.name() == QLatin1String("name"))
            names += reader.readElementText();
        isDatatype = theDatatypeElements.count(reader.name().toString()) > 0;
        if (isDatatype && reader.attributes().hasAttribute("name"))
            names += reader.attributes().value("name").toString();
    }
    return names;
}

QStringList datatypesIn(const QStringList& files)
{
    QStringList names;
    for (const QString& file : files)
        names += datatypesIn(readTextFile(file));
    names.removeDuplicates();
    return names;
}

// A module with an object class Probe, which has an attribute of each of these datatypes: P0, P1 and so on.
QByteArray probeModule(const QStringList& datatypes)
{
    QByteArray attributes;
    for (int index = 0; index < datatypes.size(); ++index)
        attributes += attributeText("P" + QByteArray::number(index), datatypes[index].toHtmlEscaped().toUtf8());
    return moduleText(objectText("Probe", attributes));
}

// The same as part of a model in the older format.
QByteArray withOlderProbe(QByteArray model, const QStringList& datatypes)
{
    const int root = model.indexOf('>', model.indexOf("name=\"HLAobjectRoot\"")) + 1;
    QByteArray probe = "<objectClass name=\"Probe\">";
    for (int index = 0; index < datatypes.size(); ++index)
        probe += "<attribute name=\"P" + QByteArray::number(index) + "\" dataType=\"" +
                 datatypes[index].toHtmlEscaped().toUtf8() + "\"/>";
    return model.insert(root, probe + "</objectClass>");
}

// What both roads write of a model with a probe: the codec, and the generated code laid out for a compiler.
class DtBothSides
{
public:
    // Of modules.
    explicit DtBothSides(const QStringList& files) : myDatatypes(datatypesIn(files))
    {
        std::vector<DtString> models = copiedModels(myProgram, files);
        models.push_back(myProgram.model("probe.xml", probeModule(myDatatypes)));
        generate(models);
    }
    // Of one model in the older format.
    explicit DtBothSides(const QString& file) : myDatatypes(datatypesIn(QStringList{file}))
    {
        generate({myProgram.model("model.xml", withOlderProbe(readTextFile(file), myDatatypes))});
    }

    const QStringList& datatypes() const { return myDatatypes; }
    DtPythonRun python(const QStringList& arguments, const QByteArray& input = QByteArray()) const
    {
        return runPython(path(), QStringList{theDirectory + "/crossValues.py"} + arguments, input);
    }
    QStringList refused() const { return python({"refused"}).output.split('\n', Qt::SkipEmptyParts); }
    QString nameOf(const QString& attribute) const { return myDatatypes.value(attribute.mid(1).toInt()); }

    // Empty when the generated code has become a program.
    QString compile() const
    {
        QByteArray unit;
        const QRegularExpression sources("^(DataTypes/.*|probe(En|De)coderHLA|probeStateRepository)\\.cxx$");
        for (const QString& file : filesBelow(path()).filter(sources))
            unit += "#include \"" + file.toUtf8() + "\"\n";
        writeTextFile(path() + "/unit.cpp", unit + "#include \"crossDriver.cxx\"\n");
        const DtPythonRun run =
            runProgram("g++", {"-std=c++17", "-Wall", "-Wextra", "-Werror", "-I.", "-I" + theDirectory,
                               "-I" QX_SOURCE_DIR "/toolkit/include", "unit.cpp", "-o", "driver"});
        return run.isGood() ? QString() : run.output.left(4000);
    }
    DtPythonRun driver(const QByteArray& lines) const { return runProgram(path() + "/driver", {}, lines); }

private:
    QString path() const { return myStage.path(); }
    DtPythonRun runProgram(const QString& program, const QStringList& arguments,
                           const QByteArray& input = QByteArray()) const
    {
        QProcess process;
        process.setWorkingDirectory(path());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(900000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, program + " did not end"};
        return {process.exitCode(), QString::fromUtf8(process.readAll())};
    }
    void generate(const std::vector<DtString>& models)
    {
        switchOnScripts(myProgram, {"genCpp.txt", "genPython.txt"});
        runBatch(myProgram, models);
        for (const QString& file : filesBelow(myProgram.path("out")))
        {
            const QString target = path() + "/" + QString(file).remove(QStringLiteral("cpp\\"));
            QDir().mkpath(QFileInfo(target).path());
            QFile::copy(myProgram.path("out/") + file, target);
        }
    }

    QStringList myDatatypes;
    DtScratchProgram myProgram;
    QTemporaryDir myStage;
};

// The first fault of each datatype.
QStringList differences(const DtBothSides& sides, const QStringList& sent, const QStringList& returned)
{
    QStringList faults;
    std::set<QString> faulty;
    for (int at = 0; at < qMin(sent.size(), returned.size()); ++at)
    {
        const QString name = sides.nameOf(sent[at].section(' ', 0, 0));
        if (sent[at] != returned[at] && faulty.insert(name).second)
            faults += name + ": " + sent[at] + " comes back as " + returned[at];
    }
    if (sent.size() != returned.size())
        faults += QStringLiteral("%1 lines come back").arg(returned.size());
    return faults;
}

void checkThereAndBack(const DtBothSides& sides, const QStringList& notInPython, QStringList notInCxx, int count)
{
    notInCxx.sort();
    QCOMPARE(sides.refused(), notInPython);
    const QString errors = sides.compile();
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
    const DtPythonRun values = sides.python({"values", QString::number(count)});
    QVERIFY2(values.isGood(), qPrintable(values.output.right(2000)));
    const DtPythonRun driver = sides.driver(values.output.toUtf8());
    QCOMPARE(driver.exitCode, 0);
    const QStringList sent = values.output.split('\n', Qt::SkipEmptyParts);
    const QStringList faults = differences(sides, sent, driver.output.split('\n', Qt::SkipEmptyParts));
    QStringList names;
    for (const QString& fault : faults)
        names += fault.section(": ", 0, 0);
    names.sort();
    QVERIFY2(names == notInCxx, qPrintable(faults.join('\n').left(4000)));
    QCOMPARE(sent.size(), (sides.datatypes().size() - notInPython.size()) * count);
    qInfo("%d values of %d datatypes", sent.size(), sides.datatypes().size() - notInPython.size());
    if (notInCxx.isEmpty())
    {
        const DtPythonRun back = sides.python({"back", QString::number(count)}, driver.output.toUtf8());
        QVERIFY2(back.isGood(), qPrintable(back.output.left(4000)));
    }
}

bool isFullRunWith(const QString& model)
{
    if (!isFullRun())
        qInfo("Left to the full run, which sets QX_FULL.");
    else if (!QFile::exists(model))
        qInfo("The model is not here.");
    return isFullRun() && QFile::exists(model) && hasPython();
}
} // namespace

class TestPythonCodec : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        mySample = std::make_unique<DtBothSides>(QStringList{QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml")});
    }
    void cleanupTestCase() { mySample.reset(); }

    void everyVectorGivesItsOctets()
    {
        if (!hasPython())
            return;
        const DtPythonRun run = mySample->python({"vectors", theDirectory + "/wireVectors.txt"});
        QVERIFY2(run.isGood(), qPrintable(run.output.left(4000)));
        const int count = readTextFile(theDirectory + "/wireVectors.txt").count('\n');
        QVERIFY(count >= 120);
        QCOMPARE(run.output, QStringLiteral("%1 vectors, 0 failures\n").arg(count));
    }

    void faultyVectorsAreNoticed_data()
    {
        QTest::addColumn<QByteArray>("vector");
        QTest::addColumn<QString>("fault");
        QTest::newRow("octets") << QByteArray("ClockTime | {\"Hour\":6,\"Minute\":30,\"Second\":59} | 061e3c")
                                << "gives 061e3b";
        QTest::newRow("value") << QByteArray("Count8 | 1 | 02") << "is decoded to 2";
        QTest::newRow("cut") << QByteArray(
                                    "TideMark | {\"At\":{\"Hour\":0,\"Minute\":0,\"Second\":0},\"Level\":0} | 00")
                             << "the value ends too early";
        QTest::newRow("rest") << QByteArray("ClockTime | {\"Hour\":6,\"Minute\":30,\"Second\":59} | 061e3b00")
                              << "1 octet too many";
    }
    void faultyVectorsAreNoticed()
    {
        QFETCH(QByteArray, vector);
        QFETCH(QString, fault);
        if (!hasPython())
            return;
        QTemporaryDir directory;
        writeTextFile(directory.path() + "/vectors.txt", vector + "\n");
        const DtPythonRun run = mySample->python({"vectors", directory.path() + "/vectors.txt"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.output.contains(fault), qPrintable(run.output));
    }

    void valuesOfTheSampleGoThereAndBack()
    {
        if (hasPython())
            checkThereAndBack(*mySample, {"FlagBits"}, {}, isFullRun() ? 1000 : 50);
    }

    void valuesOfTheLargeModelGoThereAndBack()
    {
        if (!largeModel().isEmpty() && isFullRunWith(largeModel().front()))
            checkThereAndBack(DtBothSides(largeModel()), {}, {}, 1000);
    }

    // What ends with an array without length stands where it cannot in four datatypes; and the generator does without
    // code for what holds several open arrays.
    void valuesOfTheOlderModelGoThereAndBack()
    {
        const QString file = QStringLiteral(QX_SHARED_DIR "/models/1516-2000/RPR_FOM_v2.0_1516-2000.xml");
        if (isFullRunWith(file))
            checkThereAndBack(DtBothSides(file),
                              {"AntennaPatternVariantStructLengthlessArray", "SilentEntityStructLengthlessArray",
                               "SphericalHarmonicAntennaStruct", "AntennaPatternVariantStruct"},
                              {"AttributeValuePairStruct", "AttributeValuePairStructArray1Plus", "GridDataStruct",
                               "GridDataStructLengthlessArray", "GridDataRepresentationVariantStruct", "HLAhandleList",
                               "RecordSetStruct", "RecordSetStructArray1Plus", "RecordStruct", "RecordStructArray"},
                              1000);
    }

private:
    std::unique_ptr<DtBothSides> mySample;
};

QX_REGISTER_TEST(TestPythonCodec)
#include "testPythonCodec.moc"
