#include <qx/valueText.h>

#include <limits>
#include <sstream>

namespace
{
template <class Number>
std::string textOfFloat(Number number)
{
    std::ostringstream stream;
    stream.precision(std::numeric_limits<Number>::digits10);
    stream << number;
    return stream.str();
}

// Where a part ends: at a comma or at the bracket that closes the whole.
std::size_t endOfPart(const std::string& text, std::size_t begin)
{
    std::size_t depth = 0;
    bool isInQuotes = false;
    for (std::size_t i = begin; i < text.size(); ++i)
    {
        if (isInQuotes && text[i] == '\\')
            ++i;
        else if (text[i] == '"')
            isInQuotes = !isInQuotes;
        else if (!isInQuotes && std::string("{[(").find(text[i]) != std::string::npos)
            ++depth;
        else if (!isInQuotes && depth > 0 && std::string("}])").find(text[i]) != std::string::npos)
            --depth;
        else if (!isInQuotes && depth == 0 && std::string(",}]").find(text[i]) != std::string::npos)
            return i;
    }
    return text.size();
}
} // namespace

std::string DtHexText(const DtU8* octets, std::size_t count)
{
    static const char theDigits[] = "0123456789abcdef";
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
    {
        text += theDigits[octets[i] >> 4];
        text += theDigits[octets[i] & 15];
    }
    return text;
}

std::string DtQuotedText(const std::string& content)
{
    std::string text = "\"";
    for (const char letter : content)
    {
        const DtU8 octet = static_cast<DtU8>(letter);
        if (octet < 0x20 || octet > 0x7e)
            text += "\\x" + DtHexText(&octet, 1);
        else
            text += (letter == '"' || letter == '\\' ? "\\" : "") + std::string(1, letter);
    }
    return text + "\"";
}

std::string DtNumberText(DtInt64 number)
{
    return std::to_string(number);
}

std::string DtNumberText(DtU64 number)
{
    return std::to_string(number);
}

std::string DtNumberText(DtFloat32 number)
{
    return textOfFloat(number);
}

std::string DtNumberText(DtFloat64 number)
{
    return textOfFloat(number);
}

std::string DtEnumeratorText(const DtEnumeratorTable& table, DtInt64 number)
{
    std::ostringstream stream;
    DtWriteEnumerator(stream, table, number);
    return stream.str();
}

std::string DtStreamedText(const void* value, void (*write)(std::ostream& out, const void* value))
{
    std::ostringstream stream;
    write(stream, value);
    return stream.str();
}

DtFieldWriter::DtFieldWriter(std::ostream& out) : myOut(out), myIsFirst(true)
{
    myOut << "{";
}

void DtFieldWriter::addText(const char* name, const std::string& text)
{
    myOut << (myIsFirst ? " " : ", ") << name << ": " << text;
    myIsFirst = false;
}

std::ostream& DtFieldWriter::end()
{
    return myOut << (myIsFirst ? "}" : " }");
}

std::string DtTextLayout::of(const std::string& text, std::size_t column)
{
    const std::size_t open = text.find_first_of("{[\"");
    const bool isStructure = open != std::string::npos && text[open] != '"' && text.size() > open + 2;
    if (column + text.size() <= 100 || !isStructure || text.find('{') == std::string::npos)
        return text;
    const std::string indent(column, ' ');
    std::string laidOut = text.substr(0, open + 1) + "\n";
    std::size_t begin = open + 1;
    for (std::size_t end = begin; end < text.size(); begin = end + 1)
    {
        end = endOfPart(text, begin);
        const std::size_t first = text.find_first_not_of(' ', begin);
        const std::size_t last = text.find_last_not_of(' ', end - 1);
        laidOut += indent + "    " + of(text.substr(first, last - first + 1), column + 4);
        laidOut += std::string(end < text.size() && text[end] == ',' ? "," : "") + "\n";
        if (end >= text.size() || text[end] != ',')
            return laidOut + indent + text.substr(end);
    }
    return text;
}
