#ifndef DT_DLL_CASE_DtCargoShipEncoder_H
#define DT_DLL_CASE_DtCargoShipEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "vesselEncoderHLA.h"
#include "cargoShipStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.PortEntity.Vessel.CargoShip into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtCargoShipEncoder
    : public DtVesselEncoder
{
public:
    DtCargoShipEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeHolds(const DtCargoShipStateRepository& state, DtWireWriter& writer);
    static bool encodeManifest(const DtCargoShipStateRepository& state, DtWireWriter& writer);
    static bool encodeDraught(const DtCargoShipStateRepository& state, DtWireWriter& writer);
    static bool encodeDangerous(const DtCargoShipStateRepository& state, DtWireWriter& writer);
    static bool encodeSeal(const DtCargoShipStateRepository& state, DtWireWriter& writer);
};

#endif
