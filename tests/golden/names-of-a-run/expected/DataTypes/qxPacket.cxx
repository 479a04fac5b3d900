// Generated from case; the next generation writes it anew.
 
#include "DataTypes/qxPacket.h"

#error "DtQxPacket holds more than one part of variable length and has no encoding"

namespace garden
{
 
DtQxPacket::DtQxPacket()
    : Own()
{
}
 
bool DtQxPacket::operator==(const DtQxPacket& other) const
{
    static_cast<void>(other); // a record may have no fields
    if (!(Own.myFront == other.Own.myFront))
        return false;
    if (!(Own.myBack == other.Own.myBack))
        return false;
    return true;
}
 
bool DtQxPacket::operator!=(const DtQxPacket& other) const
{
    return !(*this == other);
}
 
#ifndef DT_DLL_CASE_DtQxPacket_CODED
void DtQxPacket::encode(DtWireWriter& writer) const
{
    writer.refuse("DtQxPacket has no encoding");
}
 
bool DtQxPacket::decode(DtWireReader& reader)
{
    return reader.fail("DtQxPacket has no encoding");
}
#endif
 
unsigned int DtQxPacket::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    unsigned int boundary = 1;
    if (DtWireTrail::holds(outer, &theId))
        return boundary;
    const DtWireTrail trail = {&theId, outer};
    static_cast<void>(trail);
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtQxSeeds>(formOf(0), &trail));
    boundary = DtLargerBoundary(boundary, DtBoundaryOfType<DtQxSeeds>(formOf(1), &trail));
    return boundary;
}
 
DtWireForm DtQxPacket::formOf(unsigned int field)
{
    static const DtWireForm theForms[] = {
        DtWireForm("Seeds", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
            -1, 2, 0),
        DtWireForm("Seeds", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
            -1, 2, 0),
        DtWireForm()};
    return theForms[field];
}
 
} // namespace garden

