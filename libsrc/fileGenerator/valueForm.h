#ifndef FILE_GENERATOR_VALUE_FORM_H
#define FILE_GENERATOR_VALUE_FORM_H

#include "fileGenerator/numberForm.h"
#include "foundation/string.h"

enum class DtToolkitValue;
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

// The form of one value or several as generated code makes it, a call that names the layout: "DtWireForm::number(4)".
// Empty where only the names of the datatype can tell the length, or the model's encoding the kind of array, and for
// types that are not the toolkit's.
DtString wireFormCall(const DtValueForm& form, DtToolkitValue value, bool isOne = true);

// The same by the names of datatype and representation, for the toolkit, or a class of the user's, to find out.
DtString wireFormOfNames(const DtString& datatype, const DtString& representation, const DtValueForm& form);

// The layout of an array as generated code makes it: "DtArrayLayout(DtFixedArray, 3)". An encoding that is not known is
// a fixed array where the model gives the number of elements, else one without length.
DtString arrayLayoutCall(const DtString& encoding, int elementCount);

// How the value of a variant record with this encoding lies behind its discriminant, as the toolkit calls it:
// "DtPlainVariant".
DtString toolkitKindOfVariant(const DtString& encoding);

// The form of a datatype with this encoding; the layout decides where a type of the toolkit stands for the datatype.
DtValueForm valueFormOf(const DtString& datatype, const DtString& encoding, const DtToolkitLayout& layout);

#endif
