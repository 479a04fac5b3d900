#ifndef QX_WIRE_FORMAT_H
#define QX_WIRE_FORMAT_H

// Encoding of values for the wire after IEEE 1516.2: octet boundaries, padding, byte order, array layouts.
//
// For a value of any type T that generated code uses (numbers, bool, toolkit classes, enumerations, std::vector, and
// classes with encode, decode and octetBoundary of their own) there are
//
//     DtEncodeValue(writer, value, form);           // pads to the boundary, then writes; see writer.ok() at the end
//     if (!DtDecodeValue(reader, value, form)) ...  // false: reader.reason() tells why, value is as it was
//     DtBoundaryOf(value, form)                     // octet boundary of the type
//
// A template writes the form of an attribute or parameter as
//
//     DtWireForm("<!AttributeFomDatatype!>", "<!AttributeDatatypeDatatype!>", R"qx(<!AttributeEncoding!>)qx")
//
// in which the raw literal matters: an encoding may be whole sentences with quotes in them. The form tells what the C++
// type does not: byte order, 4 octets for HLAboolean, the kind of a string, the length of an enumeration.

#include <qx/enumerators.h>
#include <qx/wireBuffer.h>
#include <qx/wireForm.h>

#include <type_traits>

// Classes on the way down while a boundary is worked out, so that types that hold themselves come to an end.
struct DtWireTrail
{
    const void* id; // one address per class
    const DtWireTrail* outer;

    static bool holds(const DtWireTrail* trail, const void* id)
    {
        for (; trail; trail = trail->outer)
            if (trail->id == id)
                return true;
        return false;
    }
};

inline unsigned int DtLargerBoundary(unsigned int a, unsigned int b)
{
    return a < b ? b : a;
}

// How one type goes to the wire; the primary template is for generated classes.
template <class Type, class Enable = void>
struct DtWireTraits
{
    static void encode(DtWireWriter& writer, const Type& value, const DtWireForm& form) { put(writer, value, form, 0); }
    static bool decode(DtWireReader& reader, Type& value, const DtWireForm& form)
    {
        return get(reader, value, form, 0);
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail* trail) { return own<Type>(trail, 0); }

private:
    // Classes of simple datatypes take the form too, since the byte order of their representation is known to the user.
    template <class Class>
    static auto put(DtWireWriter& writer, const Class& value, const DtWireForm& form, int)
        -> decltype(value.encode(writer, form))
    {
        return value.encode(writer, form);
    }
    template <class Class>
    static void put(DtWireWriter& writer, const Class& value, const DtWireForm&, long)
    {
        value.encode(writer);
    }
    template <class Class>
    static auto get(DtWireReader& reader, Class& value, const DtWireForm& form, int)
        -> decltype(value.decode(reader, form))
    {
        return value.decode(reader, form);
    }
    template <class Class>
    static bool get(DtWireReader& reader, Class& value, const DtWireForm&, long)
    {
        return value.decode(reader);
    }
    template <class Class>
    static auto own(const DtWireTrail* trail, int) -> decltype(Class::octetBoundary(trail))
    {
        return Class::octetBoundary(trail);
    }
    template <class Class>
    static unsigned int own(const DtWireTrail*, long)
    {
        return Class::octetBoundary();
    }
};

template <class Type>
unsigned int DtBoundaryOfType(const DtWireForm& form, const DtWireTrail* trail = nullptr)
{
    return DtLargerBoundary(1, DtWireTraits<Type>::boundary(form, trail));
}

template <class Type>
unsigned int DtBoundaryOf(const Type&, const DtWireForm& form)
{
    return DtBoundaryOfType<Type>(form);
}

template <class Type>
void DtEncodeValue(DtWireWriter& writer, const Type& value, const DtWireForm& form)
{
    writer.pad(DtBoundaryOfType<Type>(form));
    DtWireTraits<Type>::encode(writer, value, form);
}

template <class Type>
bool DtDecodeValue(DtWireReader& reader, Type& value, const DtWireForm& form)
{
    return reader.pad(DtBoundaryOfType<Type>(form)) && DtWireTraits<Type>::decode(reader, value, form);
}

