#include "omtReader/fedReader.h"

#include "omtReader/modelFormat.h"
#include "omtReader/xmlDocument.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>

DtFomType DtFedReader::checkFomType(const char* file)
{
    return checkFomType(file, openFedFile(file, false));
}

DtFomType DtFedReader::checkFomType(const char* file, void* handle, bool reportFailure)
{
    if (handle == nullptr)
        return DtFomUnknown;
    const std::unique_ptr<FILE, int (*)(FILE*)> opened(static_cast<FILE*>(handle), std::fclose);
    return DtFormatOfFile(opened.get(), file, reportFailure);
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
