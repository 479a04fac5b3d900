#include "fileGenerator/omtEnvWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/codedDataTypeFileWriter.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/datatypeClosure.h"
#include "fileGenerator/documentation.h"
#include "fileGenerator/enumFileWriter.h"
#include "fileGenerator/fixedExtents.h"
#include "fileGenerator/intFileGenerator.h"
#include "fileGenerator/makeFileWriter.h"
#include "fileGenerator/nameClashes.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/objFileGenerator.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/ownDecoding.h"
#include "fileGenerator/progressMeter.h"
#include "fileGenerator/projectFileWriter.h"
#include "fileGenerator/relativePath.h"
#include "fileGenerator/solutionsFileWriter.h"
#include "fileGenerator/templateFiles.h"
#include "fileGenerator/toolkitLayouts.h"
#include "foundation/exception.h"
#include "foundation/fileUtils.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"
#include "omtReader/enumeratedDatatypeNode.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/omtTree.h"

namespace
{
// What the progress meter counts for what no table lists: header and source of a datatype, the examples of a class, and
// the files of the whole run. The last two are shares of the meter, not numbers of files.
constexpr int theFilesOfDatatype = 2;
constexpr int theMeasureOfExample = 12;
constexpr int theMeasureOfRun = 16;

DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

bool isCancelled()
{
    return DtProgressMeter::current()->isCancelled();
}

DtString withoutPathAndExtension(const DtString& name)
{
    DtFilename file(name);
    file.stripExtension();
    file.stripPath();
    return file;
}

DtString withoutDashesAndDots(const DtString& name)
{
    return DtReplaceAllSubstrings(DtReplaceAllSubstrings(name, "-", ""), ".", "");
}

// A representation can also be a number of bits.
DtNumberForm numberFormOfEnumeration(const DtString& representation)
{
    DtNumberForm form = numberFormOf(representation);
    const int bits = representation.toInt();
    if (form.octets == 0 && bits >= 8 && bits <= 64)
        form.octets = bits / 8;
    return form;
}

DtString orPlainName(const DtString& rename, const DtString& plainName)
{
    return rename.isEmpty() ? plainName : rename;
}

// The record of that full name in a selection; null when it has none.
template <typename Record>
const Record* findRecord(const std::set<Record>& selection, const DtString& fullName)
{
    Record key;
    key.setFullName(fullName);
    const auto found = selection.find(key);
    return found != selection.end() ? &*found : nullptr;
}

// Makes both identifiers of every record while it is the only one: its copies carry them on, so that all products that
// name a class's projects agree.
template <typename Record>
void makeIdentifiers(const std::set<Record>& records)
{
    for (const Record& record : records)
        record.uuid(2);
}

template <typename Members>
std::vector<DtString> namesOf(const Members& members)
{
    std::vector<DtString> names;
    for (const auto* member : members)
    {
        if (member != nullptr)
            names.push_back(member->getName());
    }
    return names;
}

// The texts of the model are looked up while this lives.
class DtDocumentedRun
{
public:
    explicit DtDocumentedRun(const DtOMTTree& tree) { DtDocumentation::instance().setTree(&tree); }
    ~DtDocumentedRun() { DtDocumentation::instance().setTree(nullptr); }
    DtDocumentedRun(const DtDocumentedRun&) = delete;
    DtDocumentedRun& operator=(const DtDocumentedRun&) = delete;
};

// A mapping of the member's own name goes before its datatype.
DtString valueTypeOf(const DtDatatypeFedNode& member)
{
    const DtString& name = member.getName();
    return mapper().hasMapping(name) ? mapper().quorvexType(name) : mapper().behindReferences(member.getDatatype());
}

// The classes above a node but for the root, which no class is generated of, the top one first.
template <typename Node>
std::vector<const Node*> superclassesOf(const Node& node, const DtFedNode* root)
{
    std::vector<const Node*> superclasses;
    for (const DtFedNode* parent = node.getParentObject(); parent != nullptr && parent != root;
         parent = parent->getParentObject())
        superclasses.insert(superclasses.begin(), static_cast<const Node*>(parent));
    return superclasses;
}

const std::list<DtAttributeFedNode*>& membersOf(const DtObjectClassFedNode& node)
{
    return node.getAttributes();
}

const std::list<DtParameterFedNode*>& membersOf(const DtInteractionClassFedNode& node)
{
    return node.getParameters();
}

// Members of superclasses, for the examples. One whose accessors a class below it has too is hidden by those.
template <typename Node>
void addInheritedMembers(DtFileGenerator& generator, const Node& node, const DtFedNode* root)
{
    std::vector<const Node*> classes = superclassesOf(node, root);
    classes.push_back(&node);
    std::map<DtString, const Node*> lowest; // class by accessor
    for (const Node* each : classes)
        for (const DtString& name : namesOf(membersOf(*each)))
            lowest[DtFirstCharToUpper(name)] = each;
    classes.pop_back();
    for (const Node* each : classes)
        for (const auto* member : membersOf(*each))
            if (member != nullptr && lowest[DtFirstCharToUpper(member->getName())] == each)
                generator.addInheritedAttribute(member->getName(), valueTypeOf(*member), "1");
}

// Hands the members of a class to its generator. A member's cardinality is always "1": arrays are named types by now.
template <typename Members>
void addMembers(DtFileGenerator& generator, const Members& members)
{
    for (const auto* member : members)
    {
        if (member == nullptr)
            continue;
        generator.addAttribute(member->getName(), valueTypeOf(*member), "1");
    }
}
} // namespace

