#include "foundation/textEnds.h"
#include "modelTools/modelItems.h"
#include "omtReader/xmlDocument.h"
#include "omtReader/xmlModelNames.h"

#include <QtCore/QTextCodec>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <memory>

namespace
{
using Names = DtXmlModelNames;

// An element that defines something, below an element that defines something of the parent kind.
struct DtElementRow
{
    const char* element;
    DtSubject::Kind kind;
    DtSubject::Kind parent;
};

const DtElementRow theElements[] = {
    {Names::tagObjectClass,       DtSubject::ObjectClass,      DtSubject::None            },
    {Names::tagObjectClass,       DtSubject::ObjectClass,      DtSubject::ObjectClass     },
    {Names::tagAttribute,         DtSubject::Attribute,        DtSubject::ObjectClass     },
    {Names::tagInteractionClass,  DtSubject::InteractionClass, DtSubject::None            },
    {Names::tagInteractionClass,  DtSubject::InteractionClass, DtSubject::InteractionClass},
    {Names::tagParameter,         DtSubject::Parameter,        DtSubject::InteractionClass},
    {Names::tagBasicData,         DtSubject::Datatype,         DtSubject::None            },
    {Names::tagSimpleData,        DtSubject::Datatype,         DtSubject::None            },
    {Names::tagReferenceDataType, DtSubject::Datatype,         DtSubject::None            },
    {Names::tagEnumeratedData,    DtSubject::Datatype,         DtSubject::None            },
    {Names::tagEnumerator,        DtSubject::Enumerator,       DtSubject::Datatype        },
    {Names::tagArrayData,         DtSubject::Datatype,         DtSubject::None            },
    {Names::tagFixedRecordData,   DtSubject::Datatype,         DtSubject::None            },
    {Names::tagField,             DtSubject::Field,            DtSubject::Datatype        },
    {Names::tagVariantRecordData, DtSubject::Datatype,         DtSubject::None            },
    {Names::tagAlternative,       DtSubject::Field,            DtSubject::Datatype        },
};

// The encoding that the XML declaration names; empty when it names none.
std::string declaredEncoding(const std::string& content)
{
    const std::string declaration = DtStartsWith(content, "<?xml") ? content.substr(0, content.find("?>")) : "";
    const std::size_t word = declaration.find("encoding");
    const std::size_t begin = word == std::string::npos ? word : declaration.find_first_of("\"'", word);
    if (begin == std::string::npos)
        return std::string();
    const std::size_t end = declaration.find(declaration[begin], begin + 1);
    return end == std::string::npos ? std::string() : declaration.substr(begin + 1, end - begin - 1);
}

// UTF-16 begins with a byte order mark, or with "<" in one of two byte orders.
std::string encodingOf(const std::string& content)
{
    const std::string start = content.substr(0, 2);
    if (start == "\xFE\xFF" || start == "\xFF\xFE")
        return "UTF-16";
    if (start == std::string("\0<", 2))
        return "UTF-16BE";
    if (start == std::string("<\0", 2))
        return "UTF-16LE";
    return declaredEncoding(content);
}

// In UTF-8 and without a byte order mark. So a place in the parser's input is one in the text.
std::string utf8Of(const std::string& content)
{
    const char* const mark = "\xEF\xBB\xBF";
    if (DtStartsWith(content, mark))
        return content.substr(std::strlen(mark));
    const std::string encoding = encodingOf(content);
    QTextCodec* const codec = encoding.empty() ? nullptr : QTextCodec::codecForName(encoding.c_str());
    if (codec == nullptr || codec->name() == "UTF-8")
        return content;
    return codec->toUnicode(content.data(), static_cast<int>(content.size())).toUtf8().toStdString();
}

// Takes the events of the parser. It asks where the parser stands rather than for the line of a node, which has 16 bits
// and no column.
class DtItemScan
{
public:
    DtItemScan(const std::string& text, xmlParserCtxt& parser) : myText(text), myParser(parser) {}

    void start(const char* element, const xmlChar** attributes, int attributeCount);
    void end() { myOpen.pop_back(); }
    void characters(const char* text, int length);

    DtModelItems result;

private:
    struct Element
    {
        int item = -1; // that it defines
        bool isName = false;
    };

    int itemOfParent() const { return myOpen.empty() ? -1 : myOpen.back().item; }
    void noteContent(int parent, const char* element, const DtElementRow* row);
    void addItem(const DtElementRow& row, int parent, const xmlChar** attributes, int attributeCount);
    void moveToTag();

