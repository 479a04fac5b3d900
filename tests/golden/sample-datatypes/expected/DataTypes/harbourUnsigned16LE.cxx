// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourUnsigned16LE.h"

void DtHarbourUnsigned16LE::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourUnsigned16LE::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourUnsigned16LE::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourUnsigned16LE::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourUnsigned16LE::octets()
{
    return 2;
}
 
bool DtHarbourUnsigned16LE::isLittleEndian()
{
    return 1 != 0;
}
 

