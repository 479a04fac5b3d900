#ifndef DT_DLL_CASE_DtMove__ToInterEncoder_H
#define DT_DLL_CASE_DtMove__ToInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInterEncoderHLA.h"
#include "move__ToInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Radio.Order.Move-To into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtMove__ToInterEncoder
    : public DtOrderInterEncoder
{
public:
    DtMove__ToInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeTarget_Point_(const DtMove__ToInter& interaction, DtWireWriter& writer);
    static bool encodeBy__Hour(const DtMove__ToInter& interaction, DtWireWriter& writer);
    static bool encodeTugs(const DtMove__ToInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithTarget_Point_ = true;
    static constexpr bool WithBy__Hour = true;
    static constexpr bool WithTugs = true;
};

#endif
