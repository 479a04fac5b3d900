#include "codeGenApp/omtProjectXmlReader.h"

#include "fileGenerator/omtProject.h"
#include "foundation/fileUtils.h"
#include "foundation/xmlDocumentOwner.h"

#include <cstring>
#include <string>

namespace
{

bool isSkipped(const xmlNode* node)
{
    return node->type == XML_COMMENT_NODE || DtOmtProjectXmlReader::isBlankText(node);
}

// The XML attribute of that name; of several, which differ by their namespace, the last. Empty when there is none.
DtString property(const xmlNode* node, const char* name)
{
    DtString value;
    for (const xmlAttr* each = node->properties; each != nullptr; each = each->next)
        if (std::strcmp(reinterpret_cast<const char*>(each->name), name) == 0)
            value = DtOmtProjectXmlReader::getPropertyValue(each);
    return value;
}

template <typename Action>
void forEachChild(const xmlNode* node, Action action)
{
    for (const xmlNode* child = node->children; child != nullptr; child = child->next)
        if (!isSkipped(child))
            action(child, DtOmtProjectXmlReader::getNodeName(child));
}

template <typename Action>
void forEachChild(const xmlNode* node, const char* wanted, Action action)
{
    forEachChild(node,
                 [&](const xmlNode* child, const DtString& name)
                 {
                     if (name == wanted)
                         action(child);
                 });
}

// Names, rename and generation settings of an attribute or a parameter; false when it has no name.
template <typename Member>
bool readMember(const xmlNode* node, Member& member)
{
    const DtString name = property(node, "name");
    if (name.isEmpty())
        return false;
    member.setFullName(name);
    member.setName(name);
    member.setRename(property(node, "rename"));
    DtString noGen = property(node, "nogen");
    noGen.toLower();
    if (noGen == "true" || noGen == "false")
        member.setNoGen(noGen == "true");
    member.setCustomGenerationRef(property(node, "customGenerationReference"));
    return true;
}

// A class without name keeps its empty names.
void readClass(const xmlNode* node, DtOmtProject& project, DtOmtNode& record)
{
    const DtString name = property(node, "name");
    if (name.isEmpty())
        return;
    record.setFullName(name);
    record.setName(project.getUniqueName(name));
    record.setRename(property(node, "rename"));
}

} // namespace

DtOmtProjectXmlReader::DtOmtProjectXmlReader(const DtFilename& file) : myFileName(file)
{
}

DtOmtProjectXmlReader::~DtOmtProjectXmlReader() = default;

void DtOmtProjectXmlReader::readXml(DtOmtProject& project)
{
    myHasFoundProject = false;
    std::string text;
    if (!DtReadFile(myFileName, text))
        return;
    const DtXmlDocument document = DtParseXmlQuietly(text); // what is no XML is a file without a project
    const xmlNode* root = xmlDocGetRootElement(document.get());
    if (root == nullptr)
        return;
    myProject = &project;
    processNode(root);
    myProject = nullptr;
}

void DtOmtProjectXmlReader::processNode(const xmlNode* node)
{
    if (getNodeName(node) != "project")
        return;
    myHasFoundProject = true;
    forEachChild(node,
                 [this](const xmlNode* child, const DtString& name)
                 {
                     if (name == "configurationRoot" && child->children != nullptr)
                         processConfigurationRoot(child);
                     else if (name == "foms" && child->children != nullptr)
                         processFoms(child);
                     else if (name == "baseName")
                         processBaseName(child);
                     else if (name == "includeDir")
                         processIncludeDir(child);
                     else if (name == "classPrefix")
                         processClassPrefix(child);
                 });
}

void DtOmtProjectXmlReader::processConfigurationRoot(const xmlNode* node)
{
    forEachChild(node,
                 [this](const xmlNode* child, const DtString& name)
                 {
                     if (name == "objectClass")
                         processObjectClass(child);
                     else if (name == "interactionClass")
                         processInteractionClass(child);
                     else if (name == "customization" && child->children != nullptr)
                         processCustomization(child);
                     else if (name == "predefinedTypes" && child->children != nullptr)
                         processPredefinedTypes(child);
                 });
}