// Octets of a value that starts at an offset of 0; 0 when it cannot be encoded.
template <class Class>
unsigned int DtNetSizeOf(const Class& value)
{
    DtWireWriter writer;
    value.encode(writer);
    return writer.ok() ? static_cast<unsigned int>(writer.size()) : 0;
}

// Boundary of a number: the smallest power of two that is not below its length.
inline unsigned int DtNumberBoundary(unsigned int octets)
{
    unsigned int boundary = 1;
    while (boundary < octets && boundary < 128)
        boundary *= 2;
    return boundary;
}

// Numbers of a given length and byte order; the length need not be that of the C++ type.

template <class Number>
typename std::enable_if<std::is_integral<Number>::value>::type DtPutNumber(DtWireWriter& writer, Number value,
                                                                           unsigned int octets, bool little)
{
    writer.putInteger(static_cast<DtU64>(value), octets, little,
                      std::is_signed<Number>::value && value < Number(1) && value != 0);
}

template <class Number>
typename std::enable_if<std::is_integral<Number>::value, bool>::type DtGetNumber(DtWireReader& reader, Number& value,
                                                                                 unsigned int octets, bool little)
{
    DtU64 bits;
    if (!reader.getInteger(bits, octets, little))
        return false;
    const bool negative = octets > 0 && octets < 8 && (bits >> (8 * octets - 1) & 1) != 0;
    if (std::is_signed<Number>::value && negative)
        bits |= ~DtU64(0) << (8 * octets);
    value = static_cast<Number>(bits);
    return true;
}

// Floating-point numbers have 4 or 8 octets; other lengths are refused.
template <class Number>
typename std::enable_if<std::is_floating_point<Number>::value>::type DtPutNumber(DtWireWriter& writer, Number value,
                                                                                 unsigned int octets, bool little)
{
    if (octets == 4)
        return writer.putFloat32(static_cast<DtFloat32>(value), little);
    if (octets == 8)
        return writer.putFloat64(static_cast<DtFloat64>(value), little);
    writer.refuse("no floating-point format of this length");
}

template <class Number>
typename std::enable_if<std::is_floating_point<Number>::value, bool>::type
DtGetNumber(DtWireReader& reader, Number& value, unsigned int octets, bool little)
{
    DtFloat32 single = 0;
    DtFloat64 wide = 0;
    if (octets != 4 && octets != 8)
        return reader.fail("no floating-point format of this length");
    if (octets == 4 ? !reader.getFloat32(single, little) : !reader.getFloat64(wide, little))
        return false;
    value = octets == 4 ? static_cast<Number>(single) : static_cast<Number>(wide);
    return true;
}

template <class Number>
struct DtWireTraits<
    Number, typename std::enable_if<std::is_arithmetic<Number>::value && !std::is_same<Number, bool>::value>::type>
{
    static void encode(DtWireWriter& writer, const Number& value, const DtWireForm& form)
    {
        DtPutNumber(writer, value, sizeof(Number), DtIsLittleEndian(form));
    }
    static bool decode(DtWireReader& reader, Number& value, const DtWireForm& form)
    {
        return DtGetNumber(reader, value, sizeof(Number), DtIsLittleEndian(form));
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail*) { return sizeof(Number); }
};

template <>
struct DtWireTraits<bool, void>
{
    static void encode(DtWireWriter& writer, bool value, const DtWireForm& form)
    {
        writer.putInteger(value ? 1 : 0, octets(form), DtIsLittleEndian(form));
    }
    static bool decode(DtWireReader& reader, bool& value, const DtWireForm& form)
    {
        DtU64 bits;
        if (!reader.getInteger(bits, octets(form), DtIsLittleEndian(form)))
            return false;
        value = bits != 0;
        return true;
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail*) { return octets(form); }

private:
    static unsigned int octets(const DtWireForm& form)
    {
        return DtTextIs(form.datatype, "HLAboolean") || DtTextIs(form.representation, "HLAboolean") ? 4 : 1;
    }
};

