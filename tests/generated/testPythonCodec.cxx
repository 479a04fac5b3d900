// The generated Python codec against the octets that were worked out by hand, and against the generated C++: values of
// every datatype go from the one to the other and back.

#include "registerTest.h"

#include "bothSides.h"

#include <memory>

namespace
{
const QString theDirectory = QStringLiteral(QX_SOURCE_DIR "/tests/generated");
const QString theVectors = theDirectory + "/wireVectors.txt";
// Of the management models, which the modules are merged with.
const QStringList theRefusedOfTheManagementModel = {"DtHLAhandleList"};
const QStringList theRefusedOf2025 = {"DtHLAattributeHandleList", "DtHLAinteractionClassHandleList"};

// What becomes of values of the datatypes of a model.
struct DtExpectedAnswers
{
    QStringList notInPython = {};    // without an encoding in the codec, so that there are no values
    QStringList classesRefused = {}; // C++ classes without an encoding
    QStringList holdingThese = {};   // datatypes with values that hold such a class
    QStringList notAtTheStart = {};  // what an object as it starts does not encode, or does not take back
    QStringList differentInCxx = {}; // datatypes with another form there
};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(' ');
}

// The rest of those lines that begin so.
QStringList linesBehind(const QString& start, const QString& text)
{
    QStringList lines;
    for (const QString& line : text.split('\n'))
        if (line.startsWith(start))
            lines += line.mid(start.size());
    return lines;
}

QStringList faultyDatatypes(const DtPythonRun& back)
{
    QStringList names;
    for (const QString& fault : linesBehind("wrong ", back.output))
        names += fault.section(": ", 0, 0);
    return names;
}

QString sorted(QStringList lines)
{
    lines.sort();
    return lines.join('\n');
}

void checkStart(const DtBothSides& sides, const DtExpectedAnswers& expected)
{
    const QStringList lines = sides.start();
    const int refused = lines.filter(" refused: ").size() - lines.filter(" not taken back, ").size();
    const QString encoded = QStringLiteral("%1 encoded").arg(sides.datatypes().size() - refused);
    QCOMPARE(sorted(lines), sorted(expected.notAtTheStart + QStringList{encoded}));
}

// What the accessors of the generated code give of the octets are the values that these were made of.
void checkRead(const DtBothSides& sides, const DtExpectedAnswers& expected, const QString& count,
               const QByteArray& values)
{
    const DtPythonRun driver = sides.valuesOf(values);
    QCOMPARE(driver.exitCode, 0);
    const DtPythonRun read = sides.python(QStringList{"read", count} + expected.classesRefused, driver.output.toUtf8());
    QVERIFY2(sorted(faultyDatatypes(read)) == sorted(expected.differentInCxx), qPrintable(read.output.left(4000)));
    QVERIFY2(read.output.endsWith(QStringLiteral("%1 values\n").arg(values.count('\n'))),
             qPrintable(read.output.right(1000)));
}

