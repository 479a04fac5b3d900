// Generated from case; the next generation writes it anew.
 
#include "DataTypes/celsius.h"

void DtCelsius::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtCelsius::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtCelsius::netSize() const
{
    return octets();
}
 
unsigned int DtCelsius::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtCelsius::octets()
{
    return 1;
}
 
bool DtCelsius::isLittleEndian()
{
    return 0 != 0;
}
 

