#ifndef OMT_READER_MODEL_FORMAT_H
#define OMT_READER_MODEL_FORMAT_H

#include "foundation/fomType.h"

#include <libxml/tree.h>

#include <cstdio>

// Tells which format a model is in. All that sets the formats apart is in here.
//
// A text that does not begin like XML is one of the OMT text format when one of its lists, outside others, has the head
// ObjectModel. An XML document is a model when its root element is an objectModel. The namespace of that element tells
// the format, as IEEE 1516.2-2010 and 1516.2-2025 define one each. The format of 2000 has none, and documents of the
// later form come without one too: those are known by elements that the older form does not have.

inline constexpr char theModelElement[] = "objectModel";
inline constexpr char theNamespace2010[] = "http://standards.ieee.org/IEEE1516-2010";
inline constexpr char theNamespace2025[] = "http://standards.ieee.org/IEEE1516-2025";

// Format of a file that stands at its start, unknown when it is in none. What its root element tells is not checked
// against the rest of the file. With a report, what is wrong with the XML that had to be read goes to DtWarn under the
// name.
DtFomType DtFormatOfFile(FILE* file, const char* name, bool reportFailure);

// Format of a parsed document from its root element, unknown for null and when that is no model.
DtFomType DtFormatOfRoot(xmlNode* root);

// True when a document is in the form of the 2010 standard: by its namespace or by how it writes its values.
bool DtHasEvolvedForm(xmlNode* root);

#endif
