#ifndef DT_DLL_CASE_DtCollisionInterEncoder_H
#define DT_DLL_CASE_DtCollisionInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionEncoder.h>
#include "collisionInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Collision into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtCollisionInterEncoder
    : public DtInteractionEncoder
{
public:
    DtCollisionInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.
    static bool encodeForce(const DtCollisionInter& interaction, DtWireWriter& writer);
    static bool encodeWhere(const DtCollisionInter& interaction, DtWireWriter& writer);
    static bool encodeDebris(const DtCollisionInter& interaction, DtWireWriter& writer);

private:
    // What the project leaves out has a coder all the same, but is not sent.
    static constexpr bool WithForce = true;
    static constexpr bool WithWhere = true;
    static constexpr bool WithDebris = true;
};

#endif
