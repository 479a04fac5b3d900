// What holds for a whole run, whatever the kind of file: where files may lie, what is known when a file is written, and
// what a run does with names and types that lead nowhere.

#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/nameClashes.h"
#include "fileGenerator/omtProject.h"

#include <QtTest/QtTest>

class TestGenerationRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void renameThatLeavesTheOutputDirectoryWritesNothing_data();
    void renameThatLeavesTheOutputDirectoryWritesNothing();
    void includeDirectoryThatLeavesTheOutputDirectoryWritesNothing_data();
    void includeDirectoryThatLeavesTheOutputDirectoryWritesNothing();
    void includeDirectoryOfTwoDotsAndMoreIsWritten();
    void renameTooLongForAFileEndsNothing();
    void templateThatReachesItselfEndsTheRun();
    void headerKnowsWhetherItsTypeIsEncodeable();
    void openPartsAreCountedAcrossFamilies();
    void openPartsAreForgottenBetweenRuns();
    void secondRunGivesWhatTheFirstGave();
    void longMembersAreNumberedByTheTemplate();
    void fileOfADatatypeHoldsThatDatatypeOnly();
    void typesInARingOfPredefinedTypesStand();
    void ringThroughAPredefinedTypeEnds_data();
    void ringThroughAPredefinedTypeEnds();
    void longNamesOfEveryKindGiveFiles();
    void enumerationsTakeNoNumbersAheadOfTheClasses();
    void predefinedTypesOfTheRunForgetComponents();
    void parentOutsideTheSelectionGivesItsUniqueName();
    void selectedParentIsNoMatterForAWarning();
    void parentThatIsNoIdentifierIsTold();
    void classesOfOneNameAreTold();
    void baseNameThatIsNoIdentifierIsTold_data();
    void baseNameThatIsNoIdentifierIsTold();
    void datatypesThatHoldThemselvesAreTold();
    void recordsThatHoldEachOtherAreToldByTheRun();
    void arrayEndsARingOfRecords();

private:
    int run(const char* modelFile = "model.xml");
    void select(const DtString& object, const DtString& rename = "");
    void addTank(const std::vector<std::pair<DtString, DtString>>& attributes);
    QStringList scratchEntries() const;

    std::unique_ptr<DtGeneratorFixture> myFixture;
    std::unique_ptr<DtTestModel> myModel;
    std::unique_ptr<DtOmtProject> myProject;
};

namespace
{
const char theTank[] = "HLAobjectRoot.Tank";
}

void TestGenerationRules::init()
{
    myFixture = std::make_unique<DtGeneratorFixture>();
    myModel = std::make_unique<DtTestModel>();
    myProject = std::make_unique<DtOmtProject>();
}

void TestGenerationRules::cleanup()
{
    myProject.reset();
    myModel.reset();
    myFixture.reset();
}

// Load and generation, in the order of the program.
int TestGenerationRules::run(const char* modelFile)
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.setPredefinedTypes(myProject->predefinedTypes());
    mapper.populateFromOmtTree(myModel->tree());
    mapper.setPredefinedTypes(myProject->predefinedTypes());
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    writer.setHlaVersion(DtHla1516e);
    writer.setOmtProject(myProject.get());
    writer.setObjectsToGenerate(myProject->getObjects());
    writer.setInteractionsToGenerate(myProject->getInteractions());
    return writer.writeFile(modelFile);
}

void TestGenerationRules::select(const DtString& object, const DtString& rename)
{
    myProject->addObject(object, !rename.isEmpty(), rename);
}

// A selected class with attributes of these names and datatypes.
void TestGenerationRules::addTank(const std::vector<std::pair<DtString, DtString>>& attributes)
{
    myModel->addObject(theTank);
    for (const auto& [name, datatype] : attributes)
        myModel->addAttribute(theTank, name, datatype);
    select(theTank);
}

