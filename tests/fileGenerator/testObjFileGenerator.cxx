#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/hobjDecoderSourceWriter.h"
#include "fileGenerator/hobjEncoderHeaderWriter.h"
#include "fileGenerator/hobjEncoderSourceWriter.h"
#include "fileGenerator/objFileGenerator.h"
#include "fileGenerator/ownDecoding.h"
#include "foundation/exception.h"

#include <QtTest/QtTest>

#include <sstream>
#include <stdexcept>

// The files of one object class: which are made, what their writers know, how datatypes are resolved.
class TestObjFileGenerator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void classHasTwelveFiles();
    void writerThatDecodesGetsEveryLine();
    void classHasTwentyEightFilesWithDis();
    void everyFileComesFromItsTemplate_data();
    void everyFileComesFromItsTemplate();
    void writersStandInTheOrderOfTheTable();
    void filesExistFromConstruction();
    void nameIsListedBeforeItsWriterIsMade();
    void writerNames_data();
    void writerNames();
    void writerBases_data();
    void writerBases();
    void ownTokens_data();
    void ownTokens();
    void fullNameLosesRootInSomeFilesOnly();
    void prefixAndIncludePathEnterTheNames();
    void pduKindReachesEveryFile();
    void pduFileIsLoweredButItsIncludeIsNot();
    void dLetterHeadersAreWrittenByNoRow();
    void projectReachesTheWriters();
    void cancelStopsBehindTheFileAtHand();
    void everyWriterCompilesIncludesBeforeItWrites();
    void attributeOfMappedTypeKeepsItsCardinality();
    void openArrayCardinalityReachesTheAttribute();
    void byteOrderOfDatatypeReachesTheWireType();
    void lastRepresentationReachesTheAttribute();
    void valueTypes_data();
    void valueTypes();
    void walkOverSimpleTypesAddsMapping();
    void oldModelResolvesNothing();
    void innermostCardinalityOfNestedArraysWins();
    void cycleOfDatatypesEndsSilently_data();
    void cycleOfDatatypesEndsSilently();
    void longChainOfSimpleTypesIsWalked();
    void customCodeReplacesGeneratedCode();
    void attributeWithoutCustomCodeKeepsOutputToken();
    void customCodeStaysOutsideTheLoop();
    void customCodeIsNotScannedAgain();
    void customGenerationReturnsTheFileOfTheRecord();
    void objectOfAWriterCanBeReplaced();
    void guardPropagatesDtException();
    void guardTurnsStdExceptionIntoDtException();
    void guardTurnsUnknownExceptionIntoItsOwnType();
    void nameHelpersGiveTheFileNames();
    void knownTokensHoldCustomGeneration();

private:
    std::unique_ptr<DtGeneratorFixture> myFixture;
};

