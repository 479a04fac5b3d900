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
//     DtWireForm("<!AttributeFomDatatype!>", "<!AttributeDatatypeDatatype!>", R"qx(<!AttributeEncoding!>)qx",
//         <!AttributeElementCount!>, <!AttributeOctets!>, <!AttributeIsLittleEndian!>)
//
// in which the raw literal matters: an encoding may be whole sentences with quotes in them. The form tells what the C++
// type does not: length and byte order of a number, the kind of a string. Enumerations tell theirs themselves.

#include <qx/wireArrays.h>
#include <qx/wireNumbers.h>
#include <qx/wireStrings.h>
#include <qx/wireVariants.h>

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
