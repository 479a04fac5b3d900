// Whole runs of the unseen window: what is written, and that it compiles against the stand-in toolkit.

#include "registerTest.h"

#include "compiledOutput.h"
#include "scratchProgram.h"

#include "fileGenerator/omtProject.h"
#include "omtReader/omtTree.h"

#include <functional>
#include <set>

namespace
{
using Names = std::set<DtString>;

// Adds what the type is made of; the type tables are searched by name, which is slow and plain.
void addParts(const DtOMTTree& tree, const DtString& type, Names& names)
{
    if (const auto* array = tree.getArrayDatatypeNode(type))
        names.insert(array->getDatatype());
    else if (const auto* fixed = tree.getFixedDatatypeNode(type))
        for (auto each = fixed->getComponentNodeList(); each != fixed->getComponentNodeEnd(); ++each)
            names.insert((*each)->getDatatype());
    else if (const auto* variant = tree.getVariantDatatypeNode(type))
    {
        names.insert(variant->getDatatype());
        for (auto each = variant->getComponentNodeList(); each != variant->getComponentNodeEnd(); ++each)
            names.insert((*each)->getDatatype());
    }
    if (const auto* simple = tree.getSimpleDatatypeNode(type))
        names.insert(simple->getRepresentation());
}

Names usedTypes(DtOMTTree& tree, const DtOmtProject& project)
{
    Names names;
    for (const DtOmtObject& object : project.getObjects())
        for (const auto* attribute : tree.getObjectClassNode(object.fullName())->getAttributes())
            names.insert(attribute->getDatatype());
    for (const DtOmtInteraction& interaction : project.getInteractions())
        for (const auto* parameter : tree.getInteractionClassNode(interaction.fullName())->getParameters())
            names.insert(parameter->getDatatype());
    for (std::size_t size = 0; size != names.size();)
    {
        size = names.size();
        for (const DtString& name : Names(names))
            addParts(tree, name, names);
    }
    return names;
}

// The types that get a pair of files: used, not predefined, and no enumeration.
int expectedDatatypes(DtOMTTree& tree, const DtOmtProject& project)
{
    int count = 0;
    const auto predefined = project.predefinedTypes();
    for (const DtString& name : usedTypes(tree, project))
    {
        const auto* simple = tree.getSimpleDatatypeNode(name);
        const bool isReplaced = simple != nullptr && predefined.count(simple->getRepresentation()) > 0;
        const bool isStructure =
            tree.getArrayDatatypeNode(name) != nullptr || tree.getFixedDatatypeNode(name) != nullptr ||
            tree.getVariantDatatypeNode(name) != nullptr || tree.getBasicDataRepresentationNode(name) != nullptr;
        if ((simple != nullptr && !isReplaced) || (isStructure && predefined.count(name) == 0))
            ++count;
    }
    return count;
}

void checkTexts(const QString& directory)
{
    for (const QString& name : filesBelow(directory))
    {
        const QByteArray text = readTextFile(directory + "/" + name);
        QVERIFY2(!text.isEmpty(), qPrintable(name));
        for (const char* opening : {"<!", "<#", "<?"})
            QVERIFY2(!text.contains(opening), qPrintable(name + " holds " + QString::fromLatin1(opening)));
    }
}

// Those of the example projects are made anew in every run.
QString withoutIdentifiers(const QByteArray& text)
{
    static const QRegularExpression theIdentifier("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}");
    return QString::fromUtf8(text).replace(theIdentifier, "identifier");
}

void checkCounts(DtCodeGenAppGui& window, const QString& directory)
{
    const DtOmtProject& project = *window.omtProject();
    const int objects = static_cast<int>(project.getObjects().size());
    const int interactions = static_cast<int>(project.getInteractions().size());
    const QStringList files = filesBelow(directory);
    const int datatypeFiles = files.filter(QStringLiteral("DataTypes/")).size();
    // Header and source of the enumerations, and those of each datatype.
    QCOMPARE(datatypeFiles, 2 + 2 * expectedDatatypes(*window.tree(), project));
    const QStringList runFiles = files.filter(QRegularExpression(
        QStringLiteral("^cpp\\\\(dllExport\\.h|Makefile|Files-(cc|h)\\.txt|[^/]*VC14_64\\.(vcxproj|sln))$")));
    QCOMPARE(runFiles.size(), 6);
    QCOMPARE(files.filter(QStringLiteral("Examples/")).size(), 5 * (objects + interactions));
    QCOMPARE(files.size(), (12 + 5) * objects + (6 + 5) * interactions + datatypeFiles + runFiles.size());
    for (const DtOmtObject& object : project.getObjects())
    {
        QString name = QString::fromUtf8(object.name().c_str());
        name.replace(QRegularExpression("[/#&. -]"), "__").replace(QRegularExpression("[()<>]"), "_");
        const QString reflected = "cpp\\reflected" + name;
        QVERIFY2(files.contains(reflected + "HLA.h") && files.contains(reflected + "ListHLA.cxx"), qPrintable(name));
    }
}
} // namespace

class TestWholeRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleGivesEveryFileOnceAndCompiles_data() { addCompilers(); }
    void sampleGivesEveryFileOnceAndCompiles()
    {
        QFETCH(QString, compiler);
        if (isLeftToFullRun(compiler))
            QSKIP(theFullRunOnly);
        DtScratchProgram program(myTree);
        const auto window = runBatch(program, {program.sampleModel()});
        QVERIFY(window->isFileLoaded());
        checkCounts(*window, program.path("out"));
        checkTexts(program.path("out"));
        checkCompiles(program.path("out"), compiler);
    }

    void largeModelGivesEveryFileOnceAndCompiles_data() { addCompilers(); }
    void largeModelGivesEveryFileOnceAndCompiles()
    {
        QFETCH(QString, compiler);
        if (isLeftToFullRun(compiler))
            QSKIP(theFullRunOnly);
        const QStringList modules = largeModel();
        if (modules.isEmpty())
            QSKIP("The large model is not here.");
        DtScratchProgram program(myTree);
        std::vector<DtString> models;
        for (const QString& module : modules)
            models.push_back(program.copiedModel(module));
        const auto window = runBatch(program, models);
        QVERIFY(window->isFileLoaded());
        QCOMPARE(window->loadedFiles().size(), models.size() + 1); // and the standard management model behind them
        checkCounts(*window, program.path("out"));
        checkTexts(program.path("out"));
        checkCompiles(program.path("out"), compiler);
    }

    void namespacePrefixAndIncludeDirectoryCompile_data() { addCompilers(); }
    void namespacePrefixAndIncludeDirectoryCompile()
    {
        QFETCH(QString, compiler);
        if (isLeftToFullRun(compiler))
            QSKIP(theFullRunOnly);
        DtScratchProgram program(myTree);
        const DtString model = program.sampleModel();
        const auto window = program.makeWindow();
        window->newOmtProject(DtFilename(program.bytes(program.path("models/p.qxproj"))));
        QCOMPARE(window->loadFile(model, ""), 1);
        window->addAllObjectInteractions();
        window->setOutputDirectory(program.path("out/"));
        window->setIncludeDirectory("harbour");
        window->setClassPrefix("Qx");
        auto* const box = window->preferences()->findChild<QCheckBox*>("myUseNamespace");
        box->setChecked(true);
        window->preferences()->findChild<QLineEdit*>("myNamespaceName")->setText("port");
        window->preferences()->okButtonPressed();
        window->generateAllFiles();
        QVERIFY(QFile::exists(program.path("out/cpp\\harbour/dllExport.h")));
        QVERIFY(readTextFile(program.path("out/cpp\\harbour/vesselStateRepository.h"))
                    .contains("DtQxVesselStateRepository"));
        checkTexts(program.path("out"));
        checkCompiles(program.path("out"), compiler, "harbour");
    }

    void errorsSwitchedOnStandForTheMarkedTypesOnly()
    {
        DtScratchProgram program(myTree);
        const DtString model = program.sampleModel();
        const auto window = program.makeWindow();
        window->newOmtProject(DtFilename(program.bytes(program.path("models/p.qxproj"))));
        QCOMPARE(window->loadFile(model, ""), 1);
        window->addAllObjectInteractions();
        window->setOutputDirectory(program.path("out/"));
        window->preferences()->findChild<QCheckBox*>("myGenerateErrors")->setChecked(true);
        window->preferences()->okButtonPressed();
        window->generateAllFiles();
        int count = 0;
        const QString errors = compileAll(program.path("out"), "c++17", ".", count, "g++");
        QVERIFY(errors.contains("#error"));
        for (const QString& line : errors.split('\n'))
            if (line.contains("error:"))
                QVERIFY2(line.contains("#error") && line.contains("HLAhandleList"), qPrintable(line));
    }

    void makefileBuildsTheLibraryOnce()
    {
        if (!isFullRun())
            QSKIP(theFullRunOnly);
        DtScratchProgram program(myTree);
        runBatch(program, {program.sampleModel()});
        const QString first = make(program.path("out"));
        QVERIFY2(QFile::exists(program.path("out/build/libsampleHLA.a")), qPrintable(first));
        const QString second = make(program.path("out"));
        QVERIFY2(!second.contains("compile") && !second.contains("failed"), qPrintable(second));
    }

    void secondRunLeavesEveryTimeStamp()
    {
        DtScratchProgram program(myTree);
        const DtString model = program.sampleModel();
        runBatch(program, {model});
        const QString probe = program.path("out/cpp\\vesselStateRepository.h");
        QFile file(probe);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime old(QDate(2001, 2, 3), QTime(4, 5, 6));
        QVERIFY(file.setFileTime(old, QFileDevice::FileModificationTime));
        file.close();
        runBatch(program, {model});
        QCOMPARE(QFileInfo(probe).lastModified(), old);
    }

    void twoRunsWriteTheSameBytesButForIdentifiers()
    {
        DtScratchProgram first(myTree);
        runBatch(first, {first.sampleModel()});
        const QString kept = first.path("kept");
        QVERIFY(QDir().rename(first.path("out"), kept));
        runBatch(first, {first.sampleModel()});
        const QStringList files = filesBelow(kept);
        QCOMPARE(filesBelow(first.path("out")), files);
        for (const QString& name : files)
            QVERIFY2(withoutIdentifiers(readTextFile(kept + "/" + name)) ==
                         withoutIdentifiers(readTextFile(first.path("out/") + name)),
                     qPrintable(name));
    }

private:
    DtScratchTree myTree;
};

QX_REGISTER_TEST(TestWholeRun)
#include "testWholeRun.moc"