namespace
{
const QStringList theHlaFiles = {"tankEncoderHLA.h",         "tankEncoderHLA.cxx",   "tankStateRepository.cxx",
                                 "tankStateRepository.h",    "tankPublisherHLA.h",   "tankPublisherHLA.cxx",
                                 "reflectedTankHLA.h",       "reflectedTankHLA.cxx", "reflectedTankListHLA.h",
                                 "reflectedTankListHLA.cxx", "tankDecoderHLA.h",     "tankDecoderHLA.cxx"};
const QStringList theDisFiles = {
    "reflectedTankList.h",      "tankPublisher.h",    "reflectedTank.h",      "tankPublisherDIS.h",
    "tankPublisherDIS.cxx",     "tankEncoderDIS.h",   "tankEncoderDIS.cxx",   "tankDecoderDIS.h",
    "tankDecoderDIS.cxx",       "reflectedTankDIS.h", "reflectedTankDIS.cxx", "reflectedTankListDIS.h",
    "reflectedTankListDIS.cxx", "tankPdu.h",          "tankPdu.cxx",          "netTankPdu.h"};
const QStringList theHlaTemplates = {"hobjEncHeader.tlt",  "hobjEncSource.tlt", "stateRepSource.tlt",
                                     "stateRepHeader.tlt", "hpubHeader.tlt",    "hpubSource.tlt",
                                     "hrefObjHeader.tlt",  "hrefObjSource.tlt", "hrefListHeader.tlt",
                                     "hrefListSource.tlt", "hobjDecHeader.tlt", "hobjDecSource.tlt"};
const QStringList theDisTemplates = {
    "refListHeader.tlt",  "pubHeader.tlt",     "refObjHeader.tlt",  "dpubHeader.tlt",
    "dpubSource.tlt",     "dobjEncHeader.tlt", "dobjEncSource.tlt", "dobjDecHeader.tlt",
    "dobjDecSource.tlt",  "drefObjHeader.tlt", "drefObjSource.tlt", "drefListHeader.tlt",
    "drefListSource.tlt", "objPduHeader.tlt",  "objPduSource.tlt",  "netObjPduHeader.tlt"};

// The file that the template is for.
QString fileOf(const QString& templateName)
{
    return (theHlaFiles + theDisFiles).at((theHlaTemplates + theDisTemplates).indexOf(templateName));
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

QStringList listed(const std::set<DtString>& names)
{
    QStringList list;
    for (const DtString& name : names)
        list += name.c_str();
    return list;
}

// A generator whose writers can be looked at and exchanged.
class OpenGenerator : public DtObjectFileGenerator
{
public:
    using DtObjectFileGenerator::DtObjectFileGenerator;
    std::list<std::unique_ptr<DtClassFileWriter>>& writers() { return myWriters; }
};

// Notes its calls in a text; may press Cancel while it writes.
class NotingWriter : public DtClassFileWriter
{
public:
    NotingWriter(QString& notes, bool cancels) : DtClassFileWriter("", ""), myNotes(notes), myCancels(cancels) {}
    void compileIncludeList() override { myNotes += "i"; }
    void writeFile() override
    {
        myNotes += "w";
        if (myCancels)
            DtQtProgressMeter::instance()->setIsCancelled(true);
    }

private:
    QString& myNotes;
    bool myCancels;
};

// Has a decoding of its own.
class MarkingWriter : public DtClassFileWriter
{
public:
    using DtClassFileWriter::DtClassFileWriter;
    void decodeFileLine(DtString& line) override
    {
        DtClassFileWriter::decodeFileLine(line);
        line += "!";
    }
};

DtOmtObject tank()
{
    DtOmtObject object;
    object.setFullName("HLAobjectRoot.Vehicle.Tank");
    object.setName("Tank");
    return object;
}

DtOmtProject noProject()
{
    return DtOmtProject();
}
} // namespace

void TestObjFileGenerator::init()
{
    myFixture = std::make_unique<DtGeneratorFixture>();
}

void TestObjFileGenerator::cleanup()
{
    myFixture.reset();
}

void TestObjFileGenerator::classHasTwelveFiles()
{
    std::set<DtString> files;
    DtObjectFileGenerator("Tank", files, false, false, tank(), noProject()).generateFiles();
    QCOMPARE(listed(files), sorted(theHlaFiles));
    QCOMPARE(myFixture->outputs(), sorted(theHlaFiles));
    QCOMPARE(DtObjectFileGenerator::fileCount(false), 12);
}

void TestObjFileGenerator::writerThatDecodesGetsEveryLine()
{
    static_assert(hasOwnDecoding<DtClassFileWriter> && hasOwnDecoding<DtHlaObjectEncoderSourceWriter>);
    static_assert(hasOwnDecoding<DtFileWriter> && !hasOwnDecoding<MarkingWriter>);
    myFixture->writeTemplate("own.tlt", "a\nb\n<!DllExport!>\nc");
    makeWriter<MarkingWriter, DtOmtObject>("marked.txt", "../data/templates/own.tlt", tank())->writeFile();
    makeWriter<DtClassFileWriter, DtOmtObject>("plain.txt", "../data/templates/own.tlt", tank())->writeFile();
    QCOMPARE(myFixture->output("marked.txt"), QString("a!\nb!\nDT_DLL_MODEL!\nc!"));
    QCOMPARE(myFixture->output("plain.txt"), QString("a\nb\nDT_DLL_MODEL\nc"));
}

void TestObjFileGenerator::classHasTwentyEightFilesWithDis()
{
    std::set<DtString> files;
    DtObjectFileGenerator("Tank", files, false, true, tank(), noProject()).generateFiles();
    QCOMPARE(files.size(), std::size_t(28));
    QCOMPARE(myFixture->outputs(), sorted(theHlaFiles + theDisFiles));
    QCOMPARE(DtObjectFileGenerator::fileCount(true), 28);
}

void TestObjFileGenerator::everyFileComesFromItsTemplate_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("templateName");
    const QStringList files = theHlaFiles + theDisFiles;
    const QStringList templates = theHlaTemplates + theDisTemplates;
    QCOMPARE(files.size(), templates.size());
    for (int i = 0; i < files.size(); ++i)
        QTest::newRow(qPrintable(files[i])) << files[i] << templates[i];
}

void TestObjFileGenerator::everyFileComesFromItsTemplate()
{
    QFETCH(QString, file);
    QFETCH(QString, templateName);
    myFixture->writeTemplate(templateName, "from " + templateName.toUtf8());
    std::set<DtString> files;
    DtObjectFileGenerator("Tank", files, false, true, tank(), noProject()).generateFiles();
    QCOMPARE(myFixture->output(file), "from " + templateName);
}

void TestObjFileGenerator::writersStandInTheOrderOfTheTable()
{
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, true, tank(), noProject());
    QStringList names;
    for (const auto& writer : generator.writers())
        names += writer->fileName().c_str();
    QCOMPARE(names, theHlaFiles + theDisFiles);
}

void TestObjFileGenerator::filesExistFromConstruction()
{
    std::set<DtString> files;
    const DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
    QCOMPARE(myFixture->outputs(), sorted(theHlaFiles));
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString());
}

