#ifndef DT_DLL_CASE_DtCargoShipDecoder_H
#define DT_DLL_CASE_DtCargoShipDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "vesselDecoderHLA.h"
#include "cargoShipStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity.Vessel.CargoShip and of its superclasses from named buffers.
class DT_DLL_CASE DtCargoShipDecoder
    : public DtVesselDecoder
{
public:
    DtCargoShipDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeHolds(DtCargoShipStateRepository& state, DtWireReader& reader);
    static bool decodeManifest(DtCargoShipStateRepository& state, DtWireReader& reader);
    static bool decodeDraught(DtCargoShipStateRepository& state, DtWireReader& reader);
    static bool decodeDangerous(DtCargoShipStateRepository& state, DtWireReader& reader);
    static bool decodeSeal(DtCargoShipStateRepository& state, DtWireReader& reader);
};

#endif
