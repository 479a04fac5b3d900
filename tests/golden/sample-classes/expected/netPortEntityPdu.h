#ifndef DT_DLL_CASE_DtNetPortEntityPdu_H
#define DT_DLL_CASE_DtNetPortEntityPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/packets/pduHeader.h>
#include "dllExport.h"
 
// Header of the protocol data units that tell of a HLAobjectRoot.PortEntity, by their kind.
class DT_DLL_CASE DtNetPortEntityPdu : public DtNetPduHeader
{
public:
    enum
    {
        theKind = 0
    };
 
    DtNetPortEntityPdu() { setPduKind(theKind); }
};

#endif