    const std::string& myText;
    xmlParserCtxt& myParser;
    std::vector<Element> myOpen;
    std::size_t myOffset = 0; // of line and column in the text
    unsigned int myLine = 1;
    unsigned int myColumn = 1;
};

const DtElementRow* rowOf(const char* element, DtSubject::Kind parent)
{
    for (const DtElementRow& row : theElements)
        if (row.parent == parent && std::strcmp(row.element, element) == 0)
            return &row;
    return nullptr;
}

bool isClass(DtSubject::Kind kind)
{
    return kind == DtSubject::ObjectClass || kind == DtSubject::InteractionClass;
}

void DtItemScan::start(const char* element, const xmlChar** attributes, int attributeCount)
{
    const int parent = itemOfParent();
    const DtElementRow* const row =
        rowOf(element, parent < 0 ? DtSubject::None : result.items[static_cast<std::size_t>(parent)].kind);
    if (parent >= 0)
        noteContent(parent, element, row);
    Element opened;
    if (row != nullptr)
    {
        opened.item = static_cast<int>(result.items.size());
        addItem(*row, parent, attributes, attributeCount);
    }
    else
        opened.isName = parent >= 0 && std::strcmp(element, Names::attrName) == 0 &&
                        result.items[static_cast<std::size_t>(parent)].name.empty();
    myOpen.push_back(opened);
}

void DtItemScan::noteContent(int parent, const char* element, const DtElementRow* row)
{
    DtModelItem& item = result.items[static_cast<std::size_t>(parent)];
    if (row == nullptr)
        item.hasValues = item.hasValues || std::strcmp(element, Names::attrName) != 0;
    else if (isClass(row->kind))
        item.hasSubclasses = true;
    else
        item.hasMembers = true;
}

// An attribute is five pointers: name, prefix, namespace, and the begin and end of its value.
void DtItemScan::addItem(const DtElementRow& row, int parent, const xmlChar** attributes, int attributeCount)
{
    moveToTag();
    DtModelItem item;
    item.kind = row.kind;
    item.parent = parent;
    item.line = myLine;
    item.column = myColumn;
    for (int i = 0; i < attributeCount; ++i)
    {
        const xmlChar** const attribute = attributes + static_cast<std::ptrdiff_t>(5) * i;
        if (xmlStrEqual(attribute[0], BAD_CAST Names::attrName) != 0)
            item.name.assign(reinterpret_cast<const char*>(attribute[3]), reinterpret_cast<const char*>(attribute[4]));
        else
            item.hasValues = true;
    }
    result.items.push_back(item);
}

void DtItemScan::characters(const char* text, int length)
{
    if (myOpen.size() >= 2 && myOpen.back().isName)
        result.items[static_cast<std::size_t>(myOpen[myOpen.size() - 2].item)].name.append(
            text, static_cast<std::size_t>(length));
}

// Counts lines and columns on to the "<" of the start tag at whose end the parser stands. No "<" can be within a tag.
void DtItemScan::moveToTag()
{
    const xmlParserInput& input = *myParser.input;
    std::size_t tag = static_cast<std::size_t>(input.consumed) + static_cast<std::size_t>(input.cur - input.base);
    tag = std::min(tag, myText.size());
    while (tag > myOffset && (tag == myText.size() || myText[tag] != '<'))
        --tag;
    for (; myOffset < tag; ++myOffset)
    {
        const auto byte = static_cast<unsigned char>(myText[myOffset]);
        if (byte == '\n')
        {
            ++myLine;
            myColumn = 1;
        }
        else
            myColumn += (byte & 0xC0) == 0x80 ? 0 : 1; // a character counts with its first byte
    }
}

void startElement(void* scan, const xmlChar* name, const xmlChar* /*prefix*/, const xmlChar* /*space*/,
                  int /*spaceCount*/, const xmlChar** /*spaces*/, int attributeCount, int /*defaultCount*/,
                  const xmlChar** attributes)
{
    static_cast<DtItemScan*>(scan)->start(reinterpret_cast<const char*>(name), attributes, attributeCount);
}

void endElement(void* scan, const xmlChar* /*name*/, const xmlChar* /*prefix*/, const xmlChar* /*space*/)
{
    static_cast<DtItemScan*>(scan)->end();
}

void characters(void* scan, const xmlChar* text, int length)
{
    static_cast<DtItemScan*>(scan)->characters(reinterpret_cast<const char*>(text), length);
}

using DtParserContext = std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)>;
} // namespace

// No handler for declarations or entities: none is known then, and none is replaced.
DtModelItems DtXmlModelItems(const std::string& content)
{
    const DtXmlErrors silence;
    const std::string text = utf8Of(content);
    const DtParserContext parser(xmlNewParserCtxt(), xmlFreeParserCtxt);
    if (parser == nullptr || content.size() > INT_MAX || text.size() > INT_MAX)
        return {};
    DtItemScan scan(text, *parser);
    xmlSAXHandler handler = {};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = startElement;
    handler.endElementNs = endElement;
    handler.characters = characters;
    handler.cdataBlock = characters;
    *parser->sax = handler;
    parser->userData = &scan;
    xmlCtxtReadMemory(parser.get(), text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                      theXmlParseOptions | XML_PARSE_IGNORE_ENC);
    scan.result.hasRoots = true;
    return scan.result;
}
