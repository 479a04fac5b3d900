#ifndef QX_VALUE_CODING_H
#define QX_VALUE_CODING_H

#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>

// Coding of one attribute or parameter with an answer: false means that the value has no wire form here (writing) or
// that the octets are not one of its values (reading). What was written before a refusal is not to be sent.

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
    return DtDecodeValue(reader, value, form);
}

inline bool DtReadValue(DtWireReader& reader, DtOpaqueValue&, const DtWireForm&)
{
    return reader.fail("no class stands for the datatype");
}

#endif
