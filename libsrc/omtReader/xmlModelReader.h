#ifndef OMT_READER_XML_MODEL_READER_H
#define OMT_READER_XML_MODEL_READER_H

#include "foundation/string.h"
#include "omtReader/omtTree.h"
#include "omtReader/xmlDocument.h"
#include "omtReader/xmlModelNames.h"

#include <memory>
#include <string_view>
#include <vector>

class DtExerciseConn;

// The forms of the XML formats. In the 1516 form the values of a construct are XML attributes, in the evolved one, that
// of the later standards, they are child elements.
enum DtXmlForm
{
    DtXml1516Form = 1,
    DtXmlEvolvedForm = 2,
    DtXmlBothForms = DtXml1516Form | DtXmlEvolvedForm
};

// A value of a construct: its name in the file, where it goes, and the forms that have it.
template <typename Node>
struct DtXmlField
{
    std::string_view name;
    void (Node::*setText)(const DtString&);
    DtXmlForm forms = DtXmlBothForms;
    void (*set)(Node&, const DtString&) = nullptr; // for values that are no texts
};

int DtXmlToNumber(const DtString& text);  // decimal, as atoi reads it
double DtXmlToRate(const DtString& text); // as atof reads it in the C locale; no hexadecimal

// Turns the root element of a model in an XML format into a tree. Problems are warnings and never end the reading.
//
// Here is what the forms have in common; a reader derived from this names its form and adds what only that form has.
// There is one operation for each construct, which takes the element it reads. Values and members of a construct may
// stand in any order. An object class, an attribute, an interaction class or a parameter whose name is there but empty
// is dropped with a warning, and one without a name is kept; most other constructs are dropped with a warning when the
// name is empty either way. What has another name is ignored.
//
// The classes of a document may not be nested without a limit; the parser's own (256 elements) is one.
class DtXMLModelReader : public DtXmlModelNames
{
public:
    virtual ~DtXMLModelReader() = default;
    DtXMLModelReader(const DtXMLModelReader&) = delete;
    DtXMLModelReader& operator=(const DtXMLModelReader&) = delete;

    virtual const DtString& getLastError() const { return myLastError; }
    virtual void clearLastError() { myLastError = DtString(); }
    // A new tree, which belongs to the caller.
    virtual DtOMTTree* processObjectModel(xmlNode*& root) = 0;

    virtual void processNotes(xmlNode*& node, DtOMTTree* tree);
    virtual void processNote(xmlNode*& node, DtOMTTree* tree);
    virtual void processObjects(xmlNode*& node, DtOMTTree* tree);
    // A class comes into the flat list behind its subclasses.
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
    // A record without a name stays, with an empty one, in the 1516 form.
    virtual void processFixedRecordData(xmlNode*& node, DtOMTTree* tree);
    virtual void processField(xmlNode*& node, DtFixedDatatypeNode* datatype);
    virtual void processVariantRecordDatatypes(xmlNode*& node, DtOMTTree* tree);
    virtual void processVariantRecordData(xmlNode*& node, DtOMTTree* tree);
    virtual void processAlternative(xmlNode*& node, DtVariantDatatypeNode* datatype);
    virtual void processBasicDataRepresentations(xmlNode*& node, DtOMTTree* tree);
    virtual void processBasicData(xmlNode*& node, DtOMTTree* tree);
    virtual void processSwitches(xmlNode*& node, DtOMTTree* tree) = 0;
    virtual void processDimensions(xmlNode*& node, DtOMTTree* tree);
    virtual void processDimension(xmlNode*& node, DtOMTTree* tree);
    virtual void processTimeRepresentation(xmlNode*& node, DtOMTTree* tree);
    virtual void processTags(xmlNode*& node, DtOMTTree* tree) = 0;
    // Names the tag after the node, whatever its kind.
    virtual void processTag(xmlNode*& node, DtOMTTree* tree);
    virtual void processTransportations(xmlNode*& node, DtOMTTree* tree);
    virtual void processTransportation(xmlNode*& node, DtOMTTree* tree);
    virtual void processSynchronizations(xmlNode*& node, DtOMTTree* tree);
    virtual void processSynchronization(xmlNode*& node, DtOMTTree* tree);
    // Text of the first child, empty when there is none: a value ends at the first reference to an entity.
    virtual DtString childNodeString(xmlAttr*& attribute);

protected:
    struct Format
    {
        DtXmlForm form;
        const char* words;           // in warnings, such as "1516 XML"
        const char* wrongKind;       // what the warning about another object class at the top calls the hierarchy ...
        const char* wrongRoot;       // ... and its root
        bool isEmptyTextSet = false; // or a value without text counts as none
    };
    struct Value
    {
        std::string_view name;
        DtString text;
    };
    // The values of one element. Those of the next take their places, and so the memory of their texts.
    class Values
    {
    public:
        void clear() { myCount = 0; }
        void add(const xmlChar* name, const xmlChar* text); // null stands for an empty text
        const Value* begin() const { return myValues.data(); }
        const Value* end() const { return myValues.data() + myCount; }

