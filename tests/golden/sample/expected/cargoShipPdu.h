#ifndef DT_DLL_CASE_DtCargoShipPdu_H
#define DT_DLL_CASE_DtCargoShipPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "VesselPdu.h"
#include "netCargoShipPdu.h"
#include "dllExport.h"
 
// The protocol data unit that tells the whole state of a HLAobjectRoot.PortEntity.Vessel.CargoShip.
class DT_DLL_CASE DtCargoShipPdu : public DtVesselPdu
{
public:
    enum
    {
        theKind = DtNetCargoShipPdu::theKind
    };
 
    DtCargoShipPdu();
};

#endif
