#ifndef DT_DLL_CASE_DtOrderInterEncoder_H
#define DT_DLL_CASE_DtOrderInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInterEncoderHLA.h"
#include "orderInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Radio.Order into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtOrderInterEncoder
    : public DtRadioInterEncoder
{
public:
    DtOrderInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeUrgency(const DtOrderInter& interaction, DtWireWriter& writer);
    static bool encodeTheRegister(const DtOrderInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithUrgency = true;
    static constexpr bool WithTheRegister = true;
};

#endif
