#ifndef FOUNDATION_MTL_READER_H
#define FOUNDATION_MTL_READER_H

#include "foundation/mtlInputStream.h"
#include "foundation/mtlObject.h"

// Reads s-expressions: lists in parentheses, symbols, strings and integers. DtMtlScanner tells how they are written.

// Points to the escape character of strings; null, as at the start, when they have none.
extern char* DtMtlReadEscapeChar;

// Makes the backslash the escape character for as long as it lives; afterwards there is none.
class DtMtlBackslashEscapes
{
public:
    DtMtlBackslashEscapes();
    ~DtMtlBackslashEscapes() { DtMtlReadEscapeChar = nullptr; }
    DtMtlBackslashEscapes(const DtMtlBackslashEscapes&) = delete;
    DtMtlBackslashEscapes& operator=(const DtMtlBackslashEscapes&) = delete;

    static const char* character(); // the backslash
};

// Holds the symbol table of one reading. Objects that were read live on without it.
class DtMtlEnvironment
{
public:
    DtMtlEnvironment() : myTable(new DtlSymbolTable) {}
    DtMtlEnvironment(const DtMtlEnvironment&) = delete;
    DtMtlEnvironment& operator=(const DtMtlEnvironment&) = delete;

    const DtlObjPtr& env() const { return myTable; }

private:
    DtlObjPtr myTable;
};

// The one symbol of that name in the table of an environment; a fresh symbol when `env` is something else.
DtlObjPtr DtcIntern(const char* name, const DtlObjPtr& env);

// Gives the next object of the input, and DtcIntern("eof", env) at its end or for a symbol "eof" in it.
//
// Never fails. A closing parenthesis without an opening one is passed over. What the end of the input leaves open, a
// string or lists, ends there: the object read so far is the result, and the stream tells that it has ended early. A
// point on its own ahead of the last element makes a dotted pair, whose tail that element is; anywhere else it is a
// symbol. A word that is a sign and digits, or digits, is an integer. Symbols are interned in `env`. The work is
// proportional to the length of the text, and no depth of lists costs stack.
DtlObjPtr DtcRead(DtlInputStream* stream, const DtlObjPtr& env);

#endif
