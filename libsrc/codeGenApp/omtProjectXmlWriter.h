#ifndef CODE_GEN_APP_OMT_PROJECT_XML_WRITER_H
#define CODE_GEN_APP_OMT_PROJECT_XML_WRITER_H

#include "fileGenerator/omtProject.h"
#include "foundation/filename.h"

#include <libxml/xmlwriter.h>

#include <string>

// Writes a project to a project file (".qxproj").
//
// The document is made in memory and takes the place of the old file only when it is complete. What goes wrong is said
// on the standard error stream, and the old file stays. A text that is not UTF-8 is taken as Latin-1; characters that
// XML cannot carry are left out, with a line on DtWarn.
class DtOmtProjectXmlWriter
{
public:
    DtOmtProjectXmlWriter(const DtOmtProject& project, const DtFilename& file);
    virtual ~DtOmtProjectXmlWriter();

    virtual void writeXml();
    // What writeXml() would put into the file; empty when that cannot be made.
    std::string text();
    bool isWritten() const { return myIsWritten; } // by the last writeXml

    // One for each part of the file; they write to the document under way.
    virtual void writeObjects(xmlTextWriter* writer);
    virtual void writeInteractions(xmlTextWriter* writer);
    virtual void writeAttributes(xmlTextWriter* writer, const DtOmtObject& object);
    virtual void writeParameters(xmlTextWriter* writer, const DtOmtInteraction& interaction);
    virtual void writeCustomCodings(xmlTextWriter* writer);
    virtual void writeCodingText(xmlTextWriter* writer, const char* element, const DtString& text);
    virtual void writePredefinedTypes(xmlTextWriter* writer);

private:
    void writeDocument(xmlTextWriter* writer);
    void writeProject(xmlTextWriter* writer);
    void writeModelFiles(xmlTextWriter* writer);
    template <typename Member>
    void writeMember(xmlTextWriter* writer, const char* element, const Member& member);
    void writeNamedElement(xmlTextWriter* writer, const char* element, const DtString& name);
    void startElement(xmlTextWriter* writer, const char* name);
    void endElement(xmlTextWriter* writer);
    void writeAttribute(xmlTextWriter* writer, const char* name, const DtString& value);

    DtOmtProject myProject;
    DtFilename myFileName;
    DtString mySchemaFile; // describes the format; the file itself does not name it
    bool myIsWritten = false;
    bool myIsComplete = true; // false once a call of the text writer failed
};

#endif