void TestObjFileGenerator::nameIsListedBeforeItsWriterIsMade()
{
    // A name with ".." leads out of the output directory: it gets no file, but it is listed.
    const DtCapture capture(DtWarn);
    std::set<DtString> files;
    const DtObjectFileGenerator generator("../../Tank", files, false, false, tank(), noProject());
    QVERIFY(files.count("../../TankEncoderHLA.h") + files.count("../../tankEncoderHLA.h") == 1);
    QVERIFY(!QFile::exists(myFixture->scratch("../TankEncoderHLA.h")));
}

void TestObjFileGenerator::writerNames_data()
{
    QTest::addColumn<QString>("templateName");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("className");
    // The front header of the list is named like the publisher.
    const struct
    {
        const char* name;
        QString templateName, file, className;
    } theRows[] = {
        {"encoder header",       "hobjEncHeader.tlt",  "tankEncoderHLA.h",         "DtTankEncoder"        },
        {"encoder source",       "hobjEncSource.tlt",  "tankEncoderHLA.cxx",       "DtTankEncoder"        },
        {"state source",         "stateRepSource.tlt", "tankStateRepository.cxx",  "DtTankStateRepository"},
        {"state header",         "stateRepHeader.tlt", "tankStateRepository.h",    "DtTankStateRepository"},
        {"publisher header",     "hpubHeader.tlt",     "tankPublisherHLA.h",       "DtTankPublisher"      },
        {"publisher source",     "hpubSource.tlt",     "tankPublisherHLA.cxx",     "DtTankPublisher"      },
        {"object header",        "hrefObjHeader.tlt",  "reflectedTankHLA.h",       "DtReflectedTank"      },
        {"object source",        "hrefObjSource.tlt",  "reflectedTankHLA.cxx",     "DtReflectedTank"      },
        {"list header",          "hrefListHeader.tlt", "reflectedTankListHLA.h",   "DtReflectedTankList"  },
        {"list source",          "hrefListSource.tlt", "reflectedTankListHLA.cxx", "DtReflectedTankList"  },
        {"decoder header",       "hobjDecHeader.tlt",  "tankDecoderHLA.h",         "DtTankDecoder"        },
        {"decoder source",       "hobjDecSource.tlt",  "tankDecoderHLA.cxx",       "DtTankDecoder"        },
        {"list front",           "refListHeader.tlt",  "reflectedTankList.h",      "DtTankPublisher"      },
        {"publisher front",      "pubHeader.tlt",      "tankPublisher.h",          "Tank"                 },
        {"object front",         "refObjHeader.tlt",   "reflectedTank.h",          "DtTankReflectedObject"},
        {"DIS publisher",        "dpubHeader.tlt",     "tankPublisherDIS.h",       "DtTankPublisher"      },
        {"DIS publisher source", "dpubSource.tlt",     "tankPublisherDIS.cxx",     "DtTankPublisher"      },
        {"DIS encoder",          "dobjEncHeader.tlt",  "tankEncoderDIS.h",         "Tank"                 },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.templateName << row.file << row.className;
}

void TestObjFileGenerator::writerNames()
{
    QFETCH(QString, templateName);
    QFETCH(QString, file);
    QFETCH(QString, className);
    myFixture->writeTemplate(templateName, "<!ClassName!>");
    std::set<DtString> files;
    DtObjectFileGenerator("Tank", files, false, true, tank(), noProject()).generateFiles();
    QCOMPARE(myFixture->output(file), className);
}

void TestObjFileGenerator::writerBases_data()
{
    QTest::addColumn<QString>("templateName");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("below");
    const QString encoder = "DtHlaStateEncoder <qx/hlaStateEncoder.h>";
    const QString decoder = "DtHlaStateDecoder <qx/hlaStateDecoder.h>";
    const QString state = "DtStateRepository <qx/stateRepository.h>";
    const QString encoderBelow = "DtVehicleEncoder \"vehicleEncoderHLA.h\"";
    const QString decoderBelow = "DtVehicleDecoder \"vehicleDecoderHLA.h\"";
    const QString stateBelow = "DtVehicleStateRepository \"vehicleStateRepository.h\"";
    const struct
    {
        const char* name;
        QString templateName, file, top, below;
    } theRows[] = {
        {"encoder header", "hobjEncHeader.tlt",  "tankEncoderHLA.h",        encoder,              encoderBelow       },
        {"encoder source", "hobjEncSource.tlt",  "tankEncoderHLA.cxx",      "DtHlaStateEncoder ", "DtVehicleEncoder "},
        {"decoder header", "hobjDecHeader.tlt",  "tankDecoderHLA.h",        decoder,              decoderBelow       },
        {"decoder source", "hobjDecSource.tlt",  "tankDecoderHLA.cxx",      "DtHlaStateDecoder ", "DtVehicleDecoder "},
        {"state header",   "stateRepHeader.tlt", "tankStateRepository.h",   state,                stateBelow         },
        {"state source",   "stateRepSource.tlt", "tankStateRepository.cxx", state,                stateBelow         },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.templateName << row.file << row.top << row.below;
    const QString none = " ";
    for (const QString name : {"hpubHeader.tlt tankPublisherHLA.h", "hrefObjHeader.tlt reflectedTankHLA.h",
                               "hrefListSource.tlt reflectedTankListHLA.cxx", "dpubHeader.tlt tankPublisherDIS.h",
                               "refListHeader.tlt reflectedTankList.h", "refObjHeader.tlt reflectedTank.h"})
        QTest::newRow(qPrintable(name)) << name.section(' ', 0, 0) << name.section(' ', 1) << none << none;
}

void TestObjFileGenerator::writerBases()
{
    QFETCH(QString, templateName);
    QFETCH(QString, file);
    QFETCH(QString, top);
    QFETCH(QString, below);
    myFixture->writeTemplate(templateName, "<!BaseClassName!> <!BaseClassHeader!>");
    for (const bool isTop : {true, false})
    {
        {
            std::set<DtString> files;
            DtObjectFileGenerator generator("Tank", files, false, true, tank(), noProject());
            generator.setParentClassName(isTop ? "ObjectRoot" : "Vehicle");
            generator.generateFiles();
        }
        QCOMPARE(myFixture->output(file), isTop ? top : below);
    }
}

void TestObjFileGenerator::ownTokens_data()
{
    QTest::addColumn<QString>("templateName");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const QString ofObject = "<!ObjName!> <!CbName!>";
    const QString ofList = "<!CbName!> <!ObjName!> <!RefObjName!> <!RefObjHeader!>";
    const QString ofListFront = "<!HlaRefList!> <!DisRefList!>";
    const QString ofObjectFront = "<!HlaRefObj!> <!DisRefObj!>";
    const QString listNames = "DtXTankCallbackFunction Tank DtReflectedXTank ";
    const struct
    {
        const char* name;
        QString templateName, text, expected;
    } theRows[] = {
        {"object header",        "hrefObjHeader.tlt",  ofObject,      "Tank DtXTankCallbackFunction"             },
        {"object source",        "hrefObjSource.tlt",  ofObject,      "Tank DtXTankCallbackFunction"             },
        {"list header",          "hrefListHeader.tlt", ofList,        listNames + "kit/reflectedTankHLA.h"       },
        {"list source",          "hrefListSource.tlt", ofList,        listNames + "<!RefObjHeader!>"             },
        {"list front",           "refListHeader.tlt",  ofListFront,   "reflectedTankListHLA reflectedTankListDIS"},
        {"object front",         "refObjHeader.tlt",   ofObjectFront, "reflectedTankHLA reflectedTankDIS"        },
        {"publisher knows none", "hpubHeader.tlt",     "<!ObjName!>", "<!ObjName!>"                              },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.templateName << fileOf(row.templateName) << row.text << row.expected;
}

void TestObjFileGenerator::ownTokens()
{
    QFETCH(QString, templateName);
    QFETCH(QString, file);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    DtOMTEnvWriter::setPrefixName("X");
    DtOMTEnvWriter::setIncludeName("kit");
    myFixture->writeTemplate(templateName, text.toUtf8());
    std::set<DtString> files;
    DtObjectFileGenerator("Tank", files, false, true, tank(), noProject()).generateFiles();
    QCOMPARE(myFixture->output(file.endsWith(".h") ? "kit/" + file : file), expected);
}

void TestObjFileGenerator::fullNameLosesRootInSomeFilesOnly()
{
    for (const QString& name : theHlaTemplates + theDisTemplates)
        myFixture->writeTemplate(name, "<!FullClassName!>");
    {
        std::set<DtString> files;
        DtObjectFileGenerator generator("Tank", files, false, true, tank(), noProject());
        generator.setFullClassName("HLAobjectRoot.Vehicle.Tank");
        generator.generateFiles();
    }
    QStringList withoutRoot;
    for (const QString& file : theHlaFiles + theDisFiles)
    {
        if (myFixture->output(file) == "Vehicle.Tank")
            withoutRoot += file;
        else
            QCOMPARE(myFixture->output(file), QString("HLAobjectRoot.Vehicle.Tank"));
    }
    QCOMPARE(withoutRoot, QStringList({"tankStateRepository.cxx", "tankStateRepository.h", "tankPublisherHLA.h",
                                       "tankPublisherHLA.cxx", "reflectedTankListHLA.cxx", "reflectedTankList.h",
                                       "reflectedTank.h", "tankPublisherDIS.h", "tankPublisherDIS.cxx"}));
}

void TestObjFileGenerator::prefixAndIncludePathEnterTheNames()
{
    DtOMTEnvWriter::setPrefixName("X");
    DtOMTEnvWriter::setIncludeName("kit");
    myFixture->writeTemplate("hobjEncHeader.tlt", "<!ClassName!> <!BaseClassName!> <!BaseClassHeader!>");
    {
        std::set<DtString> files;
        DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
        generator.setParentClassName("Vehicle");
        generator.generateFiles();
    }
    QCOMPARE(myFixture->output("kit/tankEncoderHLA.h"),
             QString("DtXTankEncoder DtXVehicleEncoder \"kit/vehicleEncoderHLA.h\""));
}

void TestObjFileGenerator::pduKindReachesEveryFile()
{
    for (const QString& name : theHlaTemplates)
        myFixture->writeTemplate(name, "<!PduKind!>");
    {
        std::set<DtString> files;
        DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
        generator.setPduKind(42);
        generator.generateFiles();
    }
    for (const QString& file : theHlaFiles)
        QCOMPARE(myFixture->output(file), QString("42"));
}

void TestObjFileGenerator::pduFileIsLoweredButItsIncludeIsNot()
{
    myFixture->writeTemplate("objPduSource.tlt", "<!PduHeader!>.h");
    std::set<DtString> files;
    DtObjectFileGenerator("Tank", files, false, true, tank(), noProject()).generateFiles();
    QCOMPARE(myFixture->output("tankPdu.cxx"), QString("TankPdu.h"));
    QVERIFY(!myFixture->hasOutput("TankPdu.h"));
}

void TestObjFileGenerator::dLetterHeadersAreWrittenByNoRow()
{
    myFixture->writeTemplate("dobjEncHeader.tlt", "<!BaseEncoderClassHeader!>");
    {
        std::set<DtString> files;
        DtObjectFileGenerator generator("Tank", files, false, true, tank(), noProject());
        generator.setParentClassName("Tank");
        generator.generateFiles();
    }
    QCOMPARE(myFixture->output("tankEncoderDIS.h"), QString("\"dtankEncoder.h\""));
    QVERIFY(!myFixture->hasOutput("dtankEncoder.h"));
}

void TestObjFileGenerator::projectReachesTheWriters()
{
    DtOmtProject project;
    project.addFomDefFile("first.xml", "dir");
    project.addFomDefFile("second.xml", "dir");
    myFixture->writeTemplate("hpubHeader.tlt", "<!FedFileName!><#FomModules>,<!FomModule!><#>");
    std::set<DtString> files;
    DtObjectFileGenerator("Tank", files, false, false, tank(), project).generateFiles();
    QCOMPARE(myFixture->output("tankPublisherHLA.h"), QString("first.xml,second.xml"));
}

void TestObjFileGenerator::cancelStopsBehindTheFileAtHand()
{
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.writers().clear();
    QString notes;
    for (int i = 1; i <= 12; ++i)
        generator.writers().push_back(std::make_unique<NotingWriter>(notes, i == 5));
    generator.generateFiles();
    QCOMPARE(notes, QString("iw").repeated(5));
}

void TestObjFileGenerator::everyWriterCompilesIncludesBeforeItWrites()
{
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.writers().clear();
    QString notes;
    for (int i = 0; i < 3; ++i)
        generator.writers().push_back(std::make_unique<NotingWriter>(notes, false));
    generator.generateFiles();
    QCOMPARE(notes, QString("iwiwiw"));
}

void TestObjFileGenerator::attributeOfMappedTypeKeepsItsCardinality()
{
    DtDataTypeMapper::instance()->addMapping("OgMapped", "DtU32");
    myFixture->writeTemplate("stateRepHeader.tlt", "<#Attributes><!AttributeName!> <!AttributeDatatype!> "
                                                   "<!AttributeFomDatatype!> <!AttributeNumCardinality!>;<#>");
    {
        std::set<DtString> files;
        DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
        generator.addAttribute("speed", "OgMapped", "3");
        generator.addAttribute("fuel", "OgMapped", "1");
        generator.generateFiles();
    }
    QCOMPARE(myFixture->output("tankStateRepository.h"), QString("Speed DtU32 OgMapped 3;Fuel DtU32 OgMapped 1;"));
}

void TestObjFileGenerator::openArrayCardinalityReachesTheAttribute()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addMapping("OgElement", "DtU16");
    mapper.addArrayTypeToRepresentationMapping("OgOpen", "OgElement");
    mapper.addArrayTypeToCardinalityMapping("OgOpen", "Dynamic");
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.addAttribute("speeds", "OgOpen", "1");
    for (const auto& writer : generator.writers())
    {
        QCOMPARE(writer->attributeList().size(), std::size_t(1));
        QCOMPARE(writer->attributeList().front().cardinality(), DtString("0+"));
        QVERIFY(writer->attributeList().front().hasPlusCardinality());
        QCOMPARE(writer->attributeList().front().type(), DtString("DtU16"));
    }
}

void TestObjFileGenerator::byteOrderOfDatatypeReachesTheWireType()
{
    DtDataTypeMapper::instance()->addMapping("HLAinteger32LE", "DtInt32");
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.addAttribute("speed", "HLAinteger32LE", "1");
    QCOMPARE(generator.writers().front()->attributeList().front().netType(), DtString("DtLEInt32"));
}

void TestObjFileGenerator::lastRepresentationReachesTheAttribute()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addSimpleTypeToRepresentationMapping("OgSpeed", "OgUnit");
    mapper.addSimpleTypeToRepresentationMapping("OgUnit", "HLAinteger16LE");
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.addAttribute("speed", "OgSpeed", "1");
    QCOMPARE(generator.writers().front()->attributeList().front().datatypeDatatype(), DtString("HLAinteger16LE"));
}

void TestObjFileGenerator::valueTypes_data()
{
    QTest::addColumn<QString>("datatype");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("cardinality");
    const struct
    {
        const char* name;
        QString datatype, type, cardinality;
    } theRows[] = {
        {"unknown, in silence",            "OgUnknown",           "OgUnknown",           "1" },
        {"simple over mapped",             "OgSimple",            "DtU32",               "1" },
        {"simple over simple",             "OgSimpleOfSimple",    "DtU32",               "1" },
        {"simple over unknown",            "OgLoneSimple",        "OgUnknown",           "1" },
        {"array of mapped",                "OgArray",             "DtU32",               "7" },
        {"open array of mapped",           "OgOpenArray",         "DtU32",               "0+"},
        {"array of simple over mapped",    "OgArrayOfSimple",     "DtU32",               "5" },
        {"array of simple without target", "OgArrayOfLoneSimple", "OgArrayOfLoneSimple", "4" },
        {"array of unknown",               "OgArrayOfUnknown",    "OgArrayOfUnknown",    "3" },
        {"simple over array of unknown",   "OgSimpleOfArray",     "OgArrayOfUnknown",    "3" },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.datatype << row.type << row.cardinality;
}

void TestObjFileGenerator::valueTypes()
{
    QFETCH(QString, datatype);
    QFETCH(QString, type);
    QFETCH(QString, cardinality);
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addMapping("OgBase", "DtU32");
    for (const auto& [name, representation] :
         {std::pair("OgSimple", "OgBase"), std::pair("OgSimpleOfSimple", "OgSimple"),
          std::pair("OgLoneSimple", "OgUnknown"), std::pair("OgSimpleOfArray", "OgArrayOfUnknown")})
        mapper.addSimpleTypeToRepresentationMapping(name, representation);
    struct Array
    {
        const char *name, *element, *cardinality;
    };
    for (const Array& array : {
             Array{"OgArray",             "OgBase",       "7"      },
             Array{"OgOpenArray",         "OgBase",       "Dynamic"},
             Array{"OgArrayOfSimple",     "OgSimple",     "5"      },
             Array{"OgArrayOfLoneSimple", "OgLoneSimple", "4"      },
             Array{"OgArrayOfUnknown",    "OgUnknown",    "3"      }
    })
    {
        mapper.addArrayTypeToRepresentationMapping(array.name, array.element);
        mapper.addArrayTypeToCardinalityMapping(array.name, array.cardinality);
    }
    const DtCapture capture(DtWarn);
    std::set<DtString> files;
    DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
    DtString foundCardinality = "1";
    DtString foundType;
    generator.determineValueType(qPrintable(datatype), foundCardinality, foundType);
    QCOMPARE(QString(foundType.c_str()), type);
    QCOMPARE(QString(foundCardinality.c_str()), cardinality);
    QCOMPARE(capture.text(), QString());
}

void TestObjFileGenerator::walkOverSimpleTypesAddsMapping()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addMapping("OgBase", "DtU32");
    mapper.addSimpleTypeToRepresentationMapping("OgSimple", "OgBase");
    mapper.addSimpleTypeToRepresentationMapping("OgSimpleOfSimple", "OgSimple");
    std::set<DtString> files;
    DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.addAttribute("speed", "OgSimpleOfSimple", "1");
    // The last simple type of the walk is mapped, the one it started from is not.
    QCOMPARE(mapper.quorvexType("OgSimple"), DtString("DtU32"));
    QVERIFY(!mapper.hasMapping("OgSimpleOfSimple"));
}

void TestObjFileGenerator::oldModelResolvesNothing()
{
    DtOMTEnvWriter::setFomDefinitionFileName("model.omt");
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addMapping("OgBase", "DtU32");
    mapper.addSimpleTypeToRepresentationMapping("OgSimple", "OgBase");
    const DtCapture capture(DtWarn);
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.addAttribute("speed", "OgSimple", "1");
    generator.addAttribute("fuel", "OgBase", "1");
    const std::vector<DtAttribute>& attributes = generator.writers().front()->attributeList();
    QCOMPARE(attributes.front().type(), DtString("OgSimple"));
    QCOMPARE(attributes.back().type(), DtString("DtU32"));
    QCOMPARE(capture.text(), QString("Warning: Cannot determine type: OgSimple.\n"));
}

void TestObjFileGenerator::innermostCardinalityOfNestedArraysWins()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addArrayTypeToRepresentationMapping("OgOuter", "OgInner");
    mapper.addArrayTypeToCardinalityMapping("OgOuter", "2");
    mapper.addArrayTypeToRepresentationMapping("OgInner", "OgNothing");
    mapper.addArrayTypeToCardinalityMapping("OgInner", "9");
    std::set<DtString> files;
    DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
    DtString cardinality = "1";
    DtString type;
    generator.determineValueType("OgOuter", cardinality, type);
    QCOMPARE(type, DtString("OgOuter"));
    QCOMPARE(cardinality, DtString("9"));
}

