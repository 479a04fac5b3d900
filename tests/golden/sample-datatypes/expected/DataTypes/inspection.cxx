// Generated from case; the next generation writes it anew.
 
#include "DataTypes/inspection.h"

DtInspection::DtInspection() : Own()
{
}
 
// Alternatives that are not selected do not count.
bool DtInspection::operator==(const DtInspection& other) const
{
    if (Own.selector != other.Own.selector)
        return false;
    switch (selected<int>())
    {
    case 0:
        return Own.myHull == other.Own.myHull;
    case 1:
        return Own.myHours == other.Own.myHours;
    case 2:
        return Own.myHole == other.Own.myHole;
    default:
        return true;
    }
}
 
bool DtInspection::operator!=(const DtInspection& other) const
{
    return !(*this == other);
}
 
void DtInspection::encode(DtWireWriter& writer) const
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.selector, Coding::discriminantForm());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(
            writer, Own.myHull, Coding::formOf(0), Coding::kind(), theBoundary);
    case 1:
        return DtEncodeAlternative(
            writer, Own.myHours, Coding::formOf(1), Coding::kind(), theBoundary);
    case 2:
        return DtEncodeAlternative(
            writer, Own.myHole, Coding::formOf(2), Coding::kind(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, Coding::kind());
    }
}
 
bool DtInspection::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtInspection taken(*this);
    bool done = DtDecodeValue(reader, taken.Own.selector, Coding::discriminantForm());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(
            reader, taken.Own.myHull, Coding::formOf(0), Coding::kind(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(
            reader, taken.Own.myHours, Coding::formOf(1), Coding::kind(), theBoundary);
        break;
    case 2:
        done = DtDecodeAlternative(
            reader, taken.Own.myHole, Coding::formOf(2), Coding::kind(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, Coding::kind());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtInspection::octetBoundary(const DtWireTrail* outer)
{
    const unsigned int ofDiscriminant = DtBoundaryOfType<Discriminant>(Coding::discriminantForm());
    return DtVariantBoundary(Coding::kind(), ofDiscriminant, Coding::alternativeBoundary(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtInspection::Coding::alternativeBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtDepthGrid>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat64>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtHarbourUnsigned16LE>(formOf(2), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtInspection::Coding::places()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "Moored",
            "Under-Way",
            "Aground/Sunk",
        },
        {
        });
    return theTable;
}
 
int DtInspection::placeOf(const Discriminant& selector)
{
    return Coding::places().find(DtNumberOfDiscriminant(selector));
}
 
void DtInspection::select(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(Own.selector);
    Own.selector = static_cast<Discriminant>(Coding::places().valueOf(alternative, present));
}
 
// Discriminant: Part.
DtWireForm DtInspection::Coding::discriminantForm()
{
    return DtWireForm("VesselState8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 
DtVariantKind DtInspection::Coding::kind()
{
    return DtVariantKindOf("RPRextendedVariantRecord");
}
 
DtWireForm DtInspection::Coding::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("DepthGrid", "HLAinteger16BE", R"qx(HLAfixedArray)qx",
            12, 2, 0),
        DtWireForm("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
            -1, 8, 0),
        DtWireForm("HarbourUnsigned16LE", "", R"qx(HLAvariableArray)qx",
            -1, 2, 1),
        DtWireForm()};
    return theForms[alternative];
}
 

