// Generated from case; the next generation writes it anew.
 
#include "DataTypes/signalMessage.h"

DtSignalMessage::DtSignalMessage() : Own()
{
}
 
// Alternatives that are not selected do not count.
bool DtSignalMessage::operator==(const DtSignalMessage& other) const
{
    if (Own.selector != other.Own.selector)
        return false;
    switch (selected<int>())
    {
    case 0:
        return Own.myVisibility == other.Own.myVisibility;
    case 1:
        return Own.myStrength == other.Own.myStrength;
    case 2:
        return Own.myPlace == other.Own.myPlace;
    case 3:
        return Own.myStation == other.Own.myStation;
    case 4:
        return Own.myWords == other.Own.myWords;
    default:
        return true;
    }
}
 
bool DtSignalMessage::operator!=(const DtSignalMessage& other) const
{
    return !(*this == other);
}
 
void DtSignalMessage::encode(DtWireWriter& writer) const
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.selector, Coding::discriminantForm());
    switch (selected<int>())
    {
    case 0:
        return DtEncodeAlternative(
            writer, Own.myVisibility, Coding::formOf(0), Coding::kind(), theBoundary);
    case 1:
        return DtEncodeAlternative(
            writer, Own.myStrength, Coding::formOf(1), Coding::kind(), theBoundary);
    case 2:
        return DtEncodeAlternative(
            writer, Own.myPlace, Coding::formOf(2), Coding::kind(), theBoundary);
    case 3:
        return DtEncodeAlternative(
            writer, Own.myStation, Coding::formOf(3), Coding::kind(), theBoundary);
    case 4:
        return DtEncodeAlternative(
            writer, Own.myWords, Coding::formOf(4), Coding::kind(), theBoundary);
    default:
        return DtEncodeNoAlternative(writer, Coding::kind());
    }
}
 
bool DtSignalMessage::decode(DtWireReader& reader)
{
    static const unsigned int theBoundary = Coding::alternativeBoundary(nullptr);
    static_cast<void>(theBoundary); // a record may have no alternatives
    const DtRecordScope<DtWireReader> scope(reader);
    DtSignalMessage taken(*this);
    bool done = DtDecodeValue(reader, taken.Own.selector, Coding::discriminantForm());
    switch (done ? taken.selected<int>() : -1)
    {
    case 0:
        done = DtDecodeAlternative(
            reader, taken.Own.myVisibility, Coding::formOf(0), Coding::kind(), theBoundary);
        break;
    case 1:
        done = DtDecodeAlternative(
            reader, taken.Own.myStrength, Coding::formOf(1), Coding::kind(), theBoundary);
        break;
    case 2:
        done = DtDecodeAlternative(
            reader, taken.Own.myPlace, Coding::formOf(2), Coding::kind(), theBoundary);
        break;
    case 3:
        done = DtDecodeAlternative(
            reader, taken.Own.myStation, Coding::formOf(3), Coding::kind(), theBoundary);
        break;
    case 4:
        done = DtDecodeAlternative(
            reader, taken.Own.myWords, Coding::formOf(4), Coding::kind(), theBoundary);
        break;
    default:
        done = done && DtDecodeNoAlternative(reader, Coding::kind());
    }
    if (done)
        *this = taken;
    return done;
}
 
unsigned int DtSignalMessage::octetBoundary(const DtWireTrail* outer)
{
    const unsigned int ofDiscriminant = DtBoundaryOfType<Discriminant>(Coding::discriminantForm());
    return DtVariantBoundary(Coding::kind(), ofDiscriminant, Coding::alternativeBoundary(outer));
}
 
// Whatever alternative is selected, it starts where the one with the largest boundary would.
unsigned int DtSignalMessage::Coding::alternativeBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtInt32>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtGeoPoint>(formOf(2), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtString>(formOf(3), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtString>(formOf(4), &trail));
    return boundary;
}
 
const DtAlternativeTable& DtSignalMessage::Coding::places()
{
    static const DtAlternativeTable theTable(
        DtNamesOfType<Discriminant>(),
        {
            "Fog",
            "Gale, Drill",
            "[Ice .. Wreck]",
            "Pilot",
            "HLAother",
        },
        {
            "Silence",
        });
    return theTable;
}
 
int DtSignalMessage::placeOf(const Discriminant& selector)
{
    return Coding::places().find(DtNumberOfDiscriminant(selector));
}
 
void DtSignalMessage::select(unsigned int alternative)
{
    const DtInt64 present = DtNumberOfDiscriminant(Own.selector);
    Own.selector = static_cast<Discriminant>(Coding::places().valueOf(alternative, present));
}
 
// Discriminant: Kind.
DtWireForm DtSignalMessage::Coding::discriminantForm()
{
    return DtWireForm("SignalKind16", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
}
 
DtVariantKind DtSignalMessage::Coding::kind()
{
    return DtVariantKindOf("HLAvariantRecord");
}
 
DtWireForm DtSignalMessage::Coding::formOf(unsigned int alternative)
{
    static const DtWireForm theForms[] = {
        DtWireForm("HLAinteger32BE", "", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("GeoPoint", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("HLAASCIIstring", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm()};
    return theForms[alternative];
}
 