DtOMTEnvWriter::~DtOMTEnvWriter() = default;

DtCCompatibleNames& DtOMTEnvWriter::names()
{
    return DtPerRun<DtCCompatibleNames, DtOMTEnvWriter>();
}

DtOMTTree& DtOMTEnvWriter::tree() const
{
    if (myTree == nullptr)
        DT_THROW("setOmtTree() must be called before the model is used");
    return *myTree;
}

int DtOMTEnvWriter::writeFile(const DtString& fomName)
{
    const DtTemplateRun templates;
    const DtDocumentedRun documentation(tree());
    startRun(fomName);
    makeDirectories();
    compileExportMacroName();
    checkUsedSubDatatypesFiles();
    DtToolkitLayouts::instance().workOut(tree(), myUsedDatatypes);
    warnOfByteOrders(tree());
    recordNamesakes();
    setTotalProgress();
    myNextPduKind = myFirstPduKind;
    writeExportHeader();
    generateEnumerationsFile();
    writeDataTypesFiles(); // before the classes, which ask the mapper for the classes of datatypes
    if (!writeSelectedClasses())
        return 0;
    writeProjectFiles(); // last: they list all other files
    return 1;
}

void DtOMTEnvWriter::startRun(const DtString& fomName)
{
    settings().fomDefinitionFileName = fomName;
    myUsedDatatypes.clear();
    if (myHlaVersion == DtHla13)
        closure().insertAllArrays();
    settings().baseName = modelBase();
    DtDatatypeClassNames::instance().clear();
    DtFixedExtents::instance().clear();
    DtCodedDataTypeFileWriter::resetPlusAttributeCounts();
    mapper().forgetNonEncodeableDataTypes();
}

void DtOMTEnvWriter::makeDirectories() const
{
    if (staysBelow(includePath()))
        DtMakeDirectory(DtFileWriter::outputDirectory() + includePath());
    DtMakeDirectory(DtFileWriter::outputDirectory() + "DataTypes");
}

void DtOMTEnvWriter::writeExportHeader()
{
    DtFileWriter writer("dllExport.h", "../data/templates/dllExport.tlt");
    writer.writeFile();
    addToFileList(writer.fileName());
}

bool DtOMTEnvWriter::writeSelectedClasses()
{
    std::set<DtString> doneObjects;
    for (const DtOmtObject& object : myObjectsToGenerate)
    {
        if (isCancelled())
            return false;
        addObjectToFile(object.fullName(), doneObjects);
    }
    std::set<DtString> doneInteractions;
    for (const DtOmtInteraction& interaction : myInteractionsToGenerate)
    {
        if (isCancelled())
            return false;
        addInteractionToFile(interaction.fullName(), doneInteractions);
    }
    return true;
}

