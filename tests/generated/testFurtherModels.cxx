// Values of the datatypes of real models that are neither the large one nor its older form, in the full run.
//
// They have a process of their own: what the generator knows of the datatypes of a model stays when another is loaded,
// and these models leave datatypes open that the large one has, and have some of its names for others.

#include "registerTest.h"

#include "thereAndBack.h"

namespace
{
const QStringList theRefusedOf2025 = {"DtHLAattributeHandleList", "DtHLAfederateReferenceList",
                                      "DtHLAinteractionClassHandleList"};
} // namespace

class TestFurtherModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Modules that go together, and models of older formats, which stand alone. Those of NETN use datatypes of modules
    // that there are in the form of 2010 only.
    void valuesOfFurtherModelsGoThereAndBack_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("notInPython");
        QTest::addColumn<QStringList>("notAtTheStart");
        const char* const restaurant2025 =
            "1516-2025/RestaurantFOMmodule-2025.xml 1516-2025/RestaurantExtensionFOMmodule-2025.xml";
        const QStringList notInPythonOfNetn = words(
            "QuantityInt32 AggregateStateFormationEnum32 DamageStatusEnum32 ArrayOfSupplyStatus LocationStructArray "
            "ArrayOfResourceStatus LocationStruct GeodeticCircle SupplyStatusStruct ResourceStatusStruct");
        const QStringList refusedInNetn = {"GeodeticCircle refused: the model does not define the datatype",
                                           "LocationStruct refused: the model does not define the datatype"};
        const QStringList none;
        const struct
        {
            const char* name;
            const char* files;
            QStringList notInPython, notAtTheStart;
        } theRows[] = {
            {"Restaurant",       "1516-2010/RestaurantFOMmodule.xml",              none,              none         },
            {"sine",             "1516-2010/SineExample.xml",                      none,              none         },
            {"Restaurant, text", "omt13/Restaurant_converted.omt",                 none,              none         },
            {"Restaurant 2025",  restaurant2025,                                   none,              none         },
            {"NETN",             "1516-2025/NETN-BASE.xml 1516-2025/NETN-MRM.xml", notInPythonOfNetn, refusedInNetn},
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << words(row.files) << row.notInPython << row.notAtTheStart;
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
        if (const QByteArray lack = lackOfFullRunWith(files.front()); !lack.isEmpty())
            QSKIP(lack.constData());
        const bool isOf2025 = files.front().contains("/1516-2025/");
        const bool isOfModules = isOf2025 || files.front().contains("/1516-2010/");
        if (isOfModules)
            expected.classesRefused = isOf2025 ? theRefusedOf2025 : theRefusedOfTheManagementModel;
        checkThereAndBack(isOfModules ? DtBothSides(files) : DtBothSides(files.front()), expected, 1000);
    }
};

QX_REGISTER_TEST(TestFurtherModels)
#include "testFurtherModels.moc"
