#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/hintDecHeaderWriter.h"
#include "fileGenerator/hintDecSourceWriter.h"
#include "fileGenerator/hintEncHeaderWriter.h"
#include "fileGenerator/hintEncSourceWriter.h"
#include "fileGenerator/intFileGenerator.h"

#include <QtTest/QtTest>

// The files of one interaction class, as far as they differ from those of an object class.
class TestIntFileGenerator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void interactionHasSixFiles();
    void interactionHasTenFilesWithDis();
    void everyFileComesFromItsTemplate_data();
    void everyFileComesFromItsTemplate();
    void writersStandInTheOrderOfTheTable();
    void writerNames_data();
    void writerNames();
    void writerBases_data();
    void writerBases();
    void ownTokens_data();
    void ownTokens();
    void fullNameLosesRootInSomeFilesOnly();
    void disPduBaseDependsOnTheParent();
    void cancelledGenerationStopsBehindTheFirstFile();
    void valueTypes_data();
    void valueTypes();
    void oldModelResolvesNothing();
    void nestedArrayIsNotWalked();
    void cycleOfDatatypesEndsSilently();
    void lastRepresentationReachesTheParameter();
    void noGenIsOneInTheEncoderHeader();
    void noGenStaysEverywhereElse();
    void noGenStaysOutsideTheLoop();
    void customCodeReplacesGeneratedCode();
    void parameterWithoutCustomCodeKeepsOutputToken();
    void customGenerationReturnsTheFileOfTheRecord();
    void interactionOfAWriterCanBeReplaced();
    void nameHelpersGiveTheFileNames();
    void knownTokensHoldNoGen();

private:
    std::unique_ptr<DtGeneratorFixture> myFixture;
};

namespace
{
const QStringList theFiles = {"fireInterHLA.h",         "fireInterHLA.cxx",        "fireInter.h",
                              "fireInter.cxx",          "fireInterDIS.h",          "fireInterDIS.cxx",
                              "fireInterEncoderHLA.h",  "fireInterEncoderHLA.cxx", "fireInterDecoderHLA.h",
                              "fireInterDecoderHLA.cxx"};
const QStringList theTemplates = {"hinterHeader.tlt",  "hinterSource.tlt", "intHeader.tlt",     "intSource.tlt",
                                  "dinterHeader.tlt",  "dinterSource.tlt", "hintEncHeader.tlt", "hintEncSource.tlt",
                                  "hintDecHeader.tlt", "hintDecSource.tlt"};

QStringList hlaFiles()
{
    return theFiles.filter("HLA");
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

class OpenGenerator : public DtInteractionFileGenerator
{
public:
    using DtInteractionFileGenerator::DtInteractionFileGenerator;
    std::list<std::unique_ptr<DtClassFileWriter>>& writers() { return myWriters; }
};

// With the parameters "range", for which nothing is to be generated, and "target".
DtOmtInteraction fire()
{
    DtOmtInteraction interaction;
    interaction.setFullName("HLAinteractionRoot.Fire");
    interaction.setName("Fire");
    for (const char* name : {"range", "target"})
    {
        DtOmtParameter parameter;
        parameter.setName(name);
        parameter.setFullName(name);
        parameter.setOwningInteraction(interaction.fullName());
        parameter.setNoGen(DtString(name) == "range");
        interaction.addParameter(parameter);
    }
    return interaction;
}

void generateFire(bool dis, const DtOmtProject& project = DtOmtProject(), const char* parent = "InteractionRoot")
{
    std::set<DtString> files;
    DtInteractionFileGenerator generator("FireInter", files, false, dis, fire(), project);
    generator.setParentClassName(parent);
    generator.setFullClassName("HLAinteractionRoot.Fire");
    generator.addAttribute("range", "HLAinteger32LE", "1");
    generator.addAttribute("target", "HLAinteger32LE", "1");
    generator.generateFiles();
}
} // namespace

void TestIntFileGenerator::init()
{
    myFixture = std::make_unique<DtGeneratorFixture>();
    DtDataTypeMapper::instance()->addMapping("HLAinteger32LE", "DtInt32");
}

void TestIntFileGenerator::cleanup()
{
    myFixture.reset();
}

void TestIntFileGenerator::interactionHasSixFiles()
{
    std::set<DtString> files;
    DtInteractionFileGenerator("FireInter", files, false, false, fire(), DtOmtProject()).generateFiles();
    QCOMPARE(files.size(), std::size_t(6));
    QCOMPARE(myFixture->outputs(), sorted(hlaFiles()));
    QCOMPARE(DtInteractionFileGenerator::fileCount(false), 6);
}

void TestIntFileGenerator::interactionHasTenFilesWithDis()
{
    std::set<DtString> files;
    DtInteractionFileGenerator("FireInter", files, false, true, fire(), DtOmtProject()).generateFiles();
    QCOMPARE(files.size(), std::size_t(10));
    QCOMPARE(myFixture->outputs(), sorted(theFiles));
    QCOMPARE(DtInteractionFileGenerator::fileCount(true), 10);
}

void TestIntFileGenerator::everyFileComesFromItsTemplate_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("templateName");
    QCOMPARE(theFiles.size(), theTemplates.size());
    for (int i = 0; i < theFiles.size(); ++i)
        QTest::newRow(qPrintable(theFiles[i])) << theFiles[i] << theTemplates[i];
}

