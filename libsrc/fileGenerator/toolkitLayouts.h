#ifndef FILE_GENERATOR_TOOLKIT_LAYOUTS_H
#define FILE_GENERATOR_TOOLKIT_LAYOUTS_H

#include "fileGenerator/numberForm.h"
#include "foundation/string.h"

#include <map>
#include <set>

class DtOMTTree;

// How a datatype lies on the wire for which a type of the toolkit stands, by what the model itself says of it.
struct DtToolkitLayout
{
    // A text or a time has the encoding of the array that the model defines, its number of elements (-1 when open), and
    // the number that an element is. For all other types the encoding is empty, and the element has no octets.
    DtString encoding;
    int count = -1;
    DtNumberForm element;
    // A record has the last argument of its wire form, as templates write it, with a comma ahead.
    DtString argument;
    // Why the toolkit's type cannot hold the values of the datatype, as the rest of a sentence behind "it"; empty when
    // it can. The argument then makes generated code refuse the values.
    DtString difference;
};

// The layout of a datatype for which this type of the toolkit stands. Says nothing of types that are not the toolkit's,
// and of datatypes that the model does not define: these lie as the toolkit has it.
DtToolkitLayout toolkitLayoutOf(const DtString& datatype, const DtString& toolkitType, const DtOMTTree& tree);

// What values a type of the toolkit has.
enum class DtToolkitValue
{
    None, // it is no type of the toolkit
    Number,
    Array, // texts and times
    Record
};
DtToolkitValue toolkitValueOf(const DtString& type);

// The type that stands for a datatype, or for the first of the representations below it that is mapped; empty when none
// does.
DtString toolkitTypeOf(const DtString& datatype, const DtOMTTree& tree);

// Whether the values of a datatype are numbers or records of numbers in a type of the toolkit, so that all have the
// same octets on the wire as the model has it. False for what does not fit into that type.
bool hasToolkitNumbers(const DtString& datatype, const DtOMTTree& tree);

// The layouts of the datatypes that the present run maps to types of the toolkit.
//
// The name of a datatype decides which type of the toolkit stands for it; the model decides the octets. The driver
// works the layouts out at the start of a run, when the mapper holds the predefined types and nothing that the run
// makes.
class DtToolkitLayouts
{
public:
    static DtToolkitLayouts& instance();

    // Replaces all layouts by those of the used datatypes. Warns, in the order of their names, of those that do not
    // fit.
    void workOut(const DtOMTTree& tree, const std::set<DtString>& used);
    void clear() { myLayouts.clear(); }
    // A layout that says nothing when the datatype has none of its own.
    const DtToolkitLayout& of(const DtString& datatype) const;

private:
    std::map<DtString, DtToolkitLayout> myLayouts;
};

#endif
