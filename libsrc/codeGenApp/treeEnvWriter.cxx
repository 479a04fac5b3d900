#include "codeGenApp/treeEnvWriter.h"

#include "fileGenerator/fileWriter.h"
#include "fileGenerator/progressMeter.h"
#include "foundation/filePrinter.h"
#include "foundation/stringUtils.h"
#include "foundation/textEnds.h"

#include <string_view>

namespace
{
void writeForwardingHeader(const DtString& name, const DtString& header)
{
    DtFilePrinter printer((DtFileWriter::outputDirectory() + DtOMTEnvWriter::includePath() + name).c_str());
    printer.text() =
        (DtString("// The name by which other headers include ") + header + ".\n#include \"" + header + "\"\n")
            .stdString();
}
} // namespace

DtString DtTreeEnvWriter::secondNameOf(const DtString& header)
{
    const std::string_view name(header.c_str(), header.length());
    if (name.find('/') != std::string_view::npos)
        return DtString();
    if (DtEndsWith(name, "Pdu.h"))
    {
        const DtString second = DtFirstCharToUpper(header);
        return second == header ? DtString() : second;
    }
    for (const char* end : {"EncoderDIS.h", "DecoderDIS.h"})
        if (DtEndsWith(name, end))
            return "d" + DtString(std::string(name.substr(0, name.size() - std::string_view("DIS.h").size()))) + ".h";
    return DtString();
}

void DtTreeEnvWriter::writeProjectFiles()
{
    if (!DtProgressMeter::current()->isCancelled())
        writeForwardingHeaders();
    DtOMTEnvWriter::writeProjectFiles();
}

void DtTreeEnvWriter::writeForwardingHeaders()
{
    const std::set<DtString> headers = fileList(); // a copy, since the list grows
    for (const DtString& header : headers)
    {
        const DtString second = secondNameOf(header);
        if (second.isEmpty() || fileList().count(second) != 0)
            continue;
        writeForwardingHeader(second, header);
        addToFileList(second);
    }
}
