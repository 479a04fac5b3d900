// Generated from case; the next generation writes it anew.
 
#include "DataTypes/occupant.h"

DtOccupant::DtOccupant() : Own()
{
}
 
// Alternatives that are not selected do not count.
bool DtOccupant::operator==(const DtOccupant& other) const
{
    if (Own.selector != other.Own.selector)
        return false;
    switch (selected<int>())
    {
    case 0:
        return Own.myShip == other.Own.myShip;
    case 1:
        return Own.myArrival == other.Own.myArrival;
    case 2:
        return Own.myWreck == other.Own.myWreck;
    default:
        return true;
    }
}
 
bool DtOccupant::operator!=(const DtOccupant& other) const
{
    return !(*this == other);
}
 
void DtOccupant::encode(DtWireWriter& writer) const
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.selector, Coding::discriminantForm());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(
            writer, Own.myShip, Coding::formOf(0), Coding::kind(), theBoundary);
    case 1:
        return DtEncodeAlternative(
            writer, Own.myArrival, Coding::formOf(1), Coding::kind(), theBoundary);
    case 2:
        return DtEncodeAlternative(
            writer, Own.myWreck, Coding::formOf(2), Coding::kind(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, Coding::kind());
    }
}
 
bool DtOccupant::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtOccupant taken(*this);
    bool done = DtDecodeValue(reader, taken.Own.selector, Coding::discriminantForm());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(
            reader, taken.Own.myShip, Coding::formOf(0), Coding::kind(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(
            reader, taken.Own.myArrival, Coding::formOf(1), Coding::kind(), theBoundary);
        break;
    case 2:
        done = DtDecodeAlternative(
            reader, taken.Own.myWreck, Coding::formOf(2), Coding::kind(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, Coding::kind());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtOccupant::octetBoundary(const DtWireTrail* outer)
{
    const unsigned int ofDiscriminant = DtBoundaryOfType<Discriminant>(Coding::discriminantForm());
    return DtVariantBoundary(Coding::kind(), ofDiscriminant, Coding::alternativeBoundary(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtOccupant::Coding::alternativeBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtShortText>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat64>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCargo__Item>(formOf(2), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtOccupant::Coding::places()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "Moored",
            "Under-Way",
            "Aground/Sunk",
        },
        {
            "HLAother",
        });
    return theTable;
}
 
int DtOccupant::placeOf(const Discriminant& selector)
{
    return Coding::places().find(DtNumberOfDiscriminant(selector));
}
 
void DtOccupant::select(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(Own.selector);
    Own.selector = static_cast<Discriminant>(Coding::places().valueOf(alternative, present));
}
 
// Discriminant: Kind.
DtWireForm DtOccupant::Coding::discriminantForm()
{
    return DtWireForm("VesselState8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 
DtVariantKind DtOccupant::Coding::kind()
{
    return DtVariantKindOf("HLAvariantRecord");
}
 
DtWireForm DtOccupant::Coding::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("ShortText", "HLAASCIIchar", R"qx(HLAfixedArray)qx",
            16, 1, 0),
        DtWireForm("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
            -1, 8, 0),
        DtWireForm("Cargo__Item", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[alternative];
}
 

