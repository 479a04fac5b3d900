// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourUnsigned32.h"

void DtHarbourUnsigned32::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourUnsigned32::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourUnsigned32::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourUnsigned32::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourUnsigned32::octets()
{
    return 4;
}
 
bool DtHarbourUnsigned32::isLittleEndian()
{
    return 0 != 0;
}
 

