#ifndef DT_DLL_CASE_DtAnswerInterEncoder_H
#define DT_DLL_CASE_DtAnswerInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInterEncoderHLA.h"
#include "answerInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Radio.Answer into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtAnswerInterEncoder
    : public DtRadioInterEncoder
{
public:
    DtAnswerInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeDone(const DtAnswerInter& interaction, DtWireWriter& writer);
    static bool encodeReason(const DtAnswerInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithDone = true;
    static constexpr bool WithReason = true;
};

#endif
