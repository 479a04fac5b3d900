// Generated from case; the next generation writes it anew.
 
#include "DataTypes/paddedReport.h"

DtPaddedReport::DtPaddedReport()
    : Own()
{
}
 
bool DtPaddedReport::operator==(const DtPaddedReport& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myCode == other.Own.myCode))
        return false;
    if (!(Own.myFill == other.Own.myFill))
        return false;
    if (!(Own.myValue == other.Own.myValue))
        return false;
    if (!(Own.myRest == other.Own.myRest))
        return false;
    if (!(Own.myTail == other.Own.myTail))
        return false;
    return true;
}
 
bool DtPaddedReport::operator!=(const DtPaddedReport& other) const
{
    return !(*this == other);
}
 
void DtPaddedReport::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myCode, formOf(0));
    DtEncodeValue(writer, Own.myFill, formOf(1));
    DtEncodeValue(writer, Own.myValue, formOf(2));
    DtEncodeValue(writer, Own.myRest, formOf(3));
    DtEncodeValue(writer, Own.myTail, formOf(4));
}
 
bool DtPaddedReport::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtPaddedReport taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myCode, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myFill, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myValue, formOf(2)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myRest, formOf(3)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myTail, formOf(4)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtPaddedReport::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFillTo32>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(2), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFillTo64>(formOf(3), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(4), &trail));
    return boundary;
}
 
DtWireForm DtPaddedReport::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("FillTo32", "HarbourUnsigned8", R"qx(RPRpaddingTo32Array)qx",
            -1, 1, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("FillTo64", "HarbourUnsigned8", R"qx(RPRpaddingTo64Array)qx",
            -1, 1, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm()};
    return theForms[field];
}
 

