#ifndef DT_DLL_CASE_DtOrderInterDecoder_H
#define DT_DLL_CASE_DtOrderInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInterDecoderHLA.h"
#include "orderInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Radio.Order and of its superclasses from named buffers.
class DT_DLL_CASE DtOrderInterDecoder
    : public DtRadioInterDecoder
{
public:
    DtOrderInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeUrgency(DtOrderInter& interaction, DtWireReader& reader);
    static bool decodeTheRegister(DtOrderInter& interaction, DtWireReader& reader);
};

#endif
