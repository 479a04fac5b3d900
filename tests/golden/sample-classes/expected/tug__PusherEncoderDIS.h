#ifndef DT_DLL_CASE_DtTug__PusherEncoder_DIS_H
#define DT_DLL_CASE_DtTug__PusherEncoder_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include "dvesselEncoder.h"
#include "tug__PusherStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.PortEntity.Vessel.Tug/Pusher into the body of a protocol data unit, behind those of its superclasses.
class DT_DLL_CASE DtTug__PusherEncoder : public DtVesselEncoder
{
public:
    DtTug__PusherEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodePull__Push(const DtTug__PusherStateRepository& state, DtWireWriter& writer);
    static bool encodeLine__1(const DtTug__PusherStateRepository& state, DtWireWriter& writer);
    static bool encodeOwner(const DtTug__PusherStateRepository& state, DtWireWriter& writer);
};

#endif
