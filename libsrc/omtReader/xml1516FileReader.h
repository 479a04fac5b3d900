#ifndef OMT_READER_XML_1516_FILE_READER_H
#define OMT_READER_XML_1516_FILE_READER_H

#include "omtReader/xmlModelReader.h"

// Reads the IEEE 1516-2000 XML format, in which every value is an XML attribute. Its trees have version 2.
//
// An attribute that is there with an empty text sets that text. Of an object class's attribute the format's
// transportation, order, sharing and dimensions are not read.
class DtXML1516FileReader : public DtXMLModelReader
{
public:
    explicit DtXML1516FileReader(DtExerciseConn* connection);

    // The identification is in the attributes of the root. A tree has one point of contact, even one without any text.
    DtOMTTree* processObjectModel(xmlNode*& root) override;
    // Each attribute of the element with a text is a switch.
    void processSwitches(xmlNode*& node, DtOMTTree* tree) override;
    // Every child node becomes a tag: white space between the elements gives tags named "text", comments "comment".
    void processTags(xmlNode*& node, DtOMTTree* tree) override;

protected:
    void listValues(xmlNode* node, Values& values) override;
};

#endif