void TestIntFileGenerator::everyFileComesFromItsTemplate()
{
    QFETCH(QString, file);
    QFETCH(QString, templateName);
    myFixture->writeTemplate(templateName, "from " + templateName.toUtf8());
    generateFire(true);
    QCOMPARE(myFixture->output(file), "from " + templateName);
}

void TestIntFileGenerator::writersStandInTheOrderOfTheTable()
{
    std::set<DtString> files;
    OpenGenerator generator("FireInter", files, false, true, fire(), DtOmtProject());
    QStringList names;
    for (const auto& writer : generator.writers())
        names += writer->fileName().c_str();
    QCOMPARE(names, theFiles);
}

void TestIntFileGenerator::writerNames_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("className");
    const QStringList names = {"DtXFireInter",        "DtXFireInter",        "DtXFireInterInter",
                               "FireInter",           "DtXFireInterInter",   "DtXFireInterInter",
                               "DtXFireInterEncoder", "DtXFireInterEncoder", "DtXFireInterDecoder",
                               "DtXFireInterDecoder"};
    for (int row = 0; row < names.size(); ++row)
        QTest::newRow(qPrintable(theTemplates[row])) << row << names[row];
}

void TestIntFileGenerator::writerNames()
{
    QFETCH(int, row);
    QFETCH(QString, className);
    DtOMTEnvWriter::setPrefixName("X");
    myFixture->writeTemplate(theTemplates[row], "<!ClassName!>");
    generateFire(true);
    QCOMPARE(myFixture->output(theFiles[row]), className);
}

void TestIntFileGenerator::writerBases_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("below");
    struct Bases
    {
        const char *top, *below;
    };
    const Bases bases[] = {
        {"DtInteractionWithEncDec <qx/interactionWithEncDec.h>", "DtXActInter \"actInterHLA.h\""              },
        {"DtInteractionWithEncDec ",                             "DtXActInter "                               },
        {" ",                                                    " "                                          },
        {" ",                                                    " "                                          },
 // The parent's own class has "Inter" behind this name.
        {"DtInteraction <qx/interaction.h>",                     "DtXActInter \"actInter.h\""                 },
        {"DtInteraction ",                                       "DtXActInter "                               },
        {"DtInteractionEncoder <qx/interactionEncoder.h>",       "DtXActInterEncoder \"actInterEncoderHLA.h\""},
        {"DtInteractionEncoder ",                                "DtXActInterEncoder "                        },
        {"DtInteractionDecoder <qx/interactionDecoder.h>",       "DtXActInterDecoder \"actInterDecoderHLA.h\""},
        {"DtInteractionDecoder ",                                "DtXActInterDecoder "                        },
    };
    for (int row = 0; row < 10; ++row)
        QTest::newRow(qPrintable(theTemplates[row])) << row << bases[row].top << bases[row].below;
}

void TestIntFileGenerator::writerBases()
{
    QFETCH(int, row);
    QFETCH(QString, top);
    QFETCH(QString, below);
    DtOMTEnvWriter::setPrefixName("X");
    myFixture->writeTemplate(theTemplates[row], "<!BaseClassName!> <!BaseClassHeader!>");
    generateFire(true, DtOmtProject(), "InteractionRoot");
    QCOMPARE(myFixture->output(theFiles[row]), top);
    generateFire(true, DtOmtProject(), "ActInter");
    QCOMPARE(myFixture->output(theFiles[row]), below);
}

