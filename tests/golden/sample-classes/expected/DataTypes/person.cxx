// Generated from case; the next generation writes it anew.
 
#include "DataTypes/person.h"

DtPerson::DtPerson()
    : Own()
{
}
 
bool DtPerson::operator==(const DtPerson& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myFullName == other.Own.myFullName))
        return false;
    if (!(Own.myAge == other.Own.myAge))
        return false;
    if (!(Own.myHeight__cm == other.Own.myHeight__cm))
        return false;
    return true;
}
 
bool DtPerson::operator!=(const DtPerson& other) const
{
    return !(*this == other);
}
 
void DtPerson::encode(DtWireWriter& writer) const
{
    const DtRecordScope<DtWireWriter> scope(writer);
    DtEncodeValue(writer, Own.myFullName, formOf(0));
    DtEncodeValue(writer, Own.myAge, formOf(1));
    DtEncodeValue(writer, Own.myHeight__cm, formOf(2));
}
 
bool DtPerson::decode(DtWireReader& reader)
{
    const DtRecordScope<DtWireReader> scope(reader);
    DtPerson taken(*this);
    if (!DtDecodeValue(reader, taken.Own.myFullName, formOf(0)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myAge, formOf(1)))
        return false;
    if (!DtDecodeValue(reader, taken.Own.myHeight__cm, formOf(2)))
        return false;
    *this = taken;
    return reader.ok();
}
 
unsigned int DtPerson::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtString>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtCount8>(formOf(1), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtInt16>(formOf(2), &trail));
    return boundary;
}
 
DtWireForm DtPerson::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
            -1, 0, 0),
        DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
            -1, 1, 0),
        DtWireForm("Depth", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
            -1, 2, 0),
        DtWireForm()};
    return theForms[field];
}
 

