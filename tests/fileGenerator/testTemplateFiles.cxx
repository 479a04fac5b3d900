// The shipped templates and their documentation against the tokens and loops of the writers that open them, and the
// shipped project templates as they come out.

#include "registerTest.h"

#include "generatorFixture.h"
#include "shippedScripts.h"
#include "templateScanner.h"
#include "writerProbe.h"

#include "fileGenerator/arrayDataTypeFileWriter.h"
#include "fileGenerator/basicDataTypeFileWriter.h"
#include "fileGenerator/complexDataTypeFileWriter.h"
#include "fileGenerator/dintHeaderFileWriter.h"
#include "fileGenerator/dintSourceFileWriter.h"
#include "fileGenerator/dpubWriter.h"
#include "fileGenerator/enumFileWriter.h"
#include "fileGenerator/exMakefileWriter.h"
#include "fileGenerator/examplesProjWriter.h"
#include "fileGenerator/fixedRecordsFileWriter.h"
#include "fileGenerator/hintDecHeaderWriter.h"
#include "fileGenerator/hintDecSourceWriter.h"
#include "fileGenerator/hintEncHeaderWriter.h"
#include "fileGenerator/hintEncSourceWriter.h"
#include "fileGenerator/hintHeaderFileWriter.h"
#include "fileGenerator/hintSourceFileWriter.h"
#include "fileGenerator/hobjDecoderHeaderWriter.h"
#include "fileGenerator/hobjDecoderSourceWriter.h"
#include "fileGenerator/hobjEncoderHeaderWriter.h"
#include "fileGenerator/hobjEncoderSourceWriter.h"
#include "fileGenerator/hpubWriter.h"
#include "fileGenerator/hrefListHeaderWriter.h"
#include "fileGenerator/hrefListSourceWriter.h"
#include "fileGenerator/hrefObjWriter.h"
#include "fileGenerator/intHeaderFileWriter.h"
#include "fileGenerator/intSourceFileWriter.h"
#include "fileGenerator/makeFileWriter.h"
#include "fileGenerator/projectFileWriter.h"
#include "fileGenerator/refListHeaderWriter.h"
#include "fileGenerator/refObjHeaderWriter.h"
#include "fileGenerator/simpleDataTypeFileWriter.h"
#include "fileGenerator/solutionsFileWriter.h"
#include "fileGenerator/srHeaderFileWriter.h"
#include "fileGenerator/variantRecordFileWriter.h"

#include <QtCore/QXmlStreamReader>
#include <QtTest/QtTest>

