#ifndef DT_DLL_CASE_DtPortEntityPdu_H
#define DT_DLL_CASE_DtPortEntityPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateMsg.h>
#include "netPortEntityPdu.h"
#include "dllExport.h"
 
// The protocol data unit that tells the whole state of a HLAobjectRoot.PortEntity.
class DT_DLL_CASE DtPortEntityPdu : public DtStateMsg
{
public:
    enum
    {
        theKind = DtNetPortEntityPdu::theKind
    };
 
    DtPortEntityPdu();
};

#endif
