#ifndef DT_DLL_CASE_DtVesselPdu_H
#define DT_DLL_CASE_DtVesselPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "PortEntityPdu.h"
#include "netVesselPdu.h"
#include "dllExport.h"
 
// The protocol data unit that tells the whole state of a HLAobjectRoot.PortEntity.Vessel.
class DT_DLL_CASE DtVesselPdu : public DtPortEntityPdu
{
public:
    enum
    {
        theKind = DtNetVesselPdu::theKind
    };
 
    DtVesselPdu();
};

#endif
