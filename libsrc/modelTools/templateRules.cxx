#include "modelTools/templateRules.h"

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
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/omtWriter.h"
#include "fileGenerator/projectFileWriter.h"
#include "fileGenerator/refListHeaderWriter.h"
#include "fileGenerator/refObjHeaderWriter.h"
#include "fileGenerator/simpleDataTypeFileWriter.h"
#include "fileGenerator/solutionsFileWriter.h"
#include "fileGenerator/srHeaderFileWriter.h"
#include "fileGenerator/variantRecordFileWriter.h"
#include "foundation/perRun.h"

#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <type_traits>

namespace
{
using Names = DtTemplateRules::Names;

// Makes the protected side of a writer with attributes reachable.
template <class Writer>
class DtProbe : public Writer
{
public:
    using Writer::setCurrentAttribute;
    using Writer::Writer;
};

Names namesOf(const std::vector<DtString>& tokens)
{
    Names names;
    for (const DtString& token : tokens)
        names.insert(token.stdString());
    return names;
}

// The tokens of a writer that is no class writer: those that a loop sets are named here, all others are free.
DtTemplateRules rulesOf(const DtFileWriter& writer, const std::map<std::string, Names>& loops)
{
    DtTemplateRules rules;
    rules.freeTokens = namesOf(writer.tokenChain().tokens());
    rules.loops = loops;
    for (const auto& [loop, ofLoop] : loops)
        for (const std::string& token : ofLoop)
            rules.freeTokens.erase(token);
    return rules;
}

DtTemplateRules baseRules()
{
    return rulesOf(DtFileWriter("", ""), {});
}

DtTemplateRules enumRules()
{
    DtTemplateRules rules = rulesOf(
        DtEnumerationFileWriter(""),
        {
            {"Enumeration",
             {"<!EnumerationName!>", "<!EnumerationTypeName!>", "<!EnumerationIsRepeated!>", "<!EnumerationOctets!>",
              "<!EnumerationIsSigned!>", "<!EnumerationIsLittleEndian!>", "<!EnumerationDocumentation!>"}    },
            {"EnumerationField",
             {"<!EnumerationFieldName!>", "<!EnumerationFieldIdentifier!>", "<!EnumerationFieldText!>",
              "<!EnumerationFieldValue!>", "<!EnumerationFieldNumber!>", "<!EnumerationFieldDocumentation!>"}}
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
    const QTemporaryDir scratch; // for the two lists of files that the writer opens
    DtFileWriter::setOutputDirectory(DtString(scratch.path().toLocal8Bit().constData()) + "/");
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
        "<!AttributeWireForm!>",
    };
    return rules;
}

void moveTokens(DtTemplateRules& rules, const std::string& loop, const Names& tokens)
{
    for (const std::string& token : tokens)
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
std::unique_ptr<DtProbe<Writer>> makeProbe()
{
    if constexpr (std::is_same_v<Writer, DtArrayDataTypeFileWriter>)
        return std::make_unique<DtProbe<Writer>>("", "", "HLAfixedArray");
    else if constexpr (std::is_constructible_v<Writer, DtString, DtString, DtOmtObject>)
        return std::make_unique<DtProbe<Writer>>("", "", DtOmtObject());
    else if constexpr (std::is_constructible_v<Writer, DtString, DtString, DtOmtInteraction>)
        return std::make_unique<DtProbe<Writer>>("", "", DtOmtInteraction());
    else
        return std::make_unique<DtProbe<Writer>>("", "");
}

template <class Probe>
Names replacedTokens(Probe& probe, const Names& tokens)
{
    Names replaced;
    for (const std::string& token : tokens)
    {
        DtString line(token);
        probe.decodeFileLine(line);
        if (line.stdString() != token)
            replaced.insert(token);
    }
    return replaced;
}

// Asks the writer itself: what it replaces without an attribute is free, the rest belongs to "Attributes".
template <class Writer>
DtTemplateRules classRules()
{
    const auto probe = makeProbe<Writer>();
    probe->setOriginalName("HLAtoken"); // an array of tokens has a token more
    probe->setOmtProject(askedProject());
    const Names known = namesOf(probe->tokenChain().tokens());
    DtTemplateRules rules;
    rules.freeTokens = replacedTokens(*probe, known);
    const DtAttribute attribute("x", "DtInt32");
    probe->setCurrentAttribute(&attribute);
    rules.loops["Attributes"];
    for (const std::string& token : replacedTokens(*probe, known))
        if (rules.freeTokens.count(token) == 0)
            rules.loops["Attributes"].insert(token);
    rules.loops["Enumerations"] = rules.loops["Attributes"]; // the first attribute of its type is the attribute there
    moveTokens(rules, "IncludeFiles", {"<!FileToInclude!>", "<!IncludeIsGenerated!>"});
    rules.loops["NamesakeIncludeFiles"] = rules.loops["IncludeFiles"];
    moveTokens(rules, "FomModules", {"<!FomModule!>"});
    for (const std::string& token : known)
        if (!rules.knows(token))
            throw std::logic_error(token + " is in a table and never replaced");
    return rules;
}

// The class of a datatype has its names inside "ClassDatatypes" only, and its members there.
template <class Writer>
DtTemplateRules datatypeRules()
{
    DtTemplateRules rules = classRules<Writer>();
    rules.parents = {
        {"Attributes",   "ClassDatatypes"},
        {"Enumerations", "ClassDatatypes"}
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

struct DtTemplateRow
{
    const char* name;
    DtTemplateRules (*rules)();
};

// Every template that the program can open, and who opens it.
const DtTemplateRow theRows[] = {
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
    {"enumsSource.tlt",                            enumRules                                      },
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

// The settings that rules depend on, in a scope that goes with the object. Where templates are stays as it is.
class DtRuleScope
{
public:
    explicit DtRuleScope(const DtFileSettings& outer)
    {
        DtFileSettings& files = DtSettings::instance().files;
        files.dataDirectory = outer.dataDirectory;
        files.templateDirectories = outer.templateDirectories;
        DtOMTEnvWriter::setFomDefinitionFileName("model.xml");
    }

private:
    const DtRunScope myScope;
};

// A list of the context is a loop, and its keys are the tokens of that loop.
void addKey(DtTemplateRules& rules, const DtContextKey& key)
{
    const std::string& name = key.key.stdString();
    const std::string& list = key.list.stdString();
    if (key.form == DtKeyForm::List)
    {
        rules.loops[name];
        if (!list.empty())
            rules.parents[name] = list;
        return;
    }
    Names& names = list.empty() ? rules.freeTokens : rules.loops[list];
    for (const DtString& spelling : key.spellings())
        names.insert("<!" + spelling.stdString() + "!>");
}

// What stands in the list has a value from the start, and what must stand in it may stand anywhere.
void enterList(DtTemplateRules& rules, const std::string& list)
{
    const auto found = rules.loops.find(list);
    if (found == rules.loops.end())
        return;
    rules.freeTokens.insert(found->second.begin(), found->second.end());
    for (auto each = rules.parents.begin(); each != rules.parents.end();)
        each = each->second == list ? rules.parents.erase(each) : std::next(each);
}
} // namespace

bool DtTemplateRules::knows(const std::string& token) const
{
    const auto holds = [&token](const auto& loop) { return loop.second.count(token) > 0; };
    return freeTokens.count(token) > 0 || std::any_of(loops.begin(), loops.end(), holds);
}

DtTemplateRules::Names DtTemplateRules::allTokens() const
{
    Names tokens = freeTokens;
    for (const auto& [loop, ofLoop] : loops)
        tokens.insert(ofLoop.begin(), ofLoop.end());
    return tokens;
}

DtTemplateRules::Names DtTemplateRules::loopNames() const
{
    Names names;
    for (const auto& [loop, ofLoop] : loops)
        names.insert(loop);
    return names;
}

std::vector<std::string> DtWrittenTemplates()
{
    std::vector<std::string> names;
    for (const DtTemplateRow& row : theRows)
        names.emplace_back(row.name);
    return names;
}

DtTemplateRules DtRulesOfTemplate(const std::string& name)
{
    const DtFileSettings outer = DtSettings::instance().files;
    const DtRuleScope scope(outer);
    const auto* const row = std::find_if(std::begin(theRows), std::end(theRows),
                                         [&name](const DtTemplateRow& each) { return name == each.name; });
    return row != std::end(theRows) ? row->rules() : DtTemplateRules();
}

DtTemplateRules DtContextRules(const std::string& context)
{
    DtTemplateRules rules;
    rules.verbs = {"first", "notfirst", "last", "notlast"};
    rules.hasCountedLoops = false;
    rules.freeTokens = {"<!index0!>", "<!index1!>"};
    for (const DtContextKey& key : DtOMTWriter::contextKeys())
        addKey(rules, key);
    for (std::size_t start = 0; start < context.size();)
    {
        const std::size_t end = std::min(context.find('|', start), context.size());
        enterList(rules, context.substr(start, end - start));
        start = end + 1;
    }
    return rules;
}
