// The tree of named values that DtOMTWriter makes of the model: its root, and what the lists share.

#include "fileGenerator/contextRow.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeBoundaries.h"
#include "fileGenerator/omtWriter.h"
#include "omtReader/omtTree.h"

#include <algorithm>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace
{
constexpr DtKeyForm Plain = DtKeyForm::Plain;
constexpr DtKeyForm Text = DtKeyForm::Text;

struct DtContextGroup
{
    const char* countKey;
    const char* listKey;
    DtMapSubstitute* (DtOMTWriter::*make)();
};

// In this order: the simple datatypes note types that the later groups ask for.
const DtContextGroup theGroups[] = {
    {"NumRepresentations",  "Representations",  &DtOMTWriter::getRepresentationsContext},
    {"NumSimpleDatatypes",  "SimpleDatatypes",  &DtOMTWriter::getSimpleContext         },
    {"NumComplexDatatypes", "ComplexDatatypes", &DtOMTWriter::getComplexContext        },
    {"NumEnumerations",     "Enumerations",     &DtOMTWriter::getEnumerationsContext   },
    {"NumArrays",           "Arrays",           &DtOMTWriter::getArrayContext          },
    {"NumFixedRecords",     "FixedRecords",     &DtOMTWriter::getFixedContext          },
    {"NumVariantRecords",   "VariantRecords",   &DtOMTWriter::getVariantContext        },
    {"NumObjects",          "Objects",          &DtOMTWriter::getObjectContext         },
    {"NumInteractions",     "Interactions",     &DtOMTWriter::getInteractionContext    },
    {"NumReferences",       "References",       &DtOMTWriter::getReferenceContext      },
};

// Versions without a row have no protocol name.
const std::pair<DtHLAProtocolVersion, const char*> theProtocols[] = {
    {DtHla13,    "HLA13"   },
    {DtHla1516,  "HLA1516" },
    {DtHla1516e, "HLA1516e"},
};

DtContextValue protocolOf(const DtOMTWriter& run, DtOMTWriter& /*writer*/)
{
    for (const auto& [version, name] : theProtocols)
    {
        if (version == run.hlaVersion())
            return name;
    }
    return std::nullopt;
}

DtContextValue trueOrNothing(bool isSet)
{
    return isSet ? DtContextValue("TRUE") : std::nullopt;
}

using Run = DtOMTWriter;

// A class-wide setting.
template <const DtString& (*Getter)()>
DtContextValue setting(const Run& /*run*/, Run& /*writer*/)
{
    return Getter();
}

DtContextValue mimIncluded(const Run& /*run*/, Run& /*writer*/)
{
    return trueOrNothing(Run::MIMincluded());
}

const DtContextRow<Run> theSettings[] = {
    {"FomDefinitionFileName", setting<&Run::fomDefinitionFileName>, Text },
    {"Namespace",             setting<&Run::namespaceName>,         Text },
    {"Include",               setting<&Run::includeName>,           Text },
    {"Prefix",                setting<&Run::prefixName>,            Text },
    {"BaseName",              setting<&Run::baseName>,              Text },
    {"MIMincluded",           mimIncluded,                          Plain},
    {"TemplateDir",           got<&Run::templateDir>,               Text },
    {"Language",              got<&Run::language>,                  Text },
    {"Protocol",              protocolOf,                           Plain},
};

const char* const theEntryIdentifiers[] = {"UUID1", "UUID2"};
const char* const theProductIdentifiers[] = {"SolutionUUID1", "SolutionUUID2", "ProjectUUID1", "ProjectUUID2"};

// What a member has to know of its datatype.
struct DtMemberType
{
    const char* kind;
    DtString representation;
    DtString type;
    bool isSimple;
    int boundary;
};

const DtContextRow<DtMemberType> theTypeRows[] = {
    {"Kind",           [](const DtMemberType& type, Run&) -> DtContextValue { return type.kind; },                    Plain},
    {"Representation", [](const DtMemberType& type, Run&) -> DtContextValue { return type.representation; },          Text },
    {"Type",           [](const DtMemberType& type, Run&) -> DtContextValue { return type.type; },                    Text },
    {"IsSimple",       [](const DtMemberType& type, Run&) -> DtContextValue { return trueOrNothing(type.isSimple); }, Plain},
    {"Boundary",       [](const DtMemberType& type, Run&) -> DtContextValue { return DtString(type.boundary); },      Plain},
};

// The kinds of datatype that are no single value, in the order in which they are asked.
const char* kindOf(const DtOMTTree& tree, const DtString& datatype)
{
    if (tree.getArrayDatatypeNode(datatype) != nullptr)
        return "Array";
    if (tree.getFixedDatatypeNode(datatype) != nullptr)
        return "FixedRec";
    if (tree.getComplexDatatypeNode(datatype) != nullptr)
        return "ComplexRec";
    return tree.getVariantDatatypeNode(datatype) != nullptr ? "VariantRec" : "Unknown";
}

DtMemberType typeOfSimple(const DtString& representation, const DtString& mapped, DtOMTWriter& writer)
{
    return {"Simple", representation, Run::identifierOf(mapped), true, writer.getBoundary(representation)};
}

// Without a type for its representation an enumeration takes the type of another one, by its size.
DtMemberType typeOfEnumeration(const DtEnumeratedDatatypeNode& node, DtOMTWriter& writer)
{
    DtString representation = node.getRepresentation();
    if (writer.typeOf(representation) == nullptr)
        representation = writer.replacedType(node);
    return {"Enum", representation, Run::identifierOf(node.getName()), true, writer.getBoundary(representation)};
}

DtMemberType typeOfOther(const DtString& datatype, const DtOMTTree& tree, DtOMTWriter& writer)
{
    const char* kind = kindOf(tree, datatype);
    if (const DtString* mapped = writer.typeOf(datatype))
        return {kind, *mapped, Run::identifierOf(*mapped), false, writer.getBoundary(*mapped)};
    return {kind, "class", Run::identifierOf(datatype), false, writer.getBoundary(datatype)};
}

// The name of a model in the OMT text format is told as that of the file an RTI reads.
DtString fedNameOf(const DtString& fomName)
{
    DtString upper = fomName;
    upper.toUpper();
    const std::string& text = upper.stdString();
    const std::string ending = ".OMT";
    if (text.size() < ending.size() || text.compare(text.size() - ending.size(), ending.size(), ending) != 0)
        return fomName;
    DtString name = fomName;
    name.snipBack('.');
    return name + ".fed";
}

struct DtSizeRow
{
    int octets;
    const char* representation;
};

const DtSizeRow theReplacements[] = {
    {1, "HLAoctet"      },
    {2, "HLAinteger16BE"},
    {4, "HLAinteger32BE"},
    {8, "HLAinteger64BE"},
};
} // namespace

