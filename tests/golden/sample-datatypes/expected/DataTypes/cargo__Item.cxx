// Generated from case; the next generation writes it anew.
 
#include "DataTypes/cargo__Item.h"

DtCargo__Item::DtCargo__Item()
    : Own()
{
}
 
bool DtCargo__Item::operator==(const DtCargo__Item& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myLabel == other.Own.myLabel))
        return false;
    if (!(Own.myWeight__Gross == other.Own.myWeight__Gross))
        return false;
    if (!(Own.mytemplate == other.Own.mytemplate))
        return false;
    return true;
}
 
bool DtCargo__Item::operator!=(const DtCargo__Item& other) const
{
    return !(*this == other);
}
 
void DtCargo__Item::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myLabel, formOf(0));
    DtEncodeValue(writer, Own.myWeight__Gross, formOf(1));
    DtEncodeValue(writer, Own.mytemplate, formOf(2));
}
 
bool DtCargo__Item::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtCargo__Item taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myLabel, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myWeight__Gross, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.mytemplate, formOf(2)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtCargo__Item::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtOldText>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtWeight__Kg>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtPlain__Four>(formOf(2), &trail));
    return boundary;
}
 
DtWireForm DtCargo__Item::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("OldText", "HLAASCIIchar", R"qx(RPRnullTerminatedArray)qx",
            -1, 1, 0),
        DtWireForm("Weight__Kg", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
            -1, 4, 0),
        DtWireForm("Plain__Four", "HLAfloat32BE", R"qx(PlainArray)qx",
            4, 4, 0),
        DtWireForm()};
    return theForms[field];
}
 