    private:
        std::vector<Value> myValues; // with those of earlier elements behind the count
        std::size_t myCount = 0;
    };
    // Names the operation that reads each child element of a name.
    template <typename Reader>
    struct Construct
    {
        const char* element;
        void (Reader::*operation)(xmlNode*&, DtOMTTree*);
    };

    DtXMLModelReader(DtExerciseConn* connection, const Format& format) : myFormat(format), myConnection(connection) {}

    // Lists the texts in an element that may be values of its construct, in the order of the file and with the empty
    // ones; which of them are values is told by the fields.
    virtual void listValues(xmlNode* node, Values& values) = 0;
    // The values of the element, until they are asked for again.
    const Values& valuesOf(xmlNode* node);

    // Give each child element that the constructs, or the one element name, tell of to its operation, in the order of
    // the file.
    template <typename Reader, std::size_t theCount>
    void dispatch(xmlNode* node, const Construct<Reader> (&constructs)[theCount], DtOMTTree* tree);
    template <typename Reader, typename Target>
    void processEach(xmlNode* node, const char* element, void (Reader::*operation)(xmlNode*&, Target*), Target* target);

    // Adds the point of contact that the element holds.
    void readPoc(xmlNode* node, DtOMTTree* tree);
    // Sets the fields of the target whose values the element has.
    template <typename Node, std::size_t theCount>
    void readFields(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], Node& target);
    template <typename Node, std::size_t theCount>
    std::unique_ptr<Node> readItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount]);
    // The answer is null, with a warning, when the item has no name.
    template <typename Node, std::size_t theCount>
    std::unique_ptr<Node> readNamedItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], const char* element,
                                        const char* what = attrName);
    // The answer is null, with a warning, when the name is there and empty.
    template <typename Node, std::size_t theCount>
    std::unique_ptr<Node> readMember(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], const char* element);

