#include "foundation/envXmlReader.h"

#include "foundation/fileUtils.h"
#include "foundation/xmlDocumentOwner.h"

namespace
{
DtString textOf(const xmlChar* text)
{
    return DtString(reinterpret_cast<const char*>(text));
}

DtString contentOf(const xmlAttr* attribute)
{
    const std::unique_ptr<xmlChar, decltype(xmlFree)> content(
        xmlNodeGetContent(reinterpret_cast<const xmlNode*>(attribute)), xmlFree);
    return textOf(content.get());
}

DtString nameOf(const xmlNode* element)
{
    for (const xmlAttr* attribute = element->properties; attribute != nullptr; attribute = attribute->next)
        if (textOf(attribute->name) == "name")
            return contentOf(attribute);
    return textOf(element->name);
}

// The depth is bounded by the parser, which refuses documents of more than 256 levels.
std::shared_ptr<DtEnvValue> makeObject(const xmlNode* element, bool keepComments)
{
    auto object = std::make_shared<DtEnvObject>(nameOf(element), textOf(element->name));
    for (const xmlAttr* attribute = element->properties; attribute != nullptr; attribute = attribute->next)
        if (textOf(attribute->name) != "name")
            object->setAttribute(textOf(attribute->name), contentOf(attribute));
    for (const xmlNode* node = element->children; node != nullptr; node = node->next)
    {
        if (node->type == XML_ELEMENT_NODE)
            object->addChild(makeObject(node, keepComments));
        else if (node->type == XML_COMMENT_NODE && keepComments)
            object->addChild(std::make_shared<DtEnvText>(DtEnvValue::Comment, "", textOf(node->content)));
    }
    return object;
}
} // namespace

DtEnvironment DtEnvXMLReader::readFile(const DtString& fileName, bool* result) const
{
    bool ignored = false;
    bool& isGood = result != nullptr ? *result : ignored;
    isGood = false;
    std::string text;
    if (!DtReadFile(fileName, text))
        return DtEnvironment();
    const DtXmlDocument document = DtParseXmlQuietly(text);
    const xmlNode* const root = document != nullptr ? xmlDocGetRootElement(document.get()) : nullptr;
    isGood = root != nullptr;
    return root != nullptr ? DtEnvironment(makeObject(root, myKeepComments)) : DtEnvironment();
}
