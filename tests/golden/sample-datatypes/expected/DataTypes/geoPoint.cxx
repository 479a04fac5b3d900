// Generated from case; the next generation writes it anew.
 
#include "DataTypes/geoPoint.h"

DtGeoPoint::DtGeoPoint()
    : Own()
{
}
 
bool DtGeoPoint::operator==(const DtGeoPoint& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myLatitude == other.Own.myLatitude))
        return false;
    if (!(Own.myLongitude == other.Own.myLongitude))
        return false;
    if (!(Own.myHeight == other.Own.myHeight))
        return false;
    return true;
}
 
bool DtGeoPoint::operator!=(const DtGeoPoint& other) const
{
    return !(*this == other);
}
 
void DtGeoPoint::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myLatitude, formOf(0));
    DtEncodeValue(writer, Own.myLongitude, formOf(1));
    DtEncodeValue(writer, Own.myHeight, formOf(2));
}
 
bool DtGeoPoint::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtGeoPoint taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myLatitude, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myLongitude, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myHeight, formOf(2)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtGeoPoint::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat64>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat64>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat32>(formOf(2), &trail));
    return boundary;
}
 
DtWireForm DtGeoPoint::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
            -1, 8, 0),
        DtWireForm("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
            -1, 8, 0),
        DtWireForm("HLAfloat32BE", "", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm()};
    return theForms[field];
}
 

