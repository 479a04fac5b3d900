#ifndef OMT_READER_XML_FED_READER_H
#define OMT_READER_XML_FED_READER_H

#include "foundation/fomType.h"

#include <libxml/tree.h>

// Tells the format of a document that is parsed already; DtFedReader tells that of a file.
class DtXmlFedReader
{
public:
    // From the root element, DtFomUnknown when that is null or no "objectModel".
    static DtFomType fomType(xmlNode* root);
};

#endif
