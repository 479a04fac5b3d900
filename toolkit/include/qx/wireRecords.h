#ifndef QX_WIRE_RECORDS_H
#define QX_WIRE_RECORDS_H

// Classes of the toolkit that stand for a record of numbers. The layout of the form tells where each component lies and
// how long it is; without one each class lies as it does in models that define nothing else.

#include <qx/wireNumbers.h>

// What DtWireRecordTraits asks of a class: the type and number of its components, the usual layout, the components of a
// value, and the value of components; make answers false when a component is too large for the class.
template <class Type>
struct DtWireComponentsOf;

template <class Number, int Tag>
struct DtWireComponentsOf<DtTriple<Number, Tag>>
{
    typedef Number Component;
    typedef DtWireRecordOf<sizeof(Number), DtWirePart<0, 0, sizeof(Number)>,
                           DtWirePart<1, sizeof(Number), sizeof(Number)>,
                           DtWirePart<2, 2 * sizeof(Number), sizeof(Number)>>
        Usual;
    enum
    {
        count = 3
    };
    static void take(const DtTriple<Number, Tag>& value, Component* components)
    {
        components[0] = value.x();
        components[1] = value.y();
        components[2] = value.z();
    }
    static bool make(DtTriple<Number, Tag>& value, const Component* components)
    {
        value = DtTriple<Number, Tag>(components[0], components[1], components[2]);
        return true;
    }
};

template <>
struct DtWireComponentsOf<DtTaitBryan>
{
    typedef DtFloat32 Component;
    typedef DtWireRecordOf<4, DtWirePart<0, 0, 4>, DtWirePart<1, 4, 4>, DtWirePart<2, 8, 4>> Usual;
    enum
    {
        count = 3
    };
    static void take(const DtTaitBryan& value, Component* components)
    {
        components[0] = value.psi();
        components[1] = value.theta();
        components[2] = value.phi();
    }
    static bool make(DtTaitBryan& value, const Component* components)
    {
        value = DtTaitBryan(components[0], components[1], components[2]);
        return true;
    }
};

template <>
struct DtWireComponentsOf<DtEntityType>
{
    typedef DtU16 Component;
    typedef DtWireRecordOf<2, DtWirePart<0, 0, 1>, DtWirePart<1, 1, 1>, DtWirePart<2, 2, 2>, DtWirePart<3, 4, 1>,
                           DtWirePart<4, 5, 1>, DtWirePart<5, 6, 1>, DtWirePart<6, 7, 1>>
        Usual;
    enum
    {
        count = 7
    };
    static void take(const DtEntityType& value, Component* components)
    {
        const Component taken[] = {value.kind(),        value.domain(),   value.country(), value.category(),
                                   value.subCategory(), value.specific(), value.extra()};
        std::memcpy(components, taken, sizeof taken);
    }
    static bool make(DtEntityType& value, const Component* c)
    {
        for (int i = 0; i < count; ++i)
            if (i != 2 && c[i] > 0xff)
                return false;
        value = DtEntityType(static_cast<DtU8>(c[0]), static_cast<DtU8>(c[1]), c[2], static_cast<DtU8>(c[3]),
                             static_cast<DtU8>(c[4]), static_cast<DtU8>(c[5]), static_cast<DtU8>(c[6]));
        return true;
    }
};

template <>
struct DtWireComponentsOf<DtEntityIdentifier>
{
    typedef DtU16 Component;
    typedef DtWireRecordOf<2, DtWirePart<0, 0, 2>, DtWirePart<1, 2, 2>, DtWirePart<2, 4, 2>> Usual;
    enum
    {
        count = 3
    };
    static void take(const DtEntityIdentifier& value, Component* components)
    {
        components[0] = value.site();
        components[1] = value.application();
        components[2] = value.entity();
    }
    static bool make(DtEntityIdentifier& value, const Component* components)
    {
        value = DtEntityIdentifier(components[0], components[1], components[2]);
        return true;
    }
};

// A part that is a floating-point number, and one that is a whole number; components have no sign.
template <class Writer>
void DtPutWirePart(Writer& writer, DtFloat64 component, const DtWirePartForm& part)
{
    DtPutNumber(writer, component, part.octets, part.isLittleEndian);
}
template <class Writer>
void DtPutWirePart(Writer& writer, DtFloat32 component, const DtWirePartForm& part)
{
    DtPutNumber(writer, component, part.octets, part.isLittleEndian);
}
template <class Writer>
void DtPutWirePart(Writer& writer, DtU16 component, const DtWirePartForm& part)
{
    if (!DtFitsInto(component, part.isSigned, part.octets))
        return writer.refuse("the number is too large for its octets");
    writer.putInteger(component, part.octets, part.isLittleEndian);
}

template <class Float>
bool DtGetWirePart(DtWireReader& reader, Float& component, const DtWirePartForm& part)
{
    return DtGetNumber(reader, component, part.octets, part.isLittleEndian);
}
inline bool DtGetWirePart(DtWireReader& reader, DtU16& component, const DtWirePartForm& part)
{
    DtU64 bits = 0;
    if (!reader.getInteger(bits, part.octets, part.isLittleEndian, part.isSigned))
        return false;
    if (bits > 0xffff)
        return reader.fail("the number is too large for its type");
    component = static_cast<DtU16>(bits);
    return true;
}

template <class Type>
struct DtWireRecordTraits
{
    typedef DtWireComponentsOf<Type> Components;

    template <class Writer>
    static void encode(Writer& writer, const Type& value, const DtWireForm& form)
    {
        const DtWireRecordLayout& layout = layoutOf(form);
        const std::size_t start = writer.offset();
        typename Components::Component components[Components::count];
        Components::take(value, components);
        for (unsigned int i = 0; i < layout.count; ++i)
        {
            while (writer.offset() < start + layout.parts[i].offset)
                writer.putByte(0);
            DtPutWirePart(writer, components[layout.parts[i].component], layout.parts[i]);
        }
    }
    static bool decode(DtWireReader& reader, Type& value, const DtWireForm& form)
    {
        const DtWireRecordLayout& layout = layoutOf(form);
        const std::size_t start = reader.offset();
        typename Components::Component components[Components::count] = {};
        for (unsigned int i = 0; i < layout.count; ++i)
        {
            const DtWirePartForm& part = layout.parts[i];
            if (!reader.skip(start + part.offset - reader.offset()) ||
                !DtGetWirePart(reader, components[part.component], part))
                return false;
        }
        return Components::make(value, components) || reader.fail("the number is too large for its type");
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail*) { return layoutOf(form).boundary; }

private:
    static const DtWireRecordLayout& layoutOf(const DtWireForm& form)
    {
        return form.layout ? *form.layout : Components::Usual::theLayout;
    }
};

template <class Number, int Tag>
struct DtWireTraits<DtTriple<Number, Tag>, void> : DtWireRecordTraits<DtTriple<Number, Tag>>
{
};
template <>
struct DtWireTraits<DtTaitBryan, void> : DtWireRecordTraits<DtTaitBryan>
{
};
template <>
struct DtWireTraits<DtEntityType, void> : DtWireRecordTraits<DtEntityType>
{
};
template <>
struct DtWireTraits<DtEntityIdentifier, void> : DtWireRecordTraits<DtEntityIdentifier>
{
};

#endif
