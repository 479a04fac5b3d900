#include "fileGenerator/arrayDataTypeFileWriter.h"
#include "fileGenerator/basicDataTypeFileWriter.h"
#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/complexDataTypeFileWriter.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/datatypeClosure.h"
#include "fileGenerator/fixedRecordsFileWriter.h"
#include "fileGenerator/nameClashes.h"
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/ownDecoding.h"
#include "fileGenerator/progressMeter.h"
#include "fileGenerator/simpleDataTypeFileWriter.h"
#include "fileGenerator/toolkitNames.h"
#include "fileGenerator/variantRecordFileWriter.h"
#include "foundation/stringUtils.h"
#include "omtReader/visitDatatype.h"

#include <algorithm>
#include <type_traits>

namespace
{
// One datatype on its way into its files.
struct DtDatatypeItem
{
    DtString name;      // in the model
    DtString className; // in generated code
    DtString encoding;
};

// What the six families have in common; each of them restates what it does in its own way.
template <typename DatatypeNode, typename FileWriter>
struct DtDatatypeFamily
{
    using Node = DatatypeNode;
    using Writer = FileWriter;

    static constexpr bool stopsOnCancel = true;

    static bool isReplaced(const DtString& name) { return DtDataTypeMapper::instance()->hasMapping(name); }
    static Writer make(const DtString& fileName, const char* templateName, const DtDatatypeItem&)
    {
        return Writer(fileName, templateName);
    }
    static void prepare(Writer& writer, const DtDatatypeItem& item, DtCCompatibleNames&)
    {
        writer.setOriginalName(item.name);
    }
    static void compile(Writer& writer, Node* node, DtOMTTree* tree, const DtDatatypeItem&)
    {
        if constexpr (std::is_invocable_v<decltype(&Writer::compileAttributes), Writer&, Node*, DtOMTTree*>)
            writer.compileAttributes(node, tree);
        else
            writer.compileAttributes(node);
    }
    // Other names that the family's turn for this datatype makes, in order.
    static void nameFurther(const Node&, DtCCompatibleNames&) {}
    // Of what has accessors in the class.
    static std::vector<DtString> memberNames(const Node&) { return {}; }
    // Of what the class holds by value.
    static std::vector<DtString> memberDatatypes(const Node&) { return {}; }
    // What follows when both files are written and listed.
    static void finish(Node*, DtOMTEnvWriter&) {}
};

template <typename Record>
std::vector<DtString> componentNames(const Record& record)
{
    std::vector<DtString> names;
    for (const auto* component : record.components())
        names.push_back(component->getName());
    return names;
}

struct DtComplexFamily : DtDatatypeFamily<DtComplexDatatypeNode, DtComplexDataTypeFileWriter>
{
    static constexpr const char* header = "../data/templates/subTemplates/complexTypesHeader.tlt";
    static constexpr const char* source = "../data/templates/subTemplates/complexTypesSource.tlt";
    static constexpr bool stopsOnCancel = false;

    static const std::list<Node*>& nodes(const DtOMTTree& tree) { return tree.complexDatatypes(); }
    static void nameFurther(const Node& node, DtCCompatibleNames&)
    {
        for (const auto* component : node.components())
            DtOMTEnvWriter::componentArrayName(*component);
    }
    static std::vector<DtString> memberNames(const Node& node) { return componentNames(node); }
    static std::vector<DtString> memberDatatypes(const Node& node)
    {
        std::vector<DtString> datatypes;
        for (const auto* component : node.components())
            if (DtOMTEnvWriter::componentArrayName(*component).isEmpty())
                datatypes.push_back(component->getDatatype());
        return datatypes;
    }
    static void finish(Node* node, DtOMTEnvWriter& driver) { driver.checkComplexForArrayType(node); }
};

struct DtBasicFamily : DtDatatypeFamily<DtBasicDataRepresentationNode, DtBasicDataTypeFileWriter>
{
    static constexpr const char* header = "../data/templates/subTemplates/basicTypesHeader.tlt";
    static constexpr const char* source = "../data/templates/subTemplates/basicTypesSource.tlt";

    static const std::list<Node*>& nodes(const DtOMTTree& tree) { return tree.basicDataRepresentations(); }
};

struct DtSimpleFamily : DtDatatypeFamily<DtSimpleDatatypeNode, DtSimpleDataTypeFileWriter>
{
    static constexpr const char* header = "../data/templates/subTemplates/simpleTypesHeader.tlt";
    static constexpr const char* source = "../data/templates/subTemplates/simpleTypesSource.tlt";

