// Generated from case; the next generation writes it anew.
 
#include "DataTypes/sub_Count_.h"

void DtSub_Count_::encode(DtWireWriter& writer) const
{
    DtPutNumber(writer, myNumber, octets(), isLittleEndian());
}
 
bool DtSub_Count_::decode(DtWireReader& reader)
{
    return DtGetNumber(reader, myNumber, octets(), isLittleEndian());
}
 
unsigned int DtSub_Count_::netSize() const
{
    return octets();
}
 
unsigned int DtSub_Count_::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
unsigned int DtSub_Count_::octets()
{
    return 1;
}
 
bool DtSub_Count_::isLittleEndian()
{
    return 0 != 0;
}
 