// Enumerations: the length follows from the representation, else from a number at the end of the enumeration's name,
// else it is 4 octets.
template <class Enumeration>
struct DtWireTraits<Enumeration, typename std::enable_if<std::is_enum<Enumeration>::value>::type>
{
    typedef typename std::underlying_type<Enumeration>::type Number;

    static void encode(DtWireWriter& writer, const Enumeration& value, const DtWireForm& form)
    {
        DtPutNumber(writer, static_cast<Number>(value), octets(form), DtIsLittleEndian(form));
    }
    static bool decode(DtWireReader& reader, Enumeration& value, const DtWireForm& form)
    {
        DtU64 bits = 0;
        DtInt64 number = 0;
        const unsigned int length = octets(form);
        const bool little = DtIsLittleEndian(form);
        if (DtIsUnsignedByName(form.representation) ? !reader.getInteger(bits, length, little)
                                                    : !DtGetNumber(reader, number, length, little))
            return false;
        value = static_cast<Enumeration>(static_cast<Number>(bits | static_cast<DtU64>(number)));
        return true;
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail*) { return octets(form); }

private:
    static unsigned int octets(const DtWireForm& form)
    {
        unsigned int length = DtOctetsByName(form.representation);
        if (length == 0)
            length = DtOctetsByName(DtNamesOfType<Enumeration>().typeName);
        return length == 0 || length > 8 ? 4 : length;
    }
};

// Arrays. Elements are padded to their boundary one by one; nothing is added behind the last.

// An element at a time is taken in, so a count that the octets cannot bear costs no memory.
template <class Container>
struct DtElementReader
{
    typedef typename Container::value_type Element;

    DtElementReader(DtWireReader& source, Container& target, const DtWireForm& elementForm)
        : reader(source), elements(target), form(elementForm), idle(0)
    {
    }

    bool next()
    {
        const std::size_t before = reader.offset();
        Element element = Element();
        if (!DtDecodeValue(reader, element, form))
            return false;
        if (reader.offset() == before && ++idle > theMostIdle)
            return reader.fail("too many elements without octets");
        elements.push_back(element);
        return true;
    }
    bool nextOf(DtU64 count)
    {
        for (; count > 0; --count)
            if (!next())
                return false;
        return true;
    }

    enum
    {
        theMostIdle = 65536
    };
    DtWireReader& reader;
    Container& elements;
    const DtWireForm& form;
    int idle;
};

template <class Element>
unsigned int DtArrayBoundary(const DtArrayLayout& layout, const DtWireForm& elementForm, const DtWireTrail* trail)
{
    switch (layout.kind)
    {
    case DtVariableArray:
        return DtLargerBoundary(4, DtBoundaryOfType<Element>(elementForm, trail));
    case DtPaddingTo32Array:
    case DtPaddingTo64Array:
        return 1;
    default:
        return DtBoundaryOfType<Element>(elementForm, trail);
    }
}

inline std::size_t DtOctetsUpTo(std::size_t offset, std::size_t boundary)
{
    return (boundary - offset % boundary) % boundary;
}

inline std::size_t DtPaddingUnit(const DtArrayLayout& layout)
{
    return layout.kind == DtPaddingTo32Array ? 4 : 8;
}

template <class Container>
void DtEncodeArray(DtWireWriter& writer, const Container& elements, const DtArrayLayout& layout,
                   const DtWireForm& elementForm)
{
    typedef typename Container::value_type Element;
    if (layout.kind == DtPaddingTo32Array || layout.kind == DtPaddingTo64Array)
        return writer.pad(static_cast<unsigned int>(DtPaddingUnit(layout)));
    if (layout.kind == DtVariableArray)
        writer.putInteger(elements.size(), 4);
    if (layout.kind == DtFixedArray && layout.count != elements.size())
        return writer.refuse("a fixed array has another number of elements");
    for (typename Container::const_iterator i = elements.begin(); i != elements.end(); ++i)
        DtEncodeValue<Element>(writer, *i, elementForm);
    if (layout.kind == DtNullTerminatedArray)
        writer.putInteger(0, DtBoundaryOfType<Element>(elementForm));
}