void TestObjFileGenerator::cycleOfDatatypesEndsSilently_data()
{
    QTest::addColumn<QString>("datatype");
    QTest::addColumn<QString>("type");
    const struct
    {
        const char* name;
        QString datatype, type;
    } theRows[] = {
        {"simple over itself",                    "OgSelf",      "OgSelf"     },
        {"two simple types",                      "OgPing",      "OgPing"     },
        {"array of itself",                       "OgSelfArray", "OgSelfArray"},
        {"array of a simple type over the array", "OgRing",      "OgRing"     },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.datatype << row.type;
}

void TestObjFileGenerator::cycleOfDatatypesEndsSilently()
{
    QFETCH(QString, datatype);
    QFETCH(QString, type);
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addSimpleTypeToRepresentationMapping("OgSelf", "OgSelf");
    mapper.addSimpleTypeToRepresentationMapping("OgPing", "OgPong");
    mapper.addSimpleTypeToRepresentationMapping("OgPong", "OgPing");
    mapper.addArrayTypeToRepresentationMapping("OgSelfArray", "OgSelfArray");
    mapper.addArrayTypeToRepresentationMapping("OgRing", "OgRingPart");
    mapper.addSimpleTypeToRepresentationMapping("OgRingPart", "OgRing");
    const DtCapture capture(DtWarn);
    std::set<DtString> files;
    OpenGenerator generator("Tank", files, false, false, tank(), noProject());
    generator.addAttribute("part", qPrintable(datatype), "1");
    QCOMPARE(QString(generator.writers().front()->attributeList().front().type().c_str()), type);
    QCOMPARE(capture.text(), QString());
}

void TestObjFileGenerator::longChainOfSimpleTypesIsWalked()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const int length = 20000;
    for (int i = 0; i < length; ++i)
        mapper.addSimpleTypeToRepresentationMapping("OgChain" + DtString(i), "OgChain" + DtString(i + 1));
    mapper.addMapping("OgChain" + DtString(length), "DtU8");
    std::set<DtString> files;
    DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
    DtString cardinality = "1";
    DtString type;
    generator.determineValueType("OgChain0", cardinality, type);
    QCOMPARE(type, DtString("DtU8"));
}

