#ifndef DT_DLL_CASE_DtRadioInterEncoder_H
#define DT_DLL_CASE_DtRadioInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionEncoder.h>
#include "radioInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Radio into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtRadioInterEncoder
    : public DtInteractionEncoder
{
public:
    DtRadioInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeChannel(const DtRadioInter& interaction, DtWireWriter& writer);
    static bool encodeText(const DtRadioInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithChannel = true;
    static constexpr bool WithText = true;
};

#endif
