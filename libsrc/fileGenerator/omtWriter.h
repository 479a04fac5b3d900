#ifndef FILE_GENERATOR_OMT_WRITER_H
#define FILE_GENERATOR_OMT_WRITER_H

#include "fileGenerator/contextKey.h"
#include "fileGenerator/mapSubstitute.h"
#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtObject.h"
#include "fileGenerator/settings.h"
#include "foundation/fomType.h"
#include "foundation/string.h"
#include "omtReader/datatypeFedNode.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

class DtCCompatibleNames;
class DtComplexComponentNode;
class DtComplexDatatypeNode;
class DtDatatypeBoundaries;
class DtDatatypeClosure;
class DtEnumeratedDatatypeNode;
class DtOmtProject;
class DtOMTNode;
class DtOMTTree;
class DtSimpleDatatypeNode;

// Driver of the generation from a command file: the model as a tree of named values, and templates that are expanded
// against it. A new output language needs a command file and templates, and no code.
//
// One object serves one run. Neither the tree nor the project is owned; the project may be null. The caller sets tree,
// version, project and the class-wide settings first, then the selection (with HLA 1.3 that adds array datatypes to the
// tree, so the version has to be known by then), and calls writeFile. The progress meter has to be initialised.
//
// A command file has one command a line, its words divided by single blanks; "#" begins a comment line, and a command
// of another name, or one without its arguments, is passed over:
//   beginTypes                        empties the types, the context and the unique names
//   setDatatype "name" "type"         the type that a representation or datatype has in the target language
//   endTypes                          builds the context
//   language word                     tells templates the language
//   templateDir word                  templates lie in ../data/word from here on
//   subdir word                       goes down to a directory of the output; "~" goes back to its top, "$" to ../data/
//   file output template [context]    expands a template, from a map of the context on when one is given ("~" is none)
//   include path                      runs another command file, with the path as it stands; 64 deep at most
//
// The top file is run three times: to build the context, which writes its files already, to count files for the
// progress meter, and to write the files. So its files are written twice, from the same context.
class DtOMTWriter
{
public:
    using cmdLineProc = void (DtOMTWriter::*)(const DtString& line);

    DtOMTWriter();
    DtOMTWriter(const DtOMTWriter&) = delete;
    DtOMTWriter& operator=(const DtOMTWriter&) = delete;
    virtual ~DtOMTWriter();

    // Runs the command file of that name in ../data, or of that absolute path, for the model called fomName; always
    // true, also when the user cancelled: what is written by then stays. Throws DtException without a tree.
    virtual bool writeFile(const DtString& fomName, const DtString& commandFile);
    // Completes the set of used datatypes: what the selected classes need, directly or through other datatypes.
    virtual void checkUsedSubDatatypesFiles();

    // The three runs of a command file. Throws DtException when the meter is not initialised.
    virtual void execCmdFile(const DtString& path);
    // Hands each line to the handler until the user cancels, and goes back to the output directory of the start. The
    // program ends when the file cannot be opened.
    virtual void parseCommandFile(const DtString& path, cmdLineProc handler);
    // The first run: type commands act, an include does nothing, the rest is done as in the third.
    virtual void executeCommandLine_prepare(const DtString& line);
    // The second: counts the files, those of included command files too.
    virtual void executeCommandLine_countFiles(const DtString& line);
    // The third: all but the type commands.
    virtual void executeCommandLine_generate(const DtString& line);

    virtual void setOmtTree(DtOMTTree* tree);
    virtual void setObjectsToGenerate(const std::set<DtOmtObject>& objects);
    virtual void setInteractionsToGenerate(const std::set<DtOmtInteraction>& interactions);
    virtual void setGenerateExamples(bool generate);
    virtual void setGenerateErrors(bool generate); // passed on to DtFileWriter
    virtual void setGenerateDis(bool generate);
    virtual void setFirstPduKind(int kind);
    virtual void setOmtProject(DtOmtProject* project);
    virtual void setHlaVersion(DtHLAProtocolVersion version);

    // A new random UUID as text.
    virtual DtString makeUUID();
    // "UUID1" and "UUID2" into the map, and into each entry of its lists, at all depths; not into the lists themselves.
    virtual void addUUIDs(DtMapSubstitute* map);
    // Adds the whole model to the context.
    virtual void buildContext();
    // The name, or the name and the first free number from 0 on when it has been handed out already.
    virtual DtString getUniqueName(const DtString& name);
    // Alignment of a datatype in octets, by the rules of DtDatatypeBoundaries.
    virtual int getBoundary(const DtString& name);
    // Adds what a member of this datatype needs to know of it, under keys that begin with the prefix.
    virtual void getType(const DtString& prefix, const DtString& datatype, DtMapSubstitute* context);

    // The lists of the context, new at every call. The caller owns them.
    virtual DtMapSubstitute* getRepresentationsContext();
    virtual DtMapSubstitute* getSimpleContext(); // notes types of its own for later, so it comes ahead of the rest
    virtual DtMapSubstitute* getComplexContext();
    virtual DtMapSubstitute* getEnumerationsContext();
    virtual DtMapSubstitute* getArrayContext();
    virtual DtMapSubstitute* getFixedContext();
    virtual DtMapSubstitute* getVariantContext();
    virtual DtMapSubstitute* getObjectContext();
    virtual DtMapSubstitute* getInteractionContext();

    DtMapSubstitute* getReferenceContext();

    virtual void addToFileList(const DtString& name);

