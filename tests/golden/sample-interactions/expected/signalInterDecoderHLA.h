#ifndef DT_DLL_CASE_DtSignalInterDecoder_H
#define DT_DLL_CASE_DtSignalInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionDecoder.h>
#include "signalInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Signal and of its superclasses from named buffers.
class DT_DLL_CASE DtSignalInterDecoder
    : public DtInteractionDecoder
{
public:
    DtSignalInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeSent(DtSignalInter& interaction, DtWireReader& reader);
    static bool decodeMessage(DtSignalInter& interaction, DtWireReader& reader);
    static bool decodeSure(DtSignalInter& interaction, DtWireReader& reader);
};

#endif
