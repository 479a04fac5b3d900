// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourSwappedFloat.h"

void DtHarbourSwappedFloat::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourSwappedFloat::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourSwappedFloat::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourSwappedFloat::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourSwappedFloat::octets()
{
    return 4;
}
 
bool DtHarbourSwappedFloat::isLittleEndian()
{
    return 1 != 0;
}
 

