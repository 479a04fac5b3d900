#ifndef MODEL_TOOLS_CLASS_PATTERN_H
#define MODEL_TOOLS_CLASS_PATTERN_H

#include "codeGenApp/classSelection.h"
#include "foundation/string.h"

#include <set>
#include <string>
#include <vector>

class DtOMTTree;

// A pattern over dotted class names: "*" stands for any text, dots included, "?" for one character. It is held against
// the full name and against what stands behind each of its dots, so "Platform.*" and "Aircraft" match wherever these
// classes stand, with or without root. A "!" in front takes classes away.
class DtClassPattern
{
public:
    explicit DtClassPattern(const std::string& text);

    bool takesAway() const { return myTakesAway; }
    const std::string& text() const { return myText; } // without the "!"
    bool matches(const DtString& fullName) const;

private:
    std::string myText;
    bool myTakesAway = false;
};

// True for a class of the management model: one that is called HLAmanager or Manager, right below a root, and all below
// it, whichever module defines it.
bool DtIsManagementClass(const DtString& fullName);

// Full names of all classes below the roots, objects ahead of interactions, each class ahead of its subclasses.
std::vector<DtString> DtClassNames(const DtOMTTree& tree);

// What patterns select of a model's classes: each pattern in turn adds the classes that it matches, or takes them away;
// when the first one takes away, all classes are there to begin with. Management classes take part only if wanted.
// Throws DtToolFailure (Usage) for a pattern that matches no class.
std::set<DtString> DtClassesOfPatterns(const DtOMTTree& tree, const std::vector<std::string>& patterns,
                                       bool withManagement);

#endif
