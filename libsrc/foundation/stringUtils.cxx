#include "foundation/stringUtils.h"

DtString DtReplaceSubstring(const DtString& text, const DtString& from, const DtString& to)
{
    const std::size_t at = from.length() == 0 ? std::string::npos : text.stdString().find(from.stdString());
    if (at == std::string::npos)
        return text;
    std::string result = text.stdString();
    result.replace(at, from.length(), to.stdString());
    return result;
}

DtString DtReplaceAllSubstrings(const DtString& text, const DtString& from, const DtString& to)
{
    const std::string& source = text.stdString();
    std::size_t at = from.length() == 0 ? std::string::npos : source.find(from.stdString());
    if (at == std::string::npos)
        return text;
    std::string result;
    std::size_t start = 0;
    for (; at != std::string::npos; at = source.find(from.stdString(), start))
    {
        result.append(source, start, at - start);
        result += to.stdString();
        start = at + from.length();
    }
    result.append(source, start, std::string::npos);
    return result;
}

bool DtContainsSubstring(const DtString& text, const DtString& part)
{
    return text.stdString().find(part.stdString()) != std::string::npos;
}

DtString DtFirstCharToUpper(const DtString& text)
{
    DtString result(text);
    if (result.length() > 0)
        result[0] = DtToUpper(result[0]);
    return result;
}

DtString DtFirstCharToLower(const DtString& text)
{
    DtString result(text);
    if (result.length() > 0)
        result[0] = DtToLower(result[0]);
    return result;
}

DtString DtFirstCharToLowerConditional(const DtString& text)
{
    const bool secondIsCapital = text.length() > 1 && text[1] >= 'A' && text[1] <= 'Z';
    return secondIsCapital ? text : DtFirstCharToLower(text);
}

std::vector<DtString> DtSplit(const DtString& text, char separator, DtEmptyPieces emptyPieces)
{
    std::vector<DtString> pieces;
    const std::string& source = text.stdString();
    std::size_t start = 0;
    while (true)
    {
        const std::size_t at = source.find(separator, start);
        const std::size_t end = at == std::string::npos ? source.size() : at;
        if (end > start || emptyPieces == DtEmptyPieces::Keep)
            pieces.emplace_back(source.substr(start, end - start));
        if (at == std::string::npos)
            return pieces;
        start = at + 1;
    }
}

bool DtIsSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool DtIsDigit(char character)
{
    return character >= '0' && character <= '9';
}

char DtToUpper(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

char DtToLower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}
