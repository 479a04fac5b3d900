// Generated from case; the next generation writes it anew.
 
#include "collisionInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtCollisionInterDecoder::DtCollisionInterDecoder()
{
    addCoder("Force", &DtCollisionInterDecoder::decodeForce);
    addCoder("Where", &DtCollisionInterDecoder::decodeWhere);
    addCoder("Debris", &DtCollisionInterDecoder::decodeDebris);
}

bool DtCollisionInterDecoder::decodeForce(DtCollisionInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("Newton", "HLAfloat64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = interaction.force();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setForce(value);
    return true;
}

bool DtCollisionInterDecoder::decodeWhere(DtCollisionInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.where();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setWhere(value);
    return true;
}

bool DtCollisionInterDecoder::decodeDebris(DtCollisionInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("Cargo_Item_List", "Cargo__Item", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.debris();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setDebris(value);
    return true;
}