DtString DtOMTEnvWriter::modelBase() const
{
    const DtString projectBase = myProject != nullptr ? myProject->baseName() : DtString();
    return projectBase.isEmpty() ? settings().fomDefinitionFileName : projectBase;
}

void DtOMTEnvWriter::compileExportMacroName()
{
    DtString name = withoutDashesAndDots(withoutPathAndExtension(settings().baseName));
    name.toUpper();
    warnOfBaseName(withoutPathAndExtension(settings().baseName), name);
    DtFileWriter::setExportMacroName(DtString("DT_DLL_") + name);
}

void DtOMTEnvWriter::setTotalProgress()
{
    const int perObject = DtObjectFileGenerator::fileCount(myGenerateDis);
    const int perInteraction = DtInteractionFileGenerator::fileCount(myGenerateDis);
    const int perExample = myGenerateExamples ? theMeasureOfExample : 0;
    int datatypes = 0;
    for (const DtString& name : myUsedDatatypes)
    {
        if (!mapper().hasMapping(name) && tree().getEnumeratedDatatypeNode(name) == nullptr &&
            !mapper().isToBeReplaced(name) && tree().getReferenceDatatypeNode(name) == nullptr)
            ++datatypes;
    }
    const int objects = static_cast<int>(myObjectsToGenerate.size());
    const int interactions = static_cast<int>(myInteractionsToGenerate.size());
    DtProgressMeter::current()->setTotalMeasure(theMeasureOfRun + theFilesOfDatatype * datatypes +
                                                (perObject + perExample) * objects +
                                                (perInteraction + perExample) * interactions);
}

void DtOMTEnvWriter::generateEnumerationsFile()
{
    const DtString base = withoutDashesAndDots(withoutPathAndExtension(modelBase()));
    const DtString stem = DtString("DataTypes") + DtFilename::separator() + base + "Enums";
    DtEnumerationFileWriter writer(stem + ".h");
    tellOwnDecoding(writer);
    for (DtEnumeratedDatatypeNode* node : tree().enumeratedDatatypes())
    {
        // Also of those that a ready-made type stands for: it does not tell how long the number is.
        DtDatatypeClassNames::instance().addEnumeration(node->getName(), node->getRepresentation());
        if (isGenerated(*node))
            addEnumeration(*node, writer);
    }
    addToFileList(writer.fileName());
    writer.writeFile();
    if (!writer.hasEnumerations())
        return; // the header is written all the same
    DtEnumerationFileWriter source(stem + ".cxx", "../data/templates/enumsSource.tlt", writer);
    tellOwnDecoding(source);
    addToFileList(source.fileName());
    source.writeFile();
}

bool DtOMTEnvWriter::isGenerated(const DtEnumeratedDatatypeNode& node) const
{
    return myUsedDatatypes.count(node.getName()) != 0 && !mapper().hasMapping(node.getName());
}

void DtOMTEnvWriter::addEnumeration(DtEnumeratedDatatypeNode& node, DtEnumerationFileWriter& writer)
{
    std::vector<DtEnumerationValue> values;
    for (const DtEnumerationNode* value : node.enumerators())
    {
        values.emplace_back(value->getEnum(), DtString(value->getNumber()), value->numberText());
        values.back().setDocumentation(DtDocumentation::instance().of(*value));
    }
    const DtString& name = node.getName();
    DtDatatypeClassNames::instance().addGeneratedEnumeration(name, "Dt" + DtFirstCharToUpper(name));
    DtEnumeration enumeration(name, values);

    DtString representation = mapper().quorvexType(node.getRepresentation());
    if (representation.isEmpty())
        representation = mapper().quorvexType(mapper().repOfSimpleType(node.getRepresentation()));
    if (representation.isEmpty())
        representation = "Dt" + DtFirstCharToUpper(prefixName() + name);
    mapper().addEnumeration(name);
    mapper().addEnumNameToRepMapping(name, representation);

    // "DtInt32" leaves 32, the name of a class leaves no number.
    const int size = DtReplaceSubstring(DtReplaceSubstring(representation, "DtU", ""), "DtInt", "").toInt();
    if (size != 0)
        enumeration.setSize(DtString(size));
    enumeration.setNumberForm(numberFormOfEnumeration(node.getRepresentation()));
    enumeration.setDocumentation(DtDocumentation::instance().of(node));
    writer.addEnumeration(enumeration);
}

