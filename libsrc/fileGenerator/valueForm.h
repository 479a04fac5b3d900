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

// The form as generated code makes it, a call that names the layout: "DtWireForm::number(4)". Empty where only the
// names of the datatype can tell the length, or the model's encoding the kind of array.
DtString wireFormCall(const DtValueForm& form, bool isArray);

// The same by the names of datatype and representation, for the toolkit, or a class of the user's, to find out.
DtString wireFormOfNames(const DtString& datatype, const DtString& representation, const DtValueForm& form);

// The form of a datatype with this encoding; the layout decides where a type of the toolkit stands for the datatype.
DtValueForm valueFormOf(const DtString& datatype, const DtString& encoding, const DtToolkitLayout& layout);

#endif
