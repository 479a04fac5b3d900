// Generated from case; the next generation writes it anew.
 
#include "DataTypes/lampReport.h"

DtLampReport::DtLampReport() : Own()
{
}
 
// Alternatives that are not selected do not count.
bool DtLampReport::operator==(const DtLampReport& other) const
{
    if (Own.selector != other.Own.selector)
        return false;
    switch (selected<int>())
    {
    case 0:
        return Own.myPeriod == other.Own.myPeriod;
    case 1:
        return Own.myCause == other.Own.myCause;
    default:
        return true;
    }
}
 
bool DtLampReport::operator!=(const DtLampReport& other) const
{
    return !(*this == other);
}
 
void DtLampReport::encode(DtWireWriter& writer) const
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.selector, Coding::discriminantForm());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(
            writer, Own.myPeriod, Coding::formOf(0), Coding::kind(), theBoundary);
    case 1:
        return DtEncodeAlternative(
            writer, Own.myCause, Coding::formOf(1), Coding::kind(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, Coding::kind());
    }
}
 
bool DtLampReport::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtLampReport taken(*this);
    bool done = DtDecodeValue(reader, taken.Own.selector, Coding::discriminantForm());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(
            reader, taken.Own.myPeriod, Coding::formOf(0), Coding::kind(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(
            reader, taken.Own.myCause, Coding::formOf(1), Coding::kind(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, Coding::kind());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtLampReport::octetBoundary(const DtWireTrail* outer)
{
    const unsigned int ofDiscriminant = DtBoundaryOfType<Discriminant>(Coding::discriminantForm());
    return DtVariantBoundary(Coding::kind(), ofDiscriminant, Coding::alternativeBoundary(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtLampReport::Coding::alternativeBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtFloat32>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtString>(formOf(1), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtLampReport::Coding::places()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "Flash",
            "Faulty",
        },
        {
            "Dark",
        });
    return theTable;
}
 
int DtLampReport::placeOf(const Discriminant& selector)
{
    return Coding::places().find(DtNumberOfDiscriminant(selector));
}
 
void DtLampReport::select(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(Own.selector);
    Own.selector = static_cast<Discriminant>(Coding::places().valueOf(alternative, present));
}
 
// Discriminant: Lamp.
DtWireForm DtLampReport::Coding::discriminantForm()
{
    return DtWireForm("lampState", "HarbourInteger8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 
DtVariantKind DtLampReport::Coding::kind()
{
    return DtVariantKindOf("HLAvariantRecord");
}
 
DtWireForm DtLampReport::Coding::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Knots", "HLAfloat32BE", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("HLAASCIIstring", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[alternative];
}
 

