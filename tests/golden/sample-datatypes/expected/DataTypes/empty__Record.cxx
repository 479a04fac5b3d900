// Generated from case; the next generation writes it anew.
 
#include "DataTypes/empty__Record.h"

DtEmpty__Record::DtEmpty__Record()
{
}
 
bool DtEmpty__Record::operator==(const DtEmpty__Record& other) const
{
    static_cast<void>(other); // a record may have no fields
    return true;
}
 
bool DtEmpty__Record::operator!=(const DtEmpty__Record& other) const
{
    return !(*this == other);
}
 
void DtEmpty__Record::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
}
 
bool DtEmpty__Record::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtEmpty__Record taken(*this);
    *this = taken;
    return reader.ok();
}
 
unsigned int DtEmpty__Record::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    return boundary;
}
 
DtWireForm DtEmpty__Record::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm()};
    return theForms[field];
}
 

