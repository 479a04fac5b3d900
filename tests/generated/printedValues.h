#ifndef TESTS_PRINTED_VALUES_H
#define TESTS_PRINTED_VALUES_H

// Values of generated code as text that printedValues.py compares: JSON, floating-point numbers by their bits and texts
// by their octets in hexadecimal digits. Compiled with generated code, not with the tests; printers.h, which the tests
// write beside that code, has a function more for each of its classes.

#include <qx/enumerators.h>
#include <qx/opaqueValue.h>
#include <qx/valueText.h>

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

inline std::string quoted(const std::string& text)
{
    return '"' + text + '"'; // names and digits: nothing to escape
}

inline std::string printed(bool value)
{
    return value ? "true" : "false";
}

template <class Number>
typename std::enable_if<std::is_integral<Number>::value, std::string>::type printed(Number value)
{
    return std::to_string(value);
}

// Any of them as the double of the same value.
template <class Number>
typename std::enable_if<std::is_floating_point<Number>::value, std::string>::type printed(Number value)
{
    const double number = value;
    DtU64 bits;
    std::memcpy(&bits, &number, sizeof bits);
    DtU8 octets[8];
    for (int i = 0; i < 8; ++i)
        octets[i] = static_cast<DtU8>(bits >> (56 - 8 * i));
    return "{\"float\": " + quoted(DtHexText(octets, 8)) + "}";
}

// With all names of the number, since several enumerators may have the same one. Names are written as their octets.
template <class Enumeration>
typename std::enable_if<std::is_enum<Enumeration>::value, std::string>::type printed(Enumeration value)
{
    const DtEnumeratorTable table = DtNamesOfType<Enumeration>();
    const DtInt64 number = static_cast<DtInt64>(value);
    std::string names;
    for (std::size_t i = 0; i < table.count; ++i)
    {
        const std::string name = table.first[i].name;
        if (table.first[i].value == number)
            names += (names.empty() ? "" : ", ") +
                     quoted(DtHexText(reinterpret_cast<const DtU8*>(name.data()), name.size()));
    }
    return "{\"number\": " + std::to_string(number) + ", \"names\": [" + names + "]}";
}

inline std::string printedOctets(const char* kind, const void* octets, std::size_t count)
{
    return '{' + quoted(kind) + ": " + quoted(DtHexText(static_cast<const DtU8*>(octets), count)) + '}';
}

inline std::string printed(const DtString& value)
{
    return printedOctets("text", value.text().data(), value.length());
}

inline std::string printed(const DtGlobalObjectDesignator& value)
{
    return printedOctets("text", value.name().text().data(), value.length());
}

template <int Tag>
std::string printed(const DtEncodedTime<Tag>& value)
{
    return printedOctets("octets", value.octets().data(), value.octets().size());
}

inline std::string printed(const DtOpaqueValue& value)
{
    return printedOctets("octets", value.octets().data(), value.octets().size());
}

// Names and values of one object of JSON.
class DtPrintedParts
{
public:
    template <class Value>
    DtPrintedParts& add(const char* name, const Value& value)
    {
        return addText(name, printed(value));
    }
    DtPrintedParts& addText(const std::string& name, const std::string& text)
    {
        myText += (myText.empty() ? "" : ", ") + quoted(name) + ": " + text;
        return *this;
    }
    std::string text() const { return '{' + myText + '}'; }
    std::string of(const char* kind) const { return DtPrintedParts().addText(kind, text()).text(); }

private:
    std::string myText;
};

template <class Number, int Tag>
std::string printed(const DtTriple<Number, Tag>& value)
{
    return DtPrintedParts().add("x", value.x()).add("y", value.y()).add("z", value.z()).of("vector");
}

inline std::string printed(const DtTaitBryan& value)
{
    return DtPrintedParts().add("psi", value.psi()).add("theta", value.theta()).add("phi", value.phi()).of("angles");
}

inline std::string printed(const DtEntityType& value)
{
    DtPrintedParts parts;
    parts.add("kind", value.kind()).add("domain", value.domain()).add("country", value.country());
    parts.add("category", value.category()).add("subcategory", value.subCategory());
    return parts.add("specific", value.specific()).add("extra", value.extra()).of("entityType");
}

inline std::string printed(const DtEntityIdentifier& value)
{
    DtPrintedParts parts;
    return parts.add("site", value.site())
        .add("application", value.application())
        .add("entity", value.entity())
        .of("entity");
}

// Arrays of generated code and std::vector.
template <class Array>
std::string printedElements(const Array& values)
{
    std::string text;
    for (std::size_t i = 0; i < values.size(); ++i)
        text += (i == 0 ? "" : ", ") + printed(static_cast<const typename Array::value_type&>(values[i]));
    return '[' + text + ']';
}

template <class Element>
std::string printed(const std::vector<Element>& values)
{
    return printedElements(values);
}

#endif
