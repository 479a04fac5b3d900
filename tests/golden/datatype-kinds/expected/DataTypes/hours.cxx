// Generated from case; the next generation writes it anew.
 
#include "DataTypes/hours.h"

void DtHours::encode(DtWireWriter& writer, const DtWireForm& form) const
{
    DtPutNumber(writer, myNumber, octets(), DtIsLittleEndian(form));
}
 
bool DtHours::decode(DtWireReader& reader, const DtWireForm& form)
{
    return DtGetNumber(reader, myNumber, octets(), DtIsLittleEndian(form));
}
 
unsigned int DtHours::netSize() const
{
    return octets();
}
 
unsigned int DtHours::octetBoundary()
{
    return DtNumberBoundary(octets());
}
 
// The model's size of the representation, or that of the C++ type when the model gives none.
unsigned int DtHours::octets()
{
    const unsigned int size = 2;
    return size != 0 ? size : sizeof(Number);
}
 