QStringList TestGenerationRules::scratchEntries() const
{
    return QDir(myFixture->scratch(".")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

void TestGenerationRules::renameThatLeavesTheOutputDirectoryWritesNothing_data()
{
    QTest::addColumn<QString>("rename");
    QTest::addColumn<int>("left"); // how many of the twelve files lead away
    QTest::newRow("above") << "../escaped" << 8;
    QTest::newRow("far above") << "../../../../../../../../../../../../escaped" << 12;
    QTest::newRow("absolute") << "/escaped" << 8;
    QTest::newRow("below") << "sub/kept" << 0;
    QTest::newRow("down and up") << "sub/../kept" << 0;
}

void TestGenerationRules::renameThatLeavesTheOutputDirectoryWritesNothing()
{
    QFETCH(QString, rename);
    QFETCH(int, left);
    myModel->addObject(theTank);
    select(theTank, qPrintable(rename));
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(scratchEntries(), QStringList({"bin", "data", "out"}));
    QCOMPARE(capture.text().count("is not written"), left);
    QCOMPARE(myFixture->outputs().filter(QRegularExpression("escaped|kept")).size(), 12 - left);
    QVERIFY(myFixture->hasOutput("modelVC14_64.sln"));
}

void TestGenerationRules::includeDirectoryThatLeavesTheOutputDirectoryWritesNothing_data()
{
    QTest::addColumn<QString>("directory");
    QTest::newRow("above") << "..";
    QTest::newRow("sibling") << "../include";
    QTest::newRow("down and up") << "a/../../include";
    QTest::newRow("absolute") << "/include";
}

void TestGenerationRules::includeDirectoryThatLeavesTheOutputDirectoryWritesNothing()
{
    QFETCH(QString, directory);
    addTank({});
    DtOMTEnvWriter::setIncludeName(qPrintable(directory));
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(scratchEntries(), QStringList({"bin", "data", "out"}));
    QCOMPARE(capture.text().count("is not written"), 2 + 6); // dllExport.h, modelEnums.h and those of the class
    // The list of the headers is written without the directory.
    QCOMPARE(myFixture->outputs().filter(".h"), QStringList());
    QCOMPARE(myFixture->outputs().filter(".cxx").size(), 6);
}

void TestGenerationRules::includeDirectoryOfTwoDotsAndMoreIsWritten()
{
    addTank({});
    DtOMTEnvWriter::setIncludeName("..kit");
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(capture.text().count("is not written"), 0);
    QVERIFY(myFixture->hasOutput("..kit/tankEncoderHLA.h"));
}

void TestGenerationRules::renameTooLongForAFileEndsNothing()
{
    myModel->addObject(theTank);
    select(theTank, DtString(std::string(300, 'x')));
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(capture.text().count(QString(300, 'x')), 12);
    QVERIFY(myFixture->hasOutput("modelVC14_64.sln"));
}

void TestGenerationRules::templateThatReachesItselfEndsTheRun()
{
    addTank({});
    myFixture->writeTemplate("hobjEncHeader.tlt", "x<#1#../data/templates/hobjEncHeader.tlt#>");
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(capture.text().count("hobjEncHeader.tlt"), 1);
    // The template itself, and the 64 files of its file blocks.
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString(65, 'x'));
    QVERIFY(myFixture->hasOutput("modelVC14_64.sln"));
}

void TestGenerationRules::headerKnowsWhetherItsTypeIsEncodeable()
{
    for (const char* name : {"subTemplates/fixedRecordsHeader.tlt", "subTemplates/fixedRecordsSource.tlt"})
        myFixture->writeTemplate(name, "<#ClassDatatypes>[<!LocalTypeIsNotEncodeable!>]<#>");
    addTank({
        {"a", "GkTwice"},
        {"b", "GkOnce" }
    });
    myModel->addFixed("GkTwice", {
                                     {"f", "GkOpen"},
                                     {"g", "GkOpen"}
    });
    myModel->addFixed("GkOnce", {
                                    {"f", "GkOpen"}
    });
    myModel->addArray("GkOpen", "GkByte");
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("DataTypes/gkTwice.h"), QString("[1]"));
    QCOMPARE(myFixture->output("DataTypes/gkTwice.cxx"), QString("[1]"));
    QCOMPARE(myFixture->output("DataTypes/gkOnce.h"), QString("[]"));
}

void TestGenerationRules::openPartsAreCountedAcrossFamilies()
{
    addTank({
        {"a", "GcVariant"}
    });
    myModel->addArray("GcOpen", "GcByte");
    myModel->addFixed("GcRecord", {
                                      {"f", "GcOpen"}
    });
    myModel->addVariant("GcVariant", "kind", "GcKind",
                        {
                            {"one", "GcRecord"},
                            {"two", "GcOpen"  }
    });
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(capture.text().count("Warning: Cannot encode/decode data type DtGcVariant."), 1);
    QVERIFY(!DtDataTypeMapper::instance()->isNonEncodeableDataType("DtGcRecord"));
}