template <class Container>
bool DtDecodeTerminatedArray(DtWireReader& reader, Container& elements, const DtWireForm& elementForm)
{
    DtElementReader<Container> source(reader, elements, elementForm);
    const unsigned int unit = DtBoundaryOfType<typename Container::value_type>(elementForm);
    for (;;)
    {
        DtWireReader ahead(reader); // looks for the zero without taking anything
        DtU64 bits;
        if (ahead.getInteger(bits, unit) && bits == 0)
            return reader.skip(unit);
        if (!source.next())
            return false;
    }
}

// Replaces the elements; on failure they are as they were.
template <class Container>
bool DtDecodeArray(DtWireReader& reader, Container& elements, const DtArrayLayout& layout,
                   const DtWireForm& elementForm)
{
    if (!reader.enter())
        return false;
    Container taken;
    DtElementReader<Container> source(reader, taken, elementForm);
    DtU64 count = layout.count;
    bool done = false;
    switch (layout.kind)
    {
    case DtVariableArray:
        done = reader.getInteger(count, 4) && source.nextOf(count);
        break;
    case DtFixedArray:
        done = source.nextOf(count);
        break;
    case DtLengthlessArray:
        for (done = true; done && !reader.atEnd();)
            done = source.next();
        break;
    case DtNullTerminatedArray:
        done = DtDecodeTerminatedArray(reader, taken, elementForm);
        break;
    case DtPaddingTo32Array:
    case DtPaddingTo64Array:
        done = reader.skip(DtOctetsUpTo(reader.offset(), DtPaddingUnit(layout)));
        break;
    }
    reader.leave();
    if (done)
        elements.swap(taken);
    return done;
}

// A vector is an array whose element has the form of the array's representation.
template <class Element>
struct DtWireTraits<std::vector<Element>, void>
{
    static void encode(DtWireWriter& writer, const std::vector<Element>& value, const DtWireForm& form)
    {
        DtEncodeArray(writer, value, layout(form, value.size()), elementForm(form));
    }
    static bool decode(DtWireReader& reader, std::vector<Element>& value, const DtWireForm& form)
    {
        return DtDecodeArray(reader, value, layout(form, value.size()), elementForm(form));
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail* trail)
    {
        return DtArrayBoundary<Element>(DtLayoutOf(form), elementForm(form), trail);
    }

private:
    static DtWireForm elementForm(const DtWireForm& form) { return DtWireForm(form.representation); }
    static DtArrayLayout layout(const DtWireForm& form, std::size_t present)
    {
        DtArrayLayout layout = DtLayoutOf(form);
        if (layout.count <= 1)
            layout.count = present;
        return layout;
    }
};

// Strings. What they hold is told by the datatype, how they are laid out by the encoding.

inline bool DtIsWideString(const DtWireForm& form)
{
    return std::strstr(form.datatype, "nicode") || std::strstr(form.representation, "nicode") ||
           std::strstr(form.representation, "octetPair");
}

// UTF-8 to UTF-16 and back; what is no valid text becomes the replacement character.
inline std::vector<DtU16> DtWideUnits(const std::string& text)
{
    std::vector<DtU16> units;
    for (std::size_t i = 0; i < text.size();)
    {
        const DtU8 lead = static_cast<DtU8>(text[i++]);
        const int more = lead < 0x80 ? 0 : lead < 0xc2 ? -1 : lead < 0xe0 ? 1 : lead < 0xf0 ? 2 : lead < 0xf5 ? 3 : -1;
        DtU32 code = more == 0 ? lead : lead & (0x3f >> (more < 0 ? 0 : more));
        int taken = 0;
        for (; taken < more && i < text.size() && (static_cast<DtU8>(text[i]) & 0xc0) == 0x80; ++taken)
            code = code << 6 | (static_cast<DtU8>(text[i++]) & 0x3f);
        const bool overlong = (more == 2 && code < 0x800) || (more == 3 && code < 0x10000);
        if (more < 0 || taken != more || overlong || code > 0x10ffff || (code >= 0xd800 && code <= 0xdfff))
            code = 0xfffd;
        if (code < 0x10000)
        {
            units.push_back(static_cast<DtU16>(code));
            continue;
        }
        units.push_back(static_cast<DtU16>(0xd800 + ((code - 0x10000) >> 10)));
        units.push_back(static_cast<DtU16>(0xdc00 + ((code - 0x10000) & 0x3ff)));
    }
    return units;
}

