// Generated from case; the next generation writes it anew.
 
#include "DataTypes/reading.h"

DtReading::DtReading()
    : Own()
{
}
 
bool DtReading::operator==(const DtReading& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myAt == other.Own.myAt))
        return false;
    if (!(Own.myState == other.Own.myState))
        return false;
    return true;
}
 
bool DtReading::operator!=(const DtReading& other) const
{
    return !(*this == other);
}
 
void DtReading::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myAt, formOf(0));
    DtEncodeValue(writer, Own.myState, formOf(1));
}
 
bool DtReading::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtReading taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myAt, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myState, formOf(1)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtReading::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtHours>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtState8>(formOf(1), &trail));
    return boundary;
}
 
DtWireForm DtReading::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Hours", "Unsigned16LE", R"qx(HLAvariableArray)qx",
            -1, 2, 1),
        DtWireForm("State8", "HLAoctet", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm()};
    return theForms[field];
}
 

