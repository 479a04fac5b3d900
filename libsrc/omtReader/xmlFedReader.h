#ifndef OMT_READER_XML_FED_READER_H
#define OMT_READER_XML_FED_READER_H

#include "foundation/fomType.h"

#include <libxml/tree.h>

class DtXmlFedReader
{
public:
    // Format of a parsed document from its root element, 0 when that is no "objectModel".
    static DtFomType fomType(xmlNode* root);
};

#endif