std::vector<DtString> DtContextKey::spellings() const
{
    std::vector<DtString> texts{key};
    if (form == DtKeyForm::Name)
        texts.push_back(key + "Id");
    if (form == DtKeyForm::Name || form == DtKeyForm::Text)
    {
        texts.push_back(key + "Html");
        texts.push_back(key + "Quoted");
    }
    return texts;
}

void DtPutValue(DtMapSubstitute& entry, const DtString& key, const DtString& value, DtKeyForm form)
{
    if (form == DtKeyForm::Name)
        entry.putId(key, value);
    else
        entry.put(key, value);
    if (form == DtKeyForm::Name || form == DtKeyForm::Text)
        entry.putSafeForms(key, value);
}

void DtPutList(DtMapSubstitute& entry, const DtString& countKey, const DtString& listKey,
               std::unique_ptr<DtMapSubstitute> list)
{
    entry.put(countKey, DtString(static_cast<unsigned int>(list->size())));
    entry.put(listKey, list.release());
}

DtContextKeyList& DtContextKeyList::add(const DtString& key, DtKeyForm form)
{
    const bool isThere =
        std::any_of(myKeys.begin(), myKeys.end(),
                    [&](const DtContextKey& known) { return known.list == myList && known.key == key; });
    if (!isThere)
        myKeys.push_back({myList, key, form});
    return *this;
}

DtContextKeyList& DtContextKeyList::addType(const DtString& prefix)
{
    for (const DtContextRow<DtMemberType>& row : theTypeRows)
        add(prefix + row.key, row.form);
    return *this;
}

DtContextKeyList& DtContextKeyList::addList(const char* countKey, const char* listKey)
{
    return add(countKey, DtKeyForm::Plain).add(listKey, DtKeyForm::List);
}