private:
    // What sets one of the two hierarchies apart: the names in the file and the words of warnings.
    struct Hierarchy
    {
        const char* element;   // name of the element that holds a class
        const char* kind;      // "object" or "interaction"
        const char* root;      // name that the top class has to have
        const char* wrongKind; // as in Format
        const char* wrongRoot;
    };

    // Reads the first class element of the parent with all below it and makes it the root of its hierarchy when it has
    // the root's name; warns otherwise, and about every further class element.
    //   process(element) gives the class, null when it was dropped; find(name) asks the tree; setRoot(class) tells it.
    template <typename Process, typename Find, typename SetRoot>
    void processHierarchy(xmlNode* parent, const Hierarchy& words, Process process, Find find, SetRoot setRoot);

    template <typename Node, std::size_t theCount>
    void setFields(const Values& values, const DtXmlField<Node> (&fields)[theCount], Node& target) const;

    void warnOfOddEnumerators(const DtEnumeratedDatatypeNode& datatype) const;

    void processReferenceDatatypes(xmlNode*& node, DtOMTTree* tree);
    void processReferenceData(xmlNode*& node, DtOMTTree* tree);

    static const DtString& nameOf(const DtOMTNode& node) { return node.getName(); }
    static const DtString& nameOf(const DtEnumerationNode& node) { return node.getEnum(); }
    // Of an element and of those in it that hold values.
    DtString noteLabelsOf(const xmlNode* node) const;
    void setNoteLabels(const xmlNode* node, DtOMTNode& item) const { item.setNoteLabels(noteLabelsOf(node)); }
    void setNoteLabels(const xmlNode* node, DtEnumerationNode& item) const { item.setNoteLabels(noteLabelsOf(node)); }
    static void setNoteLabels(const xmlNode* /*node*/, DtNoteNode& /*item*/) {}
    static bool hasName(const Values& values);
    static void warnOfMissing(const xmlNode* node, const char* element, const char* what);

    Format myFormat;
    DtString myLastError;
    Values myValues;
    std::vector<DtString> myOddEnumerators; // of the current enumeration: those whose value the number does not hold
    [[maybe_unused]] DtExerciseConn* myConnection; // passed on by callers; never looked into
};

template <typename Reader, std::size_t theCount>
void DtXMLModelReader::dispatch(xmlNode* node, const Construct<Reader> (&constructs)[theCount], DtOMTTree* tree)
{
    auto& reader = static_cast<Reader&>(*this);
    for (xmlNode*& child : DtXmlElements(node))
        for (const Construct<Reader>& construct : constructs)
            if (DtHasXmlName(child, construct.element))
                (reader.*construct.operation)(child, tree);
}

template <typename Reader, typename Target>
void DtXMLModelReader::processEach(xmlNode* node, const char* element, void (Reader::*operation)(xmlNode*&, Target*),
                                   Target* target)
{
    auto& reader = static_cast<Reader&>(*this);
    for (xmlNode*& child : DtXmlElements(node))
        if (DtHasXmlName(child, element))
            (reader.*operation)(child, target);
}

template <typename Node, std::size_t theCount>
void DtXMLModelReader::setFields(const Values& values, const DtXmlField<Node> (&fields)[theCount], Node& target) const
{
    for (const Value& value : values)
        for (const DtXmlField<Node>& field : fields)
        {
            if ((field.forms & myFormat.form) == 0 || field.name != value.name ||
                (value.text.isEmpty() && !myFormat.isEmptyTextSet))
                continue;
            if (field.setText != nullptr)
                (target.*field.setText)(value.text);
            else
                field.set(target, value.text);
        }
}

template <typename Node, std::size_t theCount>
void DtXMLModelReader::readFields(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], Node& target)
{
    setFields(valuesOf(node), fields, target);
}

template <typename Node, std::size_t theCount>
std::unique_ptr<Node> DtXMLModelReader::readItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount])
{
    auto item = std::make_unique<Node>();
    readFields(node, fields, *item);
    setNoteLabels(node, *item);
    return item;
}

template <typename Node, std::size_t theCount>
std::unique_ptr<Node> DtXMLModelReader::readNamedItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount],
                                                      const char* element, const char* what)
{
    auto item = readItem(node, fields);
    if (!nameOf(*item).isEmpty())
        return item;
    warnOfMissing(node, element, what);
    return nullptr;
}

template <typename Node, std::size_t theCount>
std::unique_ptr<Node> DtXMLModelReader::readMember(xmlNode* node, const DtXmlField<Node> (&fields)[theCount],
                                                   const char* element)
{
    const Values& values = valuesOf(node);
    auto member = std::make_unique<Node>();
    setFields(values, fields, *member);
    setNoteLabels(node, *member);
    if (!member->getName().isEmpty() || !hasName(values))
        return member;
    warnOfMissing(node, element, attrName);
    return nullptr;
}

#endif
