#ifndef DT_DLL_CASE_DtSignalInterEncoder_H
#define DT_DLL_CASE_DtSignalInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionEncoder.h>
#include "signalInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Signal into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtSignalInterEncoder
    : public DtInteractionEncoder
{
public:
    DtSignalInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeSent(const DtSignalInter& interaction, DtWireWriter& writer);
    static bool encodeMessage(const DtSignalInter& interaction, DtWireWriter& writer);
    static bool encodeSure(const DtSignalInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithSent = true;
    static constexpr bool WithMessage = true;
    static constexpr bool WithSure = true;
};

#endif
