// Generated from case; the next generation writes it anew.
 
#include "loudCallInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtLoudCallInterDecoder::DtLoudCallInterDecoder()
{
    addCoder("Loudness", &DtLoudCallInterDecoder::decodeLoudness);
}

bool DtLoudCallInterDecoder::decodeLoudness(DtLoudCallInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAfloat32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = interaction.loudness();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setLoudness(value);
    return true;
}

