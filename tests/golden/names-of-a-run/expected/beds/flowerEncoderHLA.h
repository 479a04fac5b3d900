#ifndef DT_DLL_CASE_DtQxFlowerEncoder_H
#define DT_DLL_CASE_DtQxFlowerEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateEncoder.h>
#include "beds/flowerStateRepository.h"
#include "dllExport.h"
 
namespace garden
{
 
// Puts the attributes of HLAobjectRoot.Flower into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtQxFlowerEncoder
    : public DtHlaStateEncoder
{
public:
    DtQxFlowerEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeColour(const DtQxFlowerStateRepository& state, DtWireWriter& writer);
    static bool encodeSeed(const DtQxFlowerStateRepository& state, DtWireWriter& writer);
};

} // namespace garden

#endif
