// Generated from case; the next generation writes it anew.
 
#include "DataTypes/unsigned16LE.h"

void DtUnsigned16LE::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtUnsigned16LE::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtUnsigned16LE::netSize() const
{
    return octets();
}
 
unsigned int DtUnsigned16LE::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtUnsigned16LE::octets()
{
    return 2;
}
 
bool DtUnsigned16LE::isLittleEndian()
{
    return 1 != 0;
}
 

