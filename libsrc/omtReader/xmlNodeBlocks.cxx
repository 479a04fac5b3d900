#include "omtReader/xmlNodeBlocks.h"

#include <libxml/SAX2.h>
#include <libxml/valid.h>

#include <algorithm>
#include <functional>
#include <new>
#include <utility>

namespace
{
constexpr std::size_t theBlockSize = 1u << 16; // bytes; larger ones would not come from memory that was used before
constexpr int theReserve = 32;                 // nodes at hand ahead of an element, beside one for each attribute
} // namespace

xmlDoc* DtXmlNodeBlocks::parse(xmlParserCtxt& context)
{
    auto blocks = std::make_unique<DtXmlNodeBlocks>();
    blocks->myContext = &context;
    context._private = blocks.get();
    context.sax->startElementNs = startElement;
    xmlParseDocument(&context);
    blocks->myContext = nullptr;
    // The context would free what is left in the lists.
    context._private = nullptr;
    context.freeElems = nullptr;
    context.freeElemsNr = 0;
    context.freeAttrs = nullptr;
    context.freeAttrsNr = 0;
    xmlDoc* const document = std::exchange(context.myDoc, nullptr);
    if (document == nullptr)
        return nullptr;
    document->_private = blocks.release();
    if (context.wellFormed != 0)
        return document;
    free(document);
    return nullptr;
}

void DtXmlNodeBlocks::free(xmlDoc* document)
{
    if (document == nullptr)
        return;
    const std::unique_ptr<DtXmlNodeBlocks> blocks(static_cast<DtXmlNodeBlocks*>(document->_private));
    blocks->sortBlocks();
    xmlFreeIDTable(static_cast<xmlIDTable*>(std::exchange(document->ids, nullptr))); // it points to attributes
    blocks->releaseNodes(document->children);
    xmlNode* const dtd = reinterpret_cast<xmlNode*>(document->intSubset);
    document->children = dtd;
    document->last = dtd;
    if (dtd != nullptr)
    {
        dtd->prev = nullptr;
        dtd->next = nullptr;
    }
    xmlFreeDoc(document);
}

void DtXmlNodeBlocks::startElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                                   int namespaceCount, const xmlChar** namespaces, int attributeCount,
                                   int defaultedCount, const xmlChar** attributes)
{
    auto& parser = *static_cast<xmlParserCtxt*>(context);
    auto* const self = static_cast<DtXmlNodeBlocks*>(parser._private);
    if (self != nullptr && self->myContext == &parser)
    {
        if (parser.freeElemsNr < attributeCount + theReserve)
            self->refill(parser.freeElems, parser.freeElemsNr);
        if (parser.freeAttrsNr < attributeCount)
            self->refill(parser.freeAttrs, parser.freeAttrsNr);
    }
    xmlSAX2StartElementNs(context, name, prefix, uri, namespaceCount, namespaces, attributeCount, defaultedCount,
                          attributes);
}

// Puts the nodes of a new block in front of the list. Without memory it stays as it is, and the parser asks for its
// own.
template <typename Node>
void DtXmlNodeBlocks::refill(Node*& list, int& count)
{
    const std::size_t added = theBlockSize / sizeof(Node);
    std::unique_ptr<unsigned char[]> memory(new (std::nothrow) unsigned char[theBlockSize]);
    if (memory == nullptr)
        return;
    auto* const nodes = reinterpret_cast<Node*>(memory.get());
    for (std::size_t index = 0; index < added; ++index)
        nodes[index].next = index + 1 < added ? &nodes[index + 1] : list;
    list = nodes;
    count += static_cast<int>(added);
    const unsigned char* const end = memory.get() + theBlockSize;
    myBlocks.push_back({std::move(memory), end});
}

// By their places, so that a node is found among many in few steps, and one that lies in none soon enough, too.
void DtXmlNodeBlocks::sortBlocks()
{
    std::sort(myBlocks.begin(), myBlocks.end(),
              [](const DtBlock& left, const DtBlock& right) { return std::less<>()(left.end, right.end); });
}

bool DtXmlNodeBlocks::holds(const void* node, std::size_t& lastBlock) const
{
    const auto* const byte = static_cast<const unsigned char*>(node);
    const auto isIn = [byte](const DtBlock& block)
    { return !std::less<>()(byte, block.memory.get()) && std::less<>()(byte, block.end); };
    if (lastBlock < myBlocks.size() && isIn(myBlocks[lastBlock]))
        return true;
    const auto endsAhead = [](const DtBlock& block, const unsigned char* at) { return !std::less<>()(at, block.end); };
    const auto found = std::lower_bound(myBlocks.begin(), myBlocks.end(), byte, endsAhead);
    if (found == myBlocks.end() || !isIn(*found))
        return false;
    lastBlock = static_cast<std::size_t>(found - myBlocks.begin());
    return true;
}

// Frees what the nodes and those below them have outside of the blocks. The DTD stays; the parser limits the depth.
void DtXmlNodeBlocks::releaseNodes(xmlNode* first)
{
    for (xmlNode* node = first; node != nullptr;)
    {
        xmlNode* const next = node->next;
        if (node->type == XML_ELEMENT_NODE)
        {
            releaseNodes(std::exchange(node->children, nullptr));
            releaseAttributes(std::exchange(node->properties, nullptr));
            xmlFreeNsList(std::exchange(node->nsDef, nullptr));
        }
        if (node->type != XML_DTD_NODE && !holds(node, myLastNodeBlock))
            xmlFreeNode(node);
        else if (node->type == XML_TEXT_NODE)
            releaseText(*node);
        node = next;
    }
}

void DtXmlNodeBlocks::releaseAttributes(xmlAttr* first)
{
    for (xmlAttr* attribute = first; attribute != nullptr;)
    {
        xmlAttr* const next = attribute->next;
        releaseNodes(std::exchange(attribute->children, nullptr));
        if (!holds(attribute, myLastAttributeBlock))
            xmlFreeProp(attribute);
        attribute = next;
    }
}

// Short texts lie within the node, and those of many nodes in the dictionary of the document.
void DtXmlNodeBlocks::releaseText(xmlNode& node)
{
    const bool isInside = node.content == reinterpret_cast<xmlChar*>(&node.properties);
    if (node.content == nullptr || isInside || xmlDictOwns(node.doc->dict, node.content) != 0)
        return;
    xmlFree(node.content);
}
