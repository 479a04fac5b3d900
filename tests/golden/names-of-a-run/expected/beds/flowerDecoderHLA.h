#ifndef DT_DLL_CASE_DtQxFlowerDecoder_H
#define DT_DLL_CASE_DtQxFlowerDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateDecoder.h>
#include "beds/flowerStateRepository.h"
#include "dllExport.h"
 
namespace garden
{
 
// Sets the attributes of HLAobjectRoot.Flower and of its superclasses from named buffers.
class DT_DLL_CASE DtQxFlowerDecoder
    : public DtHlaStateDecoder
{
public:
    DtQxFlowerDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeColour(DtQxFlowerStateRepository& state, DtWireReader& reader);
    static bool decodeSeed(DtQxFlowerStateRepository& state, DtWireReader& reader);
};

} // namespace garden

#endif
