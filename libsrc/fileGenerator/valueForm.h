#ifndef FILE_GENERATOR_VALUE_FORM_H
#define FILE_GENERATOR_VALUE_FORM_H

#include "fileGenerator/numberForm.h"
#include "foundation/string.h"

struct DtToolkitLayout;

// What generated code tells the toolkit about a value on the wire beside the names of its datatype: the arguments of
// its DtWireForm.
struct DtValueForm
{
    DtString encoding; // of an array
    int count = -1;    // elements of a fixed array, -1 for an open one
    DtNumberForm number;
    DtString layout; // of a record that a class of the toolkit stands for, with a comma ahead; may be empty
};

// The form of a datatype with this encoding; the layout decides where a type of the toolkit stands for the datatype.
DtValueForm valueFormOf(const DtString& datatype, const DtString& encoding, const DtToolkitLayout& layout);

#endif
