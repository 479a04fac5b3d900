#ifndef DT_DLL_CASE_DtRadioInterDecoder_H
#define DT_DLL_CASE_DtRadioInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionDecoder.h>
#include "radioInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Radio and of its superclasses from named buffers.
class DT_DLL_CASE DtRadioInterDecoder
    : public DtInteractionDecoder
{
public:
    DtRadioInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeChannel(DtRadioInter& interaction, DtWireReader& reader);
    static bool decodeText(DtRadioInter& interaction, DtWireReader& reader);
};

#endif
