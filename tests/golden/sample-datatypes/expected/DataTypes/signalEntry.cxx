// Generated from case; the next generation writes it anew.
 
#include "DataTypes/signalEntry.h"

DtSignalEntry::DtSignalEntry()
    : Own()
{
}
 
bool DtSignalEntry::operator==(const DtSignalEntry& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.mySentAt == other.Own.mySentAt))
        return false;
    if (!(Own.myWhat == other.Own.myWhat))
        return false;
    return true;
}
 
bool DtSignalEntry::operator!=(const DtSignalEntry& other) const
{
    return !(*this == other);
}
 
void DtSignalEntry::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.mySentAt, formOf(0));
    DtEncodeValue(writer, Own.myWhat, formOf(1));
}
 
bool DtSignalEntry::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtSignalEntry taken(*this);
    if (!DtDecodeValue(reader, taken.Own.mySentAt, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myWhat, formOf(1)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtSignalEntry::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtClockTime>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtSignalMessage>(formOf(1), &trail));
    return boundary;
}
 
DtWireForm DtSignalEntry::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("ClockTime", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("SignalMessage", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[field];
}
 

