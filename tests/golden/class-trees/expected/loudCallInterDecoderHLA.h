#ifndef DT_DLL_CASE_DtLoudCallInterDecoder_H
#define DT_DLL_CASE_DtLoudCallInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "callInterDecoderHLA.h"
#include "loudCallInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Call.LoudCall and of its superclasses from named buffers.
class DT_DLL_CASE DtLoudCallInterDecoder
    : public DtCallInterDecoder
{
public:
    DtLoudCallInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeLoudness(DtLoudCallInter& interaction, DtWireReader& reader);
};

#endif
