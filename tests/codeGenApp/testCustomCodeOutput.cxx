// What the custom code window offers and saves, against what generation makes of it.

#include "registerTest.h"

#include "codeGenApp/codeEditor.h"
#include "codeGenApp/customCodeGui.h"
#include "codeGenApp/listViewManager.h"
#include "compiledOutput.h"
#include "fileGenerator/omtProject.h"
#include "generated/toolkitObjects.h"
#include "scratchProgram.h"
#include "smallModels.h"

namespace
{
// What the window shows of one member.
struct Offered
{
    QString encHeader, decHeader;
    QString encoder, decoder;
};
using AllOffered = std::map<QString, Offered>; // by key

void collectMembers(DtCustomCodeGui& gui, AllOffered& offered)
{
    auto* const list = gui.findChild<QTreeWidget*>("myItemList");
    for (int row = 0; row < list->topLevelItemCount(); ++row)
    {
        list->setCurrentItem(list->topLevelItem(row));
        offered[list->topLevelItem(row)->text(0)] = {
            gui.findChild<QLabel*>("myEncHeader")->text(), gui.findChild<QLabel*>("myDecHeader")->text(),
            gui.findChild<CodeEditor*>("myEncEditor")->text(), gui.findChild<CodeEditor*>("myDecEditor")->text()};
    }
}

// Of every class of the right list.
AllOffered allOffered(DtCodeGenAppGui& window)
{
    AllOffered offered;
    for (QTreeWidgetItemIterator each(window.listViewManager()->rightListView()); *each != nullptr; ++each)
    {
        const auto gui = std::make_unique<DtCustomCodeGui>(qApp, *each, &window);
        collectMembers(*gui, offered);
    }
    return offered;
}

void storeAll(DtOmtProject& project, const AllOffered& offered)
{
    for (const auto& [key, texts] : offered)
        project.addCustomCoding(key.toUtf8().constData(),
                                {texts.encoder.toUtf8().constData(), texts.decoder.toUtf8().constData()});
}

// A window with a selection of everything, as ahead of a generation.
std::unique_ptr<DtCodeGenAppGui> selectAll(DtScratchProgram& program, const std::vector<DtString>& models)
{
    std::unique_ptr<DtCodeGenAppGui> window = program.makeWindow();
    DtFilename project(models.front());
    project.setExtension("qxproj");
    window->newOmtProject(project);
    std::vector<DtCodeGenAppGui::DtModelFile> files;
    for (const DtString& model : models)
        files.emplace_back(model, "");
    const int isLoaded = files.size() == 1 ? window->loadFile(models.front(), "") : window->loadFiles(files);
    if (isLoaded == 0)
        qFatal("cannot load %s", models.front().c_str());
    window->addAllObjectInteractions();
    return window;
}

void generate(DtScratchProgram& program, DtCodeGenAppGui& window)
{
    window.setOutputDirectory(program.path("out/"));
    window.generateAllFiles();
}

// The sources of all encoders and decoders, one behind the other.
QString codingSources(const DtScratchProgram& program)
{
    QString text;
    for (const QString& file : filesBelow(program.path("out")))
        if (file.endsWith("EncoderHLA.cxx") || file.endsWith("DecoderHLA.cxx"))
            text += QString::fromUtf8(readTextFile(program.path("out/") + file));
    return text.replace("(\n    ", "("); // heads of functions in one line, as the window shows them
}

// The form on the wire in the body of each function, by the function's head. What tells its numbers to people is left
// out.
std::map<QString, QString> wireForms(const QString& sources)
{
    static const QRegularExpression theFunction(
        QStringLiteral("\\n(bool \\w+::(?:en|de)code[^\\n]*\\))\\n\\{(.*?)\\n\\}"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression theForm(QStringLiteral("const DtWireForm form = (.*?);\\n"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression theComment(QStringLiteral(" /\\*.*?\\*/"));
    std::map<QString, QString> forms;
    for (auto each = theFunction.globalMatch(sources); each.hasNext();)
    {
        const QRegularExpressionMatch match = each.next();
        forms[match.captured(1)] = theForm.match(match.captured(2)).captured(1).remove(theComment).simplified();
    }
    return forms;
}

std::vector<DtString> sampleFiles(const DtScratchProgram& program)
{
    return {program.sampleModel()};
}

// Empty when the model is not there.
std::vector<DtString> largeFiles(const DtScratchProgram& program)
{
    std::vector<DtString> files;
    for (const QString& file : largeModel())
        files.push_back(program.copiedModel(file));
    return files;
}

using FilesOf = std::vector<DtString> (*)(const DtScratchProgram&);
} // namespace

Q_DECLARE_METATYPE(FilesOf)

class TestCustomCodeOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultTextsAreWhatIsGenerated_data();
    void defaultTextsAreWhatIsGenerated();
    void defaultTextsAreTheSameBehindAGeneration();
    void defaultTextsCompile_data() { addCompilers(); }
    void defaultTextsCompile();
    void headersStandInGeneratedFiles();
    void everySavedTextReachesItsFunction();
    void oddTextReachesFileUnchanged();
    void exampleOfInstructionsWorks();

private:
    DtScratchTree myTree;
};

void TestCustomCodeOutput::defaultTextsAreWhatIsGenerated_data()
{
    QTest::addColumn<FilesOf>("files");
    QTest::newRow("sample") << FilesOf(sampleFiles);
    QTest::newRow("large model") << FilesOf(largeFiles);
}

// The texts are asked for ahead of any generation, when the mapper knows least.
void TestCustomCodeOutput::defaultTextsAreWhatIsGenerated()
{
    QFETCH(FilesOf, files);
    std::map<QString, QString> plain, custom;
    {
        DtScratchProgram program(myTree);
        const std::vector<DtString> models = files(program);
        if (models.empty())
            QSKIP("The large model is not here.");
        const auto window = selectAll(program, models);
        storeAll(*window->omtProject(), allOffered(*window));
        generate(program, *window);
        custom = wireForms(codingSources(program));
    }
    DtScratchProgram program(myTree);
    const auto window = runBatch(program, files(program));
    plain = wireForms(codingSources(program));
    int compared = 0, numberClasses = 0;
    for (const auto& [function, form] : plain)
    {
        // A member that is called like a datatype counts as one of that class; its text has the model's datatype.
        if (form.startsWith("DtWireForm(\"Dt"))
            continue;
        // Ahead of a run nobody knows of which numbers a class is made, which knows its form; the text tells it as
        // well.
        if (form == "DtWireForm()" && custom[function].startsWith("DtWireForm::number("))
        {
            ++numberClasses;
            continue;
        }
        QCOMPARE(function + ": " + custom[function], function + ": " + form);
        ++compared;
    }
    QCOMPARE(custom.size(), plain.size());
    QVERIFY(numberClasses < static_cast<int>(plain.size()) / 20);
    QVERIFY(compared > 100 && compared > static_cast<int>(plain.size()) * 9 / 10);
    qInfo("%d of %d functions", compared, static_cast<int>(plain.size()));
}

void TestCustomCodeOutput::defaultTextsAreTheSameBehindAGeneration()
{
    DtScratchProgram program(myTree);
    const auto window = selectAll(program, sampleFiles(program));
    const AllOffered before = allOffered(*window);
    generate(program, *window);
    const AllOffered after = allOffered(*window);
    QVERIFY(before.size() > 50);
    for (const auto& [key, texts] : before)
    {
        QCOMPARE(after.at(key).encHeader, texts.encHeader);
        QCOMPARE(after.at(key).encoder, texts.encoder);
        QCOMPARE(after.at(key).decoder, texts.decoder);
    }
}

void TestCustomCodeOutput::defaultTextsCompile()
{
    QFETCH(QString, compiler);
    if (isLeftToFullRun(compiler))
        QSKIP(theFullRunOnly);
    DtScratchProgram program(myTree);
    const auto window = selectAll(program, sampleFiles(program));
    storeAll(*window->omtProject(), allOffered(*window));
    generate(program, *window);
    for (const QString& file : filesBelow(program.path("out")))
        if (file.contains("Examples/")) // programs, each with a main() of its own
            QFile::remove(program.path("out/") + file);
    checkCompiles(program.path("out"), compiler);
}

void TestCustomCodeOutput::headersStandInGeneratedFiles()
{
    DtScratchProgram program(myTree);
    const auto window = selectAll(program, sampleFiles(program));
    window->setClassPrefix("Port");
    const AllOffered offered = allOffered(*window);
    generate(program, *window);
    const QString sources = codingSources(program);
    for (const auto& [key, texts] : offered)
        for (const QString& header : {texts.encHeader, texts.decHeader})
            QVERIFY2(sources.contains("\n" + header + "\n{\n"), qPrintable(header));
}

void TestCustomCodeOutput::everySavedTextReachesItsFunction()
{
    DtScratchProgram program(myTree);
    const auto window = selectAll(program, sampleFiles(program));
    AllOffered offered = allOffered(*window);
    for (auto& [key, texts] : offered)
    {
        texts.encoder = "    // encoder of " + key;
        texts.decoder = "    // decoder of " + key;
    }
    storeAll(*window->omtProject(), offered);
    generate(program, *window);
    const QString sources = codingSources(program);
    for (const auto& [key, texts] : offered)
    {
        const bool isParameter = texts.encHeader.contains(" interaction,");
        const QString source = isParameter ? "interaction" : "state";
        QVERIFY2(sources.contains("\n" + texts.encHeader + "\n{\n    (void)" + source + ";\n    (void)writer;\n" +
                                  texts.encoder + "\n    return true;\n}\n"),
                 qPrintable(key));
        QVERIFY2(sources.contains("\n" + texts.decHeader + "\n{\n    (void)" + source + ";\n    (void)reader;\n" +
                                  texts.decoder + "\n    return true;\n}\n"),
                 qPrintable(key));
    }
}

void TestCustomCodeOutput::oddTextReachesFileUnchanged()
{
    const char theText[] =
        "\t// h\xc3\xa4ngt \xe6\xbc\xa2 <!Prefix!> <?exists a?> <#2>x<#>\r\n|not a bar\n\n  end // \"";
    DtScratchProgram program(myTree);
    const auto window = selectAll(
        program, {program.model("m.xml", moduleText(objectText("Ship", attributeText("Heading", "HLAfloat64BE"))))});
    window->omtProject()->addCustomCoding("HLAobjectRoot.Ship.Heading", {theText, ""});
    window->saveOmtProject();
    window->loadOmtProject(window->projectFile());
    generate(program, *window);
    QVERIFY(readTextFile(program.path("out/cpp\\shipEncoderHLA.cxx")).contains(theText));
}

namespace
{
// The lines of code of the guide's example behind a caption.
DtString exampleOf(const char* caption)
{
    const QString guide = QString::fromUtf8(readTextFile("../data/templates/customUITemplates/customUIguide.tlt"));
    QStringList code;
    for (const QString& line : guide.section("\n" + QString::fromLatin1(caption) + ":\n\n", 1).split('\n'))
    {
        if (!line.startsWith("    "))
            break;
        code += line;
    }
    return code.join('\n').toUtf8().constData();
}

const char theRoundTrip[] = "#include \"shipDecoderHLA.h\"\n#include \"shipEncoderHLA.h\"\n"
                            "int main()\n{\n"
                            "    DtShipStateRepository sent, taken;\n"
                            "    sent.setHeading(1.5707963267948966);\n"
                            "    DtAttributeValues values;\n"
                            "    if (!DtShipEncoder().encode(sent, values)) return 1;\n"
                            "    if (values[\"Heading\"] != std::vector<DtU8>{0x23, 0x28}) return 2;\n"
                            "    if (!DtShipDecoder().decode(values, taken)) return 3;\n"
                            "    if (taken.heading() < 1.5707 || taken.heading() > 1.5709) return 4;\n"
                            "    sent.setHeading(-1.0);\n"
                            "    return DtShipEncoder().encode(sent, values) ? 5 : 0;\n}\n";
} // namespace

// A quarter turn goes out as 9000 hundredths of a degree and comes back.
void TestCustomCodeOutput::exampleOfInstructionsWorks()
{
    DtScratchProgram program(myTree);
    const auto window = selectAll(
        program, {program.model("m.xml", moduleText(objectText("Ship", attributeText("Heading", "HLAfloat64BE"))))});
    const DtOmtProject::DtCodingPair example(exampleOf("Encoding"), exampleOf("Decoding"));
    QVERIFY(DtString(example.first).length() > 100 && DtString(example.second).length() > 100);
    window->omtProject()->addCustomCoding("HLAobjectRoot.Ship.Heading", example);
    generate(program, *window);

    QDir().mkpath(program.path("stage/DataTypes"));
    QStringList sources("main.cpp");
    for (const QString& file : filesBelow(program.path("out")))
    {
        const QString name = QString(file).remove("cpp\\");
        QFile::link(program.path("out/") + file, program.path("stage/") + name);
        if (name == "shipEncoderHLA.cxx" || name == "shipDecoderHLA.cxx" || name == "shipStateRepository.cxx")
            sources += name;
    }
    writeTextFile(program.path("stage/main.cpp"), theRoundTrip);
    QProcess compiler;
    compiler.setWorkingDirectory(program.path("stage"));
    compiler.setProcessChannelMode(QProcess::MergedChannels);
    compiler.start("g++", QStringList{"-std=c++17", "-Wall", "-Wextra", "-Werror", "-I.",
                                      "-I" QX_SOURCE_DIR "/toolkit/include", "-o", "trip"} +
                              sources + toolkitObjects());
    QVERIFY(compiler.waitForFinished(300000));
    QVERIFY2(compiler.exitCode() == 0, compiler.readAll().left(3000).constData());
    QCOMPARE(QProcess::execute(program.path("stage/trip"), QStringList()), 0);
}

QX_REGISTER_TEST(TestCustomCodeOutput)
#include "testCustomCodeOutput.moc"
