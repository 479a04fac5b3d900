#include "fileGenerator/namePattern.h"

#include "fileGenerator/settings.h"
#include "foundation/stringUtils.h"

namespace
{
constexpr std::size_t theUsualLength = 96; // most texts are shorter, and take memory once

void appendValue(std::string& result, char letter, const DtPatternNames& names)
{
    switch (letter)
    {
    case 'P':
        result += DtSettings::instance().cpp.prefixName.stdString();
        break;
    case 'C':
        result += DtSettings::instance().cpp.includePath().stdString();
        break;
    case 'N':
        result += names.name.stdString();
        break;
    case 'n':
        result += DtFirstCharToLowerConditional(names.name).stdString();
        break;
    case 'Q':
        result += names.parent.stdString();
        break;
    case 'q':
        result += DtFirstCharToLowerConditional(names.parent).stdString();
        break;
    case 'K':
        result += names.className.stdString();
        break;
    case 'U':
        result += names.fullClassName.stdString();
        break;
    case 'F':
        result += names.fileBase.stdString();
        break;
    case '%':
        result += '%';
        break;
    default:
        result += '%';
        result += letter;
    }
}

} // namespace

DtString fillPattern(const char* pattern, const DtPatternNames& names)
{
    std::string result;
    result.reserve(theUsualLength);
    for (const char* next = pattern; *next != '\0'; ++next)
    {
        if (*next == '%' && next[1] != '\0')
            appendValue(result, *++next, names);
        else
            result += *next;
    }
    return result;
}
