#ifndef QX_WIRE_ARRAYS_H
#define QX_WIRE_ARRAYS_H

#include <qx/wireNumbers.h>

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

#endif