void TestIntFileGenerator::ownTokens_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("HLA header") << 0 << "<!CbName!> <!FullClassName!>"
                                << "DtXFireInterCb Fire";
    QTest::newRow("HLA source") << 1 << "<!CbName!> <!FullClassName!>"
                                << "DtXFireInterCb Fire";
    QTest::newRow("front header") << 2 << "<!HlaInter!> <!DisInter!>"
                                  << "fireInterHLA fireInterDIS";
    QTest::newRow("front source") << 3 << "<!HlaInter!> <!CbName!>"
                                  << "<!HlaInter!> <!CbName!>";
    QTest::newRow("DIS header") << 4 << "<!CbName!> <!PduBaseClass!>"
                                << "DtXFireInterInterCb DtNetPduHeader";
    QTest::newRow("DIS source") << 5 << "<!CbName!> <!FullClassName!> <!PduBaseClass!>"
                                << "DtXFireInterInterCb Fire <!PduBaseClass!>";
    QTest::newRow("encoder header") << 6 << "<!InteractionName!> <!InteractionHeader!>"
                                    << "DtXFireInter kit/fireInterHLA";
    QTest::newRow("encoder source") << 7 << "<!InteractionName!> <!InteractionHeader!>"
                                    << "DtXFireInter kit/fireInterHLA";
    QTest::newRow("decoder header") << 8 << "<!InteractionName!>"
                                    << "DtXFireInter";
    QTest::newRow("decoder source") << 9 << "<!InteractionName!> <!InteractionHeader!>"
                                    << "DtXFireInter kit/fireInterHLA";
}

void TestIntFileGenerator::ownTokens()
{
    QFETCH(int, row);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    DtOMTEnvWriter::setPrefixName("X");
    DtOMTEnvWriter::setIncludeName("kit");
    myFixture->writeTemplate(theTemplates[row], text.toUtf8());
    generateFire(true);
    const QString& file = theFiles[row];
    QCOMPARE(myFixture->output(file.endsWith(".h") ? "kit/" + file : file), expected);
}

void TestIntFileGenerator::fullNameLosesRootInSomeFilesOnly()
{
    for (const QString& name : theTemplates)
        myFixture->writeTemplate(name, "<!FullClassName!>");
    generateFire(true);
    for (int row = 0; row < 10; ++row)
        QCOMPARE(myFixture->output(theFiles[row]), QString(row < 6 ? "Fire" : "HLAinteractionRoot.Fire"));
}

void TestIntFileGenerator::disPduBaseDependsOnTheParent()
{
    DtOMTEnvWriter::setPrefixName("X");
    myFixture->writeTemplate("dinterHeader.tlt", "<!PduBaseClass!>");
    generateFire(true, DtOmtProject(), "ActInter");
    QCOMPARE(myFixture->output("fireInterDIS.h"), QString("DtXActInterPdu"));
}

void TestIntFileGenerator::cancelledGenerationStopsBehindTheFirstFile()
{
    for (const QString& name : theTemplates)
        myFixture->writeTemplate(name, "x");
    DtQtProgressMeter::instance()->setIsCancelled(true);
    generateFire(false);
    for (const QString& file : hlaFiles())
        QCOMPARE(myFixture->output(file), QString(file == "fireInterHLA.h" ? "x" : ""));
}

