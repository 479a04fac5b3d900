// Generated from case; the next generation writes it anew.
 
#include "DataTypes/rotation.h"

DtRotation::DtRotation()
    : Own()
{
}
 
bool DtRotation::operator==(const DtRotation& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.mySlot == other.Own.mySlot))
        return false;
    if (!(Own.myCentre == other.Own.myCentre))
        return false;
    if (!(Own.myTurns == other.Own.myTurns))
        return false;
    return true;
}
 
bool DtRotation::operator!=(const DtRotation& other) const
{
    return !(*this == other);
}
 
void DtRotation::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.mySlot, formOf(0));
    DtEncodeValue(writer, Own.myCentre, formOf(1));
    DtEncodeValue(writer, Own.myTurns, formOf(2));
}
 
bool DtRotation::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtRotation taken(*this);
    if (!DtDecodeValue(reader, taken.Own.mySlot, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myCentre, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myTurns, formOf(2)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtRotation::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtBerthSlot>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtGeoPoint>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(2), &trail));
    return boundary;
}
 
DtWireForm DtRotation::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("BerthSlot", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("GeoPoint", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm()};
    return theForms[field];
}
 

