#include "fileGenerator/omtProject.h"

#include "foundation/stringUtils.h"
#include "omtReader/attributeFedNode.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/parameterFedNode.h"

namespace
{

struct DtPredefinedType
{
    const char* modelType;
    const char* toolkitType;
};

// Models in use spell the Unsigned family with either i; without a byte order there is only "Unsignedinteger", and only
// for 8 and 16 bits.
const DtPredefinedType thePredefinedTypes[] = {
    {"octet",                       "DtU8"                    },
    {"Octet",                       "DtU8"                    },
    {"char",                        "DtU8"                    },
    {"any",                         "DtU8"                    },
    {"handle",                      "DtU8"                    },
    {"Unsignedinteger8",            "DtU8"                    },
    {"HLAoctet",                    "DtU8"                    },
    {"HLAunsignedInteger8BE",       "DtU8"                    },
    {"HLAUnsignedInteger8BE",       "DtU8"                    },
    {"HLAASCIIchar",                "DtU8"                    },
    {"RPRunsignedInteger8BE",       "DtU8"                    },
    {"RPRUnsignedInteger8BE",       "DtU8"                    },
    {"unsigned short",              "DtU16"                   },
    {"UnsignedShort",               "DtU16"                   },
    {"unsignedShort",               "DtU16"                   },
    {"Unsignedinteger16",           "DtU16"                   },
    {"Unsignedinteger16BE",         "DtU16"                   },
    {"UnsignedInteger16BE",         "DtU16"                   },
    {"Unsignedinteger16LE",         "DtU16"                   },
    {"UnsignedInteger16LE",         "DtU16"                   },
    {"HLAunsignedInteger16BE",      "DtU16"                   },
    {"HLAUnsignedInteger16BE",      "DtU16"                   },
    {"HLAunicodeChar",              "DtU16"                   },
    {"RPRunsignedInteger16BE",      "DtU16"                   },
    {"RPRUnsignedInteger16BE",      "DtU16"                   },
    {"HLAoctetPairBE",              "DtU16"                   },
    {"HLAoctetPairLE",              "DtU16"                   },
    {"unsigned long",               "DtU32"                   },
    {"UnsignedLong",                "DtU32"                   },
    {"unsignedLong",                "DtU32"                   },
    {"Unsignedinteger32BE",         "DtU32"                   },
    {"UnsignedInteger32BE",         "DtU32"                   },
    {"Unsignedinteger32LE",         "DtU32"                   },
    {"UnsignedInteger32LE",         "DtU32"                   },
    {"HLAunsignedInteger32BE",      "DtU32"                   },
    {"HLAUnsignedInteger32BE",      "DtU32"                   },
    {"RPRunsignedInteger32BE",      "DtU32"                   },
    {"RPRUnsignedInteger32BE",      "DtU32"                   },
    {"unsigned long long",          "DtU64"                   },
    {"Unsignedinteger64BE",         "DtU64"                   },
    {"UnsignedInteger64BE",         "DtU64"                   },
    {"Unsignedinteger64LE",         "DtU64"                   },
    {"UnsignedInteger64LE",         "DtU64"                   },
    {"HLAunsignedInteger64BE",      "DtU64"                   },
    {"HLAUnsignedInteger64BE",      "DtU64"                   },
    {"RPRunsignedInteger64BE",      "DtU64"                   },
    {"RPRUnsignedInteger64BE",      "DtU64"                   },
    {"short",                       "DtInt16"                 },
    {"HLAinteger16BE",              "DtInt16"                 },
    {"HLAinteger16LE",              "DtInt16"                 },
    {"long",                        "DtInt32"                 },
    {"HLAinteger32BE",              "DtInt32"                 },
    {"HLAinteger32LE",              "DtInt32"                 },
    {"HLAcount",                    "DtInt32"                 },
    {"long long",                   "DtInt64"                 },
    {"HLAinteger64BE",              "DtInt64"                 },
    {"HLAinteger64LE",              "DtInt64"                 },
    {"float",                       "DtFloat32"               },
    {"HLAfloat32BE",                "DtFloat32"               },
    {"HLAfloat32LE",                "DtFloat32"               },
    {"double",                      "DtFloat64"               },
    {"HLAfloat64BE",                "DtFloat64"               },
    {"HLAfloat64LE",                "DtFloat64"               },
    {"boolean",                     "bool"                    },
    {"HLAboolean",                  "bool"                    },
    {"RPRboolean",                  "bool"                    },
    {"OMT13boolean",                "bool"                    },
    {"string",                      "DtString"                },
    {"HLAASCIIstring",              "DtString"                },
    {"HLAunicodeString",            "DtString"                },
    {"HLAopaqueData",               "DtString"                },
    {"MarkingArray11",              "DtString"                },
    {"MarkingArray31",              "DtString"                },
    {"RTIObjectId",                 "DtGlobalObjectDesignator"},
    {"RTIobjectId",                 "DtGlobalObjectDesignator"},
    {"RTIObjectIdStruct",           "DtGlobalObjectDesignator"},
    {"RTIobjectIdStruct",           "DtGlobalObjectDesignator"},
    {"WorldLocationStruct",         "DtVector64"              },
    {"VelocityVectorStruct",        "DtVector32"              },
    {"AccelerationVectorStruct",    "DtVector32"              },
    {"AngularVelocityVectorStruct", "DtVector32"              },
    {"EntityTypeStruct",            "DtEntityType"            },
    {"OrientationStruct",           "DtTaitBryan"             },
    {"EntityIdentifierStruct",      "DtEntityIdentifier"      },
    {"HLAlogicalTime",              "DtHlaLogicalTime"        },
    {"timeType",                    "DtHlaLogicalTime"        },
    {"HLAlogicalTimeInterval",      "DtHlaLogicalTimeInterval"},
    {"HLAtimeInterval",             "DtHlaLogicalTimeInterval"},
};

// The record of that full name, or the end. The sets are ordered by the full name, so a record with that alone is key.
template <typename Record>
typename std::set<Record>::const_iterator findRecord(const std::set<Record>& records, const DtString& fullName)
{
    Record key;
    key.setFullName(fullName);
    return records.find(key);
}

template <typename Record>
const Record* recordOrNull(const std::set<Record>& records, const DtString& fullName)
{
    const auto found = findRecord(records, fullName);
    return found != records.end() ? &*found : nullptr;
}

// Rename of the member without name, see the header.
template <typename Member>
DtString renameOfNameless(const std::set<Member>& members, const DtString& fullName)
{
    Member key;
    key.setFullName(fullName);
    const auto found = members.find(key);
    return found != members.end() ? found->rename() : DtString();
}

template <typename Record>
Record makeRecord(const DtString& fullName, const DtString& name, bool shouldRename, const DtString& rename)
{
    Record record;
    record.setFullName(fullName);
    record.setName(name);
    record.setShouldRename(shouldRename);
    record.setRename(rename);
    return record;
}

template <typename Member>
Member memberNamed(const DtString& name)
{
    Member member;
    member.setName(name);
    return member;
}

template <typename Record>
void removeContaining(std::set<Record>& records, const DtString& part)
{
    for (auto each = records.begin(); each != records.end();)
        each = DtContainsSubstring(each->fullName(), part) ? records.erase(each) : std::next(each);
}

} // namespace

