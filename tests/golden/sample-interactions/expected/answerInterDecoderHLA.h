#ifndef DT_DLL_CASE_DtAnswerInterDecoder_H
#define DT_DLL_CASE_DtAnswerInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInterDecoderHLA.h"
#include "answerInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Radio.Answer and of its superclasses from named buffers.
class DT_DLL_CASE DtAnswerInterDecoder
    : public DtRadioInterDecoder
{
public:
    DtAnswerInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeDone(DtAnswerInter& interaction, DtWireReader& reader);
    static bool decodeReason(DtAnswerInter& interaction, DtWireReader& reader);
};

#endif
