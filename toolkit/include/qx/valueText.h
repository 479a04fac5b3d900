#ifndef QX_VALUE_TEXT_H
#define QX_VALUE_TEXT_H

// Values of any type that generated code uses, as text for people to read: what a program prints that shows what it has
// heard. A number as its digits, an enumerator by its name and number, text in quotes, a list in brackets; any other
// class as the octets that it is encoded as.

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
    static std::string text(const Value& value) { return ofNumber(value, 0); }

private:
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

// An enumerator by its place in the model's list, which starts again behind the last one; 0 when the list is empty.
template <class Enumeration>
Enumeration DtEnumeratorInTurn(std::size_t place)
{
    const DtEnumeratorTable table = DtNamesOfType<Enumeration>();
    return static_cast<Enumeration>(table.count == 0 ? 0 : table.first[place % table.count].value);
}

#endif
