#ifndef OMT_READER_XML_EVOLVED_FILE_READER_H
#define OMT_READER_XML_EVOLVED_FILE_READER_H

#include "omtReader/xmlModelReader.h"

// Reads the IEEE 1516-2010 XML format, in which every value is the text of a child element. A child element without
// text is skipped. Only an element named "name" that is there and empty makes a class or member nameless.
class DtXMLEvolvedFileReader : public DtXMLModelReader
{
public:
    explicit DtXMLEvolvedFileReader(DtExerciseConn* connection) : DtXMLEvolvedFileReader(connection, DtHla1516e) {}

    DtOMTTree* processObjectModel(xmlNode*& root) override;
    // An attribute and an interaction class have dimensions here.
    DtAttributeFedNode* processAttribute(xmlNode*& node, DtObjectClassFedNode* objectClass) override;
    DtInteractionClassFedNode* processInteractionClass(xmlNode*& node, DtOMTTree* tree) override;
    void processSwitches(xmlNode*& node, DtOMTTree* tree) override;
    // Every child element becomes a tag.
    void processTags(xmlNode*& node, DtOMTTree* tree) override;
    using DtXMLModelReader::childNodeString;

    virtual void processModelIdentification(xmlNode*& node, DtOMTTree* tree);
    virtual void processPoc(xmlNode*& node, DtOMTTree* tree);
    // Type and identification of the reference both get the text ahead of the first child element, which is mostly
    // white space. The texts of the children tell only whether there is a reference at all.
    virtual void processReference(xmlNode*& node, DtOMTTree* tree);
    virtual void processSwitch(xmlNode*& node, DtOMTTree* tree);
    virtual void processUpdateRates(xmlNode*& node, DtOMTTree* tree);
    virtual void processUpdateRate(xmlNode*& node, DtOMTTree* tree);
    virtual void processEmbeddedNote(xmlNode*& node, DtOMTNode* target);
    // Text of the first child, empty when there is none.
    virtual DtString childNodeString(xmlNode*& node);

protected:
    DtXMLEvolvedFileReader(DtExerciseConn* connection, DtHLAProtocolVersion version);

    void listValues(xmlNode* node, Values& values) override;

private:
    template <typename Node>
    void readDimensions(xmlNode* node, Node& target);

    DtHLAProtocolVersion myVersion;
};

#endif