// A type that is an open array in one model and an empty record in the next, where its turn comes behind its user's.
void TestGenerationRules::openPartsAreForgottenBetweenRuns()
{
    addTank({
        {"a", "GfPart"}
    });
    myModel->addArray("GfPart", "GfByte");
    QCOMPARE(run(), 1);
    myModel = std::make_unique<DtTestModel>();
    addTank({
        {"a", "GfUser"}
    });
    myModel->addFixed("GfUser", {
                                    {"f", "GfPart"},
                                    {"g", "GfPart"}
    });
    myModel->addFixed("GfPart", {});
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(capture.text().count("Cannot encode/decode"), 0);
}

// Fixed records come ahead of the variant records: the first run does not know that the member cannot be encoded.
void TestGenerationRules::secondRunGivesWhatTheFirstGave()
{
    myFixture->writeTemplate("subTemplates/fixedRecordsHeader.tlt",
                             "<#ClassDatatypes><#Attributes>[<!AttributeIsNotEncodeable!>]<#><#>");
    addTank({
        {"a", "GsHolder"}
    });
    myModel->addFixed("GsHolder", {
                                      {"f", "GsVariant"}
    });
    myModel->addVariant("GsVariant", "kind", "HLAboolean",
                        {
                            {"one", "GsOpen"},
                            {"two", "GsOpen"}
    });
    myModel->addArray("GsOpen", "GsByte");
    for (int pass = 0; pass < 2; ++pass)
    {
        const DtCapture capture(DtWarn);
        QCOMPARE(run(), 1);
        QVERIFY(capture.text().contains("Warning: Cannot encode/decode data type DtGsVariant.\n"));
        QCOMPARE(myFixture->output("DataTypes/gsHolder.h"), QString("[]"));
    }
}

// The warnings about members ask for names too, but have numbers of their own.
void TestGenerationRules::longMembersAreNumberedByTheTemplate()
{
    const auto name = [](char c) { return DtString(std::string(120, c)); };
    myFixture->writeTemplate("subTemplates/fixedRecordsHeader.tlt",
                             "<#ClassDatatypes><#Attributes><!attributeName!> <!AttributeFomDatatype!>|<#><#>");
    addTank({
        {"a", "GlRecord"}
    });
    myModel->addFixed("GlRecord", {
                                      {name('q'), name('X')},
                                      {name('r'), name('Y')}
    });
    QCOMPARE(run(), 1);
    std::vector<int> numbers;
    for (const QString& text :
         myFixture->output("DataTypes/glRecord.h").split(QRegularExpression("[ |]"), Qt::SkipEmptyParts))
        numbers.push_back(QString(text).remove(QRegularExpression("[^0-9]")).toInt());
    QCOMPARE(numbers.size(), std::size_t(4));
    for (std::size_t at = 1; at < numbers.size(); ++at)
        QCOMPARE(numbers[at], numbers[0] + int(at));
}

void TestGenerationRules::fileOfADatatypeHoldsThatDatatypeOnly()
{
    for (const char* name : {"subTemplates/fixedRecordsHeader.tlt", "subTemplates/fixedRecordsSource.tlt"})
        myFixture->writeTemplate(name, "<#ClassDatatypes>[<!ClassName!>]<#>");
    addTank({
        {"a", "GoFirst" },
        {"b", "GoSecond"}
    });
    myModel->addFixed("GoFirst", {});
    myModel->addFixed("GoSecond", {});
    QCOMPARE(run(), 1);
    for (const char* extension : {".h", ".cxx"})
    {
        QCOMPARE(myFixture->output(QString("DataTypes/goFirst") + extension), QString("[DtGoFirst]"));
        QCOMPARE(myFixture->output(QString("DataTypes/goSecond") + extension), QString("[DtGoSecond]"));
    }
}