// Values of the codec come back from the generated code as the same octets and as the same values, but for those that
// hold what has no encoding there: these are refused for that reason.
void checkThereAndBack(const DtBothSides& sides, const DtExpectedAnswers& expected, int count)
{
    QCOMPARE(sides.python({"refused"}).output.trimmed(), expected.notInPython.join('\n'));
    QCOMPARE(sides.classesWithoutEncoding().join('\n'), expected.classesRefused.join('\n'));
    const QString errors = sides.compile();
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
    checkStart(sides, expected);
    const QString number = QString::number(count);
    const DtPythonRun values = sides.python({"values", number});
    QVERIFY2(values.isGood(), qPrintable(values.output.right(2000)));
    const DtPythonRun driver = sides.driver(values.output.toUtf8());
    QCOMPARE(driver.exitCode, 0);
    const DtPythonRun back =
        sides.python(QStringList{"back", number} + expected.classesRefused, driver.output.toUtf8());
    QVERIFY2(sorted(faultyDatatypes(back)) == sorted(expected.differentInCxx), qPrintable(back.output.left(4000)));
    QCOMPARE(sorted(linesBehind("refused ", back.output)), sorted(expected.holdingThese));
    const int datatypes = sides.datatypes().size() - expected.notInPython.size();
    const QString total = QStringLiteral("%1 values").arg(datatypes * count);
    QVERIFY2(back.output.endsWith(total + '\n'), qPrintable(back.output.right(1000)));
    checkRead(sides, expected, number, values.output.toUtf8());
    qInfo("%s of %d datatypes", qPrintable(total), datatypes);
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
        mySample = std::make_unique<DtBothSides>(QStringList{QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml")},
                                                 datatypesOfVectors(theVectors));
    }
    void cleanupTestCase() { mySample.reset(); }

    void everyVectorGivesItsOctets()
    {
        if (!hasPython())
            return;
        const DtPythonRun run = mySample->python({"vectors", theVectors});
        QVERIFY2(run.isGood(), qPrintable(run.output.left(4000)));
        const int count = readTextFile(theVectors).count('\n');
        QVERIFY(count >= 120);
        QCOMPARE(run.output, QStringLiteral("%1 vectors, 0 failures\n").arg(count));
    }

    void everyVectorIsReadByTheAccessors()
    {
        if (!hasPython())
            return;
        const QString errors = mySample->compile();
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        const DtPythonRun run = mySample->python({"answers", theVectors}, answersTo(*mySample, theVectors));
        QVERIFY2(run.isGood(), qPrintable(run.output.left(4000)));
        QCOMPARE(run.output, QStringLiteral("%1 vectors\n").arg(readTextFile(theVectors).count('\n')));
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

    // PaddedReport is what some answers are changed for. ReportFrame holds one, and nothing else does.
    void faultyAnswersAreNoticed_data()
    {
        QTest::addColumn<QString>("answers");     // %1 is the attribute of the type PaddedReport, %2 of TiltTable
        QTest::addColumn<QString>("given");       // instead of these
        QTest::addColumn<QStringList>("classes"); // without an encoding
        QTest::addColumn<QString>("faulty");
        const QString line = "^((%1) .*\n)";
        const QString refusal = "\\2 refused: DtPaddedReport has no encoding\n";
        const QString other = "\\2 refused: the value ends too early\n";
        const QString ofTable = "\\2 refused: DtTiltTable has no encoding\n";
        const QStringList refused{"DtPaddedReport"};
        QTest::newRow("nothing") << line << "\\1" << QStringList() << QString();
        QTest::newRow("octets") << line << "\\2 00\n" << QStringList() << "PaddedReport";
        QTest::newRow("refusal") << line << refusal << QStringList() << "PaddedReport";
        QTest::newRow("no refusal") << line << refusal << refused << "ReportFrame";
        QTest::newRow("reason") << line << other << refused << "PaddedReport\nReportFrame";
        QTest::newRow("one open array") << "^((%2) .*\n)" << ofTable << QStringList{"DtTiltTable"} << "TiltTable";
        QTest::newRow("attribute") << line << "P0 \n" << QStringList() << "PaddedReport";
        QTest::newRow("number") << "P\\d+ .*\n$" << QString() << QStringList() << "number of lines";
    }
    void faultyAnswersAreNoticed()
    {
        QFETCH(QString, answers);
        QFETCH(QString, given);
        QFETCH(QStringList, classes);
        QFETCH(QString, faulty);
        if (!hasPython())
            return;
        answers.replace("%1", mySample->attributeOf("PaddedReport")).replace("%2", mySample->attributeOf("TiltTable"));
        const QRegularExpression answer(answers, QRegularExpression::MultilineOption);
        QString lines = mySample->python({"values", "1"}).output;
        QVERIFY(lines.contains(answer));
        lines.replace(answer, given);
        const DtPythonRun back = mySample->python(QStringList{"back", "1"} + classes, lines.toUtf8());
        QCOMPARE(sorted(faultyDatatypes(back)), faulty);
        QCOMPARE(back.isGood(), faulty.isEmpty());
    }

    void valuesOfTheSampleGoThereAndBack()
    {
        DtExpectedAnswers expected;
        expected.notInPython = QStringList{"FlagBits"};
        expected.classesRefused = theRefusedOfTheManagementModel;
        expected.notAtTheStart = QStringList{"FlagBits refused: the encoding of the array is not known"};
        if (hasPython())
            checkThereAndBack(*mySample, expected, isFullRun() ? 1000 : 50);
    }

    void valuesOfATextModelGoThereAndBack()
    {
        DtExpectedAnswers expected;
        expected.notInPython = QStringList{"Wreck"};
        expected.notAtTheStart = QStringList{"Wreck refused: the model does not define the datatype"};
        if (hasPython())
            checkThereAndBack(DtBothSides(theDirectory + "/crossModel.omt"), expected, isFullRun() ? 1000 : 100);
    }

    // Texts of a fixed length, and what holds these. They are complex datatypes of one array; the generated code puts a
    // string in their place, which does not know the length and counts its characters.
    void valuesOfTheLargeTextModelGoThereAndBack()
    {
        const QString file = QStringLiteral(QX_SHARED_DIR "/models/omt13/RPR_v2.0_excerpt.omt");
        DtExpectedAnswers expected;
        expected.differentInCxx = words("AggregateMarkingStruct MarkingArray11 MarkingArray31 MarkingStruct");
        if (!QFile::exists(file))
            qInfo("The model is not here.");
        else if (hasPython())
            checkThereAndBack(DtBothSides(file), expected, isFullRun() ? 1000 : 50);
    }

    void valuesOfTheLargeModelGoThereAndBack()
    {
        DtExpectedAnswers expected;
        expected.classesRefused = theRefusedOfTheManagementModel;
        if (!largeModel().isEmpty() && isFullRunWith(largeModel().front()))
            checkThereAndBack(DtBothSides(largeModel()), expected, 1000);
    }

    // The smaller models: modules that go together, and models of older formats, which stand alone. Those of NETN use
    // datatypes of modules that there are in the form of 2010 only.
    void valuesOfFurtherModelsGoThereAndBack_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("notInPython");
        QTest::addColumn<QStringList>("notAtTheStart");
        const QStringList none;
        QTest::newRow("Restaurant") << words("1516-2010/RestaurantFOMmodule.xml") << none << none;
        QTest::newRow("sine") << words("1516-2010/SineExample.xml") << none << none;
        QTest::newRow("Restaurant 2025") << words("1516-2025/RestaurantFOMmodule-2025.xml "
                                                  "1516-2025/RestaurantExtensionFOMmodule-2025.xml")
                                         << none << none;
        QTest::newRow("NETN") << words("1516-2025/NETN-BASE.xml 1516-2025/NETN-MRM.xml")
                              << words("QuantityInt32 AggregateStateFormationEnum32 DamageStatusEnum32 "
                                       "ArrayOfSupplyStatus LocationStructArray ArrayOfResourceStatus LocationStruct "
                                       "GeodeticCircle SupplyStatusStruct ResourceStatusStruct")
                              << QStringList{"GeodeticCircle refused: the model does not define the datatype",
                                             "LocationStruct refused: the model does not define the datatype"};
        QTest::newRow("two levels") << words("1516-2000/TwoLevelClasses.xml") << none << none;
        QTest::newRow("Restaurant, text") << words("omt13/Restaurant_converted.omt") << none << none;
    }
    void valuesOfFurtherModelsGoThereAndBack()
    {
        QFETCH(QStringList, files);
        QFETCH(QStringList, notInPython);
        QFETCH(QStringList, notAtTheStart);
        DtExpectedAnswers expected;
        expected.notInPython = notInPython;
        expected.notAtTheStart = notAtTheStart;
        for (QString& file : files)
            file.prepend(QStringLiteral(QX_SHARED_DIR "/models/"));
        if (!isFullRunWith(files.front()))
            return;
        const bool isOf2025 = files.front().contains("/1516-2025/");
        const bool isOfModules = isOf2025 || files.front().contains("/1516-2010/");
        if (isOfModules)
            expected.classesRefused = isOf2025 ? theRefusedOf2025 : theRefusedOfTheManagementModel;
        checkThereAndBack(isOfModules ? DtBothSides(files) : DtBothSides(files.front()), expected, 1000);
    }

    // What ends with an array without length stands where it cannot in four datatypes. Four more hold several open
    // arrays, padding counted with them; the generator does without code for these.
    void valuesOfTheOlderModelGoThereAndBack()
    {
        const QString file = QStringLiteral(QX_SHARED_DIR "/models/1516-2000/RPR_FOM_v2.0_1516-2000.xml");
        DtExpectedAnswers expected;
        expected.notInPython = words("AntennaPatternVariantStructLengthlessArray SilentEntityStructLengthlessArray "
                                     "SphericalHarmonicAntennaStruct AntennaPatternVariantStruct");
        expected.classesRefused = words("DtAttributeValuePairStruct DtGridDataRepresentationVariantStruct "
                                        "DtHLAhandleList DtRecordStruct");
        expected.holdingThese = words("AttributeValuePairStruct AttributeValuePairStructArray1Plus GridDataStruct "
                                      "GridDataStructLengthlessArray GridDataRepresentationVariantStruct HLAhandleList "
                                      "RecordSetStruct RecordSetStructArray1Plus RecordStruct RecordStructArray");
        expected.notAtTheStart = QStringList{
            "AttributeValuePairStruct refused: DtAttributeValuePairStruct has no encoding",
            "GridDataRepresentationVariantStruct refused: DtGridDataRepresentationVariantStruct has no encoding",
            "GridDataStruct refused: DtGridDataRepresentationVariantStruct has no encoding",
            "HLAhandleList refused: DtHLAhandleList has no encoding",
            "RecordStruct refused: DtRecordStruct has no encoding",
            "SphericalHarmonicAntennaStruct not taken back, refused: something follows an array without length",
        };
        if (isFullRunWith(file))
            checkThereAndBack(DtBothSides(file), expected, 1000);
    }

private:
    std::unique_ptr<DtBothSides> mySample;
};

QX_REGISTER_TEST(TestPythonCodec)
#include "testPythonCodec.moc"