namespace
{
using Names = DtTemplateRules::Names;

const QString theTemplates = QStringLiteral(QX_SOURCE_DIR "/data/templates");

Names namesOf(const std::vector<DtString>& tokens)
{
    Names names;
    for (const DtString& token : tokens)
        names.insert(text(token));
    return names;
}

// The tokens of a writer that is no class writer: those that a loop sets are named here, all others are free.
DtTemplateRules rulesOf(const DtFileWriter& writer, const std::map<QString, Names>& loops)
{
    DtTemplateRules rules;
    rules.freeTokens = namesOf(writer.tokenChain().tokens());
    rules.loops = loops;
    for (const auto& [loop, ofLoop] : loops)
        for (const QString& token : ofLoop)
            rules.freeTokens.erase(token);
    return rules;
}

DtTemplateRules baseRules()
{
    return rulesOf(DtFileWriter("", ""), {});
}

DtTemplateRules enumRules()
{
    DtTemplateRules rules =
        rulesOf(DtEnumerationFileWriter(""),
                {
                    {"Enumeration",
                     {"<!EnumerationName!>", "<!EnumerationTypeName!>", "<!EnumerationIsRepeated!>",
                      "<!EnumerationOctets!>", "<!EnumerationIsSigned!>", "<!EnumerationIsLittleEndian!>"}},
                    {"EnumerationField",
                     {"<!EnumerationFieldName!>", "<!EnumerationFieldIdentifier!>", "<!EnumerationFieldText!>",
                      "<!EnumerationFieldValue!>"}                                                        }
    });
    rules.parents = {
        {"EnumerationField", "Enumeration"}
    };
    return rules;
}

DtTemplateRules projectRules()
{
    const Names ofFile = {"<!FileName!>", "<!DatatypeFile!>"};
    return rulesOf(DtProjectFileWriter("",
                                       {
    },
                                       9),
                   {{"Files", ofFile}, {"FilesH", ofFile}, {"FilesCXX", ofFile}});
}

DtTemplateRules makefileRules()
{
    const RunSettings settings; // the writer opens two lists of files
    return rulesOf(DtMakefileWriter("", {}), {});
}

DtTemplateRules exampleMakefileRules()
{
    return rulesOf(DtExamplesMakefileWriter(""), {});
}

DtTemplateRules exampleProjectRules()
{
    return rulesOf(DtExamplesProjectFileWriter("", "", DtOmtObject()), {});
}

DtTemplateRules solutionRules()
{
    return rulesOf(DtSolutionsFileWriter("", ""), {
                                                      {"Objects",      {"<!Object!>", "<!UUID1!>", "<!UUID2!>"}     },
                                                      {"Interactions", {"<!Interaction!>", "<!UUID1!>", "<!UUID2!>"}}
    });
}

// The custom code window has a table of its own, which its tests compare with these templates.
DtTemplateRules customCodeRules()
{
    DtTemplateRules rules;
    rules.freeTokens = {
        "<!AttributeDatatypeEnum!>",
        "<!AttributeName!>",
        "<!attributeName!>",
        "<!AttributeDatatype!>",
        "<!EnumerationRep!>",
        "<!enumerationRep!>",
        "<!EncClassName!>",
        "<!DecClassName!>",
        "<!EncInterClassName!>",
        "<!DecInterClassName!>",
        "<!StateRepName!>",
        "<!InteractionName!>",
        "<!Prefix!>",
        "<!AttributeElementCount!>",
        "<!AttributeDatatypeDatatype!>",
        "<!AttributeOctets!>",
        "<!AttributeEncoding!>",
        "<!AttributeIsLittleEndian!>",
        "<!AttributeLayout!>",
        "<!AttributeWireEncoding!>",
    };
    return rules;
}

void moveTokens(DtTemplateRules& rules, const QString& loop, const Names& tokens)
{
    for (const QString& token : tokens)
        if (rules.freeTokens.erase(token) > 0)
            rules.loops[loop].insert(token);
}

// A project whose modules and hand-written text make every token that asks it known.
DtOmtProject askedProject()
{
    DtOmtProject project;
    project.addFomDefFile("a.xml", "");
    project.addFomDefFile("b.xml", "");
    for (const char* key : {".", ".x"})
        project.addCustomCoding(key, {"encode", "decode"});
    return project;
}

template <class Writer>
std::unique_ptr<AttributeProbe<Writer>> makeProbe()
{
    if constexpr (std::is_same_v<Writer, DtArrayDataTypeFileWriter>)
        return std::make_unique<AttributeProbe<Writer>>("", "", "HLAfixedArray");
    else if constexpr (std::is_constructible_v<Writer, DtString, DtString, DtOmtObject>)
        return std::make_unique<AttributeProbe<Writer>>("", "", DtOmtObject());
    else if constexpr (std::is_constructible_v<Writer, DtString, DtString, DtOmtInteraction>)
        return std::make_unique<AttributeProbe<Writer>>("", "", DtOmtInteraction());
    else
        return std::make_unique<AttributeProbe<Writer>>("", "");
}

template <class Probe>
Names replacedTokens(Probe& probe, const Names& tokens)
{
    Names replaced;
    for (const QString& token : tokens)
        if (probe.decode(qPrintable(token)) != token)
            replaced.insert(token);
    return replaced;
}

// Asks the writer itself: what it replaces without an attribute is free, the rest belongs to "Attributes".
template <class Writer>
DtTemplateRules classRules()
{
    const RunSettings settings;
    const auto probe = makeProbe<Writer>();
    probe->setOriginalName("HLAtoken"); // an array of tokens has a token more
    probe->setOmtProject(askedProject());
    const Names known = namesOf(probe->tokenChain().tokens());
    DtTemplateRules rules;
    rules.freeTokens = replacedTokens(*probe, known);
    const DtAttribute attribute("x", "DtInt32");
    probe->setCurrentAttribute(&attribute);
    rules.loops["Attributes"];
    for (const QString& token : replacedTokens(*probe, known))
        if (rules.freeTokens.count(token) == 0)
            rules.loops["Attributes"].insert(token);
    moveTokens(rules, "IncludeFiles", {"<!FileToInclude!>"});
    rules.loops["NamesakeIncludeFiles"] = rules.loops["IncludeFiles"];
    moveTokens(rules, "FomModules", {"<!FomModule!>"});
    for (const QString& token : known)
        if (!rules.knows(token))
            qFatal("%s is in a table and never replaced", qPrintable(token));
    return rules;
}

// The class of a datatype has its names inside "ClassDatatypes" only, and its members there.
template <class Writer>
DtTemplateRules datatypeRules()
{
    DtTemplateRules rules = classRules<Writer>();
    rules.parents = {
        {"Attributes", "ClassDatatypes"}
    };
    rules.loops["ClassDatatypes"];
    moveTokens(
        rules, "ClassDatatypes",
        {"<!ClassName!>", "<!NonDtClassName!>", "<!ClassCbName!>", "<!ClassNetName!>", "<!LocalTypeIsNotEncodeable!>"});
    if (std::is_same_v<Writer, DtComplexDataTypeFileWriter>)
    {
        rules.loops["ArrayIncludeFiles"];
        moveTokens(rules, "ArrayIncludeFiles", {"<!ArrayFileToInclude!>"});
    }
    if (std::is_same_v<Writer, DtVariantRecordFileWriter>)
    {
        moveTokens(rules, "ClassDatatypes", {"<!ClassEncoding!>"});
        moveTokens(rules, "ValuelessAlternatives", {"<!AlternativeSelector!>"});
        rules.loops["Attributes"].insert("<!AlternativeSelector!>");
        rules.loops["Discriminant"] = rules.loops["Attributes"]; // the discriminant is the attribute there
        for (const char* loop : {"ValuelessAlternatives", "Discriminant"})
            rules.parents[loop] = "ClassDatatypes";
    }
    return rules;
}

struct TemplateRow
{
    const char* name;
    DtTemplateRules (*rules)();
};

// Every template that the program can open, and who opens it.
const TemplateRow theRows[] = {
    {"customUITemplates/customDecHeader.tlt",      customCodeRules                                },
    {"customUITemplates/customDecInterHeader.tlt", customCodeRules                                },
    {"customUITemplates/customDecoder.tlt",        customCodeRules                                },
    {"customUITemplates/customEncHeader.tlt",      customCodeRules                                },
    {"customUITemplates/customEncInterHeader.tlt", customCodeRules                                },
    {"customUITemplates/customEncoder.tlt",        customCodeRules                                },
    {"customUITemplates/customEnumDecoder.tlt",    customCodeRules                                },
    {"customUITemplates/customEnumEncoder.tlt",    customCodeRules                                },
    {"customUITemplates/customEnumIntDecoder.tlt", customCodeRules                                },
    {"customUITemplates/customEnumIntEncoder.tlt", customCodeRules                                },
    {"customUITemplates/customIntDecoder.tlt",     customCodeRules                                },
    {"customUITemplates/customIntEncoder.tlt",     customCodeRules                                },
    {"customUITemplates/customUIguide.tlt",        customCodeRules                                },
    {"dllExport.tlt",                              baseRules                                      },
    {"enums.tlt",                                  enumRules                                      },
    {"makefile.tlt",                               makefileRules                                  },
    {"solutionVC14_64.tlt",                        solutionRules                                  },
    {"projectFile.tlt",                            projectRules                                   },
    {"projectFileVC10.tlt",                        projectRules                                   },
    {"projectFileVC10_64.tlt",                     projectRules                                   },
    {"projectFileVC12.tlt",                        projectRules                                   },
    {"projectFileVC12_64.tlt",                     projectRules                                   },
    {"projectFileVC14.tlt",                        projectRules                                   },
    {"projectFileVC14_64.tlt",                     projectRules                                   },
    {"subTemplates/complexTypesHeader.tlt",        datatypeRules<DtComplexDataTypeFileWriter>     },
    {"subTemplates/complexTypesSource.tlt",        datatypeRules<DtComplexDataTypeFileWriter>     },
    {"subTemplates/basicTypesHeader.tlt",          datatypeRules<DtBasicDataTypeFileWriter>       },
    {"subTemplates/basicTypesSource.tlt",          datatypeRules<DtBasicDataTypeFileWriter>       },
    {"subTemplates/simpleTypesHeader.tlt",         datatypeRules<DtSimpleDataTypeFileWriter>      },
    {"subTemplates/simpleTypesSource.tlt",         datatypeRules<DtSimpleDataTypeFileWriter>      },
    {"arrayHeaderByEncoding.tlt",                  datatypeRules<DtArrayDataTypeFileWriter>       },
    {"arraySourceByEncoding.tlt",                  datatypeRules<DtArrayDataTypeFileWriter>       },
    {"subTemplates/fixedRecordsHeader.tlt",        datatypeRules<DtFixedRecordFileWriter>         },
    {"subTemplates/fixedRecordsSource.tlt",        datatypeRules<DtFixedRecordFileWriter>         },
    {"subTemplates/variantRecordsHeader.tlt",      datatypeRules<DtVariantRecordFileWriter>       },
    {"subTemplates/variantRecordsSource.tlt",      datatypeRules<DtVariantRecordFileWriter>       },
    {"hobjEncHeader.tlt",                          classRules<DtHlaObjectEncoderHeaderWriter>     },
    {"hobjEncSource.tlt",                          classRules<DtHlaObjectEncoderSourceWriter>     },
    {"stateRepSource.tlt",                         classRules<DtStateRepositoryFileWriter>        },
    {"stateRepHeader.tlt",                         classRules<DtStateRepositoryFileWriter>        },
    {"hpubHeader.tlt",                             classRules<DtHlaPublisherFileWriter>           },
    {"hpubSource.tlt",                             classRules<DtHlaPublisherFileWriter>           },
    {"hrefObjHeader.tlt",                          classRules<DtHlaReflectedObjectFileWriter>     },
    {"hrefObjSource.tlt",                          classRules<DtHlaReflectedObjectFileWriter>     },
    {"hrefListHeader.tlt",                         classRules<DtHlaReflectedListHeaderFileWriter> },
    {"hrefListSource.tlt",                         classRules<DtHlaReflectedListSourceFileWriter> },
    {"hobjDecHeader.tlt",                          classRules<DtHlaObjectDecoderHeaderWriter>     },
    {"hobjDecSource.tlt",                          classRules<DtHlaObjectDecoderSourceWriter>     },
    {"refListHeader.tlt",                          classRules<DtReflectedListHeaderFileWriter>    },
    {"pubHeader.tlt",                              classRules<DtClassFileWriter>                  },
    {"refObjHeader.tlt",                           classRules<DtReflectedObjectHeaderFileWriter>  },
    {"dpubHeader.tlt",                             classRules<DtDisPublisherFileWriter>           },
    {"dpubSource.tlt",                             classRules<DtDisPublisherFileWriter>           },
    {"dobjEncHeader.tlt",                          classRules<DtClassFileWriter>                  },
    {"dobjEncSource.tlt",                          classRules<DtClassFileWriter>                  },
    {"dobjDecHeader.tlt",                          classRules<DtClassFileWriter>                  },
    {"dobjDecSource.tlt",                          classRules<DtClassFileWriter>                  },
    {"drefObjHeader.tlt",                          classRules<DtClassFileWriter>                  },
    {"drefObjSource.tlt",                          classRules<DtClassFileWriter>                  },
    {"drefListHeader.tlt",                         classRules<DtClassFileWriter>                  },
    {"drefListSource.tlt",                         classRules<DtClassFileWriter>                  },
    {"objPduHeader.tlt",                           classRules<DtClassFileWriter>                  },
    {"objPduSource.tlt",                           classRules<DtClassFileWriter>                  },
    {"netObjPduHeader.tlt",                        classRules<DtClassFileWriter>                  },
    {"hinterHeader.tlt",                           classRules<DtHlaInteractionHeaderFileWriter>   },
    {"hinterSource.tlt",                           classRules<DtHlaInteractionSourceFileWriter>   },
    {"intHeader.tlt",                              classRules<DtInteractionHeaderFileWriter>      },
    {"intSource.tlt",                              classRules<DtInteractionSourceFileWriter>      },
    {"dinterHeader.tlt",                           classRules<DtDisInteractionHeaderFileWriter>   },
    {"dinterSource.tlt",                           classRules<DtDisInteractionSourceFileWriter>   },
    {"hintEncHeader.tlt",                          classRules<DtHlaInteractionEncoderHeaderWriter>},
    {"hintEncSource.tlt",                          classRules<DtHlaInteractionEncoderSourceWriter>},
    {"hintDecHeader.tlt",                          classRules<DtHlaInteractionDecoderHeaderWriter>},
    {"hintDecSource.tlt",                          classRules<DtHlaInteractionDecoderSourceWriter>},
    {"talkObjExample.tlt",                         classRules<DtClassFileWriter>                  },
    {"listenObjExample.tlt",                       classRules<DtClassFileWriter>                  },
    {"talkInterExample.tlt",                       classRules<DtClassFileWriter>                  },
    {"listenInterExample.tlt",                     classRules<DtClassFileWriter>                  },
    {"talkExProjVC14_64.tlt",                      exampleProjectRules                            },
    {"listenExProjVC14_64.tlt",                    exampleProjectRules                            },
    {"exMakefile.tlt",                             exampleMakefileRules                           },
};

// But for those of command files, which have tests of their own.
QStringList shippedTemplates()
{
    const QStringList directories = scriptTemplateDirectories();
    QStringList names;
    for (QDirIterator each(theTemplates, QDir::Files, QDirIterator::Subdirectories); each.hasNext();)
    {
        const QString name = QDir(theTemplates).relativeFilePath(each.next());
        if (name.endsWith(QStringLiteral(".tlt")) && !directories.contains(QFileInfo(name).path()))
            names += name;
    }
    names.sort();
    return names;
}

void shipTemplates(const DtGeneratorFixture& fixture)
{
    for (const QString& name : shippedTemplates())
        fixture.writeTemplate(name, readTextFile(theTemplates + "/" + name));
}

QStringList scanShipped(const TemplateRow& row, std::set<QString>* included = nullptr)
{
    const DtTemplateRules rules = row.rules();
    DtTemplateScanner scanner(rules, QStringLiteral(QX_SOURCE_DIR "/data"));
    const QStringList faults = scanner.scan(row.name, readTextFile(theTemplates + "/" + row.name));
    if (included != nullptr)
        included->insert(scanner.includedFiles().begin(), scanner.includedFiles().end());
    return faults;
}

Names tokensOf(const DtTemplateRules& rules)
{
    Names tokens = rules.freeTokens;
    for (const auto& [loop, ofLoop] : rules.loops)
        tokens.insert(ofLoop.begin(), ofLoop.end());
    return tokens;
}

Names allTokens()
{
    Names tokens;
    const auto add = [&](const DtTemplateRules& rules)
    {
        const Names more = tokensOf(rules);
        tokens.insert(more.begin(), more.end());
    };
    for (const TemplateRow& row : theRows)
        add(row.rules());
    return tokens;
}

QString documentation()
{
    return QString::fromUtf8(readTextFile(QStringLiteral(QX_SOURCE_DIR "/docs/templates.md")));
}

Names documentedTokens(const QString& page)
{
    static const QRegularExpression theToken(QStringLiteral("<![A-Za-z0-9]+!>"));
    Names tokens;
    for (auto each = theToken.globalMatch(page); each.hasNext();)
        tokens.insert(each.next().captured());
    return tokens;
}

QString listed(const Names& names, const Names& without)
{
    QStringList rest;
    for (const QString& name : names)
        if (without.count(name) == 0)
            rest += name;
    return rest.join(' ');
}

// A small writer's rules, for texts with one fault each.
DtTemplateRules smallRules()
{
    DtTemplateRules rules;
    rules.freeTokens = {"<!Name!>", "<!DatatypeFile!>"};
    rules.loops = {
        {"Outer", {"<!Part!>"}},
        {"Inner", {}          }
    };
    rules.parents = {
        {"Inner", "Outer"}
    };
    return rules;
}

QStringList scanSmall(const QByteArray& text)
{
    const DtTemplateRules rules = smallRules();
    return DtTemplateScanner(rules, QStringLiteral(QX_SOURCE_DIR "/data")).scan("t", text);
}

struct FileElements
{
    QStringList names; // of the Include attributes of file elements
    QString error;
};

FileElements readProject(const QByteArray& text)
{
    FileElements elements;
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
    {
        const bool isStart = reader.readNext() == QXmlStreamReader::StartElement;
        if (isStart && (reader.name() == QLatin1String("ClCompile") || reader.name() == QLatin1String("ClInclude")) &&
            reader.attributes().hasAttribute(QStringLiteral("Include")))
            elements.names += reader.attributes().value(QStringLiteral("Include")).toString();
    }
    elements.error = reader.errorString();
    return elements;
}
} // namespace

class TestTemplateFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scannerTakesEveryConstruct();
    void scannerFindsFault_data();
    void scannerFindsFault();
    void everyTemplateIsOpenedBySomeWriter();
    void templateHoldsWhatItsWriterKnows_data();
    void templateHoldsWhatItsWriterKnows();
    void linesAreShortAndHaveNoCarriageReturn_data() { addShipped(); }
    void linesAreShortAndHaveNoCarriageReturn();
    void projectTemplatesHaveNoDeclarationAndNoComment_data();
    void projectTemplatesHaveNoDeclarationAndNoComment();
    void projectTemplateGivesWellFormedXml_data();
    void projectTemplateGivesWellFormedXml();
    void projectBuildsOneProtocolAtATime();
    void exampleProjectGivesWellFormedXml_data();
    void exampleProjectGivesWellFormedXml();
    void everyTokenIsDocumented();
    void everyDocumentedTokenIsKnown();
    void everyTemplateAndLoopIsDocumented();

private:
    static void addShipped()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : shippedTemplates())
            QTest::newRow(qPrintable(name)) << name;
    }
};

void TestTemplateFiles::scannerTakesEveryConstruct()
{
    QCOMPARE(scanSmall("a <!Name!>\n<#2>\n|x<#>\n<#Outer>\n|<!Part!><#Inner>.<#>\n<?exists <!Part!>>y<?>\n<#>\n"
                       "<?equals <!Name!><!Name!> 1>z<?>\n"),
             QStringList());
}

