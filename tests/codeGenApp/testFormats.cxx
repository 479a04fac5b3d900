// Real models of every format, from the file to the generated code, where there are any beside the repository.

#include "registerTest.h"

#include "compiledOutput.h"
#include "omtReader/omtTree.h"
#include "scratchProgram.h"

#include <map>
#include <set>
#include <tuple>

namespace
{
const char* const theModels = QX_SHARED_DIR "/models/";

using Lines = std::set<QString>;

// Lists of handles hold handles, which are arrays themselves: two parts of variable length. Two members have a name
// that is that of a mapped type, whose class then counts as their type.
const Lines theManagementWarnings = {
    "Warning: Cannot encode/decode attributes of type: DtHLAhandleList: contains a + attribute of a type that contains "
    "a + attribute.",
    "Warning: Cannot encode/decode data type DtHLAhandleList.",
    "Warning: Cannot determine type: DtHLAinteractionCounts.",
    "Warning: Cannot determine type: DtHLAresignAction.",
};
// The same for the kinds of handles that the later standard tells apart.
const Lines theLaterManagementWarnings = {
    "Warning: Cannot encode/decode attributes of type: DtHLAattributeHandleList: contains a + attribute of a type that "
    "contains a + attribute.",
    "Warning: Cannot encode/decode data type DtHLAattributeHandleList.",
    "Warning: Cannot encode/decode attributes of type: DtHLAfederateReferenceList: contains a + attribute of a type "
    "that "
    "contains a + attribute.",
    "Warning: Cannot encode/decode data type DtHLAfederateReferenceList.",
    "Warning: Cannot encode/decode attributes of type: DtHLAinteractionClassHandleList: contains a + attribute of a "
    "type that contains a + attribute.",
    "Warning: Cannot encode/decode data type DtHLAinteractionClassHandleList.",
    "Warning: Cannot determine type: DtHLAinteractionCounts.",
    "Warning: Cannot determine type: DtHLAresignAction.",
};

Lines operator+(Lines left, const Lines& right)
{
    left.insert(right.begin(), right.end());
    return left;
}

Lines cannotDetermine(const QStringList& types)
{
    Lines lines;
    for (const QString& type : types)
        lines.insert("Warning: Cannot determine type: " + type + ".");
    return lines;
}

Lines cannotCode(const QStringList& types)
{
    Lines lines;
    for (const QString& type : types)
        lines.insert("Warning: Cannot encode/decode data type " + type + ".");
    return lines;
}

const char theLargeModel[] = "1516-2000/RPR_FOM_v2.0_1516-2000.xml";
const char theTextModel[] = "omt13/RPR_v2.0_excerpt.omt";
const char* const theModules[] = {"1516-2010/rpr2/RPR-Foundation_v2.0.xml", "1516-2010/rpr2/RPR-Enumerations_v2.0.xml",
                                  "1516-2010/rpr2/RPR-Base_v2.0.xml",       "1516-2010/rpr2/RPR-Physical_v2.0.xml",
                                  "1516-2010/rpr2/RPR-Warfare_v2.0.xml",    "1516-2010/rpr2/RPR-Switches_v2.0.xml"};
const char* const theRestaurant[] = {"1516-2025/RestaurantFOMmodule-2025.xml",
                                     "1516-2025/RestaurantExtensionFOMmodule-2025.xml"};

// Models, their format and all that a run says of them. Modules that refer to types of modules which are not loaded
// leave parameters without a type.
struct DtModelRun
{
    const char* file;
    int version;
    Lines warnings;
};

const std::vector<DtModelRun>& modelRuns()
{
    static const std::vector<DtModelRun> theRuns = {
        {theLargeModel,                       2,
         theManagementWarnings +
             cannotCode({"DtAttributeValuePairStruct", "DtRecordStruct", "DtGridDataRepresentationVariantStruct"}) },
        {"1516-2000/TwoLevelClasses.xml",     2, cannotDetermine({""})                                             },
        {"1516-2010/RestaurantFOMmodule.xml", 3, theManagementWarnings                                             },
        {"1516-2010/SineExample.xml",         3, theManagementWarnings                                             },
        {theModules[0],                       3, theManagementWarnings                                             },
        {theModules[1],                       3, theManagementWarnings                                             },
        {theModules[2],                       3, theManagementWarnings                                             },
        {theModules[3],                       3,
         theManagementWarnings +
             cannotDetermine({"CollisionTypeEnum8", "RelativePositionStruct", "EventIdentifierStruct"})            },
        {theModules[4],                       3,
         theManagementWarnings + cannotDetermine({"DetonationResultCodeEnum8", "EventIdentifierStruct",
                                                  "FuseTypeEnum16", "RelativePositionStruct", "WarheadTypeEnum16"})},
        {theModules[5],                       3, theManagementWarnings                                             },
        {"1516-2025/NETN-BASE.xml",           4, theLaterManagementWarnings                                        },
        {"1516-2025/NETN-MRM.xml",            4, theLaterManagementWarnings + cannotDetermine({"FormationStruct"}) },
        {theRestaurant[0],                    4, theLaterManagementWarnings                                        },
        {theRestaurant[1],                    4, theLaterManagementWarnings                                        },
        {theTextModel,                        1, {}                                                                },
        {"omt13/Restaurant_converted.omt",    1, {}                                                                },
    };
    return theRuns;
}

bool hasModels()
{
    return QFile::exists(QString::fromLatin1(theModels) + "counts.json");
}

template <typename Files>
std::unique_ptr<DtCodeGenAppGui> run(DtScratchProgram& program, const Files& files)
{
    std::vector<DtString> models;
    for (const char* file : files)
        models.push_back(program.copiedModel(QString::fromLatin1(theModels) + file));
    return runBatch(program, models);
}

Lines distinctLines(const QString& text)
{
    Lines lines;
    for (const QString& line : text.split('\n'))
        if (!line.isEmpty())
            lines.insert(line);
    return lines;
}

QString joined(const Lines& lines)
{
    return QStringList(lines.begin(), lines.end()).join('\n');
}

// The files of each class, by the part of their name that is the class's.
std::map<QString, Lines> filesOfClasses(const QString& output)
{
    static const QRegularExpression theClassFile(
        "^cpp\\\\(reflected)?(.*?)((StateRepository|Publisher|ListHLA|Encoder|Decoder|HLA).*)$");
    std::map<QString, Lines> files;
    for (const QString& file : filesBelow(output))
    {
        const QRegularExpressionMatch match = theClassFile.match(file);
        if (match.hasMatch() && !file.contains('/'))
            files[match.captured(2).toLower()].insert(file);
    }
    return files;
}

// Files that one of two runs gives for a class of both, and not the other.
QStringList differingFiles(const std::map<QString, Lines>& left, const std::map<QString, Lines>& right, int& shared)
{
    QStringList differences;
    for (const auto& [name, files] : left)
    {
        const auto found = right.find(name);
        if (found == right.end())
            continue;
        ++shared;
        if (files != found->second)
            differences += name;
    }
    return differences;
}
} // namespace

class TestFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyModelLoadsAndGeneratesInItsOwnFormat_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < static_cast<int>(modelRuns().size()); ++index)
            QTest::newRow(modelRuns()[static_cast<std::size_t>(index)].file) << index;
    }

    void everyModelLoadsAndGeneratesInItsOwnFormat()
    {
        QFETCH(int, index);
        if (!hasModels())
            QSKIP("The models are not here.");
        const DtModelRun& expected = modelRuns()[static_cast<std::size_t>(index)];
        DtScratchProgram program(myTree);
        const DtCapture warnings(DtWarn);
        const auto window = run(program, QList<const char*>{expected.file});
        QVERIFY(window->isFileLoaded());
        QCOMPARE(int(window->tree()->hlaVersion()), expected.version);
        QVERIFY(filesBelow(program.path("out")).contains("cpp\\dllExport.h"));
        QCOMPARE(joined(distinctLines(warnings.text())), joined(expected.warnings));
    }

    void largeModelOf1516Compiles_data() { addCompilers(); }
    void largeModelOf1516Compiles()
    {
        QFETCH(QString, compiler);
        if (isLeftToFullRun(compiler))
            QSKIP(theFullRunOnly);
        if (!hasModels())
            QSKIP("The models are not here.");
        DtScratchProgram program(myTree);
        QVERIFY(run(program, QList<const char*>{theLargeModel})->isFileLoaded());
        checkCompiles(program.path("out"), compiler);
    }

    void modelOf2025WithItsExtensionCompiles_data() { addCompilers(); }
    void modelOf2025WithItsExtensionCompiles()
    {
        QFETCH(QString, compiler);
        if (isLeftToFullRun(compiler))
            QSKIP(theFullRunOnly);
        if (!hasModels())
            QSKIP("The models are not here.");
        DtScratchProgram program(myTree);
        const auto window = run(program, theRestaurant);
        QVERIFY(window->isFileLoaded());
        QCOMPARE(int(window->loadedFiles().size()), 3); // with the management model
        // A class of the extension below one of the first module, and one of the management model.
        QVERIFY(window->tree()->getObjectClassNode("HLAobjectRoot.HLAmanager.HLAfederate") != nullptr);
        checkCompiles(program.path("out"), compiler);
    }

    void arraysOfTheTextModelAreMadeUpAndWritten_data() { addCompilers(); }
    void arraysOfTheTextModelAreMadeUpAndWritten()
    {
        QFETCH(QString, compiler);
        if (isLeftToFullRun(compiler))
            QSKIP(theFullRunOnly);
        if (!hasModels())
            QSKIP("The models are not here.");
        DtScratchProgram program(myTree);
        const auto window = run(program, QList<const char*>{theTextModel});
        QVERIFY(window->isFileLoaded());
        QStringList arrays;
        const DtOMTTree& tree = *window->tree();
        for (auto each = tree.getArrayDatatypeNodeList(); each != tree.getArrayDatatypeEndNode(); ++each)
            arrays += QString::fromUtf8((*each)->getName().c_str());
        QVERIFY2(arrays.contains("ArticulatedParameterStructNullTerminatedArray"), qPrintable(arrays.join(' ')));
        const QStringList files = filesBelow(program.path("out"));
        for (const QString& array : arrays)
        {
            QVERIFY2(files.contains("cpp\\DataTypes/" + array + ".h") ||
                         files.contains("cpp\\DataTypes/" + array.left(1).toLower() + array.mid(1) + ".h"),
                     qPrintable(array));
        }
        checkCompiles(program.path("out"), compiler);
    }

    void formatsOfOneModelGiveTheSameFileNames()
    {
        if (!hasModels())
            QSKIP("The models are not here.");
        std::vector<std::map<QString, Lines>> files;
        for (const QList<const char*>& models : {QList<const char*>{theLargeModel}, QList<const char*>{theTextModel},
                                                 QList<const char*>(std::begin(theModules), std::end(theModules))})
        {
            DtScratchProgram program(myTree);
            QVERIFY(run(program, models)->isFileLoaded());
            files.push_back(filesOfClasses(program.path("out")));
        }
        // No name differs; each pair shares classes.
        for (const auto& [left, right, classes] : {std::tuple(0, 1, 21), std::tuple(0, 2, 25), std::tuple(1, 2, 13)})
        {
            int shared = 0;
            const auto at = [&files](int index) -> const auto&
            {
                return files[static_cast<std::size_t>(index)];
            };
            QCOMPARE(differingFiles(at(left), at(right), shared).join(' '), QString());
            QCOMPARE(shared, classes);
        }
    }

private:
    DtScratchTree myTree;
};

QX_REGISTER_TEST(TestFormats)
#include "testFormats.moc"
