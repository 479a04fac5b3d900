// Generated from case; the next generation writes it anew.
 
#include "DataTypes/positionFix.h"

DtPositionFix::DtPositionFix() : Own()
{
}
 
// Alternatives that are not selected do not count.
bool DtPositionFix::operator==(const DtPositionFix& other) const
{
    if (Own.selector != other.Own.selector)
        return false;
    switch (selected<int>())
    {
    case 0:
        return Own.myExact == other.Own.myExact;
    case 1:
        return Own.myRough == other.Own.myRough;
    default:
        return true;
    }
}
 
bool DtPositionFix::operator!=(const DtPositionFix& other) const
{
    return !(*this == other);
}
 
void DtPositionFix::encode(DtWireWriter& writer) const
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.selector, Coding::discriminantForm());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(
            writer, Own.myExact, Coding::formOf(0), Coding::kind(), theBoundary);
    case 1:
        return DtEncodeAlternative(
            writer, Own.myRough, Coding::formOf(1), Coding::kind(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, Coding::kind());
    }
}
 
bool DtPositionFix::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtPositionFix taken(*this);
    bool done = DtDecodeValue(reader, taken.Own.selector, Coding::discriminantForm());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(
            reader, taken.Own.myExact, Coding::formOf(0), Coding::kind(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(
            reader, taken.Own.myRough, Coding::formOf(1), Coding::kind(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, Coding::kind());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtPositionFix::octetBoundary(const DtWireTrail* outer)
{
    const unsigned int ofDiscriminant = DtBoundaryOfType<Discriminant>(Coding::discriminantForm());
    return DtVariantBoundary(Coding::kind(), ofDiscriminant, Coding::alternativeBoundary(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtPositionFix::Coding::alternativeBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtGeoPoint>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtInt16>(formOf(1), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtPositionFix::Coding::places()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "HLAtrue",
            "HLAfalse",
        },
        {
        });
    return theTable;
}
 
int DtPositionFix::placeOf(const Discriminant& selector)
{
    return Coding::places().find(DtNumberOfDiscriminant(selector));
}
 
void DtPositionFix::select(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(Own.selector);
    Own.selector = static_cast<Discriminant>(Coding::places().valueOf(alternative, present));
}
 
// Discriminant: Surveyed.
DtWireForm DtPositionFix::Coding::discriminantForm()
{
    return DtWireForm("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 
DtVariantKind DtPositionFix::Coding::kind()
{
    return DtVariantKindOf("HLAvariantRecord");
}
 
DtWireForm DtPositionFix::Coding::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("GeoPoint", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("Depth", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
            -1, 2, 0),
        DtWireForm()};
    return theForms[alternative];
}
 

