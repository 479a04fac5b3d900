// The examples of one class: which files are made, which writers fill them and with what, and what the generators of
// classes tell the creator.

#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/exMakefileWriter.h"
#include "fileGenerator/examplesCreator.h"
#include "fileGenerator/examplesProjWriter.h"
#include "fileGenerator/intFileGenerator.h"
#include "fileGenerator/objFileGenerator.h"
#include "fileGenerator/omtNode.h"
#include "fileGenerator/solutionsFileWriter.h"

#include <QtTest/QtTest>

namespace
{
const QStringList theTankFiles = {"Examples/Tank/Makefile", "Examples/Tank/TankListenVC14_64.vcxproj",
                                  "Examples/Tank/TankTalkVC14_64.vcxproj", "Examples/Tank/listen.cxx",
                                  "Examples/Tank/talk.cxx"};

template <typename Record>
Record record(const DtString& fullName, const DtString& name)
{
    Record node;
    node.setFullName(fullName);
    node.setName(name);
    return node;
}

DtOmtObject tank()
{
    return record<DtOmtObject>("HLAobjectRoot.Tank", "Tank");
}

DtOmtInteraction fire()
{
    return record<DtOmtInteraction>("HLAinteractionRoot.Fire", "Fire");
}

QString text(const DtString& value)
{
    return QString::fromUtf8(value.c_str());
}

QString progressLabel()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* const dialog = qobject_cast<QProgressDialog*>(widget))
            return dialog->labelText();
    return QStringLiteral("no dialog");
}

// Makes the file older than anything that is written now.
void makeOld(const QString& file)
{
    QFile handle(file);
    QVERIFY(handle.open(QIODevice::ReadWrite));
    QVERIFY(handle.setFileTime(QDateTime(QDate(2020, 1, 1), QTime(12, 0)), QFileDevice::FileModificationTime));
}

bool isOld(const QString& file)
{
    return QFileInfo(file).lastModified().date().year() == 2020;
}
} // namespace

class TestExamplesCreator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void filesStandInADirectoryOfTheClassFromConstruction();
    void everyClassHasADirectoryOfItsOwn();
    void includeDirectoryDoesNotMoveExamples();
    void nameThatLeadsOutOfTheOutputDirectoryMakesNothing();
    void eachFileComesFromItsTemplate_data();
    void eachFileComesFromItsTemplate();
    void onlyTheCalledPairWrites();
    void filesThatDoNotChangeKeepTheirTime_data();
    void filesThatDoNotChangeKeepTheirTime();
    void rootNameAndProjectReachTheSources();
    void classNameReachesAllSources();
    void attributesReachAllSourcesInOrder();
    void sourcesHaveNeitherFullNameNorParentNorKind();
    void projectFilesHaveIdentifiersAndNameOfTheRecord();
    void libraryNameIsTheBaseNameWithoutPathAndExtension();
    void makefileNamesTheArchiveOfTheLibrary();
    void disTokenReachesProjectsAndMakefile();
    void projectFilesCanBeWrittenAlone();
    void identifiersAreThoseOfTheSolution();
    void knownTokensAreThoseThatAreReplaced();
    void objectGeneratorMakesExamplesBehindItsFiles();
    void objectExamplesKnowOfDis();
    void objectExamplesHaveALabel();
    void interactionGeneratorMakesExamplesBehindItsFiles();
    void interactionExamplesKnowNoDis();
    void interactionExamplesHaveNoLabel();
    void membersReachTheExamples_data();
    void membersReachTheExamples();
    void cancelledGeneratorMakesNoExamples_data();
    void cancelledGeneratorMakesNoExamples();
    void withoutExamplesThereIsNoDirectory();
    void examplesAreNotInTheFileList();

