// Generated from case; the next generation writes it anew.
 
#include "DataTypes/hold.h"

DtHold::DtHold()
    : Own()
{
}
 
bool DtHold::operator==(const DtHold& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myFull == other.Own.myFull))
        return false;
    if (!(Own.myLoad == other.Own.myLoad))
        return false;
    if (!(Own.myState == other.Own.myState))
        return false;
    if (!(Own.mySub == other.Own.mySub))
        return false;
    return true;
}
 
bool DtHold::operator!=(const DtHold& other) const
{
    return !(*this == other);
}
 
void DtHold::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myFull, formOf(0));
    DtEncodeValue(writer, Own.myLoad, formOf(1));
    DtEncodeValue(writer, Own.myState, formOf(2));
    DtEncodeValue(writer, Own.mySub, formOf(3));
}
 
bool DtHold::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtHold taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myFull, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myLoad, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myState, formOf(2)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.mySub, formOf(3)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtHold::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<bool>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtWeight__Kg>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtVesselState8>(formOf(2), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtSub_Count_>(formOf(3), &trail));
    return boundary;
}
 
DtWireForm DtHold::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("HLAboolean", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("Weight__Kg", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("VesselState8", "HLAoctet", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("Sub_Count_", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm()};
    return theForms[field];
}
 

