#ifndef DT_DLL_CASE_DtBeaconPdu_H
#define DT_DLL_CASE_DtBeaconPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "PortEntityPdu.h"
#include "netBeaconPdu.h"
#include "dllExport.h"
 
// The protocol data unit that tells the whole state of a HLAobjectRoot.PortEntity.Beacon.
class DT_DLL_CASE DtBeaconPdu : public DtPortEntityPdu
{
public:
    enum
    {
        theKind = DtNetBeaconPdu::theKind
    };
 
    DtBeaconPdu();
};

#endif