void TestTemplateFiles::scannerFindsFault_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const auto add = [](const char* text, const char* fault)
    { QTest::newRow(text) << QByteArray(text) << QString::fromUtf8(fault); };
    add("a\n<!Nam!>", "t:2: the writer does not know <!Nam!>");
    add("<!Part!>", "t:1: <!Part!> has no value outside of its loop");
    add("<?exists <!Part!>>x<?>", "t:1: <!Part!> has no value outside of its loop");
    add("<?exists <!Other!>>x<?>", "t:1: the writer does not know <!Other!>");
    add("a <! b", "t:1: no token follows <!");
    add("<!-- b -->", "t:1: no token follows <!");
    add("<#Other>x<#>", "t:1: the writer does not know the loop Other");
    add("<#Outer><#Outer>x<#><#>", "t:1: the loop stands inside itself: Outer");
    add("<#Inner>x<#>", "t:1: Inner stands outside of Outer");
    add("<?missing <!Name!>>x<?>", "t:1: the writer does not know the verb in: missing <!Name!>");
    add("<? exists <!Name!>>x<?>", "t:1: the writer does not know the verb in:  exists <!Name!>");
    add("<?exists>x<?>", "t:1: the number of operands is wrong in: exists");
    add("<?equals <!Name!> >x<?>", "t:1: the number of operands is wrong in: equals <!Name!> ");
    add("<?exists <!DatatypeFile!>>x<?>", "t:1: <!DatatypeFile!> is never missing");
    add("<#2>x", "t:1: the block is not closed: <#");
    add("x<?>", "t:1: <?> closes no block");
    add("<#2><?exists a><#><?>", "t:1: <#> closes no block");
    add("<#Outer", "t:1: the header has no end");
    add("<#1#../data/templates/none.tlt#>", "t:1: no such file: ../data/templates/none.tlt");
    add("<#1#dllExport.tlt#>", "t:1: no such file: dllExport.tlt");
    add("<#1#dllExport.tlt", "t:1: the path of a file block has no end");
    add("x #> y", "t:1: the end of a file block stands alone");
    add("|x", "t:1: a bar at the very start is plain text");
    add("<#2>|x<#>", "t:1: a bar behind a header is plain text");
}

