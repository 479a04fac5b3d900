#ifndef QX_WIRE_TRAITS_H
#define QX_WIRE_TRAITS_H

// How a value of any type reaches the wire: the operations, and the traits that each type answers them with.

#include <qx/wireBuffer.h>
#include <qx/wireForm.h>
#include <qx/wireNames.h>

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

QX_IN_PLACE unsigned int DtLargerBoundary(unsigned int a, unsigned int b)
{
    return a < b ? b : a;
}

// How one type goes to the wire; the primary template is for generated classes.
template <class Type, class Enable = void>
struct DtWireTraits
{
    static void encode(DtWireWriter& writer, const Type& value, const DtWireForm&) { value.encode(writer); }
    static bool decode(DtWireReader& reader, Type& value, const DtWireForm&) { return value.decode(reader); }
    static bool decodeInto(DtWireReader& reader, Type& value, const DtWireForm&) { return into(reader, value, 0); }
    static QX_IN_PLACE unsigned int boundary(const DtWireForm&, const DtWireTrail* trail)
    {
        return known<Type>(trail, 0);
    }

private:
    template <class Class>
    static auto into(DtWireReader& reader, Class& value, int) -> decltype(value.decodeInto(reader))
    {
        return value.decodeInto(reader);
    }
    template <class Class>
    static bool into(DtWireReader& reader, Class& value, long)
    {
        return value.decode(reader);
    }
    // That of a record whose values have the same octets each stands in its class, all others are worked out once.
    template <class Class>
    static constexpr auto known(const DtWireTrail*, int) -> decltype(Class::template fixedBoundary<unsigned int>())
    {
        return Class::template fixedBoundary<unsigned int>();
    }
    template <class Class>
    static unsigned int known(const DtWireTrail* trail, long)
    {
        if (trail)
            return own<Class>(trail, 0);
        static const unsigned int theBoundary = own<Class>(nullptr, 0);
        return theBoundary;
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
QX_IN_PLACE unsigned int DtBoundaryOfType(const DtWireForm& form, const DtWireTrail* trail = nullptr)
{
    return DtLargerBoundary(1, DtWireTraits<Type>::boundary(form, trail));
}

template <class Type>
unsigned int DtBoundaryOf(const Type&, const DtWireForm& form)
{
    return DtBoundaryOfType<Type>(form);
}

template <class Type>
QX_IN_PLACE void DtEncodeValue(DtWireWriter& writer, const Type& value, const DtWireForm& form)
{
    if (form.isMisfit())
        return writer.refuse("the model's datatype does not fit into the type of the toolkit");
    writer.pad(DtBoundaryOfType<Type>(form));
    DtWireTraits<Type>::encode(writer, value, form);
}

template <class Type>
QX_IN_PLACE bool DtDecodeValue(DtWireReader& reader, Type& value, const DtWireForm& form)
{
    if (reader.isClosed())
        return reader.fail("something follows an array without length");
    if (form.isMisfit())
        return reader.fail("the model's datatype does not fit into the type of the toolkit");
    return reader.pad(DtBoundaryOfType<Type>(form)) && DtWireTraits<Type>::decode(reader, value, form);
}

// The same for a part of a value that its owner throws away as a whole on failure: what was read ahead of the failure
// may stay in the part, so nothing has to be copied for its sake.
template <class Type>
QX_IN_PLACE auto DtDecodeWithTraits(DtWireReader& reader, Type& value, const DtWireForm& form, int)
    -> decltype(DtWireTraits<Type>::decodeInto(reader, value, form))
{
    return DtWireTraits<Type>::decodeInto(reader, value, form);
}
template <class Type>
QX_IN_PLACE bool DtDecodeWithTraits(DtWireReader& reader, Type& value, const DtWireForm& form, long)
{
    return DtWireTraits<Type>::decode(reader, value, form);
}
template <class Type>
QX_IN_PLACE bool DtDecodePart(DtWireReader& reader, Type& value, const DtWireForm& form)
{
    if (reader.isClosed())
        return reader.fail("something follows an array without length");
    if (form.isMisfit())
        return reader.fail("the model's datatype does not fit into the type of the toolkit");
    return reader.pad(DtBoundaryOfType<Type>(form)) && DtDecodeWithTraits(reader, value, form, 0);
}

// Boundary of a number: the smallest power of two that is not below its length.
QX_IN_PLACE unsigned int DtNumberBoundary(unsigned int octets)
{
    return octets <= 1    ? 1
           : octets <= 2  ? 2
           : octets <= 4  ? 4
           : octets <= 8  ? 8
           : octets <= 16 ? 16
           : octets <= 32 ? 32
           : octets <= 64 ? 64
                          : 128;
}

#endif
