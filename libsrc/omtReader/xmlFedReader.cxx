#include "omtReader/xmlFedReader.h"

#include "omtReader/xmlDocument.h"
#include "omtReader/xmlFileReader.h"

DtFomType DtXmlFedReader::fomType(xmlNode* root)
{
    if (root == nullptr || !DtHasXmlName(root, DtXMLFileReader::tagObjectModel))
        return DtFomUnknown;
    const xmlChar* space = root->ns != nullptr ? root->ns->href : nullptr;
    if (space != nullptr && xmlStrEqual(space, BAD_CAST DtXMLFileReader::xmlns_HLA1516_2025))
        return DtFomHla4;
    return DtXMLFileReader::isEvolvedFormat(root) ? DtFomEvolved : DtFom1516;
}