// A predefined type is a type of the toolkit: nobody looks below it.
void TestGenerationRules::typesInARingOfPredefinedTypesStand()
{
    myFixture->writeTemplate("hobjEncHeader.tlt", "<#Attributes><!AttributeName!>=<!AttributeDatatype!>;<#>");
    addTank({
        {"a", "GrA"},
        {"b", "GrB"}
    });
    myModel->addSimple("GrA", "GrB");
    myModel->addSimple("GrB", "GrA");
    myProject->addPredefinedType("GrA", "GrB");
    myProject->addPredefinedType("GrB", "GrA");
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("A=GrB;B=GrA;"));
    QCOMPARE(capture.text().count("Gr"), 0);
}

void TestGenerationRules::ringThroughAPredefinedTypeEnds_data()
{
    QTest::addColumn<QString>("predefined");
    QTest::addColumn<QString>("written");
    // The family of simple types asks for replacements only; a simple type over a predefined one is replaced by it.
    const struct
    {
        const char* name;
        QString predefined, written;
    } theRows[] = {
        {"none",    "",        "Array Record Simple Variant"},
        {"simple",  "Simple",  "Array Record Simple Variant"},
        {"array",   "Array",   "Record Variant"             },
        {"record",  "Record",  "Array Simple Variant"       },
        {"variant", "Variant", "Array Record Simple"        },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.predefined << row.written;
}

void TestGenerationRules::ringThroughAPredefinedTypeEnds()
{
    QFETCH(QString, predefined);
    QFETCH(QString, written);
    // What the mapper learns of a name stays with it, so every row has names of its own.
    const QString stem = QString("gq%1").arg(QTest::currentDataTag());
    const auto name = [&](const char* kind) { return DtString(qPrintable("G" + stem.mid(1) + kind)); };
    addTank({
        {"a", name("Array")  },
        {"r", name("Record") },
        {"s", name("Simple") },
        {"v", name("Variant")}
    });
    myModel->addSimple(name("Simple"), name("Array"));
    myModel->addArray(name("Array"), name("Record"));
    myModel->addFixed(name("Record"), {
                                          {"f", name("Variant")},
                                          {"g", name("Record") }
    });
    myModel->addVariant(name("Variant"), "kind", name("Simple"),
                        {
                            {"one", name("Simple") },
                            {"two", name("Variant")}
    });
    if (!predefined.isEmpty())
        myProject->addPredefinedType(name(qPrintable(predefined)), name("Array"));
    QCOMPARE(run(), 1);
    QStringList kinds;
    for (const char* kind : {"Array", "Record", "Simple", "Variant"})
    {
        if (myFixture->hasOutput("DataTypes/" + stem + kind + ".h"))
            kinds += kind;
    }
    QCOMPARE(kinds.join(' '), written);
}

void TestGenerationRules::longNamesOfEveryKindGiveFiles()
{
    const auto longName = [](char c) { return DtString(std::string(400, c)); };
    const DtString tank = "HLAobjectRoot." + longName('O');
    const DtString fire = "HLAinteractionRoot." + longName('I');
    myModel->addObject(tank);
    myModel->addInteraction(fire);
    for (const char c : {'E', 'B', 'S', 'A', 'R', 'V', 'C'})
    {
        myModel->addAttribute(tank, longName('n') + DtString(std::string(1, c)), longName(c));
        myModel->addParameter(fire, longName('p') + DtString(std::string(1, c)), longName(c));
    }
    myModel->addEnumeration(longName('E'), longName('B'),
                            {
                                {longName('e'), 1}
    });
    myModel->addBasic(longName('B'), "32");
    myModel->addSimple(longName('S'), longName('B'));
    myModel->addArray(longName('A'), longName('S'));
    myModel->addFixed(longName('R'), {
                                         {longName('f'), longName('A')}
    });
    myModel->addVariant(longName('V'), longName('d'), longName('E'),
                        {
                            {longName('a'), longName('R')}
    });
    DtTestModel::addComponent(myModel->addComplex(longName('C')), longName('c'), longName('V'), "3");
    select(tank);
    myProject->addInteraction(fire, false, "");
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(capture.text().count("annot open"), 0);
    // Six families, and the array of the complex datatype's component.
    QCOMPARE(myFixture->outputs().filter(QRegularExpression("^DataTypes/[BSARVC]{50}\\d+\\.(h|cxx)$")).size(), 14);
    QCOMPARE(myFixture->outputs().filter(QRegularExpression("O{50}\\d+")).size(), 12);
    QCOMPARE(myFixture->outputs().filter(QRegularExpression("I{50}\\d+Inter")).size(), 6);
}

// The numbers of shortened names are given in the order of the classes' lines. The enumerations header, which is
// written ahead of them, calls an enumeration by its whole name, and so do the members of that type.
void TestGenerationRules::enumerationsTakeNoNumbersAheadOfTheClasses()
{
    const std::string tail(150, 'e');
    const DtString enumeration("GrEnum" + tail);
    myFixture->writeTemplate("enums.tlt", "<#Enumeration><!EnumerationTypeName!><#>");
    myFixture->writeTemplate("hobjEncHeader.tlt",
                             "<#Attributes><!attributeName!> <!AttributeDatatype!> <!AttributeTypeIdentifier!><#>");
    myModel->addBasic("Octet", "8");
    myModel->addEnumeration(enumeration, "Octet",
                            {
                                {"One", 1}
    });
    addTank({
        {"grMember" + tail, enumeration}
    });
    const int last = QString(DtClassFileWriter::identifierOf("GrLast" + tail).c_str()).mid(50).toInt();
    QCOMPARE(run(), 1);
    const QStringList names = myFixture->output("tankEncoderHLA.h").split(' ');
    QCOMPARE(names.value(0), "grMember" + QString(42, 'e') + QString::number(last + 1));
    QCOMPARE(names.value(1), "DtGrEnum" + QString(42, 'e') + QString::number(last + 2));
    QCOMPARE(names.value(2), "DtGrEnum" + QString(150, 'e'));
    QCOMPARE(myFixture->output("DataTypes/modelEnums.h"), names.value(2));
}

// The components of records are mapped by their names at load; generation starts from the project's types alone.
void TestGenerationRules::predefinedTypesOfTheRunForgetComponents()
{
    myFixture->writeTemplate("hobjEncHeader.tlt", "<#Attributes><!AttributeDatatype!><#>");
    addTank({
        {"GpField", "GpOwn"}
    });
    myModel->addFixed("GpRecord", {
                                      {"GpField", "GpFieldType"}
    });
    myProject->addPredefinedType("GpFieldType", "DtGpField");
    myProject->addPredefinedType("GpOwn", "DtGpOwn");
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.setPredefinedTypes(myProject->predefinedTypes());
    mapper.populateFromOmtTree(myModel->tree());
    QVERIFY(mapper.hasMapping("GpField"));
    QCOMPARE(run(), 1);
    QVERIFY(!mapper.hasMapping("GpField"));
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("DtGpOwn"));
}

