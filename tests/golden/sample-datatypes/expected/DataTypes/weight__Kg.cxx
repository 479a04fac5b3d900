// Generated from case; the next generation writes it anew.
 
#include "DataTypes/weight__Kg.h"

void DtWeight__Kg::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtWeight__Kg::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtWeight__Kg::netSize() const
{
    return octets();
}
 
unsigned int DtWeight__Kg::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtWeight__Kg::octets()
{
    return 4;
}
 
bool DtWeight__Kg::isLittleEndian()
{
    return 0 != 0;
}
 