void TestTemplateFiles::scannerFindsFault()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    QCOMPARE(scanSmall(text).value(0), fault);
}

void TestTemplateFiles::everyTemplateIsOpenedBySomeWriter()
{
    std::set<QString> opened;
    for (const TemplateRow& row : theRows)
    {
        opened.insert(row.name);
        scanShipped(row, &opened);
    }
    const QStringList shipped = shippedTemplates();
    QCOMPARE(shipped, QStringList(opened.begin(), opened.end()));
}

void TestTemplateFiles::templateHoldsWhatItsWriterKnows_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(std::size(theRows)); ++row)
        QTest::newRow(theRows[row].name) << row;
}

void TestTemplateFiles::templateHoldsWhatItsWriterKnows()
{
    QFETCH(int, row);
    const QStringList faults = scanShipped(theRows[row]);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    QVERIFY(!readTextFile(theTemplates + "/" + theRows[row].name).isEmpty());
}

// Templates are read in pieces of 299 bytes, and what stands across the end of one is not seen.
void TestTemplateFiles::linesAreShortAndHaveNoCarriageReturn()
{
    QFETCH(QString, name);
    const QByteArray text = readTextFile(theTemplates + "/" + name);
    QVERIFY(!text.contains('\r'));
    for (const QByteArray& line : text.split('\n'))
        QVERIFY2(line.size() <= 298, line.constData());
}

