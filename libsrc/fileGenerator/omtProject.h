#ifndef FILE_GENERATOR_OMT_PROJECT_H
#define FILE_GENERATOR_OMT_PROJECT_H

#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtObject.h"

#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

class DtInteractionClassFedNode;
class DtObjectClassFedNode;

// The user's side of a generation: the chosen classes with their new names, custom code, predefined types and the model
// files they come from.
//
// Holds names only, never a pointer into a parse tree; the link to a model is the full class name. So a project
// outlives a re-read of the model and can be filled from a project file before any model is there.
//
// A copy costs a pointer: copies share their content until one of them is changed, so writers hold a project by value.
// The tables of unique names are the exception, a copy starts with empty ones. Pointers and references into a project
// are good until that project is changed.
class DtOmtProject
{
public:
    enum itemType : int
    {
        ObjectItem = 0,
        InteractionItem = 1
    };
    using DtFilePair = std::pair<DtString, DtString>;   // name, directory
    using DtCodingPair = std::pair<DtString, DtString>; // text of the encoder, text of the decoder

    DtOmtProject();
    DtOmtProject(const DtOmtProject& other);
    DtOmtProject& operator=(const DtOmtProject& other);
    virtual ~DtOmtProject();

    // Adds the types that a new project starts with. A project that is read from a file has what the file lists.
    virtual void initializePredefinedTypes();

    // A class whose full name is there already is left as it is.
    virtual void addObject(const DtOmtObject& object);
    // The class and its own attributes by name; a null node adds nothing.
    virtual void addObject(const DtObjectClassFedNode* node);
    // The class without attributes.
    virtual void addObject(const DtString& fullName, bool shouldRename, const DtString& rename);
    virtual void removeObject(const DtOmtObject& object);
    virtual void addInteraction(const DtOmtInteraction& interaction);
    virtual void addInteraction(const DtInteractionClassFedNode* node);
    virtual void addInteraction(const DtString& fullName, bool shouldRename, const DtString& rename);

    virtual void addCustomCoding(const DtString& key, const DtCodingPair& coding);
    // True when there is such a key; the argument is left alone otherwise.
    virtual bool customCodingsFromName(const DtString& key, DtCodingPair& coding) const;
    virtual const std::map<DtString, DtCodingPair>& customCodings() const;

    virtual void removeInteraction(const DtOmtInteraction& interaction);
    virtual void setObjects(const std::set<DtOmtObject>& objects);
    virtual void setInteractions(const std::set<DtOmtInteraction>& interactions);
    virtual const std::set<DtOmtObject>& getObjects() const;
    virtual const std::set<DtOmtInteraction>& getInteractions() const;

    // Model type name to toolkit type name.
    virtual void setPredefinedType(const std::map<DtString, DtString>& types);
    virtual const std::map<DtString, DtString>& predefinedTypes() const;
    virtual void addPredefinedType(const DtString& name, const DtString& representation);
    virtual bool isPredefinedType(const DtString& name) const;

    virtual bool isObjectInProj(const DtString& fullName) const;
    virtual bool isInteractionInProj(const DtString& fullName) const;
    virtual DtString getRenameForObject(const DtString& fullName) const;
    virtual DtString getRenameForInteraction(const DtString& fullName) const;
    // These two search the members of a class for one that has no name, so they answer with the empty text for every
    // named member. The rename of a member comes from getAttributeFromName and getParameterFromName of the record.
    virtual DtString getRenameForParameter(const DtString& interactionName, const DtString& name) const;
    virtual DtString getRenameForAttribute(const DtString& objectName, const DtString& name) const;
    // Null when the class is not in the project.
    virtual const DtOmtObject* getObjectFromName(const DtString& fullName) const;
    virtual const DtOmtInteraction* getInteractionFromName(const DtString& fullName) const;

    // Short name of a class, always the same for one full name: what stands behind the last dot, for the first that
    // asks, and that with the lowest free number from 1 on for the others. Objects and interactions share the names.
    virtual DtString getUniqueName(const DtString& fullName);

    virtual void setFomDefFiles(const std::vector<DtFilePair>& files);
    virtual const std::vector<DtFilePair>& fomDefFiles() const;
    virtual void addFomDefFile(const DtString& name, const DtString& directory);
    virtual void setBaseName(const DtString& name);
    virtual const DtString& baseName() const;
    virtual void setIncludeDir(const DtString& directory);
    virtual const DtString& includeDir() const;
    virtual void setClassPrefix(const DtString& prefix);
    virtual const DtString& classPrefix() const;

    // Removes each class of that kind whose full name contains the text anywhere: "A.B" takes "A.BC" along.
    virtual void removeAllChildren(const DtString& name, itemType type);

private:
    struct DtContent
    {
        DtString baseName;
        DtString includeDir;
        DtString classPrefix;
        std::set<DtOmtObject> objects;
        std::set<DtOmtInteraction> interactions;
        std::vector<DtFilePair> fomDefFiles;
        std::map<DtString, DtString> predefinedTypes;
        std::map<DtString, DtCodingPair> customCodings;
    };
    // The content, not shared with any other project any more.
    DtContent& change();
    DtString firstFreeName(const DtString& base);

    struct DtTextOrder
    {
        using is_transparent = void;
        bool operator()(const DtString& left, const DtString& right) const { return left < right; }
    };

    std::shared_ptr<DtContent> myContent; // never null
    std::map<DtSharedText, DtSharedText, DtTextOrder> myUniqueNames;
    std::set<DtSharedText, DtTextOrder> myUsedNames;
    std::map<DtString, unsigned int> myNextNumbers; // by base name: all lower ones are in use
};

#endif
