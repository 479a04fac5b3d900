#include "codeGenApp/omtProjectXmlWriter.h"

#include "foundation/fileUtils.h"
#include "foundation/xmlText.h"

#include <libxml/xmlerror.h>

#include <cstdio>
#include <memory>
#include <string>

namespace
{

const char theEncoding[] = "utf-8";
const char theDeclaration[] = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
const unsigned int theLargestValue = 10'000'000; // bytes of an attribute's value that the parser takes back

struct DtFreeWriter
{
    void operator()(xmlTextWriter* writer) const { xmlFreeTextWriter(writer); }
};
using DtTextWriter = std::unique_ptr<xmlTextWriter, DtFreeWriter>;

const xmlChar* xmlText(const DtString& text)
{
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

// The text writer answers with success to some failures.
bool hasXmlError()
{
    const xmlError* error = xmlGetLastError();
    return error != nullptr && error->level >= XML_ERR_ERROR;
}

void complain(const char* text)
{
    std::fputs(text, stderr);
}

int appendToText(void* text, const char* piece, int length)
{
    static_cast<std::string*>(text)->append(piece, static_cast<std::size_t>(length));
    return length;
}

// Writes to the text, the last of it when the writer goes. Null when there is no memory for it.
DtTextWriter writerTo(std::string& text)
{
    xmlOutputBuffer* const buffer = xmlOutputBufferCreateIO(appendToText, nullptr, &text, nullptr);
    DtTextWriter writer(buffer != nullptr ? xmlNewTextWriter(buffer) : nullptr); // which owns the buffer
    if (writer == nullptr && buffer != nullptr)
        xmlOutputBufferClose(buffer);
    if (writer != nullptr &&
        (xmlTextWriterSetIndent(writer.get(), 1) < 0 || xmlTextWriterSetIndentString(writer.get(), xmlText("  ")) < 0))
        writer.reset();
    return writer;
}

} // namespace

DtOmtProjectXmlWriter::DtOmtProjectXmlWriter(const DtOmtProject& project, const DtFilename& file)
    : myProject(project), myFileName(file), mySchemaFile("../data/config/qvxcodegenconfig.xsd")
{
}

DtOmtProjectXmlWriter::~DtOmtProjectXmlWriter() = default;

void DtOmtProjectXmlWriter::writeXml()
{
    const std::string content = text();
    myIsWritten = !content.empty() && DtReplaceFile(myFileName, content);
    if (!myIsWritten)
        complain("Error at xmlSaveFormatFileEnc\n");
}

std::string DtOmtProjectXmlWriter::text()
{
    std::string text;
    DtTextWriter writer = writerTo(text);
    if (writer == nullptr)
        complain("Error creating the xml writer\n"); // the calls below fail too, each with its own line
    myIsComplete = true;
    xmlResetLastError();
    writeDocument(writer.get());
    writer.reset();
    if (!myIsComplete || hasXmlError())
        return std::string();
    text.replace(0, text.find('\n'), theDeclaration); // the text writer spells the encoding in its own way
    return text;
}

void DtOmtProjectXmlWriter::writeDocument(xmlTextWriter* writer)
{
    if (xmlTextWriterStartDocument(writer, nullptr, theEncoding, nullptr) < 0)
    {
        complain("Error at xmlTextWriterStartDocument\n");
        myIsComplete = false;
    }
    writeProject(writer);
    if (xmlTextWriterEndDocument(writer) < 0)
    {
        complain("Error at xmlTextWriterEndDocument\n");
        myIsComplete = false;
    }
}

void DtOmtProjectXmlWriter::writeProject(xmlTextWriter* writer)
{
    startElement(writer, "project");
    writeNamedElement(writer, "baseName", myProject.baseName());
    writeNamedElement(writer, "includeDir", myProject.includeDir());
    writeNamedElement(writer, "classPrefix", myProject.classPrefix());
    writeModelFiles(writer);
    startElement(writer, "configurationRoot");
    writeObjects(writer);
    writeInteractions(writer);
    writeCustomCodings(writer);
    writePredefinedTypes(writer);
    endElement(writer);
    endElement(writer);
}

void DtOmtProjectXmlWriter::writeModelFiles(xmlTextWriter* writer)
{
    startElement(writer, "foms");
    for (const auto& [name, directory] : myProject.fomDefFiles())
    {
        startElement(writer, "fom");
        writeAttribute(writer, "name", name);
        writeAttribute(writer, "location", directory);
        endElement(writer);
    }
    endElement(writer);
}

void DtOmtProjectXmlWriter::writeObjects(xmlTextWriter* writer)
{
    for (const DtOmtObject& object : myProject.getObjects())
    {
        startElement(writer, "objectClass");
        writeAttribute(writer, "name", object.fullName());
        writeAttribute(writer, "rename", object.rename());
        writeAttributes(writer, object);
        endElement(writer);
    }
}

void DtOmtProjectXmlWriter::writeInteractions(xmlTextWriter* writer)
{
    for (const DtOmtInteraction& interaction : myProject.getInteractions())
    {
        startElement(writer, "interactionClass");
        writeAttribute(writer, "name", interaction.fullName());
        writeAttribute(writer, "rename", interaction.rename());
        writeParameters(writer, interaction);
        endElement(writer);
    }
}

template <typename Member>
void DtOmtProjectXmlWriter::writeMember(xmlTextWriter* writer, const char* element, const Member& member)
{
    startElement(writer, element);
    writeAttribute(writer, "name", member.name());
    writeAttribute(writer, "rename", member.rename());
    writeAttribute(writer, "nogen", member.noGen() ? "true" : "false");
    writeAttribute(writer, "customGenerationReference", member.customGenerationRef());
    endElement(writer);
}

void DtOmtProjectXmlWriter::writeAttributes(xmlTextWriter* writer, const DtOmtObject& object)
{
    for (const DtOmtAttribute& attribute : object.attributes())
        writeMember(writer, "attribute", attribute);
}

void DtOmtProjectXmlWriter::writeParameters(xmlTextWriter* writer, const DtOmtInteraction& interaction)
{
    for (const DtOmtParameter& parameter : interaction.parameters())
        writeMember(writer, "parameter", parameter);
}

void DtOmtProjectXmlWriter::writeCustomCodings(xmlTextWriter* writer)
{
    startElement(writer, "customization");
    for (const auto& [key, coding] : myProject.customCodings())
    {
        startElement(writer, "editedItem");
        writeAttribute(writer, "name", key);
        writeCodingText(writer, "Encoder", coding.first);
        writeCodingText(writer, "Decoder", coding.second);
        endElement(writer);
    }
    endElement(writer);
}

void DtOmtProjectXmlWriter::writeCodingText(xmlTextWriter* writer, const char* element, const DtString& text)
{
    startElement(writer, element);
    writeAttribute(writer, "text", text);
    endElement(writer);
}

void DtOmtProjectXmlWriter::writePredefinedTypes(xmlTextWriter* writer)
{
    startElement(writer, "predefinedTypes");
    for (const auto& [name, representation] : myProject.predefinedTypes())
    {
        startElement(writer, "type");
        writeAttribute(writer, "name", name);
        writeAttribute(writer, "representation", representation);
        endElement(writer);
    }
    endElement(writer);
}

void DtOmtProjectXmlWriter::writeNamedElement(xmlTextWriter* writer, const char* element, const DtString& name)
{
    startElement(writer, element);
    writeAttribute(writer, "name", name);
    endElement(writer);
}

void DtOmtProjectXmlWriter::startElement(xmlTextWriter* writer, const char* name)
{
    if (xmlTextWriterStartElement(writer, xmlText(name)) < 0)
        myIsComplete = false;
}

void DtOmtProjectXmlWriter::endElement(xmlTextWriter* writer)
{
    if (xmlTextWriterEndElement(writer) < 0)
        myIsComplete = false;
}

void DtOmtProjectXmlWriter::writeAttribute(xmlTextWriter* writer, const char* name, const DtString& value)
{
    const DtString text = DtXmlText(value);
    if (text.length() > theLargestValue || xmlTextWriterWriteAttribute(writer, xmlText(name), xmlText(text)) < 0)
        myIsComplete = false;
}
