#ifndef QX_VALUE_TEXT_H
#define QX_VALUE_TEXT_H

// Values of any type that generated code uses, as text for people to read: what a program prints that shows what it has
// heard. A number as its digits, an enumerator by its name and number, text in quotes, a list in brackets; a class by
// its operator<<, which generated ones have, and without one as the octets that it is encoded as.

#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>

#include <limits>
#include <sstream>
#include <string>
#include <type_traits>

template <class Value>
std::string DtValueText(const Value& value);

// Two hexadecimal digits an octet.
inline std::string DtHexText(const DtU8* octets, std::size_t count)
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

// In quotes; what is no printable character of ASCII as \x and two digits.
inline std::string DtQuotedText(const std::string& content)
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

// The primary template is for classes.
template <class Value, class Enable = void>
struct DtTextTraits
{
    static std::string text(const Value& value) { return ofStream(value, 0); }

private:
    template <class Class>
    static auto ofStream(const Class& value, int) -> decltype(std::declval<std::ostream&>() << value, std::string())
    {
        std::ostringstream stream;
        stream << value;
        return stream.str();
    }
    template <class Class>
    static std::string ofStream(const Class& value, long)
    {
        return ofNumber(value, 0);
    }
    // Datatypes that are one number have it under this name.
    template <class Class>
    static auto ofNumber(const Class& value, int) ->
        typename std::enable_if<std::is_arithmetic<decltype(value.number())>::value, std::string>::type
    {
        return DtValueText(value.number());
    }
    template <class Class>
    static std::string ofNumber(const Class& value, long)
    {
        DtWireWriter writer;
        DtEncodeValue(writer, value, DtWireForm());
        return writer.ok() ? DtHexText(writer.data(), writer.size()) : std::string("not encodable: ") + writer.reason();
    }
};

template <class Number>
struct DtTextTraits<Number, typename std::enable_if<std::is_integral<Number>::value>::type>
{
    static std::string text(Number value) { return std::to_string(value); }
};

template <>
struct DtTextTraits<bool, void>
{
    static std::string text(bool value) { return value ? "true" : "false"; }
};

template <class Number>
struct DtTextTraits<Number, typename std::enable_if<std::is_floating_point<Number>::value>::type>
{
    static std::string text(Number value)
    {
        std::ostringstream stream;
        stream.precision(std::numeric_limits<Number>::digits10);
        stream << value;
        return stream.str();
    }
};

template <class Enumeration>
struct DtTextTraits<Enumeration, typename std::enable_if<std::is_enum<Enumeration>::value>::type>
{
    static std::string text(Enumeration value)
    {
        const DtEnumeratorTable table = DtNamesOfType<Enumeration>();
        const DtInt64 number = static_cast<DtInt64>(value);
        for (std::size_t i = 0; i < table.count; ++i)
            if (table.first[i].value == number)
                return table.first[i].name + (" (" + std::to_string(number) + ")");
        return std::to_string(number);
    }
};

template <>
struct DtTextTraits<DtString, void>
{
    static std::string text(const DtString& value) { return DtQuotedText(value.text()); }
};

template <>
struct DtTextTraits<DtGlobalObjectDesignator, void>
{
    static std::string text(const DtGlobalObjectDesignator& value) { return DtQuotedText(value.name().text()); }
};

template <>
struct DtTextTraits<DtOpaqueValue, void>
{
    static std::string text(const DtOpaqueValue& value)
    {
        return DtHexText(value.octets().data(), value.octets().size());
    }
};

template <class Number, int Tag>
struct DtTextTraits<DtTriple<Number, Tag>, void>
{
    static std::string text(const DtTriple<Number, Tag>& value)
    {
        return "(" + DtValueText(value.x()) + ", " + DtValueText(value.y()) + ", " + DtValueText(value.z()) + ")";
    }
};

template <class Element>
struct DtTextTraits<std::vector<Element>, void>
{
    static std::string text(const std::vector<Element>& values)
    {
        std::string text = "[";
        for (std::size_t i = 0; i < values.size(); ++i)
            text += (i == 0 ? "" : ", ") + DtValueText<Element>(values[i]);
        return text + "]";
    }
};

template <class Value>
std::string DtValueText(const Value& value)
{
    return DtTextTraits<Value>::text(value);
}

// Writes a structure: { name: value, name: value }.
class DtFieldWriter
{
public:
    explicit DtFieldWriter(std::ostream& out) : myOut(out), myIsFirst(true) { myOut << "{"; }

    template <class Value>
    void add(const char* name, const Value& value)
    {
        myOut << (myIsFirst ? " " : ", ") << name << ": " << DtValueText(value);
        myIsFirst = false;
    }
    std::ostream& end() { return myOut << (myIsFirst ? "}" : " }"); }

private:
    std::ostream& myOut;
    bool myIsFirst;
};

// The text of a value that begins in this column. What does not fit into a line of 100 columns goes over several, with
// what a structure or a list of structures holds indented below it.
class DtTextLayout
{
public:
    static std::string of(const std::string& text, std::size_t column)
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

private:
    // Where a part ends: at a comma or at the bracket that closes the whole.
    static std::size_t endOfPart(const std::string& text, std::size_t begin)
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
};

// An enumerator by its place in the model's list, which starts again behind the last one; 0 when the list is empty.
template <class Enumeration>
Enumeration DtEnumeratorInTurn(std::size_t place)
{
    const DtEnumeratorTable table = DtNamesOfType<Enumeration>();
    return static_cast<Enumeration>(table.count == 0 ? 0 : table.first[place % table.count].value);
}

#endif
