#ifndef DT_DLL_CASE_DtTug__PusherDecoder_H
#define DT_DLL_CASE_DtTug__PusherDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "vesselDecoderHLA.h"
#include "tug__PusherStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity.Vessel.Tug/Pusher and of its superclasses from named buffers.
class DT_DLL_CASE DtTug__PusherDecoder
    : public DtVesselDecoder
{
public:
    DtTug__PusherDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodePull__Push(DtTug__PusherStateRepository& state, DtWireReader& reader);
    static bool decodeLine__1(DtTug__PusherStateRepository& state, DtWireReader& reader);
    static bool decodeOwner(DtTug__PusherStateRepository& state, DtWireReader& reader);
};

#endif
