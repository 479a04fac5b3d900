#include <qx/opaqueValue.h>

#include <qx/wireBuffer.h>

void DtOpaqueValue::encode(DtWireWriter& writer) const
{
    writer.refuse("the model does not define the datatype");
}

bool DtOpaqueValue::decode(DtWireReader& reader)
{
    return reader.fail("the model does not define the datatype");
}
