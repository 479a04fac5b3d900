#ifndef DT_DLL_CASE_DtQxWaterInterEncoder_H
#define DT_DLL_CASE_DtQxWaterInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionEncoder.h>
#include "beds/waterInterHLA.h"
#include "dllExport.h"
 
namespace garden
{
 
// Puts the parameters of HLAinteractionRoot.Water into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtQxWaterInterEncoder
    : public DtInteractionEncoder
{
public:
    DtQxWaterInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeLitres(const DtQxWaterInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithLitres = true;
};

} // namespace garden

#endif