    // Make up the arrays that cardinalities of the selected classes imply, and map the members' names to them.
    void checkObjectsForArrayTypes();
    void checkInteractionsForArrayTypes();
    void checkComplexForArrayType(DtComplexDatatypeNode* node);
    void createArrayTypeFromComponent(DtComplexComponentNode* component);
    // The name of the array, or empty when the cardinality type makes none.
    DtString createArrayTypeFromItemInfo(DtString itemName, DtString cardinality,
                                         DtDatatypeFedNode::DtCardinalityType type, DtString datatype);

    const std::set<DtString>& fileList() const { return myFileList; }
    const std::set<DtString>& usedDatatypes() const { return myUsedDatatypes; }
    const DtMapSubstitute& context() const { return myContext; }
    const DtString& templateDir() const { return myTemplateDir; } // empty until the command
    const DtString& language() const { return myLanguage; }
    unsigned int fileCount() const { return myFileCount; }
    DtHLAProtocolVersion hlaVersion() const { return myHlaVersion; }
    // The type that a representation or datatype has in the target language; null when none is set.
    const DtString* typeOf(const DtString& name) const;
    // The type of the representation that stands in for an enumeration's own, by its size; empty when none is set.
    DtString replacedType(const DtEnumeratedDatatypeNode& node) const;
    static DtString identifierOf(const DtString& name);

    // Every key that the context can hold, list by list, in the order in which they are put in.
    static std::vector<DtContextKey> contextKeys();

    // The settings of this road; those of DtOMTEnvWriter are others. DtSettings tells what each is for.
    static void setMaximumLineLength(int length) { settings().maximumLineLength = length; }
    static int maximumLineLength() { return settings().maximumLineLength; }
    static void setMIMincluded(bool included) { settings().includesMim = included; }
    static bool MIMincluded() { return settings().includesMim; }
    static void setNamespaceName(const DtString& name) { settings().namespaceName = name; }
    static const DtString& namespaceName() { return settings().namespaceName; }
    static void setIncludeName(const DtString& name) { settings().includeName = name; }
    static const DtString& includeName() { return settings().includeName; }
    static void setPrefixName(const DtString& name) { settings().prefixName = name; }
    static const DtString& prefixName() { return settings().prefixName; }
    static void setFomDefinitionFileName(const DtString& name) { settings().fomDefinitionFileName = name; }
    static const DtString& fomDefinitionFileName() { return settings().fomDefinitionFileName; }
    static void setBaseName(const DtString& name) { settings().baseName = name; }
    static const DtString& baseName() { return settings().baseName; }

private:
    static DtRoadSettings& settings() { return DtSettings::instance().scripts; }

    using Words = std::vector<DtString>;
    struct Command;

    DtOMTTree& tree() const; // throws DtException when there is none
    DtDatatypeClosure closure();
    // Identifiers of this module: all its long names are numbered together.
    static DtCCompatibleNames& names();

    // The command language, in omtWriterCommands.cxx.
    static const Command* findCommand(const DtString& line);
    void run(const Command& command, const DtString& line);
    void reportIncomplete(const DtString& line); // once a run
    void runPass(const DtString& path, cmdLineProc handler);
    void includeFile(const DtString& line, cmdLineProc handler);
    bool mayInclude(const DtString& path);
    void beginTypes(const Words& words);
    void setDatatype(const Words& pieces);
    void endTypes(const Words& words);
    void setLanguage(const Words& words);
    void setTemplateDir(const Words& words);
    void changeDirectory(const Words& words);
    bool leavesOutput(const DtString& directory) const;
    void writeTemplate(const Words& words);

    // The context, in omtWriterContext.cxx, omtWriterClasses.cxx and omtWriterDatatypes.cxx.
    void noteUniqueName(DtOMTNode& node);
    void putSimple(const DtSimpleDatatypeNode& node, DtMapSubstitute& list);
    void putEnumeration(const DtEnumeratedDatatypeNode& node, DtMapSubstitute& list);
    bool isUsed(const DtOMTNode& node) const;

    DtOMTTree* myTree = nullptr;
    std::set<DtString> myFileList;
    std::set<DtString> myUsedDatatypes; // model names
    std::set<DtOmtObject> myObjectsToGenerate;
    std::set<DtOmtInteraction> myInteractionsToGenerate;
    bool myGenerateExamples = false;
    bool myGenerateDis = false;
    int myFirstPduKind = 0;
    int myNextPduKind = 0;
    DtOmtProject* myProject = nullptr;
    DtHLAProtocolVersion myHlaVersion = DtHlaUnknown;
    DtString mySavedOutputDirectory; // as it was when the command file was started
    DtString myTemplateDir;
    DtString myLanguage;
    unsigned int myFileCount = 0;
    std::map<DtString, DtString> myTypes; // target type by representation or datatype
    DtMapSubstitute myContext;
    std::set<DtString> myUniqueNames;

    std::unordered_map<std::string, unsigned int> myNextNumbers; // where the search for a free number goes on
    std::unique_ptr<DtDatatypeBoundaries> myBoundaries;          // while the context is built, null otherwise
    std::vector<DtString> myOpenFiles;                           // command files around the current line, the top first
    bool myHasMetLimit = false;                                  // in this run of the top file
    bool myHasWarnedOfLimit = false;
    std::set<DtString> myReportedLines; // commands without their arguments
    std::set<DtString> myReportedFiles; // command files with carriage returns
};

#endif