void TestIntFileGenerator::valueTypes_data()
{
    QTest::addColumn<QString>("datatype");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QString>("warning");
    const QString unknown("Warning: Cannot determine type: IgUnknown.\n");
    const struct
    {
        const char* name;
        QString datatype, type, cardinality, warning;
    } theRows[] = {
        {"unknown, with a warning",        "IgUnknown",           "IgUnknown", "1",  unknown},
        {"simple over mapped",             "IgSimple",            "DtU32",     "1",  ""     },
        {"simple over simple",             "IgSimpleOfSimple",    "DtU32",     "1",  ""     },
        {"simple over unknown",            "IgLoneSimple",        "IgUnknown", "1",  unknown},
        {"array of mapped",                "IgArray",             "DtU32",     "7",  ""     },
        {"open array of mapped",           "IgOpenArray",         "DtU32",     "0+", ""     },
        {"array of simple over mapped",    "IgArrayOfSimple",     "DtU32",     "5",  ""     },
        {"array of simple without target", "IgArrayOfLoneSimple", "",          "4",  ""     },
        {"array of unknown",               "IgArrayOfUnknown",    "",          "3",  ""     },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.datatype << row.type << row.cardinality << row.warning;
}

void TestIntFileGenerator::valueTypes()
{
    QFETCH(QString, datatype);
    QFETCH(QString, type);
    QFETCH(QString, cardinality);
    QFETCH(QString, warning);
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addMapping("IgBase", "DtU32");
    for (const auto& [name, representation] :
         {std::pair("IgSimple", "IgBase"), std::pair("IgSimpleOfSimple", "IgSimple"),
          std::pair("IgLoneSimple", "IgUnknown")})
        mapper.addSimpleTypeToRepresentationMapping(name, representation);
    struct Array
    {
        const char *name, *element, *cardinality;
    };
    for (const Array& array : {
             Array{"IgArray",             "IgBase",       "7"      },
             Array{"IgOpenArray",         "IgBase",       "Dynamic"},
             Array{"IgArrayOfSimple",     "IgSimple",     "5"      },
             Array{"IgArrayOfLoneSimple", "IgLoneSimple", "4"      },
             Array{"IgArrayOfUnknown",    "IgUnknown",    "3"      }
    })
    {
        mapper.addArrayTypeToRepresentationMapping(array.name, array.element);
        mapper.addArrayTypeToCardinalityMapping(array.name, array.cardinality);
    }
    const DtCapture capture(DtWarn);
    std::set<DtString> files;
    DtInteractionFileGenerator generator("FireInter", files, false, false, fire(), DtOmtProject());
    DtString foundCardinality = "1";
    DtString foundType;
    generator.determineValueType(qPrintable(datatype), foundCardinality, foundType);
    QCOMPARE(QString(foundType.c_str()), type);
    QCOMPARE(QString(foundCardinality.c_str()), cardinality);
    QCOMPARE(capture.text(), warning);
}

void TestIntFileGenerator::oldModelResolvesNothing()
{
    DtOMTEnvWriter::setFomDefinitionFileName("model.omt");
    const DtCapture capture(DtWarn);
    std::set<DtString> files;
    DtInteractionFileGenerator generator("FireInter", files, false, false, fire(), DtOmtProject());
    DtString cardinality = "1";
    DtString type;
    generator.determineValueType("IgSomething", cardinality, type);
    QCOMPARE(type, DtString("IgSomething"));
    QCOMPARE(capture.text(), QString("Warning: Cannot determine type: IgSomething.\n"));
}

void TestIntFileGenerator::nestedArrayIsNotWalked()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addArrayTypeToRepresentationMapping("IgOuter", "IgInner");
    mapper.addArrayTypeToCardinalityMapping("IgOuter", "2");
    mapper.addArrayTypeToRepresentationMapping("IgInner", "IgNothing");
    mapper.addArrayTypeToCardinalityMapping("IgInner", "9");
    std::set<DtString> files;
    DtInteractionFileGenerator generator("FireInter", files, false, false, fire(), DtOmtProject());
    DtString cardinality = "1";
    DtString type = "before";
    generator.determineValueType("IgOuter", cardinality, type);
    QCOMPARE(type, DtString());
    QCOMPARE(cardinality, DtString("2"));
}

void TestIntFileGenerator::cycleOfDatatypesEndsSilently()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addSimpleTypeToRepresentationMapping("IgPing", "IgPong");
    mapper.addSimpleTypeToRepresentationMapping("IgPong", "IgPing");
    const DtCapture capture(DtWarn);
    std::set<DtString> files;
    DtInteractionFileGenerator generator("FireInter", files, false, false, fire(), DtOmtProject());
    DtString cardinality = "1";
    DtString type;
    generator.determineValueType("IgPing", cardinality, type);
    QCOMPARE(type, DtString("IgPing"));
    QCOMPARE(capture.text(), QString());
}

void TestIntFileGenerator::lastRepresentationReachesTheParameter()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addSimpleTypeToRepresentationMapping("IgSpeed", "IgUnit");
    mapper.addSimpleTypeToRepresentationMapping("IgUnit", "HLAinteger16LE");
    std::set<DtString> files;
    OpenGenerator generator("FireInter", files, false, false, fire(), DtOmtProject());
    generator.addAttribute("speed", "IgSpeed", "1");
    QCOMPARE(generator.writers().front()->attributeList().front().datatypeDatatype(), DtString("HLAinteger16LE"));
}

void TestIntFileGenerator::noGenIsOneInTheEncoderHeader()
{
    myFixture->writeTemplate("hintEncHeader.tlt", "<#Attributes>[<!AttributeName!>:<!NOGEN!>]<#>");
    generateFire(false);
    QCOMPARE(myFixture->output("fireInterEncoderHLA.h"), QString("[Range:1][Target:]"));
}

void TestIntFileGenerator::noGenStaysEverywhereElse()
{
    for (const QString& name : theTemplates)
        myFixture->writeTemplate(name, "<#Attributes><!NOGEN!><#>");
    generateFire(true);
    for (const QString& file : theFiles)
        QCOMPARE(myFixture->output(file), QString(file == "fireInterEncoderHLA.h" ? "1" : "<!NOGEN!><!NOGEN!>"));
}

