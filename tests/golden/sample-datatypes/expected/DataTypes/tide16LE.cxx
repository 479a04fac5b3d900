// Generated from case; the next generation writes it anew.
 
#include "DataTypes/tide16LE.h"

void DtTide16LE::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtTide16LE::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtTide16LE::netSize() const
{
    return octets();
}
 
unsigned int DtTide16LE::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtTide16LE::octets()
{
    return 2;
}
 
bool DtTide16LE::isLittleEndian()
{
    return 1 != 0;
}
 