void TestTemplateFiles::projectTemplatesHaveNoDeclarationAndNoComment_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name :
         shippedTemplates().filter(QRegularExpression("project|ExProj", QRegularExpression::CaseInsensitiveOption)))
        QTest::newRow(qPrintable(name)) << name;
}

void TestTemplateFiles::projectTemplatesHaveNoDeclarationAndNoComment()
{
    QFETCH(QString, name);
    const QByteArray text = readTextFile(theTemplates + "/" + name);
    for (const char* markup : {"<?xml", "<!--", "<![CDATA[", "<!DOCTYPE"})
        QVERIFY2(!text.contains(markup), markup);
}

void TestTemplateFiles::projectTemplateGivesWellFormedXml_data()
{
    QTest::addColumn<int>("compiler");
    QTest::addColumn<QByteArray>("toolset");
    QTest::addColumn<QByteArray>("platform");
    QTest::newRow("4") << 4 << QByteArray("v100") << QByteArray("Win32");
    QTest::newRow("5") << 5 << QByteArray("v100") << QByteArray("x64");
    QTest::newRow("6") << 6 << QByteArray("v120") << QByteArray("Win32");
    QTest::newRow("7") << 7 << QByteArray("v120") << QByteArray("x64");
    QTest::newRow("8") << 8 << QByteArray("v140") << QByteArray("Win32");
    QTest::newRow("9") << 9 << QByteArray("v140") << QByteArray("x64");
    QTest::newRow("another") << 1 << QByteArray("<GeneratedToolset></GeneratedToolset>") << QByteArray("Win32");
}

