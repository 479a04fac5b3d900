// Generated from case; the next generation writes it anew.
 
#include "DataTypes/hours.h"

void DtHours::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHours::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHours::netSize() const
{
    return octets();
}
 
unsigned int DtHours::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHours::octets()
{
    return 2;
}
 
bool DtHours::isLittleEndian()
{
    return 1 != 0;
}
 