inline void DtAppendUtf8(std::string& text, DtU32 code)
{
    const int more = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    static const DtU8 theLeads[] = {0x00, 0xc0, 0xe0, 0xf0};
    text += static_cast<char>(theLeads[more] | (code >> (6 * more)));
    for (int i = more - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3f));
}

inline std::string DtNarrowText(const std::vector<DtU16>& units)
{
    std::string text;
    for (std::size_t i = 0; i < units.size(); ++i)
    {
        DtU32 code = units[i];
        const bool high = code >= 0xd800 && code < 0xdc00;
        if (high && i + 1 < units.size() && units[i + 1] >= 0xdc00 && units[i + 1] < 0xe000)
            code = 0x10000 + ((code - 0xd800) << 10) + (units[++i] - 0xdc00u);
        else if (code >= 0xd800 && code < 0xe000)
            code = 0xfffd;
        DtAppendUtf8(text, code);
    }
    return text;
}

template <>
struct DtWireTraits<DtString, void>
{
    static void encode(DtWireWriter& writer, const DtString& value, const DtWireForm& form)
    {
        if (DtIsWideString(form))
            return encodeUnits(writer, DtWideUnits(value.text()), form);
        encodeUnits(writer, std::vector<DtU8>(value.text().begin(), value.text().end()), form);
    }
    static bool decode(DtWireReader& reader, DtString& value, const DtWireForm& form)
    {
        std::vector<DtU16> wide;
        std::vector<DtU8> narrow;
        if (DtIsWideString(form))
        {
            if (!DtDecodeArray(reader, wide, layout(form), unitForm(form)))
                return false;
            value = DtNarrowText(wide);
            return true;
        }
        if (!DtDecodeArray(reader, narrow, layout(form), unitForm(form)))
            return false;
        value = std::string(narrow.begin(), narrow.end());
        return true;
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail*)
    {
        return DtIsWideString(form) ? DtArrayBoundary<DtU16>(layout(form), unitForm(form), nullptr)
                                    : DtArrayBoundary<DtU8>(layout(form), unitForm(form), nullptr);
    }

private:
    static DtWireForm unitForm(const DtWireForm& form) { return DtWireForm(form.representation); }
    // A fixed string has the length of the form, or the one that its datatype's name ends with; without either it
    // reaches to the end of the value.
    static DtArrayLayout layout(const DtWireForm& form)
    {
        DtArrayLayout layout =
            DtTextIs(form.datatype, "string") ? DtArrayLayout(DtNullTerminatedArray) : DtLayoutOf(form);
        if (layout.kind == DtFixedArray && layout.count <= 1)
            layout.count = DtTrailingNumber(form.datatype);
        if (layout.kind == DtFixedArray && layout.count == 0)
            layout.kind = DtLengthlessArray;
        return layout;
    }
    template <class Unit>
    static void encodeUnits(DtWireWriter& writer, std::vector<Unit> units, const DtWireForm& form)
    {
        const DtArrayLayout kind = layout(form);
        if (kind.kind == DtFixedArray)
            units.resize(kind.count); // cut, or filled with zeros
        DtEncodeArray(writer, units, kind, unitForm(form));
    }
};

template <>
struct DtWireTraits<DtGlobalObjectDesignator, void>
{
    static DtWireForm form() { return DtWireForm("", "", "RPRnullTerminatedArray"); }
    static void encode(DtWireWriter& writer, const DtGlobalObjectDesignator& value, const DtWireForm&)
    {
        DtWireTraits<DtString>::encode(writer, value.name(), form());
    }
    static bool decode(DtWireReader& reader, DtGlobalObjectDesignator& value, const DtWireForm&)
    {
        DtString name;
        if (!DtWireTraits<DtString>::decode(reader, name, form()))
            return false;
        value = DtGlobalObjectDesignator(name);
        return true;
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail*) { return 1; }
};

