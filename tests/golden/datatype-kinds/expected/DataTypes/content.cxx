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
    static const unsigned int theBoundary = alternativeBoundary_(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, selector_, discriminantForm_());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(writer, myIdle, formOf(0), kind_(), theBoundary);
    case 1:
        return DtEncodeAlternative(writer, myBusy, formOf(1), kind_(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, kind_());
    }
}
 
bool DtContent::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = alternativeBoundary_(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtContent taken(*this);
    bool done = DtDecodeValue(reader, taken.selector_, discriminantForm_());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(reader, taken.myIdle, formOf(0), kind_(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(reader, taken.myBusy, formOf(1), kind_(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, kind_());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtContent::octetBoundary(const DtWireTrail* outer)
{
    return DtVariantBoundary(kind_(), DtBoundaryOfType<Discriminant>(discriminantForm_()), alternativeBoundary_(outer));
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
            "[Half-On .. 2nd]",
        },
        {
            "HLAother",
        });
    return theTable;
}
 
void DtContent::select_(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(selector_);
    selector_ = static_cast<Discriminant>(places_().valueOf(alternative, present));
}
 
// Discriminant: Kind.
DtWireForm DtContent::discriminantForm_()
{
    return DtWireForm("State8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 
DtVariantKind DtContent::kind_()
{
    return DtVariantKindOf("HLAvariantRecord");
}
 
DtWireForm DtContent::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Hours", "Unsigned16LE", R"qx(HLAvariableArray)qx",
            -1, 2, 1),
        DtWireForm("Reading", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[alternative];
}
 

