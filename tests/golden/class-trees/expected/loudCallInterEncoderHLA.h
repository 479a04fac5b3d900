#ifndef DT_DLL_CASE_DtLoudCallInterEncoder_H
#define DT_DLL_CASE_DtLoudCallInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "callInterEncoderHLA.h"
#include "loudCallInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Call.LoudCall into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtLoudCallInterEncoder
    : public DtCallInterEncoder
{
public:
    DtLoudCallInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeLoudness(const DtLoudCallInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithLoudness = true;
};

#endif