DtOmtProject::DtOmtProject() : myContent(std::make_shared<DtContent>())
{
}

DtOmtProject::DtOmtProject(const DtOmtProject& other) : myContent(other.myContent)
{
}

DtOmtProject& DtOmtProject::operator=(const DtOmtProject& other)
{
    if (this == &other)
        return *this;
    myContent = other.myContent;
    myUniqueNames.clear();
    myUsedNames.clear();
    myNextNumbers.clear();
    return *this;
}

DtOmtProject::~DtOmtProject() = default;

DtOmtProject::DtContent& DtOmtProject::change()
{
    if (myContent.use_count() > 1)
        myContent = std::make_shared<DtContent>(*myContent);
    return *myContent;
}

void DtOmtProject::initializePredefinedTypes()
{
    for (const DtPredefinedType& type : thePredefinedTypes)
        addPredefinedType(type.modelType, type.toolkitType);
}

void DtOmtProject::addObject(const DtOmtObject& object)
{
    change().objects.insert(object);
}

void DtOmtProject::addObject(const DtObjectClassFedNode* node)
{
    if (node == nullptr)
        return;
    const DtString fullName = node->getFullName();
    DtOmtObject object = makeRecord<DtOmtObject>(fullName, getUniqueName(fullName), false, DtString());
    for (const DtAttributeFedNode* each : node->getAttributes())
        if (each != nullptr) // stands where an attribute was removed from the model
            object.addAttribute(memberNamed<DtOmtAttribute>(each->getName()));
    addObject(object);
}

