#ifndef OMT_READER_XML_MODEL_READER_H
#define OMT_READER_XML_MODEL_READER_H

#include "foundation/string.h"
#include "omtReader/enumerationNode.h"
#include "omtReader/omtTree.h"
#include "omtReader/xmlDocument.h"

class DtExerciseConn;

// A value of a node in a file: the element or attribute that holds it, and where it goes.
template <typename Node>
struct DtXmlField
{
    const char* name;
    void (Node::*setText)(const DtString&);
    void (*set)(Node&, const DtString&) = nullptr; // for values that are no texts
};

// Puts the text in its place if one of the rows knows the name.
template <typename Node, std::size_t theCount>
void DtSetXmlField(Node& node, const DtXmlField<Node> (&rows)[theCount], const xmlNode* element, const DtString& text)
{
    for (const DtXmlField<Node>& row : rows)
    {
        if (!DtHasXmlName(element, row.name))
            continue;
        if (row.setText != nullptr)
            (node.*row.setText)(text);
        else
            row.set(node, text);
    }
}

int DtXmlToNumber(const DtString& text);  // decimal, as atoi reads it
double DtXmlToRate(const DtString& text); // as atof reads it in the C locale; no hexadecimal

// What the readers of the XML formats share: the state and the rules about class roots and missing names. Turns the
// root element of a document into a tree; problems are warnings and never end the reading.
class DtXMLModelReader
{
public:
    explicit DtXMLModelReader(DtExerciseConn* connection) : myConnection(connection) {}
    virtual ~DtXMLModelReader() = default;
    DtXMLModelReader(const DtXMLModelReader&) = delete;
    DtXMLModelReader& operator=(const DtXMLModelReader&) = delete;

    virtual const DtString& getLastError() const { return myLastError; }
    virtual void clearLastError() { myLastError = DtString(); }
    // A new tree, which belongs to the caller.
    virtual DtOMTTree* processObjectModel(xmlNode*& root) = 0;

protected:
    // The words of one hierarchy in warnings, and its names.
    struct Hierarchy
    {
        const char* element;     // of a class
        const char* kind;        // "object" or "interaction"
        const char* root;        // name that the top class has to have
        const char* wrongKind;   // what the warning about another top class calls the hierarchy ...
        const char* wrongRoot;   // ... and the root
        const char* formatWords; // "1516 Evolved XML"
    };

    // Reads the first class element of the parent with all below it and makes it the root of its hierarchy when it has
    // the root's name; warns otherwise, and about every further class element.
    //   process(element) gives the class, null when it was dropped; find(name) asks the tree; setRoot(class) tells it.
    template <typename Process, typename Find, typename SetRoot>
    static void processHierarchy(xmlNode* parent, const Hierarchy& words, Process process, Find find, SetRoot setRoot);

    static void warnOfMissing(const char* element, const char* what = "name");

private:
    static void warnOfFurtherClass(const Hierarchy& words);
    static void warnOfMissingRoot(const Hierarchy& words);
    static void warnOfWrongRoot(const Hierarchy& words);

    DtString myLastError;
    DtExerciseConn* myConnection; // kept for its owner
};

template <typename Process, typename Find, typename SetRoot>
void DtXMLModelReader::processHierarchy(xmlNode* parent, const Hierarchy& words, Process process, Find find,
                                        SetRoot setRoot)
{
    bool hasTop = false;
    decltype(find(DtString())) top = nullptr;
    for (xmlNode*& element : DtXmlElements(parent))
    {
        if (!DtHasXmlName(element, words.element))
            continue;
        if (hasTop)
            warnOfFurtherClass(words);
        else
            top = process(element);
        hasTop = true;
    }
    const auto root = find(words.root);
    if (root == nullptr)
        warnOfMissingRoot(words);
    else if (root == top)
        setRoot(root);
    else
        warnOfWrongRoot(words);
}

#endif