const DtOmtObject* DtOMTEnvWriter::selectedObject(const DtString& fullName) const
{
    const DtOmtObject* record = myProject != nullptr ? myProject->getObjectFromName(fullName) : nullptr;
    return record != nullptr ? record : findRecord(myObjectsToGenerate, fullName);
}

const DtOmtInteraction* DtOMTEnvWriter::selectedInteraction(const DtString& fullName) const
{
    const DtOmtInteraction* record = myProject != nullptr ? myProject->getInteractionFromName(fullName) : nullptr;
    return record != nullptr ? record : findRecord(myInteractionsToGenerate, fullName);
}

DtString DtOMTEnvWriter::uniqueName(const DtFedNode& node) const
{
    return myProject != nullptr ? myProject->getUniqueName(node.getFullName()) : node.getName();
}

DtString DtOMTEnvWriter::objectParentName(const DtFedNode& parent) const
{
    if (&parent == tree().objectClassRoot())
        return "ObjectRoot";
    return replaceObjectName(uniqueName(parent), parent.getFullName());
}

DtString DtOMTEnvWriter::interactionParentName(const DtFedNode& parent) const
{
    if (&parent == tree().interactionClassRoot())
        return "InteractionRoot";
    return replaceInteractionName(uniqueName(parent), parent.getFullName()) + "Inter";
}

bool DtOMTEnvWriter::hasFiles(const DtFedNode& parent) const
{
    const DtString& name = parent.getFullName();
    return &parent == tree().objectClassRoot() || &parent == tree().interactionClassRoot() ||
           findRecord(myObjectsToGenerate, name) != nullptr || findRecord(myInteractionsToGenerate, name) != nullptr;
}

// What both kinds of classes have in common, once their generator stands.
template <typename Members>
void DtOMTEnvWriter::generateClass(DtFileGenerator& generator, const DtSubject& owner, const DtFedNode* parent,
                                   const DtString& parentName, const Members& members,
                                   const DtClassDocumentation& documentation)
{
    generator.setPduKind(myNextPduKind++);
    generator.setDocumentation(documentation);
    generator.setFullClassName(owner.name);
    if (parent != nullptr)
    {
        generator.setParentClassName(parentName);
        warnOfParent(owner, parent->getFullName(), hasFiles(*parent), parentName);
    }
    warnOfMemberNames(owner, namesOf(members));
    addMembers(generator, members);
    generator.generateFiles();
}

void DtOMTEnvWriter::addObjectToFile(DtString name, std::set<DtString>& done)
{
    if (isCancelled())
        return;
    const DtObjectClassFedNode* node = tree().getObjectClassNode(name);
    const DtOmtObject* record = selectedObject(name);
    if (node == nullptr || record == nullptr)
        return;
    const DtString plainName = names().MakeCCompatibleString(record->name());
    if (done.count(name) != 0 || isCancelled())
        return;
    DtObjectFileGenerator generator(replaceObjectName(plainName, name), myFileList, myGenerateExamples, myGenerateDis,
                                    *record, myProject != nullptr ? *myProject : DtOmtProject());
    done.insert(name);
    const DtFedNode* parent = node->getParentObject();
    if (myGenerateExamples)
        addInheritedMembers(generator, *node, tree().objectClassRoot());
    generateClass(generator, DtSubject::objectClass(name), parent,
                  parent != nullptr ? objectParentName(*parent) : DtString(), node->getAttributes(),
                  DtDocumentation::instance().of(*node));
}

void DtOMTEnvWriter::addInteractionToFile(DtString name, std::set<DtString>& done)
{
    if (isCancelled())
        return;
    const DtInteractionClassFedNode* node = tree().getInteractionClassNode(name);
    const DtOmtInteraction* record = selectedInteraction(name);
    if (node == nullptr || record == nullptr)
        return;
    const DtString plainName = names().MakeCCompatibleString(record->name());
    if (done.count(name) != 0 || isCancelled())
        return;
    DtInteractionFileGenerator generator(replaceInteractionName(plainName, name) + "Inter", myFileList,
                                         myGenerateExamples, myGenerateDis, *record,
                                         myProject != nullptr ? *myProject : DtOmtProject());
    done.insert(name);
    const DtFedNode* parent = node->getParentObject();
    if (myGenerateExamples)
        addInheritedMembers(generator, *node, tree().interactionClassRoot());
    generateClass(generator, DtSubject::interactionClass(name), parent,
                  parent != nullptr ? interactionParentName(*parent) : DtString(), node->getParameters(),
                  DtDocumentation::instance().of(*node));
}

