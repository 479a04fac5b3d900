#include "fileGenerator/customGenerationWriter.h"

#include "foundation/fileUtils.h"
#include "foundation/stringUtils.h"

void DtReplaceCustomGeneration(DtString& line, const DtString* text)
{
    line = DtReplaceAllSubstrings(line, "<!CUSTOMGENERATION!>", text != nullptr ? "1" : "");
    if (text != nullptr)
        line = DtReplaceAllSubstrings(line, "<!CUSTOMGENERATIONOUTPUT!>", *text);
}

const DtOmtProject::DtCodingPair* DtFindCustomCoding(const DtOmtProject& project, const DtString& key)
{
    const auto found = project.customCodings().find(key);
    return found != project.customCodings().end() ? &found->second : nullptr;
}

DtString DtCustomGenerationText(const DtString& fileName)
{
    std::string text;
    if (!DtReadFile(fileName, text))
        return DtString();
    if (!text.empty() && text.back() != '\n')
        text += '\n';
    return text;
}
