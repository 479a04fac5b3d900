#ifndef QX_WIRE_FORMAT_H
#define QX_WIRE_FORMAT_H

// Encoding of values for the wire after IEEE 1516.2: octet boundaries, padding, byte order, array layouts.
//
// For a value of any type T that generated code uses (numbers, bool, toolkit classes, enumerations, std::vector, and
// classes with encode, decode and octetBoundary of their own) there are
//
//     DtEncodeValue(writer, value, form);           // pads to the boundary, then writes; see writer.ok() at the end
//     if (!DtDecodeValue(reader, value, form)) ...  // false: reader.reason() tells why, value is as it was
//     if (!DtDecodePart(reader, value, form)) ...   // the same, but what was read ahead of a failure stays
//     DtBoundaryOf(value, form)                     // octet boundary of the type
//
// A template writes the form of an attribute or parameter as
//
//     DtWireForm("<!AttributeFomDatatype!>", "<!AttributeDatatypeDatatype!>", R"qx(<!AttributeWireEncoding!>)qx",
//         <!AttributeElementCount!>, <!AttributeOctets!>, <!AttributeIsLittleEndian!><!AttributeLayout!>)
//
// in which the raw literal matters: an encoding may be whole sentences with quotes in them. The form tells what the C++
// type does not: length and byte order of a number, the kind of a string, the parts of a record for which a class of
// the toolkit stands. Enumerations tell theirs themselves.

#include <qx/wireArrays.h>
#include <qx/wireFixed.h>
#include <qx/wireNumbers.h>
#include <qx/wireRecords.h>
#include <qx/wireStrings.h>
#include <qx/wireVariants.h>

// A time is a variable array of octets where the model does not say how it lies.
template <int Tag>
struct DtWireTraits<DtEncodedTime<Tag>, void>
{
    static void encode(DtWireWriter& writer, const DtEncodedTime<Tag>& value, const DtWireForm& form)
    {
        DtEncodeArray(writer, value.octets(), layout(form), DtWireForm());
    }
    static bool decode(DtWireReader& reader, DtEncodedTime<Tag>& value, const DtWireForm& form)
    {
        std::vector<DtU8> octets;
        if (!DtDecodeArray(reader, octets, layout(form), DtWireForm()))
            return false;
        value.setOctets(octets);
        return true;
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail*)
    {
        return DtArrayBoundary<DtU8>(layout(form), DtWireForm(), nullptr);
    }

private:
    static DtArrayLayout layout(const DtWireForm& form)
    {
        return form.octets != 0 ? DtLayoutOf(form) : DtArrayLayout();
    }
};

#endif