std::vector<DtContextKey> DtOMTWriter::contextKeys()
{
    std::vector<DtContextKey> keys;
    DtContextKeyList root(keys, "");
    for (const DtContextGroup& group : theGroups)
        root.addList(group.countKey, group.listKey);
    root.add(theSettings);
    for (const char* key : theProductIdentifiers)
        root.add(key, Plain);
    DtAddDatatypeKeys(keys);
    DtAddClassKeys(keys);
    std::set<DtString> lists;
    for (const DtContextKey& key : keys)
        lists.insert(key.list);
    for (const DtString& list : lists)
        for (const char* key : theEntryIdentifiers)
            DtContextKeyList(keys, list.c_str()).add(key, Plain);
    return keys;
}

void DtOMTWriter::buildContext()
{
    myBoundaries = std::make_unique<DtDatatypeBoundaries>(tree());
    for (const DtContextGroup& group : theGroups)
        DtPutList(myContext, group.countKey, group.listKey, std::unique_ptr<DtMapSubstitute>((this->*group.make)()));
    settings().fomDefinitionFileName = fedNameOf(settings().fomDefinitionFileName);
    DtPutRows(theSettings, *this, *this, myContext);
    addUUIDs(&myContext);
    for (const char* key : theProductIdentifiers)
        myContext.put(key, makeUUID());
    myBoundaries.reset();
}

DtString DtOMTWriter::makeUUID()
{
    static boost::uuids::random_generator_mt19937 theGenerator; // seeded by the system
    return boost::uuids::to_string(theGenerator());
}

void DtOMTWriter::addUUIDs(DtMapSubstitute* map)
{
    for (const char* key : theEntryIdentifiers)
        map->put(key, makeUUID());
    for (const DtMapSubstitute::Entry& entry : *map)
    {
        const DtMapSubstitute* list = DtMapSubstitute::mapOf(entry.second);
        if (list == nullptr)
            continue;
        for (const DtMapSubstitute::Entry& item : *list)
        {
            if (DtMapSubstitute* inner = DtMapSubstitute::mapOf(item.second))
                addUUIDs(inner);
        }
    }
}

DtString DtOMTWriter::getUniqueName(const DtString& name)
{
    DtString candidate = name;
    unsigned int& number = myNextNumbers[name.stdString()]; // those below it have all been handed out
    if (myUniqueNames.count(name) != 0)
    {
        do
            candidate = name + DtString(number++);
        while (myUniqueNames.count(candidate) != 0);
    }
    myUniqueNames.insert(candidate);
    return candidate;
}

const DtString* DtOMTWriter::typeOf(const DtString& name) const
{
    const auto found = myTypes.find(name);
    return found != myTypes.end() ? &found->second : nullptr;
}

DtString DtOMTWriter::replacedType(const DtEnumeratedDatatypeNode& node) const
{
    const char* representation = "HLAinteger32BE";
    for (const DtSizeRow& row : theReplacements)
    {
        if (row.octets == node.getExpectedEnumerationSize())
            representation = row.representation;
    }
    const DtString* type = typeOf(representation);
    return type != nullptr ? *type : DtString();
}

// A reference datatype has the type of what represents it.
void DtOMTWriter::getType(const DtString& prefix, const DtString& statedDatatype, DtMapSubstitute* context)
{
    const DtString datatype = DtDataTypeMapper::instance()->behindReferences(statedDatatype);
    const DtSimpleDatatypeNode* simple = tree().getSimpleDatatypeNode(datatype);
    const DtString* mapped = simple != nullptr ? typeOf(simple->getRepresentation()) : nullptr;
    const DtEnumeratedDatatypeNode* enumeration = tree().getEnumeratedDatatypeNode(datatype);
    const DtMemberType type = mapped != nullptr        ? typeOfSimple(simple->getRepresentation(), *mapped, *this)
                              : enumeration != nullptr ? typeOfEnumeration(*enumeration, *this)
                                                       : typeOfOther(datatype, tree(), *this);
    for (const DtContextRow<DtMemberType>& row : theTypeRows)
    {
        if (const DtContextValue value = row.value(type, *this))
            DtPutValue(*context, prefix + row.key, *value, row.form);
    }
}

int DtOMTWriter::getBoundary(const DtString& name)
{
    return myBoundaries != nullptr ? myBoundaries->of(name) : DtDatatypeBoundaries(tree()).of(name);
}

bool DtOMTWriter::isUsed(const DtOMTNode& node) const
{
    return myUsedDatatypes.count(node.getName()) != 0;
}