private:
    // Every template of the examples holds this text.
    void writeTemplates(const QByteArray& content) const
    {
        for (const char* name : {"talkObjExample", "listenObjExample", "talkInterExample", "listenInterExample",
                                 "talkExProjVC14_64", "listenExProjVC14_64", "exMakefile"})
            myFixture->writeTemplate(QString(name) + ".tlt", content);
    }
    QString example(const char* file) const { return myFixture->output("Examples/Tank/" + QString(file)); }
    void writeExamples(bool isObject) const
    {
        DtExamplesCreator creator("Tank", DtOmtProject(), tank());
        if (isObject)
            creator.createObjectExamples();
        else
            creator.createInteractionExamples();
    }
    // The generator of an object or of an interaction, by name "Tank", with examples.
    std::unique_ptr<DtFileGenerator> makeGenerator(bool isObject, bool dis = false)
    {
        if (isObject)
            return std::make_unique<DtObjectFileGenerator>("Tank", myFileList, true, dis, tank(), DtOmtProject());
        return std::make_unique<DtInteractionFileGenerator>("Tank", myFileList, true, dis, fire(), DtOmtProject());
    }
    static void addKinds()
    {
        QTest::addColumn<bool>("isObject");
        QTest::newRow("object") << true;
        QTest::newRow("interaction") << false;
    }

    std::unique_ptr<DtGeneratorFixture> myFixture;
    std::set<DtString> myFileList;
};

void TestExamplesCreator::init()
{
    myFixture = std::make_unique<DtGeneratorFixture>();
    myFileList.clear();
}

void TestExamplesCreator::cleanup()
{
    myFixture.reset();
}

void TestExamplesCreator::filesStandInADirectoryOfTheClassFromConstruction()
{
    const DtExamplesCreator creator("Tank", DtOmtProject(), tank());
    QCOMPARE(myFixture->outputs(), theTankFiles);
    QCOMPARE(example("talk.cxx"), QString());
    QCOMPARE(text(creator.name()), QString("Tank"));
}

void TestExamplesCreator::everyClassHasADirectoryOfItsOwn()
{
    const DtExamplesCreator one("Tank", DtOmtProject(), tank());
    const DtExamplesCreator other("FireInter", DtOmtProject(), fire());
    QCOMPARE(QDir(myFixture->outputPath("Examples")).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
             QStringList({"FireInter", "Tank"}));
    QVERIFY(myFixture->hasOutput("Examples/FireInter/FireInterTalkVC14_64.vcxproj"));
}

void TestExamplesCreator::includeDirectoryDoesNotMoveExamples()
{
    DtOMTEnvWriter::setIncludeName("kit");
    const DtExamplesCreator creator("Tank", DtOmtProject(), tank());
    QCOMPARE(myFixture->outputs(), theTankFiles);
}

void TestExamplesCreator::nameThatLeadsOutOfTheOutputDirectoryMakesNothing()
{
    writeTemplates("x");
    const DtCapture capture(DtWarn);
    DtExamplesCreator("../../../Tank", DtOmtProject(), tank()).createObjectExamples();
    QVERIFY(!QFileInfo::exists(myFixture->scratch("Tank")));
    QVERIFY(!QFileInfo::exists(myFixture->scratch("../Tank")));
    QVERIFY(capture.text().contains("is not written: it is outside of the output directory."));
}

void TestExamplesCreator::eachFileComesFromItsTemplate_data()
{
    QTest::addColumn<bool>("isObject");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("source");
    const auto add = [](const char* kind, bool isObject, const char* file, const char* source)
    { QTest::newRow(qPrintable(QString(kind) + " " + file)) << isObject << QString(file) << QString(source); };
    add("object", true, "talk.cxx", "talkObjExample");
    add("object", true, "listen.cxx", "listenObjExample");
    add("interaction", false, "talk.cxx", "talkInterExample");
    add("interaction", false, "listen.cxx", "listenInterExample");
    for (const bool isObject : {true, false})
    {
        const char* const kind = isObject ? "object" : "interaction";
        add(kind, isObject, "TankTalkVC14_64.vcxproj", "talkExProjVC14_64");
        add(kind, isObject, "TankListenVC14_64.vcxproj", "listenExProjVC14_64");
        add(kind, isObject, "Makefile", "exMakefile");
    }
}

void TestExamplesCreator::eachFileComesFromItsTemplate()
{
    QFETCH(bool, isObject);
    QFETCH(QString, file);
    QFETCH(QString, source);
    writeTemplates("another");
    myFixture->writeTemplate(source + ".tlt", "from " + source.toUtf8());
    writeExamples(isObject);
    QCOMPARE(example(qPrintable(file)), "from " + source);
    QCOMPARE(myFixture->outputs(), theTankFiles);
}

