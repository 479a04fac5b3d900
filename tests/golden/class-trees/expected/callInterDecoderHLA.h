#ifndef DT_DLL_CASE_DtCallInterDecoder_H
#define DT_DLL_CASE_DtCallInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionDecoder.h>
#include "callInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Call and of its superclasses from named buffers.
class DT_DLL_CASE DtCallInterDecoder
    : public DtInteractionDecoder
{
public:
    DtCallInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeText(DtCallInter& interaction, DtWireReader& reader);
};

#endif
