// Generated from case; the next generation writes it anew.
 
#include "DataTypes/equipment.h"

DtEquipment::DtEquipment() : Own()
{
}
 
// Alternatives that are not selected do not count.
bool DtEquipment::operator==(const DtEquipment& other) const
{
    if (Own.selector != other.Own.selector)
        return false;
    switch (selected<int>())
    {
    case 0:
        return Own.myChain == other.Own.myChain;
    case 1:
        return Own.myLift == other.Own.myLift;
    case 2:
        return Own.myBand == other.Own.myBand;
    default:
        return true;
    }
}
 
bool DtEquipment::operator!=(const DtEquipment& other) const
{
    return !(*this == other);
}
 
void DtEquipment::encode(DtWireWriter& writer) const
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.selector, Coding::discriminantForm());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(
            writer, Own.myChain, Coding::formOf(0), Coding::kind(), theBoundary);
    case 1:
        return DtEncodeAlternative(
            writer, Own.myLift, Coding::formOf(1), Coding::kind(), theBoundary);
    case 2:
        return DtEncodeAlternative(
            writer, Own.myBand, Coding::formOf(2), Coding::kind(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, Coding::kind());
    }
}
 
bool DtEquipment::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtEquipment taken(*this);
    bool done = DtDecodeValue(reader, taken.Own.selector, Coding::discriminantForm());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(
            reader, taken.Own.myChain, Coding::formOf(0), Coding::kind(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(
            reader, taken.Own.myLift, Coding::formOf(1), Coding::kind(), theBoundary);
        break;
    case 2:
        done = DtDecodeAlternative(
            reader, taken.Own.myBand, Coding::formOf(2), Coding::kind(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, Coding::kind());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtEquipment::octetBoundary(const DtWireTrail* outer)
{
    const unsigned int ofDiscriminant = DtBoundaryOfType<Discriminant>(Coding::discriminantForm());
    return DtVariantBoundary(Coding::kind(), ofDiscriminant, Coding::alternativeBoundary(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtEquipment::Coding::alternativeBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtWeight__Kg>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtString>(formOf(2), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtEquipment::Coding::places()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "Anchor",
            "Crane",
            "Radio",
        },
        {
        });
    return theTable;
}
 
int DtEquipment::placeOf(const Discriminant& selector)
{
    return Coding::places().find(DtNumberOfDiscriminant(selector));
}
 
void DtEquipment::select(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(Own.selector);
    Own.selector = static_cast<Discriminant>(Coding::places().valueOf(alternative, present));
}
 
// Discriminant: Tool.
DtWireForm DtEquipment::Coding::discriminantForm()
{
    return DtWireForm("Tool16", "HarbourUnsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
}
 
DtVariantKind DtEquipment::Coding::kind()
{
    return DtVariantKindOf("HLAextendableVariantRecord");
}
 
DtWireForm DtEquipment::Coding::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Weight__Kg", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("HLAASCIIstring", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[alternative];
}
 

