// Generated from case; the next generation writes it anew.
 
#include "DataTypes/windRecord.h"

DtWindRecord::DtWindRecord()
    : Own()
{
}
 
bool DtWindRecord::operator==(const DtWindRecord& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.mySpeed == other.Own.mySpeed))
        return false;
    if (!(Own.myFrom == other.Own.myFrom))
        return false;
    if (!(Own.myGusts == other.Own.myGusts))
        return false;
    if (!(Own.myMarks == other.Own.myMarks))
        return false;
    return true;
}
 
bool DtWindRecord::operator!=(const DtWindRecord& other) const
{
    return !(*this == other);
}
 
void DtWindRecord::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.mySpeed, formOf(0));
    DtEncodeValue(writer, Own.myFrom, formOf(1));
    DtEncodeValue(writer, Own.myGusts, formOf(2));
    DtEncodeValue(writer, Own.myMarks, formOf(3));
}
 
bool DtWindRecord::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtWindRecord taken(*this);
    if (!DtDecodeValue(reader, taken.Own.mySpeed, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myFrom, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myGusts, formOf(2)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myMarks, formOf(3)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtWindRecord::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat32>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat64>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtGustPair>(formOf(2), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtOldRun>(formOf(3), &trail));
    return boundary;
}
 
DtWireForm DtWindRecord::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Knots", "HLAfloat32BE", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
            -1, 8, 0),
        DtWireForm("GustPair", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("OldRun", "HLAASCIIchar", R"qx(RPRlengthlessArray)qx",
            -1, 1, 0),
        DtWireForm()};
    return theForms[field];
}
 

