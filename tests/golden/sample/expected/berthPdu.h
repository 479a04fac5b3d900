#ifndef DT_DLL_CASE_DtBerthPdu_H
#define DT_DLL_CASE_DtBerthPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include "PortEntityPdu.h"
#include "netBerthPdu.h"
#include "dllExport.h"
 
// The protocol data unit that tells the whole state of a HLAobjectRoot.PortEntity.Berth.
class DT_DLL_CASE DtBerthPdu : public DtPortEntityPdu
{
public:
    enum
    {
        theKind = DtNetBerthPdu::theKind
    };
 
    DtBerthPdu();
};

#endif
