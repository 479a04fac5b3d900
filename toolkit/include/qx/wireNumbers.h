#ifndef QX_WIRE_NUMBERS_H
#define QX_WIRE_NUMBERS_H

#include <qx/enumerators.h>
#include <qx/wireTraits.h>

#include <type_traits>

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

#endif
