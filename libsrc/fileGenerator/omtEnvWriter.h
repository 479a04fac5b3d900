#ifndef FILE_GENERATOR_OMT_ENV_WRITER_H
#define FILE_GENERATOR_OMT_ENV_WRITER_H

#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtObject.h"
#include "fileGenerator/settings.h"
#include "foundation/fomType.h"
#include "foundation/string.h"
#include "foundation/warning.h"
#include "omtReader/datatypeFedNode.h"

#include <set>
#include <vector>

class DtCCompatibleNames;
class DtComplexComponentNode;
class DtComplexDatatypeNode;
class DtDatatypeClosure;
class DtEnumeratedDatatypeNode;
class DtEnumerationFileWriter;
class DtOmtProject;
class DtOMTTree;
class DtFileGenerator;
class DtHeldDatatypes;
class DtClassNameClashes;
struct DtClassDocumentation;

// Driver of the generation of C++: what is generated for a selection of classes, and in which order.
//
// One object serves one run. Neither the tree nor the project is owned; the project may be null. The caller sets tree,
// version, project, flags and the class-wide settings first, then the selection (with HLA 1.3 that adds array datatypes
// to the tree, so the version has to be known by then), and calls writeFile. The progress meter has to be initialised.
//
// The order of the outputs is fixed: the datatypes register their class names with the mapper before the classes read
// them, and the build products come last, since they list every file written before.
class DtOMTEnvWriter
{
public:
    DtOMTEnvWriter() = default;
    DtOMTEnvWriter(const DtOMTEnvWriter&) = delete;
    DtOMTEnvWriter& operator=(const DtOMTEnvWriter&) = delete;
    virtual ~DtOMTEnvWriter();

    // Generates everything for the model called fomName. 1 on completion, 0 when the user cancelled; files already
    // written stay then, and the build products are missing.
    virtual int writeFile(const DtString& fomName);
    virtual void writeDataTypesFiles();
    virtual void writeProjectFiles();
    // Completes the set of used datatypes: what the selected classes need, directly or through other datatypes.
    virtual void checkUsedSubDatatypesFiles();

    // One pair of files for each used datatype of a kind that has no target type yet.
    virtual void writeArrayFiles();
    virtual void writeFixedRecordFiles();
    virtual void writeSimpleFiles();
    virtual void writeBasicFiles();
    virtual void writeVariantRecordFiles();
    // Makes up the array datatypes of the components too, so it comes before the arrays.
    virtual void writeComplexFiles();

    // All files of one class, given by its full name. Nothing for a name in `done` or without a node in the tree.
    virtual void addObjectToFile(DtString name, std::set<DtString>& done);
    virtual void addInteractionToFile(DtString name, std::set<DtString>& done);

    virtual void setOmtTree(DtOMTTree* tree);
    virtual void setObjectsToGenerate(const std::set<DtOmtObject>& objects);
    virtual void setInteractionsToGenerate(const std::set<DtOmtInteraction>& interactions);
    virtual void setGenerateExamples(bool generate);
    virtual void setGenerateErrors(bool generate); // passed on to DtFileWriter
    virtual void setGenerateDis(bool generate);
    virtual void setFirstPduKind(int kind);
    virtual void setOmtProject(DtOmtProject* project);
    virtual void setHlaVersion(DtHLAProtocolVersion version);

    // The user's name for an item, or its plain name when there is none.
    virtual DtString replaceObjectName(const DtString& plainName, const DtString& fullName) const;
    virtual DtString replaceInteractionName(const DtString& plainName, const DtString& fullName) const;
    virtual DtString replaceAttributeName(const DtString& plainName, const DtString& owner) const;
    virtual DtString replaceParameterName(const DtString& plainName, const DtString& owner) const;

    virtual void addToFileList(const DtString& name);
    // Tells the progress meter how much work lies ahead, by a formula and not by a count of files.
    virtual void setTotalProgress();
    virtual void generateEnumerationsFile();
    // Derives the export macro of the generated library from the base name.
    virtual void compileExportMacroName();

