#ifndef QX_WIRE_ARRAYS_H
#define QX_WIRE_ARRAYS_H

#include <qx/wireFixed.h>
#include <qx/wireNumbers.h>

// Arrays. Elements are padded to their boundary one by one; nothing is added behind the last, and nothing behind a
// count of 0. An array of several dimensions is one of all its elements, the last index running fastest.

// A run of octets without padding, such as the characters of a text; true when the layout is one that it can be written
// or read by as a whole. What is wrong with the others, the elements tell one by one.
inline bool DtEncodeOctets(DtWireWriter& writer, const void* octets, std::size_t count, const DtArrayLayout& layout)
{
    switch (layout.kind)
    {
    case DtVariableArray:
        if (count > 0x7fffffff)
            return false;
        writer.putInteger(count, 4);
        break;
    case DtFixedArray:
        if (layout.count != count)
            return false;
        break;
    case DtNullTerminatedArray:
        if (count != 0 && std::memchr(octets, 0, count))
            return false;
        break;
    case DtLengthlessArray:
        break;
    default:
        return false;
    }
    writer.putBytes(octets, count);
    if (layout.kind == DtNullTerminatedArray)
        writer.putByte(0);
    return true;
}
// Finds the octets where they lie; the reader is left alone otherwise.
inline bool DtDecodeOctets(DtWireReader& reader, const DtU8*& octets, std::size_t& count, const DtArrayLayout& layout)
{
    const DtU8* const start = reader.next();
    const std::size_t room = reader.remaining();
    std::size_t ahead = 0, behind = 0; // of the octets: a count, a terminator
    DtU32 counted = 0;
    const void* zero = nullptr;
    if (!start || !reader.ok() || (reader.isClosed() && layout.kind != DtLengthlessArray))
        return false;
    switch (layout.kind)
    {
    case DtVariableArray:
        ahead = 4;
        if (room < ahead)
            return false;
        DtLoadBig(start, counted);
        count = counted;
        break;
    case DtFixedArray:
        count = layout.count;
        break;
    case DtNullTerminatedArray:
        behind = 1;
        zero = room != 0 ? std::memchr(start, 0, room) : nullptr;
        if (!zero)
            return false;
        count = static_cast<std::size_t>(static_cast<const DtU8*>(zero) - start);
        break;
    case DtLengthlessArray:
        count = room;
        break;
    default:
        return false;
    }
    if (count > room - ahead)
        return false;
    octets = start + ahead;
    reader.skip(ahead + count + behind);
    if (layout.kind == DtLengthlessArray)
        reader.close();
    return true;
}

// Elements that are coded together, since the room that they take is known ahead: numbers that are as long on the wire
// as in memory, and records whose values have the same octets each. All others are coded one by one.
template <class Element, class Enable = void>
struct DtElementRun
{
    static bool isOne(const DtWireForm&) { return false; }
    template <class Container>
    static void encode(DtWireWriter&, const Container&, const DtWireForm&)
    {
    }
    template <class Container>
    static bool decode(DtWireReader&, Container&, std::size_t, const DtWireForm&)
    {
        return false;
    }
};

template <std::size_t Octets>
struct DtBitsOf;
template <>
struct DtBitsOf<2>
{
    typedef DtU16 Type;
};
template <>
struct DtBitsOf<4>
{
    typedef DtU32 Type;
};
template <>
struct DtBitsOf<8>
{
    typedef DtU64 Type;
};

template <class Number>
struct DtElementRun<Number,
                    typename std::enable_if<std::is_arithmetic<Number>::value &&
                                            (sizeof(Number) == 2 || sizeof(Number) == 4 || sizeof(Number) == 8)>::type>
{
    typedef typename DtBitsOf<sizeof(Number)>::Type Bits;

    static bool isOne(const DtWireForm& form)
    {
        return (form.octets == 0 || form.octets == sizeof(Number)) && !form.isMisfit();
    }
    template <class Container>
    static void encode(DtWireWriter& writer, const Container& elements, const DtWireForm& form)
    {
        writer.pad(sizeof(Number));
        const bool little = DtIsLittleEndian(form);
        DtU8* to = writer.grow(elements.size() * sizeof(Number));
        for (typename Container::const_iterator i = elements.begin(); i != elements.end(); ++i, to += sizeof(Number))
        {
            Bits bits;
            std::memcpy(&bits, &*i, sizeof bits);
            DtStoreBits(to, bits, little);
        }
    }
    template <class Container>
    static bool decode(DtWireReader& reader, Container& elements, std::size_t count, const DtWireForm& form)
    {
        const DtU8* from = reader.pad(sizeof(Number)) ? reader.take(count * sizeof(Number)) : nullptr;
        if (!from)
            return false;
        const bool little = DtIsLittleEndian(form);
        const std::size_t before = elements.size();
        elements.resize(before + count);
        for (std::size_t i = before; i < elements.size(); ++i, from += sizeof(Number))
        {
            const Bits bits = DtLoadBits<Bits>(from, little);
            std::memcpy(&elements[i], &bits, sizeof bits);
        }
        return true;
    }
};

