#ifndef DT_DLL_CASE_DtQxWaterInterDecoder_H
#define DT_DLL_CASE_DtQxWaterInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionDecoder.h>
#include "beds/waterInterHLA.h"
#include "dllExport.h"
 
namespace garden
{
 
// Sets the parameters of HLAinteractionRoot.Water and of its superclasses from named buffers.
class DT_DLL_CASE DtQxWaterInterDecoder
    : public DtInteractionDecoder
{
public:
    DtQxWaterInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeLitres(DtQxWaterInter& interaction, DtWireReader& reader);
};

} // namespace garden

#endif