    static const std::list<Node*>& nodes(const DtOMTTree& tree) { return tree.simpleDatatypes(); }
    // A mapping of its own does not matter here.
    static bool isReplaced(const DtString& name) { return DtDataTypeMapper::instance()->isToBeReplaced(name); }
    static void prepare(Writer& writer, const DtDatatypeItem& item, DtCCompatibleNames&)
    {
        writer.setOriginalName(item.name);
        writer.setClassName(item.className);
    }
};

struct DtArrayFamily : DtDatatypeFamily<DtArrayDatatypeNode, DtArrayDataTypeFileWriter>
{
    static constexpr const char* header = "../data/templates/arrayHeaderByEncoding.tlt";
    static constexpr const char* source = "../data/templates/arraySourceByEncoding.tlt";

    static const std::list<Node*>& nodes(const DtOMTTree& tree) { return tree.arrayDatatypes(); }
    static Writer make(const DtString& fileName, const char* templateName, const DtDatatypeItem& item)
    {
        return Writer(fileName, templateName, item.encoding);
    }
    static void prepare(Writer& writer, const DtDatatypeItem& item, DtCCompatibleNames& names)
    {
        writer.setOriginalName(names.MakeCCompatibleString(item.name));
    }
    static void nameFurther(const Node& node, DtCCompatibleNames& names)
    {
        names.MakeCCompatibleString(node.getName());
    }
};

struct DtFixedRecordFamily : DtDatatypeFamily<DtFixedDatatypeNode, DtFixedRecordFileWriter>
{
    static constexpr const char* header = "../data/templates/subTemplates/fixedRecordsHeader.tlt";
    static constexpr const char* source = "../data/templates/subTemplates/fixedRecordsSource.tlt";

    static const std::list<Node*>& nodes(const DtOMTTree& tree) { return tree.fixedDatatypes(); }
    static std::vector<DtString> memberNames(const Node& node) { return componentNames(node); }
    static std::vector<DtString> memberDatatypes(const Node& node) { return componentDatatypes(node); }
};

struct DtVariantRecordFamily : DtDatatypeFamily<DtVariantDatatypeNode, DtVariantRecordFileWriter>
{
    static constexpr const char* header = "../data/templates/subTemplates/variantRecordsHeader.tlt";
    static constexpr const char* source = "../data/templates/subTemplates/variantRecordsSource.tlt";

    static const std::list<Node*>& nodes(const DtOMTTree& tree) { return tree.variantDatatypes(); }
    static std::vector<DtString> memberNames(const Node& node)
    {
        std::vector<DtString> names;
        for (const DtAlternativeComponentNode* part : node.components())
            if (hasVariantMember(part->getDatatype()))
                names.push_back(part->getName());
        return names;
    }
    static std::vector<DtString> memberDatatypes(const Node& node) { return componentDatatypes(node); }
    static void prepare(Writer& writer, const DtDatatypeItem& item, DtCCompatibleNames&)
    {
        writer.setOriginalName(item.name);
        writer.setClassName(item.className);
    }
    static void compile(Writer& writer, Node* node, DtOMTTree* tree, const DtDatatypeItem& item)
    {
        writer.compileAttributes(node, tree);
        DtDataTypeMapper::DtVariantRecordStruct record;
        if (!DtDataTypeMapper::instance()->variantData(item.name, record))
            return;
        writer.setDiscriminantName(record.discriminant);
        writer.setDiscriminantType(record.discriminantType);
        writer.addEnumerators(record);
    }
};

bool isCancelled()
{
    return DtProgressMeter::current()->isCancelled();
}
} // namespace

template <typename Family>
bool DtOMTEnvWriter::isWanted(const DtString& name) const
{
    return !Family::isReplaced(name) && myUsedDatatypes.count(name) != 0;
}

template <typename Family>
void DtOMTEnvWriter::writeFamily()
{
    for (typename Family::Node* node : Family::nodes(tree()))
    {
        if (Family::stopsOnCancel && isCancelled())
            return;
        if (!isWanted<Family>(node->getName()))
            continue;
        writePair<Family>(node);
        Family::finish(node, *this);
    }
}

template <typename Family>
void DtOMTEnvWriter::writePair(typename Family::Node* node)
{
    const DtString name = node->getName();
    const DtString stem = DtDatatypeClassNames::fileStem(name, names());
    const DtDatatypeItem item{name, DtDatatypeClassNames::classNameOfStem(stem),
                              DtDataTypeMapper::instance()->encOfDatatype(name)};
    DtDataTypeMapper::instance()->addMapping(name, item.className);

    const DtString file = DtString("DataTypes") + DtFilename::separator() + stem;
    auto header = Family::make(file + ".h", Family::header, item);
    auto source = Family::make(file + ".cxx", Family::source, item);
    tellOwnDecoding(header);
    tellOwnDecoding(source);
    Family::prepare(header, item, names());
    Family::prepare(source, item, names());
    Family::compile(header, node, myTree, item);
    header.determineDecodeability(); // once a datatype; the answer serves the source too
    header.writeFile();
    Family::compile(source, node, myTree, item);
    source.writeFile();
    addToFileList(header.fileName());
    addToFileList(source.fileName());
}

