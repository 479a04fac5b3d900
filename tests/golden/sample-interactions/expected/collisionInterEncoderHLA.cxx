// Generated from case; the next generation writes it anew.
 
#include "collisionInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtCollisionInterEncoder::DtCollisionInterEncoder()
{
    if (WithForce)
    {
        addCoder("Force", &DtCollisionInterEncoder::encodeForce);
    }
    if (WithWhere)
    {
        addCoder("Where", &DtCollisionInterEncoder::encodeWhere);
    }
    if (WithDebris)
    {
        addCoder("Debris", &DtCollisionInterEncoder::encodeDebris);
    }
}

bool DtCollisionInterEncoder::encodeForce(const DtCollisionInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Newton", "HLAfloat64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, interaction.force(), form);
}

bool DtCollisionInterEncoder::encodeWhere(const DtCollisionInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.where(), form);
}

bool DtCollisionInterEncoder::encodeDebris(const DtCollisionInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Cargo_Item_List", "Cargo__Item", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.debris(), form);
}

