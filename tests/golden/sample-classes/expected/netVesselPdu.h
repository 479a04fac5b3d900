#ifndef DT_DLL_CASE_DtNetVesselPdu_H
#define DT_DLL_CASE_DtNetVesselPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "netPortEntityPdu.h"
#include "dllExport.h"
 
// Header of the protocol data units that tell of a HLAobjectRoot.PortEntity.Vessel, by their kind.
class DT_DLL_CASE DtNetVesselPdu : public DtNetPortEntityPdu
{
public:
    enum
    {
        theKind = 1
    };
 
    DtNetVesselPdu() { setPduKind(theKind); }
};

#endif
