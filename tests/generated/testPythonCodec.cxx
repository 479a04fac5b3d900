// The generated Python codec against the octets that were worked out by hand, and against the generated C++: values of
// every datatype go from the one to the other and back.

#include "registerTest.h"

#include "thereAndBack.h"

#include <memory>

namespace
{
const QString theDirectory = QStringLiteral(QX_SOURCE_DIR "/tests/generated");
const QString theVectors = theDirectory + "/wireVectors.txt";
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
            QSKIP(theMissingPython);
        const DtPythonRun run = mySample->python({"vectors", theVectors});
        QVERIFY2(run.isGood(), qPrintable(run.output.left(4000)));
        const int count = readTextFile(theVectors).count('\n');
        QVERIFY(count >= 120);
        QCOMPARE(run.output, QStringLiteral("%1 vectors, 0 failures\n").arg(count));
    }

    void everyVectorIsReadByTheAccessors()
    {
        if (!hasPython())
            QSKIP(theMissingPython);
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
        const QByteArray clock = R"(ClockTime | {"Hour":6,"Minute":30,"Second":59} | )";
        const QByteArray tide = R"(TideMark | {"At":{"Hour":0,"Minute":0,"Second":0},"Level":0} | )";
        const struct
        {
            const char* name;
            QByteArray vector;
            QString fault;
        } theRows[] = {
            {"octets", clock + "061e3c",   "gives 061e3b"            },
            {"value",  "Count8 | 1 | 02",  "is decoded to 2"         },
            {"cut",    tide + "00",        "the value ends too early"},
            {"rest",   clock + "061e3b00", "1 octet too many"        },
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << row.vector << row.fault;
    }
    void faultyVectorsAreNoticed()
    {
        QFETCH(QByteArray, vector);
        QFETCH(QString, fault);
        if (!hasPython())
            QSKIP(theMissingPython);
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
            QSKIP(theMissingPython);
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
        if (!hasPython())
            QSKIP(theMissingPython);
        checkThereAndBack(*mySample, expected, isFullRun() ? 1000 : 50);
    }

    void valuesOfATextModelGoThereAndBack()
    {
        DtExpectedAnswers expected;
        expected.notInPython = QStringList{"Wreck"};
        expected.notAtTheStart = QStringList{"Wreck refused: the model does not define the datatype"};
        if (!hasPython())
            QSKIP(theMissingPython);
        checkThereAndBack(DtBothSides(theDirectory + "/crossModel.omt"), expected, isFullRun() ? 1000 : 100);
    }

    void valuesOfTheLargeTextModelGoThereAndBack()
    {
        const QString file = QStringLiteral(QX_SHARED_DIR "/models/omt13/RPR_v2.0_excerpt.omt");
        DtExpectedAnswers expected;
        if (const QByteArray lack = lackOf(file); !lack.isEmpty())
            QSKIP(lack.constData());
        checkThereAndBack(DtBothSides(file), expected, isFullRun() ? 1000 : 50);
    }

    void valuesOfTheLargeModelGoThereAndBack()
    {
        DtExpectedAnswers expected;
        expected.classesRefused = theRefusedOfTheManagementModel;
        const QStringList modules = largeModel();
        if (const QByteArray lack = lackOfFullRunWith(modules.value(0)); !lack.isEmpty())
            QSKIP(lack.constData());
        checkThereAndBack(DtBothSides(modules), expected, 1000);
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
        if (const QByteArray lack = lackOfFullRunWith(file); !lack.isEmpty())
            QSKIP(lack.constData());
        checkThereAndBack(DtBothSides(file), expected, 1000);
    }

private:
    std::unique_ptr<DtBothSides> mySample;
};

QX_REGISTER_TEST(TestPythonCodec)
#include "testPythonCodec.moc"