// Objects and interactions write the same two files, so the pair that is not asked for must leave them alone.
void TestExamplesCreator::onlyTheCalledPairWrites()
{
    writeTemplates("old");
    writeExamples(true);
    myFixture->writeTemplate("talkInterExample.tlt", "new talk");
    myFixture->writeTemplate("listenInterExample.tlt", "new listen");
    writeExamples(true);
    QCOMPARE(example("talk.cxx") + example("listen.cxx"), QString("oldold"));
    writeExamples(false);
    QCOMPARE(example("talk.cxx") + example("listen.cxx"), QString("new talknew listen"));
}

void TestExamplesCreator::filesThatDoNotChangeKeepTheirTime_data()
{
    addKinds();
}

void TestExamplesCreator::filesThatDoNotChangeKeepTheirTime()
{
    QFETCH(bool, isObject);
    writeTemplates("same");
    writeExamples(isObject);
    for (const QString& file : theTankFiles)
        makeOld(myFixture->outputPath(file));
    writeExamples(isObject);
    for (const QString& file : theTankFiles)
        QVERIFY2(isOld(myFixture->outputPath(file)), qPrintable(file));
}

void TestExamplesCreator::rootNameAndProjectReachTheSources()
{
    writeTemplates("<!ClassName!> <!SrHeader!> <!InteractionHeader!> <!FedFileName!>");
    DtOmtProject project;
    project.addFomDefFile("a.xml", "");
    for (const bool isObject : {true, false})
    {
        {
            DtExamplesCreator creator("Tank", project, tank());
            if (isObject)
                creator.createObjectExamples();
            else
                creator.createInteractionExamples();
        }
        for (const char* file : {"talk.cxx", "listen.cxx"})
            QCOMPARE(example(file), QString("Tank tankStateRepository tankHLA a.xml"));
    }
}

void TestExamplesCreator::classNameReachesAllSources()
{
    writeTemplates("<!ClassName!> <!SrHeader!>");
    for (const bool isObject : {true, false})
    {
        {
            DtExamplesCreator creator("Tank", DtOmtProject(), tank());
            creator.setClassName("Ship");
            if (isObject)
                creator.createObjectExamples();
            else
                creator.createInteractionExamples();
        }
        for (const char* file : {"talk.cxx", "listen.cxx"})
            QCOMPARE(example(file), QString("Ship tankStateRepository"));
    }
}

void TestExamplesCreator::attributesReachAllSourcesInOrder()
{
    writeTemplates("<#Attributes>[<!AttributeName!> <!AttributeDatatype!>]<#>");
    for (const bool isObject : {true, false})
    {
        {
            DtExamplesCreator creator("Tank", DtOmtProject(), tank());
            creator.addAttribute(DtAttribute("Speed", "DtFloat32"));
            creator.addAttribute(DtAttribute("Crew", "DtU8"));
            if (isObject)
                creator.createObjectExamples();
            else
                creator.createInteractionExamples();
        }
        for (const char* file : {"talk.cxx", "listen.cxx"})
            QCOMPARE(example(file), QString("[Speed DtFloat32][Crew DtU8]"));
    }
}

void TestExamplesCreator::sourcesHaveNeitherFullNameNorParentNorKind()
{
    writeTemplates("[<!FullClassName!>][<!BaseClassName!>][<!PduKind!>]");
    {
        const std::unique_ptr<DtFileGenerator> generator = makeGenerator(true);
        generator->setFullClassName("HLAobjectRoot.Tank");
        generator->setParentClassName("Vehicle");
        generator->setPduKind(7);
        generator->generateFiles();
    }
    for (const char* file : {"talk.cxx", "listen.cxx"})
        QCOMPARE(example(file), QString("[][][0]"));
}

void TestExamplesCreator::projectFilesHaveIdentifiersAndNameOfTheRecord()
{
    writeTemplates("<!Name!> <!UUID1!> <!UUID2!>");
    DtOmtObject object = record<DtOmtObject>("HLAobjectRoot.Tank", "Panzer-4");
    object.setRename("Tank");
    DtExamplesCreator("Tank", DtOmtProject(), object).createObjectExamples();
    const QString expected = "Panzer-4 " + text(object.uuid(1)) + " " + text(object.uuid(2));
    QCOMPARE(example("TankTalkVC14_64.vcxproj"), expected);
    QCOMPARE(example("TankListenVC14_64.vcxproj"), expected);
    QVERIFY(object.uuid(1) != object.uuid(2));
    QCOMPARE(example("Makefile"), QString("<!Name!> <!UUID1!> <!UUID2!>"));
}

