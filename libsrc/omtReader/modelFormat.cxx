#include "omtReader/modelFormat.h"

#include "foundation/mtlReader.h"
#include "foundation/mtlScanner.h"
#include "foundation/stringUtils.h"
#include "omtReader/cardinalityText.h"
#include "omtReader/xmlDocument.h"

#include <libxml/xmlreader.h>

#include <memory>
#include <unistd.h>

// ---- parsed documents

namespace
{
bool isNamespace(const xmlChar* space, const char* expected)
{
    return xmlStrEqual(space, BAD_CAST expected) != 0;
}

// The format that a namespace stands for; unknown for one that tells none, and for none at all.
DtFomType formatOfNamespace(const xmlChar* space)
{
    if (isNamespace(space, theNamespace2025))
        return DtFomHla4;
    return isNamespace(space, theNamespace2010) ? DtFomEvolved : DtFomUnknown;
}

template <typename Condition>
bool anyChild(xmlNode* parent, const char* name, Condition condition)
{
    for (xmlNode* child : DtXmlElements(parent))
        if (DtHasXmlName(child, name) && condition(child))
            return true;
    return false;
}

// What only divides lines between the tags of an empty element is no content.
bool holdsText(const xmlNode& element)
{
    const xmlChar* text = DtXmlText(element.children);
    return text != nullptr && (xmlFirstElementChild(const_cast<xmlNode*>(&element)) != nullptr ||
                               !DtIsBlank(reinterpret_cast<const char*>(text)));
}

bool hasClassNamed(xmlNode* classes, const char* element, const char* name)
{
    return anyChild(classes, element,
                    [name](xmlNode* node)
                    {
                        const xmlNode* const child = DtFirstXmlChild(node, "name");
                        const xmlChar* const text = child != nullptr ? DtXmlText(child->children) : nullptr;
                        return text != nullptr && xmlStrEqual(text, BAD_CAST name);
                    });
}
} // namespace

bool DtHasEvolvedForm(xmlNode* root)
{
    if (root->ns != nullptr && isNamespace(root->ns->href, theNamespace2010))
        return true;
    const auto isEvolved = [](xmlNode* transportation)
    { return DtFirstXmlChild(transportation, "reliable") != nullptr || holdsText(*transportation); };
    if (anyChild(root, "transportations", [&](xmlNode* node) { return anyChild(node, "transportation", isEvolved); }))
        return true;
    if (DtFirstXmlChild(root, "updateRates") != nullptr)
        return true;
    if (xmlNode* objects = DtFirstXmlChild(root, "objects"))
        return hasClassNamed(objects, "objectClass", "HLAobjectRoot");
    xmlNode* interactions = DtFirstXmlChild(root, "interactions");
    return interactions != nullptr && hasClassNamed(interactions, "interactionClass", "HLAinteractionRoot");
}

DtFomType DtFormatOfRoot(xmlNode* root)
{
    if (root == nullptr || !DtHasXmlName(root, theModelElement))
        return DtFomUnknown;
    const DtFomType told = root->ns != nullptr ? formatOfNamespace(root->ns->href) : DtFomUnknown;
    if (told != DtFomUnknown)
        return told;
    return DtHasEvolvedForm(root) ? DtFomEvolved : DtFom1516;
}

// ---- files

namespace
{
// Of a text with or without the byte order mark of UTF-8; EOF when there is none.
int firstNonBlank(FILE* file)
{
    int character = std::fgetc(file);
    for (const char* mark = "\xEF\xBB\xBF"; *mark != '\0' && character == static_cast<unsigned char>(*mark); ++mark)
        character = std::fgetc(file);
    while (character != EOF && DtIsSpace(static_cast<char>(character)))
        character = std::fgetc(file);
    return character;
}

// By its first character that is no blank: that of a tag, or the start of a text in UTF-16.
bool mayBeXml(int first)
{
    return first == '<' || first == 0 || first == 0xFE || first == 0xFF;
}

// True when an s-expression of the file is a list with the head ObjectModel. Passes over the tokens once and keeps none
// of them: neither the length nor the depth of lists matters.
bool isOmtText(FILE* file)
{
    static const DtString theTag("ObjectModel");
    DtlFileInputStream stream(file);
    DtMtlScanner scanner(stream, DtMtlBackslashEscapes::character(), theTag.length() + 1);
    std::size_t depth = 0;
    DtMtlToken last = DtMtlToken::Close;
    for (DtMtlToken token = scanner.next(); token != DtMtlToken::End; last = token, token = scanner.next())
    {
        if (token == DtMtlToken::Open)
            ++depth;
        else if (token == DtMtlToken::Close)
            depth -= depth > 0 ? 1 : 0;
        else if (depth == 1 && last == DtMtlToken::Open && token == DtMtlToken::Word && scanner.text() == theTag)
            return true;
    }
    return false;
}

using DtXmlTextReader = std::unique_ptr<xmlTextReader, void (*)(xmlTextReader*)>;

// Moves to the root element; false when there is none.
bool readToRoot(xmlTextReader* reader)
{
    while (xmlTextReaderRead(reader) == 1)
        if (xmlTextReaderNodeType(reader) == XML_READER_TYPE_ELEMENT)
            return true;
    return false;
}

// Format of a document whose root element tells none by its namespace. It is parsed whole, since a malformed one has
// none, and kept for the reader that comes next.
DtFomType formatByContent(int descriptor, const char* name)
{
    lseek(descriptor, 0, SEEK_SET);
    DtXmlModel document = DtParseXmlModel(descriptor, name);
    const DtFomType format = DtFormatOfRoot(xmlDocGetRootElement(document.get()));
    if (document != nullptr)
        DtKeepXmlModel(descriptor, std::move(document));
    return format;
}

// The document is read no further than to its root element when that tells the format by its namespace.
DtFomType formatOfXml(int descriptor, const char* name, bool reportFailure)
{
    DtXmlErrors errors;
    const DtXmlTextReader reader(xmlReaderForFd(descriptor, name, nullptr, theXmlParseOptions), xmlFreeTextReader);
    DtFomType format = DtFomUnknown;
    if (reader != nullptr && readToRoot(reader.get()) &&
        xmlStrEqual(xmlTextReaderConstLocalName(reader.get()), BAD_CAST theModelElement))
    {
        format = formatOfNamespace(xmlTextReaderConstNamespaceUri(reader.get()));
        if (format != DtFomUnknown)
            return format;
        format = formatByContent(descriptor, name);
    }
    if (reportFailure)
        errors.report(name);
    return format;
}
} // namespace

DtFomType DtFormatOfFile(FILE* file, const char* name, bool reportFailure)
{
    const int first = firstNonBlank(file);
    std::rewind(file);
    if (!mayBeXml(first) && isOmtText(file))
        return DtFomOmt13;
    if (first == '(')
        return DtFomUnknown;
    const int descriptor = fileno(file);
    lseek(descriptor, 0, SEEK_SET); // the stream has read ahead
    return formatOfXml(descriptor, name, reportFailure);
}