    // Make up the arrays that cardinalities of the selected classes imply, and map the members' names to them.
    void checkObjectsForArrayTypes();
    void checkInteractionsForArrayTypes();
    void checkComplexForArrayType(DtComplexDatatypeNode* node);
    void createArrayTypeFromComponent(DtComplexComponentNode* component);
    // The name of the array, or empty when the cardinality type makes none.
    DtString createArrayTypeFromItemInfo(DtString itemName, DtString cardinality,
                                         DtDatatypeFedNode::DtCardinalityType type, DtString datatype);

    // The name of the array that is made for the component; empty when none is.
    static DtString componentArrayName(const DtComplexComponentNode& component);

    const std::set<DtString>& fileList() const { return myFileList; }
    const std::set<DtString>& usedDatatypes() const { return myUsedDatatypes; }

    // The settings of this road. DtSettings tells what each is for; writers read them there.
    static void setMaximumLineLength(int length) { settings().maximumLineLength = length; }
    static int maximumLineLength() { return settings().maximumLineLength; }
    static void setMIMincluded(bool included) { settings().includesMim = included; }
    static bool MIMincluded() { return settings().includesMim; }
    static bool includeMIM() { return MIMincluded(); }
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
    static DtString includePath() { return settings().includePath(); }

private:
    static DtRoadSettings& settings() { return DtSettings::instance().cpp; }

    void startRun(const DtString& fomName);
    void makeDirectories() const;
    void writeExportHeader();
    // False when the user cancelled.
    bool writeSelectedClasses();
    // The project's base name, or the model's name when there is none.
    DtString modelBase() const;

    // The selection record of a class, from the project or else from the selection; null when neither has it.
    const DtOmtObject* selectedObject(const DtString& fullName) const;
    const DtOmtInteraction* selectedInteraction(const DtString& fullName) const;
    DtString uniqueName(const DtFedNode& node) const;
    DtOMTTree& tree() const; // throws DtException when there is none
    DtString objectParentName(const DtFedNode& parent) const;
    bool hasFiles(const DtFedNode& parent) const; // of this run, or of the toolkit
    template <typename Members>
    void generateClass(DtFileGenerator& generator, const DtSubject& owner, const DtFedNode* parent,
                       const DtString& parentName, const Members& members, const DtClassDocumentation& documentation);
    DtString interactionParentName(const DtFedNode& parent) const;

    // Enumerations, in omtEnvWriter.cxx.
    bool isGenerated(const DtEnumeratedDatatypeNode& node) const;
    void addEnumeration(DtEnumeratedDatatypeNode& node, DtEnumerationFileWriter& writer);

    // The six families of datatype files, in omtEnvWriterDatatypes.cxx.
    template <typename Family>
    bool isWanted(const DtString& name) const;
    template <typename Family>
    void writeFamily();
    template <typename Family>
    void writePair(typename Family::Node* node);
    template <typename Family>
    void recordClassNames(DtClassNameClashes& shared, DtHeldDatatypes& held);
    void recordAllClassNames();
    // Finds the datatypes whose class or enumeration would be called like a type of the toolkit.
    void recordNamesakes();
    bool getsClass(const DtString& datatype) const;
    bool isTakenByToolkit(const DtString& name) const;

    // Over the tree and the used datatypes as they are.
    DtDatatypeClosure closure();

    // Identifiers of this module: all its files number long names together.
    static DtCCompatibleNames& names();

    DtOMTTree* myTree = nullptr;
    std::set<DtString> myFileList;      // names as the writers got them
    std::set<DtString> myUsedDatatypes; // model names
    std::set<DtOmtObject> myObjectsToGenerate;
    std::set<DtOmtInteraction> myInteractionsToGenerate;
    bool myGenerateExamples = false;
    bool myGenerateDis = false;
    int myFirstPduKind = 0;
    int myNextPduKind = 0;
    DtOmtProject* myProject = nullptr;
    DtHLAProtocolVersion myHlaVersion = DtHlaUnknown;
};

#endif
