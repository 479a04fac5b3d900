#ifndef QX_WIRE_NUMBERS_H
#define QX_WIRE_NUMBERS_H

#include <qx/enumerators.h>
#include <qx/wireTraits.h>

#include <type_traits>

// Numbers of a given length and byte order; the length need not be that of the C++ type.

// Whether the low octets hold the whole number.
QX_IN_PLACE bool DtFitsInto(DtU64 bits, bool isSigned, unsigned int octets)
{
    if (octets >= 8 || octets == 0)
        return octets != 0;
    const DtU64 rest = bits >> (8 * octets - (isSigned ? 1 : 0));
    const DtU64 ones = ~DtU64(0) >> (8 * octets - (isSigned ? 1 : 0));
    return rest == 0 || (isSigned && rest == ones);
}

template <class Writer, class Number>
QX_IN_PLACE typename std::enable_if<std::is_integral<Number>::value>::type DtPutNumber(Writer& writer, Number value,
                                                                                       unsigned int octets, bool little)
{
    const bool isSigned = std::is_signed<Number>::value;
    const DtU64 bits = static_cast<DtU64>(value);
    if (octets == 0)
        return writer.refuse("the number has no length");
    if (octets < sizeof(Number) && !DtFitsInto(bits, isSigned, octets))
        return writer.refuse("the number is too large for its octets");
    writer.putInteger(bits, octets, little, isSigned && bits >> 63 != 0);
}

template <class Number>
QX_IN_PLACE typename std::enable_if<std::is_integral<Number>::value, bool>::type
DtGetNumber(DtWireReader& reader, Number& value, unsigned int octets, bool little)
{
    const bool isSigned = std::is_signed<Number>::value;
    DtU64 bits;
    if (octets == 0)
        return reader.fail("the number has no length");
    if (!reader.getInteger(bits, octets, little, isSigned))
        return false;
    if (octets > sizeof(Number) && !DtFitsInto(bits, isSigned, sizeof(Number)))
        return reader.fail("the number is too large for its type");
    value = static_cast<Number>(bits);
    return true;
}

// Floating-point numbers have 4 or 8 octets; other lengths are refused.
template <class Writer, class Number>
QX_IN_PLACE typename std::enable_if<std::is_floating_point<Number>::value>::type
DtPutNumber(Writer& writer, Number value, unsigned int octets, bool little)
{
    if (octets == 4)
        return writer.putFloat32(static_cast<DtFloat32>(value), little);
    if (octets == 8)
        return writer.putFloat64(static_cast<DtFloat64>(value), little);
    writer.refuse("no floating-point format of this length");
}

template <class Number>
QX_IN_PLACE typename std::enable_if<std::is_floating_point<Number>::value, bool>::type
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
    template <class Writer>
    static QX_IN_PLACE void encode(Writer& writer, const Number& value, const DtWireForm& form)
    {
        DtPutNumber(writer, value, octets(form), DtIsLittleEndian(form));
    }
    static QX_IN_PLACE bool decode(DtWireReader& reader, Number& value, const DtWireForm& form)
    {
        return DtGetNumber(reader, value, octets(form), DtIsLittleEndian(form));
    }
    static QX_IN_PLACE unsigned int boundary(const DtWireForm& form, const DtWireTrail*)
    {
        return DtNumberBoundary(octets(form));
    }

private:
    static QX_IN_PLACE unsigned int octets(const DtWireForm& form)
    {
        return form.octets != 0 ? form.octets : sizeof(Number);
    }
};

template <>
struct DtWireTraits<bool, void>
{
    template <class Writer>
    static QX_IN_PLACE void encode(Writer& writer, bool value, const DtWireForm& form)
    {
        writer.putInteger(value ? 1 : 0, octets(form), DtIsLittleEndian(form));
    }
    static QX_IN_PLACE bool decode(DtWireReader& reader, bool& value, const DtWireForm& form)
    {
        DtU64 bits;
        if (!reader.getInteger(bits, octets(form), DtIsLittleEndian(form)))
            return false;
        value = bits != 0;
        return true;
    }
    static QX_IN_PLACE unsigned int boundary(const DtWireForm& form, const DtWireTrail*)
    {
        return DtNumberBoundary(octets(form));
    }

private:
    static QX_IN_PLACE unsigned int octets(const DtWireForm& form)
    {
        if (form.octets != 0)
            return form.octets;
        return DtTextIs(form.datatype, "HLAboolean") || DtTextIs(form.representation, "HLAboolean") ? 4 : 1;
    }
};

// Enumerations: the number that the enumeration's own table tells of goes ahead of what a form says. Without either the
// length follows from the name of the representation, else from a number at the end of the enumeration's name, else it
// is 4 octets. A number that no enumerator has is a value all the same.
template <class Enumeration>
struct DtWireTraits<Enumeration, typename std::enable_if<std::is_enum<Enumeration>::value>::type>
{
    typedef typename std::underlying_type<Enumeration>::type Number;

    template <class Writer>
    static QX_IN_PLACE void encode(Writer& writer, const Enumeration& value, const DtWireForm& form)
    {
        const DtNumberForm number = numberForm(form);
        const DtU64 bits = static_cast<DtU64>(static_cast<Number>(value));
        if (!DtFitsInto(bits, number.isSigned, number.octets))
            return writer.refuse("the enumerator is too large for its octets");
        writer.putInteger(bits, number.octets, number.isLittleEndian, number.isSigned && bits >> 63 != 0);
    }
    static QX_IN_PLACE bool decode(DtWireReader& reader, Enumeration& value, const DtWireForm& form)
    {
        const DtNumberForm number = numberForm(form);
        DtU64 bits;
        if (!reader.getInteger(bits, number.octets, number.isLittleEndian, number.isSigned))
            return false;
        if (static_cast<DtU64>(static_cast<Number>(bits)) != bits)
            return reader.fail("the number is too large for its type");
        value = static_cast<Enumeration>(static_cast<Number>(bits));
        return true;
    }
    static QX_IN_PLACE unsigned int boundary(const DtWireForm& form, const DtWireTrail*)
    {
        return DtNumberBoundary(numberForm(form).octets);
    }

private:
    static QX_IN_PLACE DtNumberForm numberForm(const DtWireForm& form)
    {
        const DtNumberForm told = DtNumberFormOf(Enumeration());
        return told.octets != 0 ? told : guessedForm(form);
    }
    static DtNumberForm guessedForm(const DtWireForm& form)
    {
        unsigned int length = form.octets != 0 ? form.octets : DtOctetsByName(form.representation);
        if (length == 0)
            length = DtOctetsByName(DtNamesOfType<Enumeration>().typeName);
        return DtNumberForm(length == 0 || length > 8 ? 4 : length, !DtIsUnsignedByName(form.representation),
                            DtIsLittleEndian(form));
    }
};

#endif
