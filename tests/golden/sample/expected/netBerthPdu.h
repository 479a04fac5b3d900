#ifndef DT_DLL_CASE_DtNetBerthPdu_H
#define DT_DLL_CASE_DtNetBerthPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "netPortEntityPdu.h"
#include "dllExport.h"
 
// Header of the protocol data units that tell of a HLAobjectRoot.PortEntity.Berth, by their kind.
class DT_DLL_CASE DtNetBerthPdu : public DtNetPortEntityPdu
{
public:
    enum
    {
        theKind = 2
    };
 
    DtNetBerthPdu() { setPduKind(theKind); }
};

#endif
