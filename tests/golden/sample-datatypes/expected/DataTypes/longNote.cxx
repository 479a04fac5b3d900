// Generated from case; the next generation writes it anew.
 
#include "DataTypes/longNote.h"

DtLongNote::DtLongNote()
    : Own()
{
}
 
bool DtLongNote::operator==(const DtLongNote& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myAuthor == other.Own.myAuthor))
        return false;
    if (!(Own.myWords == other.Own.myWords))
        return false;
    if (!(Own.myRating == other.Own.myRating))
        return false;
    if (!(Own.mySum == other.Own.mySum))
        return false;
    return true;
}
 
bool DtLongNote::operator!=(const DtLongNote& other) const
{
    return !(*this == other);
}
 
void DtLongNote::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myAuthor, formOf(0));
    DtEncodeValue(writer, Own.myWords, formOf(1));
    DtEncodeValue(writer, Own.myRating, formOf(2));
    DtEncodeValue(writer, Own.mySum, formOf(3));
}
 
bool DtLongNote::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtLongNote taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myAuthor, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myWords, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myRating, formOf(2)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.mySum, formOf(3)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtLongNote::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtU16>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtRouteCode>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(2), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtRegisterNumber>(formOf(3), &trail));
    return boundary;
}
 
DtWireForm DtLongNote::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Initial", "HLAunicodeChar", R"qx(HLAvariableArray)qx",
            -1, 2, 0),
        DtWireForm("RouteCode", "HLAunicodeChar", R"qx(HLAnullTerminatedArray)qx",
            -1, 2, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("RegisterNumber", "HarbourUnsigned64LE", R"qx(HLAvariableArray)qx",
            -1, 8, 1),
        DtWireForm()};
    return theForms[field];
}
 

