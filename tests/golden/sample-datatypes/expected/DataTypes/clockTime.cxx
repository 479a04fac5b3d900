// Generated from case; the next generation writes it anew.
 
#include "DataTypes/clockTime.h"

DtClockTime::DtClockTime()
    : Own()
{
}
 
bool DtClockTime::operator==(const DtClockTime& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myHour == other.Own.myHour))
        return false;
    if (!(Own.myMinute == other.Own.myMinute))
        return false;
    if (!(Own.mySecond == other.Own.mySecond))
        return false;
    return true;
}
 
bool DtClockTime::operator!=(const DtClockTime& other) const
{
    return !(*this == other);
}
 
void DtClockTime::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myHour, formOf(0));
    DtEncodeValue(writer, Own.myMinute, formOf(1));
    DtEncodeValue(writer, Own.mySecond, formOf(2));
}
 
bool DtClockTime::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtClockTime taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myHour, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myMinute, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.mySecond, formOf(2)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtClockTime::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(2), &trail));
    return boundary;
}
 
DtWireForm DtClockTime::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm()};
    return theForms[field];
}
 