namespace
{
const QByteArray theCustomTemplate =
    "<#Attributes>[<!AttributeName!>:<!CUSTOMGENERATION!>:<!CUSTOMGENERATIONOUTPUT!>]<#>";

void generateTank(const DtOmtProject& project)
{
    std::set<DtString> files;
    DtObjectFileGenerator generator("Tank", files, false, false, tank(), project);
    generator.addAttribute("speed", "OgUnknown", "1");
    generator.addAttribute("fuel", "OgUnknown", "1");
    generator.generateFiles();
}
} // namespace

void TestObjFileGenerator::customCodeReplacesGeneratedCode()
{
    DtOmtProject project;
    project.addCustomCoding("HLAobjectRoot.Vehicle.Tank.speed", {"encode();", "decode();"});
    myFixture->writeTemplate("hobjEncSource.tlt", theCustomTemplate);
    myFixture->writeTemplate("hobjDecSource.tlt", theCustomTemplate);
    myFixture->writeTemplate("hobjEncHeader.tlt", "<#Attributes><!CUSTOMGENERATION!><#>");
    generateTank(project);
    QVERIFY(myFixture->output("tankEncoderHLA.cxx").startsWith("[Speed:1:encode();]"));
    QVERIFY(myFixture->output("tankDecoderHLA.cxx").startsWith("[Speed:1:decode();]"));
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("<!CUSTOMGENERATION!>").repeated(2));
}

