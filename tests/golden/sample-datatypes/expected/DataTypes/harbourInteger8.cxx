// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourInteger8.h"

void DtHarbourInteger8::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourInteger8::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourInteger8::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourInteger8::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourInteger8::octets()
{
    return 1;
}
 
bool DtHarbourInteger8::isLittleEndian()
{
    return 0 != 0;
}
 

