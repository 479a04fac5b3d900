#ifndef OMT_READER_XML_NODE_BLOCKS_H
#define OMT_READER_XML_NODE_BLOCKS_H

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <cstddef>
#include <memory>
#include <vector>

// Memory for the nodes of one document, in a few large blocks.
//
// A model has tens of thousands of elements, attributes and texts. To take and free the memory of each by itself costs
// a third of what loading the model does, and joining the holes they leave as much again. The parser has two lists of
// nodes to be used before it asks for memory, which its text reader fills with those it is done with. Here they are
// filled from the blocks. What the parser makes in other ways (comments, references, the DTD, long texts, and a node
// when a list happens to be empty) has memory of its own, which the library has to free.
//
// So a document with blocks may only be freed by DtFreeXmlModel, and no node of it in any other way.
class DtXmlNodeBlocks
{
public:
    // Parses what the context reads from. Null when that is malformed.
    static xmlDoc* parse(xmlParserCtxt& context);
    // Frees a document that parse() has given.
    static void free(xmlDoc* document);

private:
    struct DtBlock
    {
        std::unique_ptr<unsigned char[]> memory;
        const unsigned char* end;
    };

    static void startElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                             int namespaceCount, const xmlChar** namespaces, int attributeCount, int defaultedCount,
                             const xmlChar** attributes);
    template <typename Node>
    void refill(Node*& list, int& count);
    void sortBlocks();
    // Of sorted blocks. lastBlock: that held a node of the kind; the next one is likely to be there, too.
    bool holds(const void* node, std::size_t& lastBlock) const;
    void releaseNodes(xmlNode* first);
    void releaseAttributes(xmlAttr* first);
    static void releaseText(xmlNode& node);

    xmlParserCtxt* myContext = nullptr; // while it parses; the library parses entities with others
    std::vector<DtBlock> myBlocks;
    std::size_t myLastNodeBlock = 0;
    std::size_t myLastAttributeBlock = 0;
};

// Frees a document of a model, with its blocks.
struct DtFreeXmlModel
{
    void operator()(xmlDoc* document) const { DtXmlNodeBlocks::free(document); }
};

// Owns the document of a model with all its nodes.
using DtXmlModel = std::unique_ptr<xmlDoc, DtFreeXmlModel>;

#endif