void TestTemplateFiles::projectTemplateGivesWellFormedXml()
{
    QFETCH(int, compiler);
    QFETCH(QByteArray, toolset);
    QFETCH(QByteArray, platform);
    const DtGeneratorFixture fixture;
    shipTemplates(fixture);
    const std::set<DtString> files = {"DataTypes/point.cxx", "DataTypes/point.h", "dllExport.h", "shipEncoderHLA.cxx"};
    {
        DtProjectFileWriter writer("p.vcxproj", files, compiler);
        writer.setProjectName("harbour");
        writer.writeFile();
    }
    const QByteArray xml = fixture.output("p.vcxproj").toUtf8();
    FileElements elements = readProject(xml);
    QCOMPARE(elements.error, QString());
    elements.names.sort();
    QCOMPARE(elements.names,
             QStringList({"DataTypes/point.cxx", "DataTypes/point.h", "dllExport.h", "shipEncoderHLA.cxx"}));
    QVERIFY(xml.contains("MODEL_EXPORTS") && xml.contains("harbour"));
    QVERIFY2(xml.contains(toolset) && xml.contains(platform), xml.constData());
    for (const char* opening : {"<!", "<#", "<?", "\n|"})
        QVERIFY2(!xml.contains(opening), opening);
}

// HLA and DIS classes have the same names, so with both in the list the sources of one of them are taken out again.
void TestTemplateFiles::projectBuildsOneProtocolAtATime()
{
    const std::set<DtString> files = {"shipPdu.cxx", "shipPublisherDIS.cxx", "shipPublisherHLA.cxx"};
    for (const bool dis : {true, false})
    {
        const DtGeneratorFixture fixture;
        shipTemplates(fixture);
        {
            DtProjectFileWriter writer("p.vcxproj", files, 9);
            writer.setGenerateDis(dis);
            writer.writeFile();
        }
        const QByteArray xml = fixture.output("p.vcxproj").toUtf8();
        const FileElements elements = readProject(xml);
        QCOMPARE(elements.error, QString());
        QCOMPARE(elements.names, QStringList({"shipPdu.cxx", "shipPublisherDIS.cxx", "shipPublisherHLA.cxx"}));
        QCOMPARE(xml.contains("<ClCompile Remove=\"*DIS.cxx;*Pdu.cxx\" />"), dis);
        QCOMPARE(xml.contains("<ClCompile Remove=\"*HLA.cxx\" />"), dis);
        QCOMPARE(xml.contains("<GeneratedProtocol>HLA</GeneratedProtocol>"), !dis);
    }
}

