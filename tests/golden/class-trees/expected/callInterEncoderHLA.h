#ifndef DT_DLL_CASE_DtCallInterEncoder_H
#define DT_DLL_CASE_DtCallInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionEncoder.h>
#include "callInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Call into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtCallInterEncoder
    : public DtInteractionEncoder
{
public:
    DtCallInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeText(const DtCallInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithText = true;
};

#endif