// The other classes of the toolkit.

template <class Number, int Tag>
struct DtWireTraits<DtTriple<Number, Tag>, void>
{
    static void encode(DtWireWriter& writer, const DtTriple<Number, Tag>& value, const DtWireForm&)
    {
        DtPutNumber(writer, value.x(), sizeof(Number), false);
        DtPutNumber(writer, value.y(), sizeof(Number), false);
        DtPutNumber(writer, value.z(), sizeof(Number), false);
    }
    static bool decode(DtWireReader& reader, DtTriple<Number, Tag>& value, const DtWireForm&)
    {
        Number x = 0, y = 0, z = 0;
        if (!DtGetNumber(reader, x, sizeof x, false) || !DtGetNumber(reader, y, sizeof y, false) ||
            !DtGetNumber(reader, z, sizeof z, false))
            return false;
        value = DtTriple<Number, Tag>(x, y, z);
        return true;
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail*) { return sizeof(Number); }
};

template <>
struct DtWireTraits<DtTaitBryan, void>
{
    static void encode(DtWireWriter& writer, const DtTaitBryan& value, const DtWireForm&)
    {
        writer.putFloat32(value.psi());
        writer.putFloat32(value.theta());
        writer.putFloat32(value.phi());
    }
    static bool decode(DtWireReader& reader, DtTaitBryan& value, const DtWireForm&)
    {
        DtFloat32 psi = 0, theta = 0, phi = 0;
        if (!reader.getFloat32(psi) || !reader.getFloat32(theta) || !reader.getFloat32(phi))
            return false;
        value = DtTaitBryan(psi, theta, phi);
        return true;
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail*) { return 4; }
};

template <>
struct DtWireTraits<DtEntityType, void>
{
    static void encode(DtWireWriter& writer, const DtEntityType& value, const DtWireForm&)
    {
        writer.putByte(value.kind());
        writer.putByte(value.domain());
        writer.putInteger(value.country(), 2);
        writer.putByte(value.category());
        writer.putByte(value.subCategory());
        writer.putByte(value.specific());
        writer.putByte(value.extra());
    }
    static bool decode(DtWireReader& reader, DtEntityType& value, const DtWireForm&)
    {
        DtU8 o[8];
        if (!reader.getBytes(o, sizeof o))
            return false;
        value = DtEntityType(o[0], o[1], static_cast<DtU16>(o[2] << 8 | o[3]), o[4], o[5], o[6], o[7]);
        return true;
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail*) { return 2; }
};

template <>
struct DtWireTraits<DtEntityIdentifier, void>
{
    static void encode(DtWireWriter& writer, const DtEntityIdentifier& value, const DtWireForm&)
    {
        writer.putInteger(value.site(), 2);
        writer.putInteger(value.application(), 2);
        writer.putInteger(value.entity(), 2);
    }
    static bool decode(DtWireReader& reader, DtEntityIdentifier& value, const DtWireForm&)
    {
        DtU16 site = 0, application = 0, entity = 0;
        if (!DtGetNumber(reader, site, 2, false) || !DtGetNumber(reader, application, 2, false) ||
            !DtGetNumber(reader, entity, 2, false))
            return false;
        value = DtEntityIdentifier(site, application, entity);
        return true;
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail*) { return 2; }
};

template <int Tag>
struct DtWireTraits<DtEncodedTime<Tag>, void>
{
    static void encode(DtWireWriter& writer, const DtEncodedTime<Tag>& value, const DtWireForm&)
    {
        DtEncodeArray(writer, value.octets(), DtArrayLayout(), DtWireForm());
    }
    static bool decode(DtWireReader& reader, DtEncodedTime<Tag>& value, const DtWireForm&)
    {
        std::vector<DtU8> octets;
        if (!DtDecodeArray(reader, octets, DtArrayLayout(), DtWireForm()))
            return false;
        value.setOctets(octets);
        return true;
    }
    static unsigned int boundary(const DtWireForm&, const DtWireTrail*) { return 4; }
};

#endif
