#ifndef DT_DLL_CASE_DtNetTug__PusherPdu_H
#define DT_DLL_CASE_DtNetTug__PusherPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "netVesselPdu.h"
#include "dllExport.h"
 
// Header of the protocol data units that tell of a HLAobjectRoot.PortEntity.Vessel.Tug/Pusher, by their kind.
class DT_DLL_CASE DtNetTug__PusherPdu : public DtNetVesselPdu
{
public:
    enum
    {
        theKind = 2
    };
 
    DtNetTug__PusherPdu() { setPduKind(theKind); }
};

#endif