void TestGenerationRules::parentOutsideTheSelectionGivesItsUniqueName()
{
    for (const char* name : {"hobjEncHeader.tlt", "hintEncHeader.tlt"})
        myFixture->writeTemplate(name, "<!BaseClassName!>");
    myModel->addObject("HLAobjectRoot.Vehicle");
    myModel->addObject("HLAobjectRoot.Vehicle.Tank");
    myModel->addInteraction("HLAinteractionRoot.Act");
    myModel->addInteraction("HLAinteractionRoot.Act.Fire");
    select("HLAobjectRoot.Vehicle.Tank");
    myProject->addInteraction("HLAinteractionRoot.Act.Fire", false, "");
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("DtVehicleEncoder"));
    QVERIFY(!myFixture->hasOutput("vehicleEncoderHLA.h"));
    QCOMPARE(myFixture->output("fireInterEncoderHLA.h"), QString("DtActInterEncoder"));
    QVERIFY(!myFixture->hasOutput("actInterEncoderHLA.h"));
    QCOMPARE(capture.text(), QString("Warning: HLAobjectRoot.Vehicle.Tank needs the files of HLAobjectRoot.Vehicle, "
                                     "which is not selected.\n"
                                     "Warning: HLAinteractionRoot.Act.Fire needs the files of HLAinteractionRoot.Act, "
                                     "which is not selected.\n"));
}

void TestGenerationRules::selectedParentIsNoMatterForAWarning()
{
    myModel->addObject("HLAobjectRoot.Vehicle");
    myModel->addObject("HLAobjectRoot.Vehicle.Tank");
    select("HLAobjectRoot.Vehicle");
    select("HLAobjectRoot.Vehicle.Tank");
    const DtCapture capture(DtWarn);
    QCOMPARE(run("a-model.2.xml"), 1); // dashes and points leave the base name
    QCOMPARE(capture.text(), QString());
}

