// Generated from case; the next generation writes it anew.
 
#include "DataTypes/gustPair.h"

DtGustPair::DtGustPair()
    : Own()
{
}
 
bool DtGustPair::operator==(const DtGustPair& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myLow == other.Own.myLow))
        return false;
    if (!(Own.myHigh == other.Own.myHigh))
        return false;
    return true;
}
 
bool DtGustPair::operator!=(const DtGustPair& other) const
{
    return !(*this == other);
}
 
void DtGustPair::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myLow, formOf(0));
    DtEncodeValue(writer, Own.myHigh, formOf(1));
}
 
bool DtGustPair::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtGustPair taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myLow, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myHigh, formOf(1)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtGustPair::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat32>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat32>(formOf(1), &trail));
    return boundary;
}
 
DtWireForm DtGustPair::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Knots", "HLAfloat32BE", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("Knots", "HLAfloat32BE", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm()};
    return theForms[field];
}
 

