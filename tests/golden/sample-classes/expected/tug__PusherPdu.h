#ifndef DT_DLL_CASE_DtTug__PusherPdu_H
#define DT_DLL_CASE_DtTug__PusherPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "VesselPdu.h"
#include "netTug__PusherPdu.h"
#include "dllExport.h"
 
// The protocol data unit that tells the whole state of a HLAobjectRoot.PortEntity.Vessel.Tug/Pusher.
class DT_DLL_CASE DtTug__PusherPdu : public DtVesselPdu
{
public:
    enum
    {
        theKind = DtNetTug__PusherPdu::theKind
    };
 
    DtTug__PusherPdu();
};

#endif
