#ifndef FOUNDATION_XML_DOCUMENT_OWNER_H
#define FOUNDATION_XML_DOCUMENT_OWNER_H

#include <libxml/tree.h>

#include <memory>
#include <string>

struct DtFreeXmlDocument
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

// Owns a parsed document with all its nodes; null stands for a text that is no document.
using DtXmlDocument = std::unique_ptr<xmlDoc, DtFreeXmlDocument>;

// The document of a text that is in memory already, null when it is not well-formed or has more than INT_MAX bytes.
// Nothing is reported, and neither the DTD nor an external entity is loaded.
DtXmlDocument DtParseXmlQuietly(const std::string& text);

#endif
