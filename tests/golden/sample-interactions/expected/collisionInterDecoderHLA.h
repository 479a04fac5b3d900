#ifndef DT_DLL_CASE_DtCollisionInterDecoder_H
#define DT_DLL_CASE_DtCollisionInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionDecoder.h>
#include "collisionInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Collision and of its superclasses from named buffers.
class DT_DLL_CASE DtCollisionInterDecoder
    : public DtInteractionDecoder
{
public:
    DtCollisionInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
    static bool decodeForce(DtCollisionInter& interaction, DtWireReader& reader);
    static bool decodeWhere(DtCollisionInter& interaction, DtWireReader& reader);
    static bool decodeDebris(DtCollisionInter& interaction, DtWireReader& reader);
};

#endif
