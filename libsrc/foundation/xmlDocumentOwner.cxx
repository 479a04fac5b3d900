#include "foundation/xmlDocumentOwner.h"

#include <libxml/parser.h>

#include <climits>

DtXmlDocument DtParseXmlQuietly(const std::string& text)
{
    if (text.size() > INT_MAX) // the parser counts in int
        return nullptr;
    const int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    return DtXmlDocument(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, options));
}
