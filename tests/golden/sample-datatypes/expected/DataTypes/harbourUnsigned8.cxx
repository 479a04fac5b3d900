// Generated from case; the next generation writes it anew.
 
#include "DataTypes/harbourUnsigned8.h"

void DtHarbourUnsigned8::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtHarbourUnsigned8::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtHarbourUnsigned8::netSize() const
{
    return octets();
}
 
unsigned int DtHarbourUnsigned8::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtHarbourUnsigned8::octets()
{
    return 1;
}
 
bool DtHarbourUnsigned8::isLittleEndian()
{
    return 0 != 0;
}
 

