#ifndef MODEL_TOOLS_MODEL_ITEMS_H
#define MODEL_TOOLS_MODEL_ITEMS_H

#include "foundation/warning.h"

#include <string>
#include <vector>

// One thing that a model file defines, and where the element that defines it starts: its "<", or the "(" of its list.
struct DtModelItem
{
    DtSubject::Kind kind = DtSubject::None; // neither none nor a file nor a setting
    std::string name;                       // in UTF-8, without blanks around it
    int parent = -1;                        // index of the superclass, or of the class or datatype of a member
    unsigned int line = 0;
    unsigned int column = 0; // in characters
    bool hasMembers = false; // these three of a class
    bool hasSubclasses = false;
    bool hasValues = false; // other than its name
};

// What a model file defines, in its order. A superclass may come behind its subclasses, and such links can run in
// rings.
struct DtModelItems
{
    std::vector<DtModelItem> items;
    bool hasRoots = false; // true when the top classes are the roots, false when these are not in the file
};

// Reads a model in one of the XML formats, without network and other files, up to where it is malformed. Entities are
// left out, as the readers of models do.
DtModelItems DtXmlModelItems(const std::string& content);

// Reads a model in the OMT text format.
DtModelItems DtOmtModelItems(const std::string& content);

#endif
