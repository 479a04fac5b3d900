// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourInteger24LE.h"

void DtHarbourInteger24LE::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourInteger24LE::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourInteger24LE::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourInteger24LE::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourInteger24LE::octets()
{
    return 3;
}
 
bool DtHarbourInteger24LE::isLittleEndian()
{
    return 1 != 0;
}
 