template <class Record>
struct DtElementRun<Record, typename std::enable_if<DtIsFixed<Record>::value>::type>
{
    enum : std::size_t
    {
        octets = DtFixedOctetsOf<Record>(0),
        boundary = Record::template fixedBoundary<std::size_t>(),
        stride = (octets + boundary - 1) / boundary * boundary, // from one element to the next
        gap = stride - octets
    };

    static bool isOne(const DtWireForm&) { return true; }
    template <class Container>
    static void encode(DtWireWriter& writer, const Container& elements, const DtWireForm&)
    {
        writer.pad(boundary);
        DtU8* to = writer.grow(elements.size() * stride - gap);
        std::size_t left = elements.size();
        for (typename Container::const_iterator i = elements.begin(); i != elements.end(); ++i, to += stride)
        {
            i->encodeAt(to, writer);
            if (gap != 0 && --left != 0)
                std::memset(to + octets, 0, gap);
        }
    }
    template <class Container>
    static bool decode(DtWireReader& reader, Container& elements, std::size_t count, const DtWireForm&)
    {
        if (!reader.pad(boundary))
            return false;
        if (count > (reader.remaining() + gap) / stride)
            return reader.fail("the value ends too early");
        const DtU8* from = reader.take(count * stride - gap);
        const std::size_t before = elements.size();
        elements.resize(before + count);
        for (std::size_t i = before; i < elements.size(); ++i, from += stride)
            if (!elements[i].decodeAt(from, reader))
                return false;
        return true;
    }
};