void TestObjFileGenerator::attributeWithoutCustomCodeKeepsOutputToken()
{
    DtOmtProject project;
    project.addCustomCoding("HLAobjectRoot.Vehicle.Tank.speed", {"", ""});
    myFixture->writeTemplate("hobjEncSource.tlt", theCustomTemplate);
    generateTank(project);
    QCOMPARE(myFixture->output("tankEncoderHLA.cxx"), QString("[Speed:1:][Fuel::<!CUSTOMGENERATIONOUTPUT!>]"));
}

void TestObjFileGenerator::customCodeStaysOutsideTheLoop()
{
    DtOmtProject project;
    project.addCustomCoding("HLAobjectRoot.Vehicle.Tank.speed", {"encode();", "decode();"});
    myFixture->writeTemplate("hobjEncSource.tlt", "<!CUSTOMGENERATION!><!CUSTOMGENERATIONOUTPUT!>");
    generateTank(project);
    QCOMPARE(myFixture->output("tankEncoderHLA.cxx"), QString("<!CUSTOMGENERATION!><!CUSTOMGENERATIONOUTPUT!>"));
}

void TestObjFileGenerator::customCodeIsNotScannedAgain()
{
    DtOmtProject project;
    project.addCustomCoding("HLAobjectRoot.Vehicle.Tank.speed", {"<!ClassName!> <!CUSTOMGENERATION!>", ""});
    myFixture->writeTemplate("hobjEncSource.tlt", theCustomTemplate);
    generateTank(project);
    QVERIFY(myFixture->output("tankEncoderHLA.cxx").startsWith("[Speed:1:<!ClassName!> <!CUSTOMGENERATION!>]"));
}

