#ifndef QX_VALUE_CODING_H
#define QX_VALUE_CODING_H

#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>

#include <utility>

// Coding of one attribute or parameter with an answer: false means that the value has no wire form here (writing) or
// that the octets are not one of its values (reading). What was written before a refusal is not to be sent. A value
// takes the whole buffer: octets behind it are a failure too. The value is then as it was.

template <class Value>
bool DtWriteValue(DtWireWriter& writer, const Value& value, const DtWireForm& form)
{
    DtEncodeValue(writer, value, form);
    return writer.ok();
}

inline bool DtWriteValue(DtWireWriter& writer, const DtOpaqueValue&, const DtWireForm&)
{
    writer.refuse("no class stands for the datatype");
    return false;
}

// What a value is read into: a copy, since a record keeps what has no wire form, but an empty text or array, which is
// replaced as a whole.
template <class Value>
Value DtStartOf(const Value& value, long)
{
    return value;
}
template <class Value>
auto DtStartOf(const Value&, int) -> typename std::conditional<true, Value, typename Value::Elements>::type
{
    return Value();
}
template <class Element>
std::vector<Element> DtStartOf(const std::vector<Element>&, int)
{
    return std::vector<Element>();
}
inline DtString DtStartOf(const DtString&, int)
{
    return DtString();
}
template <class Value>
Value DtStartOf(const Value& value)
{
    return DtStartOf(value, 0);
}

// Reads into such a start, which holds part of what was read after a failure and is to be thrown away.
template <class Value>
bool DtReadInto(DtWireReader& reader, Value& value, const DtWireForm& form)
{
    if (!DtDecodePart(reader, value, form))
        return false;
    return reader.atEnd() || reader.fail("octets are left over behind the value");
}

// Without a text on the way, so that one that is read again and again needs no memory anew. It stays on a failure.
inline bool DtReadInto(DtWireReader& reader, DtString& value, const DtWireForm& form)
{
    const char* text = nullptr;
    std::size_t length = 0;
    const bool isFound = !form.isMisfit() && !reader.isClosed() && reader.pad(DtBoundaryOf(value, form)) &&
                         DtWireTraits<DtString>::find(reader, text, length, form);
    if (!isFound)
    {
        DtString taken;
        if (!DtReadInto<DtString>(reader, taken, form))
            return false;
        value = std::move(taken);
        return true;
    }
    if (!reader.atEnd())
        return reader.fail("octets are left over behind the value");
    value.assign(text, length);
    return true;
}

inline bool DtReadInto(DtWireReader& reader, DtOpaqueValue&, const DtWireForm&)
{
    return reader.fail("no class stands for the datatype");
}

template <class Value>
bool DtReadValue(DtWireReader& reader, Value& value, const DtWireForm& form)
{
    Value taken(DtStartOf(value));
    if (!DtReadInto(reader, taken, form))
        return false;
    value = std::move(taken);
    return true;
}

inline bool DtReadValue(DtWireReader& reader, DtString& value, const DtWireForm& form)
{
    return DtReadInto(reader, value, form);
}

#endif
