#ifndef DT_DLL_CASE_DtNetCargoShipPdu_H
#define DT_DLL_CASE_DtNetCargoShipPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "netVesselPdu.h"
#include "dllExport.h"
 
// Header of the protocol data units that tell of a HLAobjectRoot.PortEntity.Vessel.CargoShip, by their kind.
class DT_DLL_CASE DtNetCargoShipPdu : public DtNetVesselPdu
{
public:
    enum
    {
        theKind = 4
    };
 
    DtNetCargoShipPdu() { setPduKind(theKind); }
};

#endif
