// Generated from case; the next generation writes it anew.
 
#include "move__ToInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtMove__ToInterEncoder::DtMove__ToInterEncoder()
{
    if (WithTarget_Point_)
    {
        addCoder("Target_Point_", &DtMove__ToInterEncoder::encodeTarget_Point_);
    }
    if (WithBy__Hour)
    {
        addCoder("By__Hour", &DtMove__ToInterEncoder::encodeBy__Hour);
    }
    if (WithTugs)
    {
        addCoder("Tugs", &DtMove__ToInterEncoder::encodeTugs);
    }
}

bool DtMove__ToInterEncoder::encodeTarget_Point_(const DtMove__ToInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.target_Point_(), form);
}

bool DtMove__ToInterEncoder::encodeBy__Hour(const DtMove__ToInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAfloat64LE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, interaction.by__Hour(), form);
}

bool DtMove__ToInterEncoder::encodeTugs(const DtMove__ToInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("TugNames", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, interaction.tugs(), form);
}