// The class's own files are named after Land__Vehicle.
void TestGenerationRules::parentThatIsNoIdentifierIsTold()
{
    myModel->addObject("HLAobjectRoot.Land-Vehicle");
    myModel->addObject("HLAobjectRoot.Land-Vehicle.Tank");
    select("HLAobjectRoot.Land-Vehicle");
    select("HLAobjectRoot.Land-Vehicle.Tank");
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QVERIFY(myFixture->hasOutput("land__VehicleEncoderHLA.h"));
    QCOMPARE(capture.text(), QString("Warning: HLAobjectRoot.Land-Vehicle.Tank calls its parent Land-Vehicle in C++, "
                                     "which is no identifier.\n"));
}

void TestGenerationRules::classesOfOneNameAreTold()
{
    myModel->addObject(theTank);
    myModel->addObject("HLAobjectRoot.Vehicle");
    select(theTank);
    select("HLAobjectRoot.Vehicle", "Tank");
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QCOMPARE(capture.text().count("is written a second time"), 12);
    QVERIFY(capture.text().contains("Warning: File tankEncoderHLA.h is written a second time: two classes are called "
                                    "alike in C++.\n"));
}

void TestGenerationRules::baseNameThatIsNoIdentifierIsTold_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("warning");
    const struct
    {
        const char* name;
        QByteArray file;
        QString warning;
    } theRows[] = {
        {"blank",     "my model.xml",   "Warning: my model is called MY MODEL in C++, which is no identifier.\n"},
        {"digit",     "models/1st.xml", "Warning: 1st is called 1ST in C++, which is no identifier.\n"          },
        {"ampersand", "R&D.xml",        "Warning: R&D is called R&D in C++, which is no identifier.\n"          },
        {"plain",     "my_model-2.xml", ""                                                                      },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.file << row.warning;
}

void TestGenerationRules::baseNameThatIsNoIdentifierIsTold()
{
    QFETCH(QByteArray, file);
    const DtCapture capture(DtWarn);
    QCOMPARE(run(file.constData()), 1);
    QTEST(capture.text(), "warning");
}

void TestGenerationRules::datatypesThatHoldThemselvesAreTold()
{
    const std::pair<const char*, std::vector<DtString>> records[] = {
        {"Front",  {"Back", "HLAoctet"}          },
        {"Back",   {"Front"}                     },
        {"Self",   {"Self", "Plain"}             },
        {"Holder", {"HLAoctet", "Self"}          },
        {"Plain",  {"HLAoctet", "Plain2", "List"}},
        {"Plain2", {}                            },
    };
    DtHeldDatatypes held;
    for (const auto& [name, members] : records)
        held.add(name, members);
    const DtCapture capture(DtWarn);
    held.warn();
    QStringList told;
    for (const QString& line : capture.text().split('\n', Qt::SkipEmptyParts))
    {
        QVERIFY2(line.endsWith(" holds itself, or one that does, which no C++ class can."), qPrintable(line));
        told += line.section(' ', 2, 2);
    }
    QCOMPARE(told, QStringList({"Back", "Front", "Holder", "Self"}));
}

void TestGenerationRules::recordsThatHoldEachOtherAreToldByTheRun()
{
    myModel->addFixed("Front", {
                                   {"back", "Back"}
    });
    myModel->addVariant("Back", "kind", "HLAboolean",
                        {
                            {"front", "Front"}
    });
    addTank({
        {"front", "Front"}
    });
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QVERIFY(capture.text().contains("Warning: Datatype Front holds itself, or one that does"));
    QVERIFY(capture.text().contains("Warning: Datatype Back holds itself, or one that does"));
}

void TestGenerationRules::arrayEndsARingOfRecords()
{
    myModel->addFixed("Node", {
                                  {"children", "NodeList"}
    });
    myModel->addArray("NodeList", "Node", "Dynamic");
    addTank({
        {"node", "Node"}
    });
    const DtCapture capture(DtWarn);
    QCOMPARE(run(), 1);
    QVERIFY2(!capture.text().contains("holds itself"), qPrintable(capture.text()));
}

QX_REGISTER_TEST(TestGenerationRules)
#include "testGenerationRules.moc"
