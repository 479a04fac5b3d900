#include "fileGenerator/customGenerationWriter.h"

#include "foundation/fileUtils.h"
#include "foundation/stringUtils.h"

void DtReplaceCustomGeneration(DtString& line, const DtString* text)
{
    line = DtReplaceAllSubstrings(line, "<!CUSTOMGENERATION!>", text != nullptr ? "1" : "");
    if (text != nullptr)
        line = DtReplaceAllSubstrings(line, "<!CUSTOMGENERATIONOUTPUT!>", *text);
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