void TestExamplesCreator::libraryNameIsTheBaseNameWithoutPathAndExtension()
{
    writeTemplates("<!LibName!>");
    DtOMTEnvWriter::setBaseName("models/my-model.v2.xml");
    writeExamples(true);
    for (const char* file : {"Makefile", "TankTalkVC14_64.vcxproj", "TankListenVC14_64.vcxproj"})
        QCOMPARE(example(file), QString("my-model.v2"));
    QCOMPARE(example("talk.cxx"), QString("<!LibName!>"));
}

void TestExamplesCreator::makefileNamesTheArchiveOfTheLibrary()
{
    writeTemplates("<!ArchiveName!>");
    DtOMTEnvWriter::setBaseName("my-model.v2");
    writeExamples(true);
    QCOMPARE(example("Makefile"), QString("my-model.v2"));
    QCOMPARE(example("TankTalkVC14_64.vcxproj"), QString("<!ArchiveName!>"));
}

void TestExamplesCreator::disTokenReachesProjectsAndMakefile()
{
    writeTemplates("[<!GenerateDis!>]");
    const QStringList products = {"Makefile", "TankTalkVC14_64.vcxproj", "TankListenVC14_64.vcxproj"};
    writeExamples(true);
    for (const QString& file : products)
        QCOMPARE(example(qPrintable(file)), QString("[]"));
    for (const bool dis : {true, false})
    {
        {
            DtExamplesCreator creator("Tank", DtOmtProject(), tank());
            creator.setGenerateDis(dis);
            creator.createObjectExamples();
        }
        for (const QString& file : products)
            QCOMPARE(example(qPrintable(file)), QString(dis ? "[1]" : "[]"));
        QCOMPARE(example("talk.cxx"), QString("[<!GenerateDis!>]"));
    }
}

void TestExamplesCreator::projectFilesCanBeWrittenAlone()
{
    writeTemplates("x");
    DtExamplesCreator("Tank", DtOmtProject(), tank()).writeProjectFiles();
    QCOMPARE(example("Makefile") + example("TankTalkVC14_64.vcxproj") + example("TankListenVC14_64.vcxproj"),
             QString("xxx"));
    QCOMPARE(example("talk.cxx") + example("listen.cxx"), QString());
}

// Also when the record had none before: the projects and the solution are made from copies of it.
void TestExamplesCreator::identifiersAreThoseOfTheSolution()
{
    writeTemplates("<!UUID1!> <!UUID2!>");
    myFixture->writeTemplate("solutionVC14_64.tlt", "<#Objects><!UUID1!> <!UUID2!><#>");
    const DtOmtObject object = tank();
    DtExamplesCreator("Tank", DtOmtProject(), object).createObjectExamples();
    {
        DtSolutionsFileWriter solution("s.sln", "solutionVC14_64.tlt");
        solution.setObjects({object});
        solution.writeFile();
    }
    QCOMPARE(example("TankTalkVC14_64.vcxproj"), myFixture->output("s.sln"));
    QCOMPARE(example("TankListenVC14_64.vcxproj"), myFixture->output("s.sln"));
}

void TestExamplesCreator::knownTokensAreThoseThatAreReplaced()
{
    const auto firstTokens = [](const DtFileWriter& writer, int count)
    {
        QStringList tokens;
        for (const DtString& token : writer.tokenChain().tokens())
            tokens += text(token);
        return tokens.mid(0, count).join(' ');
    };
    QCOMPARE(firstTokens(DtExamplesProjectFileWriter("", "", DtOmtObject()), 6),
             QString("<!LibName!> <!UUID1!> <!UUID2!> <!Name!> <!GenerateDis!> <!mapRtiObjectIdToGlobalId!>"));
    QCOMPARE(firstTokens(DtExamplesMakefileWriter(""), 4),
             QString("<!LibName!> <!ArchiveName!> <!GenerateDis!> <!mapRtiObjectIdToGlobalId!>"));
}

void TestExamplesCreator::objectGeneratorMakesExamplesBehindItsFiles()
{
    writeTemplates("<!ClassName!>");
    makeGenerator(true)->generateFiles();
    QCOMPARE(myFixture->outputs().size(), 12 + 5);
    QCOMPARE(myFixture->outputs().filter("Examples/"), theTankFiles);
    QCOMPARE(example("talk.cxx"), QString("Tank"));
}

