// Generated from case; the next generation writes it anew.
 
#include "loudCallInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtLoudCallInterEncoder::DtLoudCallInterEncoder()
{
    if (WithLoudness)
    {
        addCoder("Loudness", &DtLoudCallInterEncoder::encodeLoudness);
    }
}

bool DtLoudCallInterEncoder::encodeLoudness(const DtLoudCallInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAfloat32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, interaction.loudness(), form);
}