void TestObjFileGenerator::customGenerationReturnsTheFileOfTheRecord()
{
    writeTextFile(myFixture->scratch("custom.txt"), "one\ntwo");
    DtOmtObject object = tank();
    DtOmtAttribute attribute;
    attribute.setName("speed");
    attribute.setFullName("speed");
    attribute.setOwningObject(object.fullName());
    attribute.setCustomGenerationRef(qPrintable(myFixture->scratch("custom.txt")));
    object.addAttribute(attribute);
    const DtHlaObjectEncoderSourceWriter writer("", "", object);
    QCOMPARE(writer.customGeneration(DtAttribute("speed", "DtU8")), DtString("one\ntwo\n"));
    QCOMPARE(writer.customGeneration(DtAttribute("fuel", "DtU8")), DtString());
}

void TestObjFileGenerator::objectOfAWriterCanBeReplaced()
{
    DtHlaObjectDecoderSourceWriter writer("", "", tank());
    QCOMPARE(writer.object().fullName(), DtString("HLAobjectRoot.Vehicle.Tank"));
    writer.setObject(DtOmtObject());
    QCOMPARE(writer.object().fullName(), DtString());
    const DtHlaObjectEncoderHeaderWriter header("", "", tank());
    QCOMPARE(header.object().name(), DtString("Tank"));
}

