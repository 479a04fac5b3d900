#include <qx/wireNames.h>

#include <qx/wireBuffer.h>

unsigned int DtWrittenOctets(const void* value, void (*write)(DtWireWriter& writer, const void* value))
{
    DtWireWriter writer;
    write(writer, value);
    return writer.ok() ? static_cast<unsigned int>(writer.size()) : 0;
}
