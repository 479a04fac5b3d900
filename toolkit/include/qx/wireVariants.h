#ifndef QX_WIRE_VARIANTS_H
#define QX_WIRE_VARIANTS_H

#include <qx/wireTraits.h>

#include <type_traits>

// What stands behind the discriminant of a variant record. Nothing selected: the discriminant is all, or a length of 0
// follows it where the encoding has one.

enum DtVariantKind : int
{
    DtPlainVariant,     // the alternative, at the largest boundary of all alternatives
    DtExtendedVariant,  // length in octets and the alternative, without any padding
    DtExtendableVariant // length in octets, and the alternative at a multiple of 8
};

// The number that a discriminant selects with; classes of numbers tell theirs.
template <class Discriminant>
typename std::enable_if<!std::is_class<Discriminant>::value, DtInt64>::type
DtNumberOfDiscriminant(const Discriminant& discriminant)
{
    return static_cast<DtInt64>(discriminant);
}
template <class Discriminant>
typename std::enable_if<std::is_class<Discriminant>::value, DtInt64>::type
DtNumberOfDiscriminant(const Discriminant& discriminant)
{
    return static_cast<DtInt64>(discriminant.number());
}

// The record's boundary. One that can be extended has the largest that there is, since nobody knows what will be added.
inline unsigned int DtVariantBoundary(DtVariantKind kind, unsigned int discriminant, unsigned int alternatives)
{
    return kind == DtExtendableVariant ? 8 : DtLargerBoundary(discriminant, alternatives);
}

inline void DtPutAlternativeLength(DtWireWriter& writer, std::size_t length, DtVariantKind kind)
{
    if (length > 0x7fffffff)
        return writer.refuse("the alternative is too long");
    if (kind == DtExtendableVariant)
        writer.pad(4);
    writer.putInteger(length, 4);
}

template <class Value>
void DtEncodeAlternative(DtWireWriter& writer, const Value& value, const DtWireForm& form, DtVariantKind kind,
                         unsigned int boundary)
{
    if (kind == DtPlainVariant)
    {
        writer.pad(boundary);
        return DtEncodeValue(writer, value, form);
    }
    DtWireWriter part;
    DtEncodeValue(part, value, form);
    if (!part.ok())
        return writer.refuse(part.reason());
    DtPutAlternativeLength(writer, part.size(), kind);
    if (kind == DtExtendableVariant && part.size() != 0)
        writer.pad(8);
    writer.putBytes(part.data(), part.size());
}

inline void DtEncodeNoAlternative(DtWireWriter& writer, DtVariantKind kind)
{
    if (kind != DtPlainVariant)
        DtPutAlternativeLength(writer, 0, kind);
}

// Takes the length and the octets that it counts out of the reader.
inline bool DtSplitAlternative(DtWireReader& reader, DtWireReader& part, DtVariantKind kind)
{
    DtU64 length = 0;
    if (kind == DtExtendableVariant && !reader.pad(4))
        return false;
    if (!reader.getInteger(length, 4))
        return false;
    if (kind == DtExtendableVariant && length != 0 && !reader.pad(8))
        return false;
    if (length > reader.remaining())
        return reader.fail("the value ends too early");
    return reader.split(static_cast<std::size_t>(length), part);
}

template <class Value>
bool DtDecodeAlternative(DtWireReader& reader, Value& value, const DtWireForm& form, DtVariantKind kind,
                         unsigned int boundary)
{
    if (kind == DtPlainVariant)
        return reader.pad(boundary) && DtDecodePart(reader, value, form);
    DtWireReader part(nullptr, 0);
    if (!DtSplitAlternative(reader, part, kind))
        return false;
    if (!DtDecodePart(part, value, form))
        return reader.fail(part.reason());
    return part.atEnd() || reader.fail("the alternative has another length");
}

// What a discriminant that is not known here selects is passed over where its length is given.
inline bool DtDecodeNoAlternative(DtWireReader& reader, DtVariantKind kind)
{
    DtWireReader part(nullptr, 0);
    return kind == DtPlainVariant ? reader.ok() : DtSplitAlternative(reader, part, kind);
}

#endif
