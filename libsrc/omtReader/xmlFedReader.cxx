#include "omtReader/xmlFedReader.h"

#include "omtReader/modelFormat.h"

DtFomType DtXmlFedReader::fomType(xmlNode* root)
{
    return DtFormatOfRoot(root);
}
