#include "omtReader/fedReader.h"

#include "foundation/mtlReader.h"
#include "foundation/mtlScanner.h"
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
    const int first = firstNonBlank(opened.get());
    std::rewind(opened.get());
    if (!mayBeXml(first) && isOmtText(opened.get()))
        return DtFomOmt13;
    if (first == '(')
        return DtFomUnknown;
    lseek(descriptor, 0, SEEK_SET);
    return typeOfXml(descriptor, file, reportFailure);
}

void* DtFedReader::openFedFile(const char* file, bool /*reportFailure*/)
{
    int descriptor = DtOpenPlainFile(file);
    if (descriptor < 0)
        descriptor = DtOpenPlainFile(pathBelowRtiConfig(file));
    return DtStreamOf(descriptor);
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