void TestObjFileGenerator::guardPropagatesDtException()
{
    try
    {
        DtFileGenerator::guardConstruction("Foo::Foo(int)", "dir/foo.cxx", 12, [] { throw DtException("cause"); });
        QFAIL("nothing thrown");
    }
    catch (const DtException& exception)
    {
        QCOMPARE(QString(exception.what()), QString("DtException: Propagating DtException."));
        QVERIFY(QString(exception.where().c_str()).contains("Foo::Foo(int)"));
        QVERIFY(QString(exception.where().c_str()).contains("foo.cxx:12"));
        QVERIFY(exception.previous() != nullptr);
        QCOMPARE(QString(exception.previous()->what()), QString("DtException: cause"));
    }
}

void TestObjFileGenerator::guardTurnsStdExceptionIntoDtException()
{
    try
    {
        DtFileGenerator::guardConstruction("Foo::Foo(int)", "foo.cxx", 12, [] { throw std::runtime_error("no disk"); });
        QFAIL("nothing thrown");
    }
    catch (const DtException& exception)
    {
        QCOMPARE(QString(exception.what()), QString("DtException: std::exception no disk"));
        QVERIFY(exception.previous() == nullptr);
    }
}

void TestObjFileGenerator::guardTurnsUnknownExceptionIntoItsOwnType()
{
    try
    {
        DtFileGenerator::guardConstruction("Foo::Foo(int)", "foo.cxx", 12, [] { throw 5; });
        QFAIL("nothing thrown");
    }
    catch (const DtTemplatedException<-2>& exception)
    {
        QCOMPARE(QString(exception.what()), QString("DtException: Caught Unknown Exception."));
        QVERIFY(exception.previous() == nullptr);
    }
}

void TestObjFileGenerator::nameHelpersGiveTheFileNames()
{
    std::set<DtString> files;
    const DtObjectFileGenerator generator("Tank", files, false, false, tank(), noProject());
    QCOMPARE(generator.stateRepositoryFileBaseName("Tank"), DtString("tankStateRepository"));
    QCOMPARE(generator.publisherFileBaseName("Tank"), DtString("tankPublisher"));
    QCOMPARE(generator.refObjFileBaseName("Tank"), DtString("reflectedTank"));
    QCOMPARE(generator.refListFileBaseName("Tank"), DtString("reflectedTankList"));
    QCOMPARE(generator.encoderFileBaseName("HLAtank"), DtString("HLAtankEncoder"));
    QCOMPARE(generator.decoderFileBaseName("Tank"), DtString("tankDecoder"));
}

void TestObjFileGenerator::knownTokensHoldCustomGeneration()
{
    const std::vector<DtString> tokens = DtHlaObjectEncoderSourceWriter("", "", tank()).tokenChain().tokens();
    QVERIFY(std::find(tokens.begin(), tokens.end(), DtString("<!CUSTOMGENERATIONOUTPUT!>")) != tokens.end());
    QVERIFY(std::find(tokens.begin(), tokens.end(), DtString("<!ClassName!>")) != tokens.end());
}

QX_REGISTER_TEST(TestObjFileGenerator)
#include "testObjFileGenerator.moc"
