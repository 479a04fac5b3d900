#include "fileGenerator/customGenerationWriter.h"

#include "foundation/fileUtils.h"

DtString DtCustomGenerationText(const DtString& fileName)
{
    std::string text;
    if (!DtReadFile(fileName, text))
        return DtString();
    if (!text.empty() && text.back() != '\n')
        text += '\n';
    return text;
}
