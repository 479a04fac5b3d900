// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourInteger24.h"

void DtHarbourInteger24::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourInteger24::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourInteger24::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourInteger24::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourInteger24::octets()
{
    return 3;
}
 
bool DtHarbourInteger24::isLittleEndian()
{
    return 0 != 0;
}
 