void TestTemplateFiles::exampleProjectGivesWellFormedXml_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("identifier");
    QTest::addColumn<bool>("dis");
    for (const bool dis : {false, true})
    {
        QTest::newRow(dis ? "talk with DIS" : "talk") << "talk" << 1 << dis;
        QTest::newRow(dis ? "listen with DIS" : "listen") << "listen" << 2 << dis;
    }
}

void TestTemplateFiles::exampleProjectGivesWellFormedXml()
{
    QFETCH(QString, program);
    QFETCH(int, identifier);
    QFETCH(bool, dis);
    const DtGeneratorFixture fixture;
    shipTemplates(fixture);
    DtOmtObject ship;
    ship.setName("Ship");
    {
        DtExamplesProjectFileWriter writer("p.vcxproj", (program + "ExProjVC14_64.tlt").toLatin1().constData(), ship);
        writer.setLibraryName("harbour");
        writer.setGenerateDis(dis);
        writer.writeFile();
    }
    const QByteArray xml = fixture.output("p.vcxproj").toUtf8();
    const FileElements elements = readProject(xml);
    QCOMPARE(elements.error, QString());
    QCOMPARE(elements.names, QStringList(program + ".cxx"));
    const QString identity = QString("<ProjectGuid>{%1}</ProjectGuid>").arg(ship.uuid(identifier).c_str());
    QVERIFY2(xml.contains(identity.toLatin1()), xml.constData());
    QVERIFY(xml.contains("<AdditionalDependencies>harbour$(GeneratedProtocol).lib;"));
    QVERIFY(xml.contains(";DT_DLL_MODEL_SHARED;"));
    QCOMPARE(xml.contains("<GeneratedProtocol>HLA</GeneratedProtocol>"), !dis);
    for (const char* opening : {"<!", "<#", "<?", "\n|"})
        QVERIFY2(!xml.contains(opening), opening);
}

void TestTemplateFiles::everyTokenIsDocumented()
{
    QCOMPARE(listed(allTokens(), documentedTokens(documentation())), QString());
}

void TestTemplateFiles::everyDocumentedTokenIsKnown()
{
    const Names documented = documentedTokens(documentation());
    QVERIFY(!documented.empty());
    QCOMPARE(listed(documented, allTokens()), QString());
}

void TestTemplateFiles::everyTemplateAndLoopIsDocumented()
{
    const QString page = documentation();
    Names loops;
    for (const TemplateRow& row : theRows)
    {
        QVERIFY2(page.contains("`" + QString(row.name) + "`"), row.name);
        for (const auto& [loop, tokens] : row.rules().loops)
            loops.insert(loop);
    }
    for (const QString& loop : loops)
        QVERIFY2(page.contains("`" + loop + "`"), qPrintable(loop));
}

QX_REGISTER_TEST(TestTemplateFiles)
#include "testTemplateFiles.moc"