void DtOmtProject::addObject(const DtString& fullName, bool shouldRename, const DtString& rename)
{
    addObject(makeRecord<DtOmtObject>(fullName, getUniqueName(fullName), shouldRename, rename));
}

void DtOmtProject::removeObject(const DtOmtObject& object)
{
    if (isObjectInProj(object.fullName()))
        change().objects.erase(object);
}

void DtOmtProject::addInteraction(const DtOmtInteraction& interaction)
{
    change().interactions.insert(interaction);
}

void DtOmtProject::addInteraction(const DtInteractionClassFedNode* node)
{
    if (node == nullptr)
        return;
    const DtString fullName = node->getFullName();
    DtOmtInteraction interaction = makeRecord<DtOmtInteraction>(fullName, getUniqueName(fullName), false, DtString());
    for (const DtParameterFedNode* each : node->getParameters())
        if (each != nullptr)
            interaction.addParameter(memberNamed<DtOmtParameter>(each->getName()));
    addInteraction(interaction);
}

void DtOmtProject::addInteraction(const DtString& fullName, bool shouldRename, const DtString& rename)
{
    addInteraction(makeRecord<DtOmtInteraction>(fullName, getUniqueName(fullName), shouldRename, rename));
}

void DtOmtProject::addCustomCoding(const DtString& key, const DtCodingPair& coding)
{
    change().customCodings[key] = coding;
}

bool DtOmtProject::customCodingsFromName(const DtString& key, DtCodingPair& coding) const
{
    const auto found = myContent->customCodings.find(key);
    if (found == myContent->customCodings.end())
        return false;
    coding = found->second;
    return true;
}

const std::map<DtString, DtOmtProject::DtCodingPair>& DtOmtProject::customCodings() const
{
    return myContent->customCodings;
}

void DtOmtProject::removeInteraction(const DtOmtInteraction& interaction)
{
    if (isInteractionInProj(interaction.fullName()))
        change().interactions.erase(interaction);
}

void DtOmtProject::setObjects(const std::set<DtOmtObject>& objects)
{
    change().objects = objects;
}

void DtOmtProject::setInteractions(const std::set<DtOmtInteraction>& interactions)
{
    change().interactions = interactions;
}

const std::set<DtOmtObject>& DtOmtProject::getObjects() const
{
    return myContent->objects;
}

const std::set<DtOmtInteraction>& DtOmtProject::getInteractions() const
{
    return myContent->interactions;
}

void DtOmtProject::setPredefinedType(const std::map<DtString, DtString>& types)
{
    change().predefinedTypes = types;
}

const std::map<DtString, DtString>& DtOmtProject::predefinedTypes() const
{
    return myContent->predefinedTypes;
}

