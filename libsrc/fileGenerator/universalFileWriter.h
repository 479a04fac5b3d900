#ifndef FILE_GENERATOR_UNIVERSAL_FILE_WRITER_H
#define FILE_GENERATOR_UNIVERSAL_FILE_WRITER_H

#include "fileGenerator/fileWriter.h"
#include "fileGenerator/mapSubstitute.h"

#include <vector>

// Expands any template against a tree of named values, so that the template needs no writer of its own.
//
// Tokens are looked up in a stack of contexts, from the innermost to the root. A loop names a map whose values are maps
// again, and has one pass for each: the body sees the entry's map, the loop's map and all that is outside of it.
// Inside, <!index0!> and <!index1!> count the passes, and the conditions first, notfirst, last and notlast tell where
// a pass stands. Numbers are no loop headers here.
//
// The tree is complete before the writer is made, is only read, and outlives it.
class DtUniversalFileWriter : public DtFileWriter
{
public:
    DtUniversalFileWriter(const DtString& fileName, const DtString& templateName, DtMapSubstitute* root);

    // Names on the line are replaced in their order, then the base tokens, which values of the contexts may hold too.
    void decodeFileLine(DtString& line) override;
    void writeMultipleTimes(const DtString& header, std::istream& body) override;
    void writeConditional(const DtString& header, std::istream& body) override;

    // The value of the innermost context that has the name; null when none has it. A value of the other kind hides
    // those outside of it, and the latter two give null then.
    virtual DtUniversalSubstitute* lookup(const DtString& name) const;
    virtual const DtString* lookupString(const DtString& name) const;
    virtual DtMapSubstitute* lookupMap(const DtString& name) const;

    // Enters the maps of these names, divided by "|": "A|B" enters A and then B, which may be in A. A name without a
    // map is passed over.
    void pushContext(const DtString& names);
    // Leaves one map, however many pushContext() has entered. Nothing happens when there is none left.
    void popContext();
    // The innermost map; null when all have been left.
    DtMapSubstitute* context() const;

private:
    class ContextFinder;
    class LineTokens;

    void enter(const DtString& name);
    void writePass(const DtString& key, std::istream& body, std::streampos position);
    // False when the line's token has no value.
    bool findValue(const DtString& name, DtString& value) const;
    // The same for a count of the passes.
    bool findNumber(const DtString& name, DtString& value) const;

    DtMapSubstitute* myRootContext;
    std::vector<DtMapSubstitute*> myContextStack;
    // These belong to the innermost loop; they are false and 0 outside of loops.
    bool myIsFirst = false;
    bool myIsLast = false;
    int myIndex = 0;
};

#endif
