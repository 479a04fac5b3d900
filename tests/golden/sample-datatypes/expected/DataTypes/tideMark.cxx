// Generated from case; the next generation writes it anew.
 
#include "DataTypes/tideMark.h"

DtTideMark::DtTideMark()
    : Own()
{
}
 
bool DtTideMark::operator==(const DtTideMark& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myAt == other.Own.myAt))
        return false;
    if (!(Own.myLevel == other.Own.myLevel))
        return false;
    return true;
}
 
bool DtTideMark::operator!=(const DtTideMark& other) const
{
    return !(*this == other);
}
 
void DtTideMark::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myAt, formOf(0));
    DtEncodeValue(writer, Own.myLevel, formOf(1));
}
 
bool DtTideMark::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtTideMark taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myAt, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myLevel, formOf(1)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtTideMark::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtClockTime>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtInt16>(formOf(1), &trail));
    return boundary;
}
 
DtWireForm DtTideMark::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("ClockTime", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("Depth", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
            -1, 2, 0),
        DtWireForm()};
    return theForms[field];
}
 