void TestIntFileGenerator::noGenStaysOutsideTheLoop()
{
    myFixture->writeTemplate("hintEncHeader.tlt", "<!NOGEN!>");
    generateFire(false);
    QCOMPARE(myFixture->output("fireInterEncoderHLA.h"), QString("<!NOGEN!>"));
}

void TestIntFileGenerator::customCodeReplacesGeneratedCode()
{
    DtOmtProject project;
    project.addCustomCoding("HLAinteractionRoot.Fire.range", {"encode();", "decode();"});
    const QByteArray text = "<#Attributes><?exists <!CUSTOMGENERATION!>>[<!CUSTOMGENERATIONOUTPUT!>]<?><#>";
    myFixture->writeTemplate("hintEncSource.tlt", text);
    myFixture->writeTemplate("hintDecSource.tlt", text);
    generateFire(false, project);
    QCOMPARE(myFixture->output("fireInterEncoderHLA.cxx"), QString("[encode();]"));
    QCOMPARE(myFixture->output("fireInterDecoderHLA.cxx"), QString("[decode();]"));
}

void TestIntFileGenerator::parameterWithoutCustomCodeKeepsOutputToken()
{
    myFixture->writeTemplate("hintDecSource.tlt", "<#Attributes>[<!CUSTOMGENERATION!><!CUSTOMGENERATIONOUTPUT!>]<#>");
    generateFire(false);
    QCOMPARE(myFixture->output("fireInterDecoderHLA.cxx"), QString("[<!CUSTOMGENERATIONOUTPUT!>]").repeated(2));
}

void TestIntFileGenerator::customGenerationReturnsTheFileOfTheRecord()
{
    writeTextFile(myFixture->scratch("custom.txt"), "one\n\ntwo\n");
    DtOmtInteraction interaction;
    interaction.setFullName("HLAinteractionRoot.Fire");
    DtOmtParameter parameter;
    parameter.setName("range");
    parameter.setFullName("range");
    parameter.setOwningInteraction(interaction.fullName());
    parameter.setCustomGenerationRef(qPrintable(myFixture->scratch("custom.txt")));
    interaction.addParameter(parameter);
    const DtHlaInteractionDecoderSourceWriter writer("", "", interaction);
    QCOMPARE(writer.customGeneration(DtAttribute("range", "DtU8")), DtString("one\n\ntwo\n"));
    QCOMPARE(writer.customGeneration(DtAttribute("target", "DtU8")), DtString());
}

void TestIntFileGenerator::interactionOfAWriterCanBeReplaced()
{
    DtHlaInteractionEncoderHeaderWriter encoderHeader("", "", fire());
    QCOMPARE(encoderHeader.interaction().name(), DtString("Fire"));
    encoderHeader.setInteraction(DtOmtInteraction());
    QCOMPARE(encoderHeader.interaction().name(), DtString());
    QCOMPARE(DtHlaInteractionDecoderHeaderWriter("", "", fire()).interaction().name(), DtString("Fire"));
    QCOMPARE(DtHlaInteractionEncoderSourceWriter("", "", fire()).interaction().name(), DtString("Fire"));
    QCOMPARE(DtHlaInteractionDecoderSourceWriter("", "", fire()).interaction().name(), DtString("Fire"));
}

void TestIntFileGenerator::nameHelpersGiveTheFileNames()
{
    std::set<DtString> files;
    const DtInteractionFileGenerator generator("FireInter", files, false, false, fire(), DtOmtProject());
    QCOMPARE(generator.interactionFileBaseName("Fire"), DtString("fire"));
    QCOMPARE(generator.interEncoderFileBaseName("Fire"), DtString("fireEncoder"));
    QCOMPARE(generator.interDecoderFileBaseName("HLAfire"), DtString("HLAfireDecoder"));
}

void TestIntFileGenerator::knownTokensHoldNoGen()
{
    const std::vector<DtString> tokens = DtHlaInteractionEncoderHeaderWriter("", "", fire()).tokenChain().tokens();
    QVERIFY(std::find(tokens.begin(), tokens.end(), DtString("<!NOGEN!>")) != tokens.end());
    QVERIFY(std::find(tokens.begin(), tokens.end(), DtString("<!InteractionName!>")) != tokens.end());
}

QX_REGISTER_TEST(TestIntFileGenerator)
#include "testIntFileGenerator.moc"
