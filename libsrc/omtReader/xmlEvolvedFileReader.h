#ifndef OMT_READER_XML_EVOLVED_FILE_READER_H
#define OMT_READER_XML_EVOLVED_FILE_READER_H

#include "omtReader/xmlModelReader.h"

// Reads the IEEE 1516-2010 XML format, in which every value is the text of a child element.
//
// One operation for each construct; each takes the element it reads. Children may stand in any order: plain values are
// read first and then the subclasses and members. A child element without text is skipped. An object class, an
// attribute, an interaction class or a parameter whose name is there but empty is dropped with a warning, and one
// without a name element is kept; a datatype, field, enumerator, dimension, synchronisation point or update rate whose
// name is empty either way is dropped with a warning. Elements of other names are ignored.
//
// The classes of a document may not be nested without a limit; the parser's own (256 elements) is one.
class DtXMLEvolvedFileReader : public DtXMLModelReader
{
public:
    explicit DtXMLEvolvedFileReader(DtExerciseConn* connection) : DtXMLEvolvedFileReader(connection, DtHla1516e) {}

    DtOMTTree* processObjectModel(xmlNode*& root) override;

    virtual void processModelIdentification(xmlNode*& node, DtOMTTree* tree);
    virtual void processPoc(xmlNode*& node, DtOMTTree* tree);
    // Type and identification of the reference both get the text ahead of the first child element, which is mostly
    // white space. The texts of the children tell only whether there is a reference at all.
    virtual void processReference(xmlNode*& node, DtOMTTree* tree);

    virtual void processNotes(xmlNode*& node, DtOMTTree* tree);
    virtual void processNote(xmlNode*& node, DtOMTTree* tree);
    virtual void processObjects(xmlNode*& node, DtOMTTree* tree);
    virtual DtObjectClassFedNode* processObjectClass(xmlNode*& node, DtOMTTree* tree);
    // The caller adds the attribute to the class.
    virtual DtAttributeFedNode* processAttribute(xmlNode*& node, DtObjectClassFedNode* objectClass);
    virtual void processInteractions(xmlNode*& node, DtOMTTree* tree);
    virtual DtInteractionClassFedNode* processInteractionClass(xmlNode*& node, DtOMTTree* tree);
    // Adds the parameter to the interaction itself.
    virtual DtParameterFedNode* processParameter(xmlNode*& node, DtInteractionClassFedNode* interaction);
    virtual void processDatatypes(xmlNode*& node, DtOMTTree* tree);
    virtual void processSimpleDatatypes(xmlNode*& node, DtOMTTree* tree);
    virtual void processSimpleData(xmlNode*& node, DtOMTTree* tree);
    virtual void processEnumeratedDatatypes(xmlNode*& node, DtOMTTree* tree);
    virtual void processEnumeratedData(xmlNode*& node, DtOMTTree* tree);
    virtual void processEnumerator(xmlNode*& node, DtEnumeratedDatatypeNode* datatype);
    virtual void processArrayDatatypes(xmlNode*& node, DtOMTTree* tree);
    virtual void processArrayData(xmlNode*& node, DtOMTTree* tree);
    virtual void processFixedRecordDatatypes(xmlNode*& node, DtOMTTree* tree);
    virtual void processFixedRecordData(xmlNode*& node, DtOMTTree* tree);
    virtual void processField(xmlNode*& node, DtFixedDatatypeNode* datatype);
    virtual void processVariantRecordDatatypes(xmlNode*& node, DtOMTTree* tree);
    virtual void processVariantRecordData(xmlNode*& node, DtOMTTree* tree);
    virtual void processAlternative(xmlNode*& node, DtVariantDatatypeNode* datatype);
    virtual void processBasicDataRepresentations(xmlNode*& node, DtOMTTree* tree);
    virtual void processBasicData(xmlNode*& node, DtOMTTree* tree);
    virtual void processSwitches(xmlNode*& node, DtOMTTree* tree);
    virtual void processSwitch(xmlNode*& node, DtOMTTree* tree);
    virtual void processDimensions(xmlNode*& node, DtOMTTree* tree);
    virtual void processDimension(xmlNode*& node, DtOMTTree* tree);
    virtual void processTimeRepresentation(xmlNode*& node, DtOMTTree* tree);
    // Runs of white space between the elements count as children and give tags named "text".
    virtual void processTags(xmlNode*& node, DtOMTTree* tree);
    virtual void processTag(xmlNode*& node, DtOMTTree* tree);
    virtual void processTransportations(xmlNode*& node, DtOMTTree* tree);
    virtual void processTransportation(xmlNode*& node, DtOMTTree* tree);
    virtual void processSynchronizations(xmlNode*& node, DtOMTTree* tree);
    virtual void processSynchronization(xmlNode*& node, DtOMTTree* tree);
    virtual void processUpdateRates(xmlNode*& node, DtOMTTree* tree);
    virtual void processUpdateRate(xmlNode*& node, DtOMTTree* tree);
    virtual void processEmbeddedNote(xmlNode*& node, DtOMTNode* target);
    // Text of the first child, empty when there is none.
    virtual DtString childNodeString(xmlAttr*& attribute);
    virtual DtString childNodeString(xmlNode*& node);

protected:
    DtXMLEvolvedFileReader(DtExerciseConn* connection, DtHLAProtocolVersion version);

private:
    template <typename Target>
    using Operation = void (DtXMLEvolvedFileReader::*)(xmlNode*&, Target*);

    // The operation that reads each child element of a name.
    struct Construct
    {
        const char* element;
        Operation<DtOMTTree> operation;
    };

    template <std::size_t theCount>
    void dispatch(xmlNode* node, const Construct (&constructs)[theCount], DtOMTTree* tree);
    template <typename Target>
    void processEach(xmlNode* node, const char* element, Operation<Target> operation, Target* target);
    template <typename Node, std::size_t theCount>
    void readFields(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], Node& target);
    template <typename Node, std::size_t theCount>
    std::unique_ptr<Node> readItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount]);
    template <typename Node, std::size_t theCount>
    std::unique_ptr<Node> readNamedItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], const char* element,
                                        const char* what = "name");
    template <typename Node, std::size_t theCount>
    std::unique_ptr<Node> readMember(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], const char* element);
    template <typename Node>
    void readDimensions(xmlNode* node, Node& target);

    DtHLAProtocolVersion myVersion;
};

#endif
