#ifndef OMT_READER_XML_HLA4_FILE_READER_H
#define OMT_READER_XML_HLA4_FILE_READER_H

#include "omtReader/xmlEvolvedFileReader.h"

// Reads the IEEE 1516-2025 XML format: what it has in common with that of 2010. Its trees have version 4.
class DtXMLHla4FileReader : public DtXMLEvolvedFileReader
{
public:
    explicit DtXMLHla4FileReader(DtExerciseConn* connection) : DtXMLEvolvedFileReader(connection, DtHla4) {}
};

#endif
