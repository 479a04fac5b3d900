#ifndef DT_DLL_CASE_DtMove__ToInterDecoder_H
#define DT_DLL_CASE_DtMove__ToInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInterDecoderHLA.h"
#include "move__ToInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Radio.Order.Move-To and of its superclasses from named buffers.
class DT_DLL_CASE DtMove__ToInterDecoder
    : public DtOrderInterDecoder
{
public:
    DtMove__ToInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeTarget_Point_(DtMove__ToInter& interaction, DtWireReader& reader);
    static bool decodeBy__Hour(DtMove__ToInter& interaction, DtWireReader& reader);
    static bool decodeTugs(DtMove__ToInter& interaction, DtWireReader& reader);
};

#endif
