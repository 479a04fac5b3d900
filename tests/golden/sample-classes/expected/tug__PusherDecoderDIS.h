#ifndef DT_DLL_CASE_DtTug__PusherDecoder_DIS_H
#define DT_DLL_CASE_DtTug__PusherDecoder_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include "dvesselDecoder.h"
#include "tug__PusherStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity.Vessel.Tug/Pusher and of its superclasses from the body of a protocol data unit.
class DT_DLL_CASE DtTug__PusherDecoder : public DtVesselDecoder
{
public:
    DtTug__PusherDecoder();
 
protected:
    // One for each attribute; false if the body holds no value of it.
    static bool decodePull__Push(DtTug__PusherStateRepository& state, DtWireReader& reader);
    static bool decodeLine__1(DtTug__PusherStateRepository& state, DtWireReader& reader);
    static bool decodeOwner(DtTug__PusherStateRepository& state, DtWireReader& reader);
};

#endif
