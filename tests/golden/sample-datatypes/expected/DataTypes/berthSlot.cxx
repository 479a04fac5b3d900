// Generated from case; the next generation writes it anew.
 
#include "DataTypes/berthSlot.h"

DtBerthSlot::DtBerthSlot()
    : Own()
{
}
 
bool DtBerthSlot::operator==(const DtBerthSlot& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myNumber == other.Own.myNumber))
        return false;
    if (!(Own.myStart == other.Own.myStart))
        return false;
    if (!(Own.myLoad__Max == other.Own.myLoad__Max))
        return false;
    if (!(Own.myUntil == other.Own.myUntil))
        return false;
    return true;
}
 
bool DtBerthSlot::operator!=(const DtBerthSlot& other) const
{
    return !(*this == other);
}
 
void DtBerthSlot::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myNumber, formOf(0));
    DtEncodeValue(writer, Own.myStart, formOf(1));
    DtEncodeValue(writer, Own.myLoad__Max, formOf(2));
    DtEncodeValue(writer, Own.myUntil, formOf(3));
}
 
bool DtBerthSlot::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtBerthSlot taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myNumber, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myStart, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myLoad__Max, formOf(2)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myUntil, formOf(3)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtBerthSlot::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtTideMark>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtWeight__Kg>(formOf(2), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtTideMark>(formOf(3), &trail));
    return boundary;
}
 
DtWireForm DtBerthSlot::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("TideMark", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("Weight__Kg", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("TideMark", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[field];
}
 

