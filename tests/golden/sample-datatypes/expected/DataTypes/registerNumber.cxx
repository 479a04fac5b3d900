// Generated from case; the next generation writes it anew.
 
#include "DataTypes/registerNumber.h"

void DtRegisterNumber::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtRegisterNumber::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtRegisterNumber::netSize() const
{
    return octets();
}
 
unsigned int DtRegisterNumber::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtRegisterNumber::octets()
{
    return 8;
}
 
bool DtRegisterNumber::isLittleEndian()
{
    return 1 != 0;
}
 

