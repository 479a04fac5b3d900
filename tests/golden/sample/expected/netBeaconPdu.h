#ifndef DT_DLL_CASE_DtNetBeaconPdu_H
#define DT_DLL_CASE_DtNetBeaconPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "netPortEntityPdu.h"
#include "dllExport.h"
 
// Header of the protocol data units that tell of a HLAobjectRoot.PortEntity.Beacon, by their kind.
class DT_DLL_CASE DtNetBeaconPdu : public DtNetPortEntityPdu
{
public:
    enum
    {
        theKind = 1
    };
 
    DtNetBeaconPdu() { setPduKind(theKind); }
};

#endif
