#include "omtReader/fedReader.h"

#include "foundation/stringUtils.h"
#include "omtReader/xmlDocument.h"
#include "omtReader/xmlFedReader.h"
#include "omtReader/xmlFileReader.h"

#include <libxml/xmlreader.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unistd.h>

namespace
{
// EOF when there is none.
int firstNonBlank(FILE* file)
{
    int character = std::fgetc(file);
    while (character != EOF && DtIsSpace(static_cast<char>(character)))
        character = std::fgetc(file);
    return character;
}

// Local name and namespace, both empty when there is no root element.
struct DtRootElement
{
    DtString name;
    DtString space;
};

DtRootElement rootElement(int descriptor, const char* file)
{
    const std::unique_ptr<xmlTextReader, void (*)(xmlTextReader*)> reader(
        xmlReaderForFd(descriptor, file, nullptr, theXmlParseOptions), xmlFreeTextReader);
    if (reader == nullptr)
        return {};
    while (xmlTextReaderRead(reader.get()) == 1)
        if (xmlTextReaderNodeType(reader.get()) == XML_READER_TYPE_ELEMENT)
            return {reinterpret_cast<const char*>(xmlTextReaderConstLocalName(reader.get())),
                    reinterpret_cast<const char*>(xmlTextReaderConstNamespaceUri(reader.get()))};
    return {};
}

DtFomType typeOfXml(int descriptor, const char* file, bool reportFailure)
{
    DtXmlErrors errors;
    const DtRootElement root = rootElement(descriptor, file);
    DtFomType type = DtFomUnknown;
    if (root.name == DtXMLFileReader::tagObjectModel)
    {
        if (root.space == DtXMLFileReader::xmlns_HLA1516_2025)
            return DtFomHla4;
        if (root.space == DtXMLFileReader::xmlns_HLA1516_2010)
            return DtFomEvolved;
        lseek(descriptor, 0, SEEK_SET);
        if (const DtXmlDocument document = DtParseXmlDescriptor(descriptor, file))
            type = DtXmlFedReader::fomType(xmlDocGetRootElement(document.get()));
    }
    if (reportFailure)
        errors.report(file);
    return type;
}
} // namespace

DtFomType DtFedReader::checkFomType(const char* file)
{
    return checkFomType(file, openFedFile(file, false));
}

DtFomType DtFedReader::checkFomType(const char* file, void* handle, bool reportFailure)
{
    if (handle == nullptr)
        return DtFomUnknown;
    const std::unique_ptr<FILE, int (*)(FILE*)> opened(static_cast<FILE*>(handle), std::fclose);
    const int descriptor = fileno(opened.get());
    if (firstNonBlank(opened.get()) == '(')
        return DtFomOmt13;
    lseek(descriptor, 0, SEEK_SET);
    return typeOfXml(descriptor, file, reportFailure);
}

void* DtFedReader::openFedFile(const char* file, bool /*reportFailure*/)
{
    int descriptor = DtOpenPlainFile(file);
    if (descriptor < 0)
        descriptor = DtOpenPlainFile(pathBelowRtiConfig(file));
    return descriptor >= 0 ? fdopen(descriptor, "r") : nullptr;
}

DtString DtFedReader::pathBelowRtiConfig(const char* file)
{
    const char* value = std::getenv("RTI_CONFIG");
    std::string directory(value != nullptr ? value : "");
    if (!directory.empty() && (directory.back() == '/' || directory.back() == '\\'))
        directory.pop_back();
    return directory.empty() ? DtString() : DtString(directory + "/" + file);
}

bool DtFedReader::readFileIntoBuffer(FILE* file, char** buffer, unsigned int* size)
{
    *buffer = nullptr;
    *size = 0;
    std::string text;
    char piece[65536];
    for (std::size_t count = 1; count > 0; text.append(piece, count))
    {
        count = std::fread(piece, 1, sizeof piece, file);
        if (text.size() + count > INT_MAX)
            return false;
    }
    if (std::ferror(file) != 0)
        return false;
    *buffer = new char[text.size() + 1];
    std::memcpy(*buffer, text.c_str(), text.size() + 1);
    *size = static_cast<unsigned int>(text.size());
    return true;
}

DtString DtFedReader::standardMimFileName(DtFomType /*type*/)
{
    return "HLAstandardMIM.xml";
}