// Asks for names in the order in which writing asks for them, so that long names get the same numbers.
template <typename Family>
void DtOMTEnvWriter::recordClassNames(DtClassNameClashes& shared, DtHeldDatatypes& held)
{
    DtDatatypeClassNames& classNames = DtDatatypeClassNames::instance();
    for (typename Family::Node* node : Family::nodes(tree()))
    {
        const DtString name = node->getName();
        if (!isWanted<Family>(name) || classNames.contains(name))
            continue;
        const DtString stem = DtDatatypeClassNames::fileStem(name, names());
        classNames.add(name, DtDatatypeClassNames::classNameOfStem(stem));
        shared.add(name, classNames.className(name));
        held.add(name, Family::memberDatatypes(*node));
        warnOfMemberNames(DtSubject::datatype(name), Family::memberNames(*node));
        Family::nameFurther(*node, names());
    }
}

void DtOMTEnvWriter::recordAllClassNames()
{
    DtClassNameClashes shared;
    DtHeldDatatypes held;
    std::set<DtString> enumerations; // the enumerations header tells of those that are called alike
    for (const DtEnumeratedDatatypeNode* node : tree().enumeratedDatatypes())
    {
        const DtString& name = node->getName();
        if (myUsedDatatypes.count(name) == 0 || !DtDataTypeMapper::instance()->isEnumeration(name))
            continue;
        const DtString type = DtCCompatibleNames::wholeIdentifier(DtDataTypeMapper::instance()->quorvexType(name));
        if (enumerations.insert(type).second)
            shared.add(name, type);
    }
    recordClassNames<DtComplexFamily>(shared, held);
    recordClassNames<DtBasicFamily>(shared, held);
    recordClassNames<DtSimpleFamily>(shared, held);
    recordClassNames<DtArrayFamily>(shared, held);
    recordClassNames<DtFixedRecordFamily>(shared, held);
    recordClassNames<DtVariantRecordFamily>(shared, held);
    held.warn();
}

bool DtOMTEnvWriter::getsClass(const DtString& datatype) const
{
    if (tree().getSimpleDatatypeNode(datatype) != nullptr)
        return isWanted<DtSimpleFamily>(datatype);
    return isDefined(tree(), datatype) && isWanted<DtArrayFamily>(datatype);
}

// In a namespace, a generated type may be called like one of the toolkit that generated code never speaks of.
bool DtOMTEnvWriter::isTakenByToolkit(const DtString& name) const
{
    if (!isToolkitName(name) || namespaceName().isEmpty())
        return isToolkitName(name);
    if (isToolkitNameInGeneratedCode(name) || myProject == nullptr)
        return true;
    const std::map<DtString, DtString>& predefined = myProject->predefinedTypes();
    return std::any_of(predefined.begin(), predefined.end(), [&name](const auto& type) { return type.second == name; });
}

void DtOMTEnvWriter::recordNamesakes()
{
    std::map<DtString, DtString> statedNames;
    std::set<DtString> taken;
    for (const DtString& datatype : myUsedDatatypes)
    {
        if (!getsClass(datatype))
            continue;
        const bool isEnumeration = tree().getEnumeratedDatatypeNode(datatype) != nullptr; // these have no prefix
        statedNames[datatype] = "Dt" + DtFirstCharToUpper(isEnumeration ? datatype : prefixName() + datatype);
        taken.insert(statedNames[datatype]);
    }
    for (const auto& [datatype, statedName] : statedNames)
    {
        if (!isToolkitName(statedName))
            continue;
        DtString identifier = statedName;
        while (isTakenByToolkit(identifier) || (identifier != statedName && taken.count(identifier) != 0))
            identifier += "Type";
        DtDatatypeClassNames::instance().addNamesake(datatype, statedName, identifier);
        if (identifier != statedName)
            warnOfNamesake(datatype, statedName, identifier);
    }
}

void DtOMTEnvWriter::writeDataTypesFiles()
{
    recordAllClassNames(); // members name datatypes whose own turn comes later
    writeComplexFiles();
    writeBasicFiles();
    writeSimpleFiles();
    writeArrayFiles();
    writeFixedRecordFiles();
    writeVariantRecordFiles();
}

void DtOMTEnvWriter::writeComplexFiles()
{
    writeFamily<DtComplexFamily>();
}

void DtOMTEnvWriter::writeBasicFiles()
{
    writeFamily<DtBasicFamily>();
}

void DtOMTEnvWriter::writeSimpleFiles()
{
    writeFamily<DtSimpleFamily>();
}

void DtOMTEnvWriter::writeArrayFiles()
{
    writeFamily<DtArrayFamily>();
}

void DtOMTEnvWriter::writeFixedRecordFiles()
{
    writeFamily<DtFixedRecordFamily>();
}

void DtOMTEnvWriter::writeVariantRecordFiles()
{
    writeFamily<DtVariantRecordFamily>();
}