void DtOmtProject::addPredefinedType(const DtString& name, const DtString& representation)
{
    change().predefinedTypes[name] = representation;
}

bool DtOmtProject::isPredefinedType(const DtString& name) const
{
    return myContent->predefinedTypes.count(name) != 0;
}

bool DtOmtProject::isObjectInProj(const DtString& fullName) const
{
    return getObjectFromName(fullName) != nullptr;
}

bool DtOmtProject::isInteractionInProj(const DtString& fullName) const
{
    return getInteractionFromName(fullName) != nullptr;
}

DtString DtOmtProject::getRenameForObject(const DtString& fullName) const
{
    const DtOmtObject* object = getObjectFromName(fullName);
    return object != nullptr ? object->rename() : DtString();
}

DtString DtOmtProject::getRenameForInteraction(const DtString& fullName) const
{
    const DtOmtInteraction* interaction = getInteractionFromName(fullName);
    return interaction != nullptr ? interaction->rename() : DtString();
}

DtString DtOmtProject::getRenameForParameter(const DtString& interactionName, const DtString& name) const
{
    const DtOmtInteraction* interaction = getInteractionFromName(interactionName);
    return interaction != nullptr ? renameOfNameless(interaction->parameters(), name) : DtString();
}

DtString DtOmtProject::getRenameForAttribute(const DtString& objectName, const DtString& name) const
{
    const DtOmtObject* object = getObjectFromName(objectName);
    return object != nullptr ? renameOfNameless(object->attributes(), name) : DtString();
}

const DtOmtObject* DtOmtProject::getObjectFromName(const DtString& fullName) const
{
    return recordOrNull(myContent->objects, fullName);
}

const DtOmtInteraction* DtOmtProject::getInteractionFromName(const DtString& fullName) const
{
    return recordOrNull(myContent->interactions, fullName);
}

DtString DtOmtProject::getUniqueName(const DtString& fullName)
{
    const auto known = myUniqueNames.find(fullName);
    if (known != myUniqueNames.end())
        return known->second;
    DtString base = fullName;
    base.snipFrontToLast('.');
    const DtSharedText name = DtSharedText::recent(firstFreeName(base)); // the record of the class has both, too
    myUsedNames.insert(name);
    myUniqueNames.emplace(DtSharedText::recent(fullName), name);
    return name;
}

DtString DtOmtProject::firstFreeName(const DtString& base)
{
    if (myUsedNames.count(base) == 0)
        return base;
    unsigned int& number = myNextNumbers.try_emplace(base, 1).first->second;
    DtString name = base + DtString(number);
    while (myUsedNames.count(name) != 0)
        name = base + DtString(++number);
    return name;
}

void DtOmtProject::setFomDefFiles(const std::vector<DtFilePair>& files)
{
    change().fomDefFiles = files;
}

const std::vector<DtOmtProject::DtFilePair>& DtOmtProject::fomDefFiles() const
{
    return myContent->fomDefFiles;
}

void DtOmtProject::addFomDefFile(const DtString& name, const DtString& directory)
{
    change().fomDefFiles.emplace_back(name, directory);
}

void DtOmtProject::setBaseName(const DtString& name)
{
    change().baseName = name;
}

const DtString& DtOmtProject::baseName() const
{
    return myContent->baseName;
}

void DtOmtProject::setIncludeDir(const DtString& directory)
{
    change().includeDir = directory;
}

const DtString& DtOmtProject::includeDir() const
{
    return myContent->includeDir;
}

void DtOmtProject::setClassPrefix(const DtString& prefix)
{
    change().classPrefix = prefix;
}

const DtString& DtOmtProject::classPrefix() const
{
    return myContent->classPrefix;
}

void DtOmtProject::removeAllChildren(const DtString& name, itemType type)
{
    if (type == ObjectItem)
        removeContaining(change().objects, name);
    else if (type == InteractionItem)
        removeContaining(change().interactions, name);
}
