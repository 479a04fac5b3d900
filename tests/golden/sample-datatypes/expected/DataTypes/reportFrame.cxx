// Generated from case; the next generation writes it anew.
 
#include "DataTypes/reportFrame.h"

DtReportFrame::DtReportFrame()
    : Own()
{
}
 
bool DtReportFrame::operator==(const DtReportFrame& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myLead == other.Own.myLead))
        return false;
    if (!(Own.myBody == other.Own.myBody))
        return false;
    return true;
}
 
bool DtReportFrame::operator!=(const DtReportFrame& other) const
{
    return !(*this == other);
}
 
void DtReportFrame::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myLead, formOf(0));
    DtEncodeValue(writer, Own.myBody, formOf(1));
}
 
bool DtReportFrame::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtReportFrame taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myLead, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myBody, formOf(1)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtReportFrame::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtPaddedReport>(formOf(1), &trail));
    return boundary;
}
 
DtWireForm DtReportFrame::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("PaddedReport", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[field];
}
 

