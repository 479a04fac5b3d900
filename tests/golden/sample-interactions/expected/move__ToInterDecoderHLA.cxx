// Generated from case; the next generation writes it anew.
 
#include "move__ToInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtMove__ToInterDecoder::DtMove__ToInterDecoder()
{
    addCoder("Target_Point_", &DtMove__ToInterDecoder::decodeTarget_Point_);
    addCoder("By__Hour", &DtMove__ToInterDecoder::decodeBy__Hour);
    addCoder("Tugs", &DtMove__ToInterDecoder::decodeTugs);
}

bool DtMove__ToInterDecoder::decodeTarget_Point_(DtMove__ToInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.target_Point_();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setTarget_Point_(value);
    return true;
}

bool DtMove__ToInterDecoder::decodeBy__Hour(DtMove__ToInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAfloat64LE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = interaction.by__Hour();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setBy__Hour(value);
    return true;
}

bool DtMove__ToInterDecoder::decodeTugs(DtMove__ToInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("TugNames", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = interaction.tugs();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setTugs(value);
    return true;
}

