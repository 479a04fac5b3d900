#ifndef MODEL_TOOLS_MODEL_PLACES_H
#define MODEL_TOOLS_MODEL_PLACES_H

#include "modelTools/diagnostics.h"
#include "modelTools/modelItems.h"

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

// Finds where model files define what a warning is about. The place is the "<" of the start tag of the element that
// defines the thing, or the "(" of its list in the OMT text format; lines and columns count from 1, columns in
// characters.
//
// The files are read when the first place is asked for, each once, and apart from the reading of the model: a run
// without warnings has no use for places. A file that is missing or malformed gives the places ahead of the fault.
//
// The first definition counts. Only a class gives way to a later one that has more to say of it: a module names a class
// of another one, without its members, to put a subclass below it.
class DtModelPlaces
{
public:
    // In the order in which the modules were merged.
    explicit DtModelPlaces(std::vector<std::string> files) : myFiles(std::move(files)) {}

    // A class goes by its full name, with or without the root, or by its own name alone. A member that its class does
    // not define stands where the nearest superclass defines it. What no file defines has the place of its class or
    // datatype, if that has one. A file stands where the
    // subject says, if it says it. Nothing is known of the place of anything else.
    DtPlace of(const DtSubject& subject);

private:
    struct Entry
    {
        std::size_t file = 0;
        unsigned int line = 0;
        unsigned int column = 0;
        int weight = 0; // of a class
    };

    void readFiles();
    void enter(std::size_t file, const DtModelItems& model);
    void enter(const std::string& key, const Entry& entry);
    const Entry* find(const DtSubject& subject) const;
    const Entry* findClass(DtSubject::Kind kind, const std::string& name) const;
    const Entry* findClassMember(DtSubject::Kind kind, const DtSubject& owner, const std::string& name) const;
    const Entry* findKey(const std::string& key) const;
    std::string withoutRoot(const std::string& fullName) const;

    std::vector<std::string> myFiles;
    bool myHasRead = false;
    std::set<std::string> myRoots;
    std::unordered_map<std::string, Entry> myEntries;
};

#endif
