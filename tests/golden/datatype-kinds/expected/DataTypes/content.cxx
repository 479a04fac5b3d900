// Generated from case; the next generation writes it anew.
 
#include "DataTypes/content.h"

DtContent::DtContent()
    : selector_()
    , myIdle()
    , myBusy()
{
}
 
// Alternatives that are not selected do not count.
bool DtContent::operator==(const DtContent& other) const
{
    if (selector_ != other.selector_)
        return false;
    switch (selected<int>())
    {
    case 0:
        return myIdle == other.myIdle;
    case 1:
        return myBusy == other.myBusy;
    default:
        return true;
    }
}
 
bool DtContent::operator!=(const DtContent& other) const
{
    return !(*this == other);
}
 
void DtContent::encode(DtWireWriter& writer) const
{
    DtEncodeValue(writer, selector_, discriminantForm_());
    const int place = selected<int>();
    if (place >= 0)
        writer.pad(alternativeBoundary_(nullptr));
    switch (place)
    {
    case 0:
        return DtEncodeValue(writer, myIdle, formOf(0));
    case 1:
        return DtEncodeValue(writer, myBusy, formOf(1));
    default:
        break;
    }
}
 
bool DtContent::decode(DtWireReader& reader)
{
    DtContent taken(*this);
    if (!DtDecodeValue(reader, taken.selector_, discriminantForm_()))
        return false;
    const int place = taken.selected<int>();
    if (place >= 0 && !reader.pad(alternativeBoundary_(nullptr)))
        return false;
    switch (place)
    {
    case 0:
        if (!DtDecodeValue(reader, taken.myIdle, formOf(0)))
            return false;
        break;
    case 1:
        if (!DtDecodeValue(reader, taken.myBusy, formOf(1)))
            return false;
        break;
    default:
        break;
    }
    *this = taken;
    return true;
}
 
unsigned int DtContent::octetBoundary(const DtWireTrail* outer)
{
    return DtLargerBoundary(DtBoundaryOfType<Discriminant>(discriminantForm_()), alternativeBoundary_(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtContent::alternativeBoundary_(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtHours>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtReading>(formOf(1), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtContent::places_()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "Off",
            "[HalfOn .. 2nd]",
        });
    return theTable;
}
 
void DtContent::select_(unsigned int alternative)
{
    const DtInt64 present = static_cast<DtInt64>(selector_);
    selector_ = static_cast<Discriminant>(places_().valueOf(alternative, present));
}
 
// Discriminant: Kind.
DtWireForm DtContent::discriminantForm_()
{
    return DtWireForm("State8");
}
 
DtWireForm DtContent::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Hours", "Unsigned16LE", R"qx(HLAvariableArray)qx",
            1),
        DtWireForm("Reading", "", R"qx(HLAvariableArray)qx",
            1),
        DtWireForm()};
    return theForms[alternative];
}
 

