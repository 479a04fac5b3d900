#ifndef CODE_GEN_APP_OMT_PROJECT_XML_READER_H
#define CODE_GEN_APP_OMT_PROJECT_XML_READER_H

#include "foundation/filename.h"

#include <libxml/tree.h>

#include <utility>

class DtOmtObject;
class DtOmtInteraction;
class DtOmtProject;

// Fills a project from a project file (".qxproj").
//
// Reports nothing: a missing file, one that is not XML and one with another root element all leave the project as it
// was. Elements that are not known are passed over and the order of the others does not matter. Nothing is validated,
// no network and no other file is used. Texts come as libxml2 delivers them, in UTF-8.
class DtOmtProjectXmlReader
{
public:
    explicit DtOmtProjectXmlReader(const DtFilename& file);
    virtual ~DtOmtProjectXmlReader();

    // The project is a new one, without the predefined types that initializePredefinedTypes gives.
    virtual void readXml(DtOmtProject& project);
    // False when the last file held no project: it was missing, was not XML, or something else.
    bool hasFoundProject() const { return myHasFoundProject; }

    // One for each element, each called with that element's node.
    virtual void processNode(const xmlNode* node);
    virtual void processConfigurationRoot(const xmlNode* node);
    virtual void processCustomization(const xmlNode* node);
    virtual void processObjectClass(const xmlNode* node);
    virtual void processInteractionClass(const xmlNode* node);
    virtual void processAttribute(DtOmtObject& object, const xmlNode* node);
    virtual void processParameters(DtOmtInteraction& interaction, const xmlNode* node);
    virtual void processEditedItem(const xmlNode* node);
    virtual void processEncoder(const xmlNode* node, std::pair<DtString, DtString>& coding);
    virtual void processDecoder(const xmlNode* node, std::pair<DtString, DtString>& coding);
    // Empties the table of the project first.
    virtual void processPredefinedTypes(const xmlNode* node);
    virtual void processFom(const xmlNode* node);
    virtual void processFoms(const xmlNode* node);
    virtual void processBaseName(const xmlNode* node);
    virtual void processIncludeDir(const xmlNode* node);
    virtual void processClassPrefix(const xmlNode* node);

    // Content of the first text node of an XML attribute; empty when there is none.
    static DtString getPropertyValue(const xmlAttr* attribute);
    // Name of an element; empty for every other kind of node.
    static DtString getNodeName(const xmlNode* node);
    // True for a text node of blanks, tabs and line feeds. A carriage return is not blank.
    static bool isBlankText(const xmlNode* node);

private:
    DtOmtProject* myProject = nullptr; // the one being filled; null outside readXml
    DtFilename myFileName;
    bool myHasFoundProject = false;
};

#endif
