// Generated from case; the next generation writes it anew.
 
#include "DataTypes/testResult.h"

DtTestResult::DtTestResult() : Own()
{
}
 
// Alternatives that are not selected do not count.
bool DtTestResult::operator==(const DtTestResult& other) const
{
    if (Own.selector != other.Own.selector)
        return false;
    switch (selected<int>())
    {
    case 0:
        return Own.myScore == other.Own.myScore;
    case 1:
        return Own.myFault == other.Own.myFault;
    default:
        return true;
    }
}
 
bool DtTestResult::operator!=(const DtTestResult& other) const
{
    return !(*this == other);
}
 
void DtTestResult::encode(DtWireWriter& writer) const
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.selector, Coding::discriminantForm());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(
            writer, Own.myScore, Coding::formOf(0), Coding::kind(), theBoundary);
    case 1:
        return DtEncodeAlternative(
            writer, Own.myFault, Coding::formOf(1), Coding::kind(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, Coding::kind());
    }
}
 
bool DtTestResult::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtTestResult taken(*this);
    bool done = DtDecodeValue(reader, taken.Own.selector, Coding::discriminantForm());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(
            reader, taken.Own.myScore, Coding::formOf(0), Coding::kind(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(
            reader, taken.Own.myFault, Coding::formOf(1), Coding::kind(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, Coding::kind());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtTestResult::octetBoundary(const DtWireTrail* outer)
{
    const unsigned int ofDiscriminant = DtBoundaryOfType<Discriminant>(Coding::discriminantForm());
    return DtVariantBoundary(Coding::kind(), ofDiscriminant, Coding::alternativeBoundary(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtTestResult::Coding::alternativeBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtInt16>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(1), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtTestResult::Coding::places()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "True",
            "False",
        },
        {
        });
    return theTable;
}
 
int DtTestResult::placeOf(const Discriminant& selector)
{
    return Coding::places().find(DtNumberOfDiscriminant(selector));
}
 
void DtTestResult::select(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(Own.selector);
    Own.selector = static_cast<Discriminant>(Coding::places().valueOf(alternative, present));
}
 
// Discriminant: Passed.
DtWireForm DtTestResult::Coding::discriminantForm()
{
    return DtWireForm("RPRboolean", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 
DtVariantKind DtTestResult::Coding::kind()
{
    return DtVariantKindOf("HLAvariantRecord");
}
 
DtWireForm DtTestResult::Coding::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("HLAinteger16BE", "", R"qx(HLAvariableArray)qx",
            -1, 2, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm()};
    return theForms[alternative];
}
 