void TestExamplesCreator::objectExamplesKnowOfDis()
{
    writeTemplates("[<!GenerateDis!>]");
    makeGenerator(true, true)->generateFiles();
    QCOMPARE(myFixture->outputs().size(), 28 + 5);
    QCOMPARE(example("Makefile"), QString("[1]"));
    makeGenerator(true, false)->generateFiles();
    QCOMPARE(example("Makefile"), QString("[]"));
}

// Without templates no file takes the label over.
void TestExamplesCreator::objectExamplesHaveALabel()
{
    makeGenerator(true)->generateFiles();
    QCOMPARE(progressLabel(), QString("Generating examples for: Tank"));
}

void TestExamplesCreator::interactionGeneratorMakesExamplesBehindItsFiles()
{
    writeTemplates("another");
    myFixture->writeTemplate("talkInterExample.tlt", "<!ClassName!>");
    makeGenerator(false)->generateFiles();
    QCOMPARE(myFixture->outputs().size(), 6 + 5);
    QCOMPARE(myFixture->outputs().filter("Examples/"), theTankFiles);
    QCOMPARE(example("talk.cxx"), QString("Tank"));
}

void TestExamplesCreator::interactionExamplesKnowNoDis()
{
    writeTemplates("[<!GenerateDis!>]");
    makeGenerator(false, true)->generateFiles();
    QCOMPARE(myFixture->outputs().size(), 10 + 5);
    for (const char* file : {"Makefile", "TankTalkVC14_64.vcxproj", "TankListenVC14_64.vcxproj"})
        QCOMPARE(example(file), QString("[]"));
}

void TestExamplesCreator::interactionExamplesHaveNoLabel()
{
    const QString before = progressLabel();
    makeGenerator(false)->generateFiles();
    QCOMPARE(progressLabel(), before);
}

void TestExamplesCreator::membersReachTheExamples_data()
{
    addKinds();
}

void TestExamplesCreator::membersReachTheExamples()
{
    QFETCH(bool, isObject);
    writeTemplates("<#Attributes>[<!AttributeName!> <!AttributeDatatype!> <!AttributeFomDatatype!> "
                   "<!AttributeNumCardinality!>]<#>");
    DtDataTypeMapper::instance()->addMapping("Knots", "DtFloat32");
    {
        const std::unique_ptr<DtFileGenerator> generator = makeGenerator(isObject);
        generator->addAttribute("Speed", "Knots", "1");
        generator->addAttribute("Draughts", "Knots", "4");
        generator->generateFiles();
    }
    for (const char* file : {"talk.cxx", "listen.cxx"})
        QCOMPARE(example(file), QString("[Speed DtFloat32 Knots 1][Draughts DtFloat32 Knots 4]"));
}

void TestExamplesCreator::cancelledGeneratorMakesNoExamples_data()
{
    addKinds();
}

void TestExamplesCreator::cancelledGeneratorMakesNoExamples()
{
    QFETCH(bool, isObject);
    writeTemplates("x");
    const QString before = progressLabel();
    {
        const std::unique_ptr<DtFileGenerator> generator = makeGenerator(isObject);
        DtQtProgressMeter::instance()->setIsCancelled(true);
        generator->generateFiles();
        QCOMPARE(progressLabel(), before);
    }
    QCOMPARE(myFixture->outputs().filter("Examples/"), theTankFiles);
    for (const QString& file : theTankFiles)
        QCOMPARE(myFixture->output(file), QString());
}

void TestExamplesCreator::withoutExamplesThereIsNoDirectory()
{
    writeTemplates("x");
    DtObjectFileGenerator objects("Tank", myFileList, false, true, tank(), DtOmtProject());
    objects.addAttribute("Speed", "Knots", "1");
    objects.generateFiles();
    DtInteractionFileGenerator interactions("FireInter", myFileList, false, true, fire(), DtOmtProject());
    interactions.addAttribute("Speed", "Knots", "1");
    interactions.generateFiles();
    QVERIFY(!myFixture->hasOutput("Examples"));
    QVERIFY(!progressLabel().contains("examples"));
}

void TestExamplesCreator::examplesAreNotInTheFileList()
{
    makeGenerator(true)->generateFiles();
    QCOMPARE(myFileList.size(), std::size_t(12));
    for (const DtString& name : myFileList)
        QVERIFY(!text(name).contains("Examples"));
}

QX_REGISTER_TEST(TestExamplesCreator)
#include "testExamplesCreator.moc"
