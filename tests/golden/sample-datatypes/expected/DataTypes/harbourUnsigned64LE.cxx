// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourUnsigned64LE.h"

void DtHarbourUnsigned64LE::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourUnsigned64LE::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourUnsigned64LE::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourUnsigned64LE::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourUnsigned64LE::octets()
{
    return 8;
}
 
bool DtHarbourUnsigned64LE::isLittleEndian()
{
    return 1 != 0;
}
 

