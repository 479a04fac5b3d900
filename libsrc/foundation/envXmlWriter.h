#ifndef FOUNDATION_ENV_XML_WRITER_H
#define FOUNDATION_ENV_XML_WRITER_H

#include "foundation/environment.h"

// Writes a configuration store as the XML file that DtEnvXMLReader reads back to the same tree.
//
// An object is an element named by its type with its name as the XML attribute "name"; an object whose type equals its
// name has no such attribute. Text that is not valid UTF-8 is taken as Latin-1; characters that XML cannot carry are
// left out with a warning on DtWarn.
class DtEnvXMLWriter
{
public:
    // rootName: name of the root element, whatever the root of the tree is called; dtdName: the DTD that the document
    // type names.
    DtEnvXMLWriter(const DtString& rootName, const DtString& dtdName) : myRootName(rootName), myDtdName(dtdName) {}

    // Replaces the file in one step. False when it cannot be written or when a type or attribute name of the tree is
    // no XML name; the old file is then untouched. A tree without a root gives an empty root element.
    bool writeFile(DtEnvironment& environment, const DtString& fileName) const;

private:
    DtString myRootName;
    DtString myDtdName;
};

#endif
