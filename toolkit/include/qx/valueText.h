#ifndef QX_VALUE_TEXT_H
#define QX_VALUE_TEXT_H

// Values of any type that generated code uses, as text for people to read: what a program prints that shows what it has
// heard. A number as its digits, an enumerator by its name and number, text in quotes, a list in brackets; a class by
// its operator<<, which generated ones have, and without one as the octets that it is encoded as.

#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>

#include <iosfwd>
#include <string>
#include <type_traits>

template <class Value>
std::string DtValueText(const Value& value);

// Two hexadecimal digits an octet.
std::string DtHexText(const DtU8* octets, std::size_t count);

// In quotes; what is no printable character of ASCII as \x and two digits.
std::string DtQuotedText(const std::string& content);

// Numbers, and an enumerator by its name in the table and its number.
std::string DtNumberText(DtInt64 number);
std::string DtNumberText(DtU64 number);
std::string DtNumberText(DtFloat32 number);
std::string DtNumberText(DtFloat64 number);
std::string DtEnumeratorText(const DtEnumeratorTable& table, DtInt64 number);

// What a function writes about a value to a stream, which only the library has to know.
std::string DtStreamedText(const void* value, void (*write)(std::ostream& out, const void* value));

// The primary template is for classes.
template <class Value, class Enable = void>
struct DtTextTraits
{
    static std::string text(const Value& value) { return ofStream(value, 0); }

private:
    template <class Class>
    static auto ofStream(const Class& value, int) -> decltype(std::declval<std::ostream&>() << value, std::string())
    {
        return DtStreamedText(&value, [](std::ostream& out, const void* written)
                              { static_cast<void>(out << *static_cast<const Class*>(written)); });
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
    typedef typename std::conditional<std::is_signed<Number>::value, DtInt64, DtU64>::type Widest;
    static std::string text(Number value) { return DtNumberText(static_cast<Widest>(value)); }
};

template <>
struct DtTextTraits<bool, void>
{
    static std::string text(bool value) { return value ? "true" : "false"; }
};

template <class Number>
struct DtTextTraits<Number, typename std::enable_if<std::is_floating_point<Number>::value>::type>
{
    typedef typename std::conditional<sizeof(Number) == sizeof(DtFloat32), DtFloat32, DtFloat64>::type Stored;
    static std::string text(Number value) { return DtNumberText(static_cast<Stored>(value)); }
};

template <class Enumeration>
struct DtTextTraits<Enumeration, typename std::enable_if<std::is_enum<Enumeration>::value>::type>
{
    static std::string text(Enumeration value)
    {
        return DtEnumeratorText(DtNamesOfType<Enumeration>(), static_cast<DtInt64>(value));
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
    explicit DtFieldWriter(std::ostream& out);

    template <class Value>
    void add(const char* name, const Value& value)
    {
        addText(name, DtValueText(value));
    }
    std::ostream& end();

private:
    void addText(const char* name, const std::string& text);

    std::ostream& myOut;
    bool myIsFirst;
};

// The text of a value that begins in this column. What does not fit into a line of 100 columns goes over several, with
// what a structure or a list of structures holds indented below it.
class DtTextLayout
{
public:
    static std::string of(const std::string& text, std::size_t column);
};

// An enumerator by its place in the model's list, which starts again behind the last one; 0 when the list is empty.
template <class Enumeration>
Enumeration DtEnumeratorInTurn(std::size_t place)
{
    const DtEnumeratorTable table = DtNamesOfType<Enumeration>();
    return static_cast<Enumeration>(table.count == 0 ? 0 : table.first[place % table.count].value);
}

#endif
