// Generated from case; the next generation writes it anew.
 
#include "DataTypes/count8.h"

void DtCount8::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtCount8::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtCount8::netSize() const
{
    return octets();
}
 
unsigned int DtCount8::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtCount8::octets()
{
    return 1;
}
 
bool DtCount8::isLittleEndian()
{
    return 0 != 0;
}
 

