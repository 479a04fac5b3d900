// Generated from case; the next generation writes it anew.
 
#include "DataTypes/trim24.h"

void DtTrim24::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtTrim24::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtTrim24::netSize() const
{
    return octets();
}
 
unsigned int DtTrim24::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtTrim24::octets()
{
    return 3;
}
 
bool DtTrim24::isLittleEndian()
{
    return 0 != 0;
}
 

