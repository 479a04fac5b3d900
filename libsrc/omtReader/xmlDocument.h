#ifndef OMT_READER_XML_DOCUMENT_H
#define OMT_READER_XML_DOCUMENT_H

#include "foundation/string.h"
#include "foundation/warning.h"
#include "foundation/xmlDocumentOwner.h"
#include "omtReader/xmlNodeBlocks.h"

#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <cstdio>

// Keeps the XML parser from writing to the console for as long as it lives, and remembers what first made a document
// unusable. One may live inside another; the inner one listens.
class DtXmlErrors
{
public:
    DtXmlErrors();
    ~DtXmlErrors();
    DtXmlErrors(const DtXmlErrors&) = delete;
    DtXmlErrors& operator=(const DtXmlErrors&) = delete;

    // Warns with "file:line: cause", once; nothing, and false, when no document was malformed.
    bool report(const char* file);

private:
    static void note(void* errors, xmlErrorPtr error);

    void* myOldContext;
    xmlStructuredErrorFunc myOldFunction;
    DtString myCause; // empty when all is well
    int myLine = 0;
    int myColumn = 0;
};

// Options that every parse of a model passes to the parser: no network, no entity replaced and so none loaded, the
// usual limits on depth and size, short texts kept small.
extern const int theXmlParseOptions;

// Each gives the document that it parses, null when that is malformed or, of a file, when there is none. Nothing but a
// plain file is opened: no URL, device, FIFO or directory, and compressed content is not unpacked.
DtXmlModel DtParseXmlModel(const char* name);
DtXmlModel DtParseXmlModel(int descriptor, const char* name);
DtXmlModel DtParseXmlModel(const char* buffer, int size);
// The same for a document that goes to somebody who has the library free it.
DtXmlDocument DtParseXmlFile(const char* name);
DtXmlDocument DtParseXmlBuffer(const char* buffer, int size);

// Keeps the document of that open file for DtParseXmlModel(), so that a file whose format is asked for ahead is parsed
// once. One is kept at a time, and only until the next file is parsed; none is that has changed a moment ago.
void DtKeepXmlModel(int descriptor, DtXmlModel document);

// The file that the node was read from, for warnings; no subject when the document came from memory.
DtSubject DtXmlFileOf(const xmlNode* node);

// Opens a plain file for reading. The caller closes the descriptor, which is -1 when there is no such file.
int DtOpenPlainFile(const char* name);
// Turns the descriptor into a stream, which owns it then. When there can be none, the descriptor is closed and the
// answer is null.
FILE* DtStreamOf(int descriptor);

// The element behind an iterator step: `node` itself when it is an element, else the next sibling that is one.
xmlNode* DtElementFrom(xmlNode* node);
bool DtHasXmlName(const xmlNode* node, const char* name);
// First child element of that name, null if none.
xmlNode* DtFirstXmlChild(const xmlNode* parent, const char* name);
// The text of the first of these siblings that is no comment or processing instruction; null when there is none or when
// it is something else than text. A reference to an entity is not looked into: a few bytes could stand for any amount
// of text.
const xmlChar* DtXmlText(const xmlNode* first);

// The child elements of an element: for (xmlNode* child : DtXmlElements(parent)).
class DtXmlElements
{
public:
    class Iterator
    {
    public:
        explicit Iterator(xmlNode* node) : myNode(DtElementFrom(node)) {}
        xmlNode*& operator*() { return myNode; }
        Iterator& operator++()
        {
            myNode = DtElementFrom(myNode->next);
            return *this;
        }
        bool operator!=(const Iterator& other) const { return myNode != other.myNode; }

    private:
        xmlNode* myNode;
    };

    explicit DtXmlElements(const xmlNode* parent) : myFirst(parent->children) {}
    Iterator begin() const { return Iterator(myFirst); }
    Iterator end() const { return Iterator(nullptr); }

private:
    xmlNode* myFirst;
};

#endif