void DtOmtProjectXmlReader::processCustomization(const xmlNode* node)
{
    forEachChild(node, "editedItem", [this](const xmlNode* child) { processEditedItem(child); });
}

void DtOmtProjectXmlReader::processObjectClass(const xmlNode* node)
{
    DtOmtObject object;
    readClass(node, *myProject, object);
    forEachChild(node, "attribute", [&](const xmlNode* child) { processAttribute(object, child); });
    myProject->addObject(object);
}

void DtOmtProjectXmlReader::processInteractionClass(const xmlNode* node)
{
    DtOmtInteraction interaction;
    readClass(node, *myProject, interaction);
    forEachChild(node, "parameter", [&](const xmlNode* child) { processParameters(interaction, child); });
    myProject->addInteraction(interaction);
}

void DtOmtProjectXmlReader::processAttribute(DtOmtObject& object, const xmlNode* node)
{
    DtOmtAttribute attribute;
    if (!readMember(node, attribute))
        return;
    attribute.setOwningObject(object.fullName());
    object.addAttribute(attribute);
}

void DtOmtProjectXmlReader::processParameters(DtOmtInteraction& interaction, const xmlNode* node)
{
    DtOmtParameter parameter;
    if (!readMember(node, parameter))
        return;
    parameter.setOwningInteraction(interaction.fullName());
    interaction.addParameter(parameter);
}

void DtOmtProjectXmlReader::processEditedItem(const xmlNode* node)
{
    std::pair<DtString, DtString> coding;
    forEachChild(node, "Encoder", [&](const xmlNode* child) { processEncoder(child, coding); });
    forEachChild(node, "Decoder", [&](const xmlNode* child) { processDecoder(child, coding); });
    myProject->addCustomCoding(property(node, "name"), coding);
}

void DtOmtProjectXmlReader::processEncoder(const xmlNode* node, std::pair<DtString, DtString>& coding)
{
    coding.first = property(node, "text");
}

void DtOmtProjectXmlReader::processDecoder(const xmlNode* node, std::pair<DtString, DtString>& coding)
{
    coding.second = property(node, "text");
}

void DtOmtProjectXmlReader::processPredefinedTypes(const xmlNode* node)
{
    myProject->setPredefinedType({});
    forEachChild(node, "type",
                 [this](const xmlNode* child)
                 { myProject->addPredefinedType(property(child, "name"), property(child, "representation")); });
}

void DtOmtProjectXmlReader::processFom(const xmlNode* node)
{
    const DtString name = property(node, "name");
    if (!name.isEmpty())
        myProject->addFomDefFile(name, property(node, "location"));
}

void DtOmtProjectXmlReader::processFoms(const xmlNode* node)
{
    forEachChild(node, "fom", [this](const xmlNode* child) { processFom(child); });
}

void DtOmtProjectXmlReader::processBaseName(const xmlNode* node)
{
    myProject->setBaseName(property(node, "name"));
}

void DtOmtProjectXmlReader::processIncludeDir(const xmlNode* node)
{
    myProject->setIncludeDir(property(node, "name"));
}

void DtOmtProjectXmlReader::processClassPrefix(const xmlNode* node)
{
    myProject->setClassPrefix(property(node, "name"));
}

DtString DtOmtProjectXmlReader::getPropertyValue(const xmlAttr* attribute)
{
    for (const xmlNode* each = attribute->children; each != nullptr; each = each->next)
        if (each->type == XML_TEXT_NODE)
            return reinterpret_cast<const char*>(each->content);
    return DtString();
}

DtString DtOmtProjectXmlReader::getNodeName(const xmlNode* node)
{
    return node->type == XML_ELEMENT_NODE ? DtString(reinterpret_cast<const char*>(node->name)) : DtString();
}

bool DtOmtProjectXmlReader::isBlankText(const xmlNode* node)
{
    if (node->type != XML_TEXT_NODE)
        return false;
    const char* content = reinterpret_cast<const char*>(node->content);
    return content == nullptr || std::strspn(content, " \t\n") == std::strlen(content);
}