// Memory for elements is taken in the measure of the octets that are there, so a count that these cannot bear costs
// none.
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
        if (!take(elements))
            return false;
        if (reader.offset() == before && ++idle > theMostIdle)
            return reader.fail("too many elements without octets");
        return true;
    }
    bool nextOf(DtU64 count)
    {
        typedef DtElementRun<Element> Run;
        if (count != 0 && Run::isOne(form) && !reader.isClosed() && count <= reader.remaining())
            return Run::decode(reader, elements, static_cast<std::size_t>(count), form);
        const std::size_t bearable = reader.remaining() * 4 / sizeof(Element) + 1;
        elements.reserve(elements.size() + (count < bearable ? static_cast<std::size_t>(count) : bearable));
        for (; count > 0; --count)
            if (!next())
                return false;
        return true;
    }

    template <class Elements>
    bool take(Elements& target)
    {
        target.emplace_back();
        return DtDecodePart(reader, target.back(), form);
    }
    bool take(std::vector<bool>& target) // whose elements are no objects
    {
        bool element = false;
        if (!DtDecodeValue(reader, element, form))
            return false;
        target.push_back(element);
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

// A padding array has no boundary of its own: it gives one to what follows.
template <class Element>
unsigned int DtArrayBoundary(const DtArrayLayout& layout, const DtWireForm& elementForm, const DtWireTrail* trail)
{
    switch (layout.kind)
    {
    case DtVariableArray:
        return DtLargerBoundary(4, DtBoundaryOfType<Element>(elementForm, trail));
    case DtPaddingArray:
        return 1;
    default:
        return DtBoundaryOfType<Element>(elementForm, trail);
    }
}

// The octets that end a null-terminated array: an element at its start, all of it zero. An element that holds such an
// array of its own kind has no length that could be told, and so no terminator: the length is 0.
template <class Element>
struct DtTerminator
{
    explicit DtTerminator(const DtWireForm& elementForm) : boundary(DtBoundaryOfType<Element>(elementForm)), length(0)
    {
        Search& present = search();
        if (present.isOpen)
        {
            present.holdsItself = true;
            return;
        }
        present.isOpen = true;
        present.holdsItself = false;
        const std::size_t octets = octetsOf(Element(), elementForm).size();
        present.isOpen = false;
        length = present.holdsItself ? 0 : octets;
    }

    // Whether the length is being worked out, further up on the stack.
    struct Search
    {
        bool isOpen;
        bool holdsItself;
    };
    static Search& search()
    {
        static thread_local Search theSearch = {false, false};
        return theSearch;
    }

    static std::vector<DtU8> octetsOf(const Element& element, const DtWireForm& form)
    {
        DtWireWriter writer;
        DtEncodeValue<Element>(writer, element, form);
        return writer.bytes();
    }
    bool is(const std::vector<DtU8>& octets) const
    {
        if (octets.size() < length)
            return false;
        for (std::size_t i = 0; i < length; ++i)
            if (octets[i] != 0)
                return false;
        return true;
    }
    // Passes over it, if it is there.
    bool take(DtWireReader& reader) const
    {
        DtWireReader ahead(reader);
        std::vector<DtU8> octets(length);
        if (!ahead.pad(boundary) || !ahead.getBytes(octets.data(), length) || !is(octets))
            return false;
        reader = ahead;
        return true;
    }

    unsigned int boundary;
    std::size_t length;
};

template <class Container>
void DtEncodeTerminatedArray(DtWireWriter& writer, const Container& elements, const DtWireForm& elementForm)
{
    typedef typename Container::value_type Element;
    const DtTerminator<Element> terminator(elementForm);
    if (terminator.length == 0)
        return writer.refuse("elements without octets cannot be terminated");
    for (typename Container::const_iterator i = elements.begin(); i != elements.end(); ++i)
    {
        if (terminator.is(DtTerminator<Element>::octetsOf(*i, elementForm)))
            return writer.refuse("an element would end its null-terminated array");
        DtEncodeValue<Element>(writer, *i, elementForm);
    }
    writer.pad(terminator.boundary);
    const std::vector<DtU8> zeros(terminator.length);
    writer.putBytes(zeros.data(), zeros.size());
}

template <class Container>
bool DtDecodeTerminatedArray(DtWireReader& reader, Container& elements, const DtWireForm& elementForm)
{
    typedef typename Container::value_type Element;
    const DtTerminator<Element> terminator(elementForm);
    if (terminator.length == 0)
        return reader.fail("elements without octets cannot be terminated");
    DtElementReader<Container> source(reader, elements, elementForm);
    while (!terminator.take(reader))
        if (!source.next())
            return false;
    return true;
}

// Closes the reader: what follows could not be told from another element.
template <class Container>
bool DtDecodeLengthlessArray(DtWireReader& reader, Container& elements, const DtWireForm& elementForm)
{
    DtElementReader<Container> source(reader, elements, elementForm);
    while (!reader.atEnd())
    {
        if (!source.next())
            return false;
        if (reader.isClosed())
            return reader.fail("elements without length cannot be told apart");
    }
    reader.close();
    return true;
}

template <class Container>
void DtEncodeArray(DtWireWriter& writer, const Container& elements, const DtArrayLayout& layout,
                   const DtWireForm& elementForm)
{
    typedef typename Container::value_type Element;
    switch (layout.kind)
    {
    case DtPaddingArray:
        return writer.pad(layout.count);
    case DtNullTerminatedArray:
        return DtEncodeTerminatedArray(writer, elements, elementForm);
    case DtUnknownArray:
        return writer.refuse("the encoding of the array is not known");
    case DtFixedArray:
        if (layout.count != elements.size())
            return writer.refuse("a fixed array has another number of elements");
        break;
    case DtVariableArray:
        if (elements.size() > 0x7fffffff)
            return writer.refuse("the array has too many elements");
        writer.putInteger(elements.size(), 4);
        break;
    case DtLengthlessArray:
        break;
    }
    if (!elements.empty() && DtElementRun<Element>::isOne(elementForm))
        return DtElementRun<Element>::encode(writer, elements, elementForm);
    for (typename Container::const_iterator i = elements.begin(); i != elements.end(); ++i)
        DtEncodeValue<Element>(writer, *i, elementForm);
}

// Takes the elements in behind those that the container holds.
template <class Container>
bool DtDecodeElements(DtWireReader& reader, Container& elements, const DtArrayLayout& layout,
                      const DtWireForm& elementForm)
{
    DtElementReader<Container> source(reader, elements, elementForm);
    DtU64 count = layout.count;
    switch (layout.kind)
    {
    case DtVariableArray:
        return reader.getInteger(count, 4) && source.nextOf(count);
    case DtFixedArray:
        return source.nextOf(count);
    case DtLengthlessArray:
        return DtDecodeLengthlessArray(reader, elements, elementForm);
    case DtNullTerminatedArray:
        return DtDecodeTerminatedArray(reader, elements, elementForm);
    case DtPaddingArray:
        return reader.pad(layout.count);
    case DtUnknownArray:
        break;
    }
    return reader.fail("the encoding of the array is not known");
}

// Replaces the elements; on failure they are as they were.
template <class Container>
bool DtDecodeArray(DtWireReader& reader, Container& elements, const DtArrayLayout& layout,
                   const DtWireForm& elementForm)
{
    if (!reader.enter())
        return false;
    Container taken;
    const bool done = DtDecodeElements(reader, taken, layout, elementForm);
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
        DtEncodeArray(writer, value, DtLayoutOf(form), elementForm(form));
    }
    static bool decode(DtWireReader& reader, std::vector<Element>& value, const DtWireForm& form)
    {
        return DtDecodeArray(reader, value, DtLayoutOf(form), elementForm(form));
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail* trail)
    {
        return DtArrayBoundary<Element>(DtLayoutOf(form), elementForm(form), trail);
    }

private:
    static DtWireForm elementForm(const DtWireForm& form)
    {
        return DtWireForm(form.representation, "", "", -1, form.octets, form.isLittleEndian, form.layout);
    }
};

#endif
