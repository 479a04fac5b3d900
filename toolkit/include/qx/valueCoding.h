#ifndef QX_VALUE_CODING_H
#define QX_VALUE_CODING_H

#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>

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

template <class Value>
bool DtReadValue(DtWireReader& reader, Value& value, const DtWireForm& form)
{
    Value taken(value);
    if (!DtDecodeValue(reader, taken, form))
        return false;
    if (!reader.atEnd())
        return reader.fail("octets are left over behind the value");
    value = taken;
    return true;
}

inline bool DtReadValue(DtWireReader& reader, DtOpaqueValue&, const DtWireForm&)
{
    return reader.fail("no class stands for the datatype");
}

#endif
