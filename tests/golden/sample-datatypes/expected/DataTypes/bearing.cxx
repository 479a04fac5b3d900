// Generated from case; the next generation writes it anew.
 
#include "DataTypes/bearing.h"

void DtBearing::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtBearing::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtBearing::netSize() const
{
    return octets();
}
 
unsigned int DtBearing::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtBearing::octets()
{
    return 4;
}
 
bool DtBearing::isLittleEndian()
{
    return 1 != 0;
}
 