// Each goes ahead of the next: in a large model they are the longest texts of a run.
void DtOMTEnvWriter::writeProjectFiles()
{
    const DtString base = withoutPathAndExtension(modelBase());
    if (isCancelled())
        return;
    {
        const int compiler = 9; // VC14, 64 bit
        DtProjectFileWriter project(base + "VC14_64" + ".vcxproj", myFileList, compiler);
        tellOwnDecoding(project);
        project.setProjectName(base);
        project.setGenerateDis(myGenerateDis);
        project.writeFile();
    }
    if (isCancelled())
        return;
    {
        DtMakefileWriter makefile("Makefile", myFileList);
        tellOwnDecoding(makefile);
        makefile.setLibraryName(base);
        makefile.setGenerateDis(myGenerateDis);
        makefile.writeFile();
    }
    if (isCancelled())
        return;
    DtSolutionsFileWriter solution(base + "VC14_64.sln", "solutionVC14_64.tlt");
    tellOwnDecoding(solution);
    if (myGenerateExamples)
    {
        solution.setObjects(myObjectsToGenerate);
        solution.setInteractions(myInteractionsToGenerate);
    }
    solution.setProjectName(base);
    solution.writeFile();
}

void DtOMTEnvWriter::setOmtTree(DtOMTTree* tree)
{
    myTree = tree;
}

void DtOMTEnvWriter::setObjectsToGenerate(const std::set<DtOmtObject>& objects)
{
    makeIdentifiers(objects);
    myObjectsToGenerate = objects;
    if (myHlaVersion == DtHla13)
        checkObjectsForArrayTypes();
}

void DtOMTEnvWriter::setInteractionsToGenerate(const std::set<DtOmtInteraction>& interactions)
{
    makeIdentifiers(interactions);
    myInteractionsToGenerate = interactions;
    if (myHlaVersion == DtHla13)
        checkInteractionsForArrayTypes();
}

void DtOMTEnvWriter::setGenerateExamples(bool generate)
{
    myGenerateExamples = generate;
}

void DtOMTEnvWriter::setGenerateErrors(bool generate)
{
    DtFileWriter::setGenerateErrors(generate);
}

void DtOMTEnvWriter::setGenerateDis(bool generate)
{
    myGenerateDis = generate;
}

void DtOMTEnvWriter::setFirstPduKind(int kind)
{
    myFirstPduKind = kind;
}

void DtOMTEnvWriter::setOmtProject(DtOmtProject* project)
{
    myProject = project;
}

void DtOMTEnvWriter::setHlaVersion(DtHLAProtocolVersion version)
{
    myHlaVersion = version;
}

DtString DtOMTEnvWriter::replaceObjectName(const DtString& plainName, const DtString& fullName) const
{
    return myProject != nullptr ? orPlainName(myProject->getRenameForObject(fullName), plainName) : plainName;
}

DtString DtOMTEnvWriter::replaceInteractionName(const DtString& plainName, const DtString& fullName) const
{
    return myProject != nullptr ? orPlainName(myProject->getRenameForInteraction(fullName), plainName) : plainName;
}

DtString DtOMTEnvWriter::replaceAttributeName(const DtString& plainName, const DtString& owner) const
{
    return myProject != nullptr ? orPlainName(myProject->getRenameForAttribute(owner, plainName), plainName)
                                : plainName;
}

DtString DtOMTEnvWriter::replaceParameterName(const DtString& plainName, const DtString& owner) const
{
    return myProject != nullptr ? orPlainName(myProject->getRenameForParameter(owner, plainName), plainName)
                                : plainName;
}

void DtOMTEnvWriter::addToFileList(const DtString& name)
{
    myFileList.insert(name);
}
