#ifndef FOUNDATION_ENV_XML_READER_H
#define FOUNDATION_ENV_XML_READER_H

#include "foundation/environment.h"

// Reads a configuration store from an XML file.
//
// Every element becomes an object: its type is the element's name, its name the XML attribute "name", or the element's
// name where there is none. The other XML attributes become attributes, comments become comments, text between the
// elements is dropped. Only regular files of the local machine are read; neither the DTD nor any external entity is
// loaded. Nothing is reported.
class DtEnvXMLReader
{
public:
    // keepComments: whether comments of the file become nodes.
    explicit DtEnvXMLReader(bool keepComments) : myKeepComments(keepComments) {}

    // The tree of the file. *result (may be null) becomes false, and the tree empty, when the file cannot be read or
    // is not well-formed.
    DtEnvironment readFile(const DtString& fileName, bool* result) const;

private:
    bool myKeepComments;
};

#endif
