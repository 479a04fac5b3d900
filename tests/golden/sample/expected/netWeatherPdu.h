#ifndef DT_DLL_CASE_DtNetWeatherPdu_H
#define DT_DLL_CASE_DtNetWeatherPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/packets/pduHeader.h>
#include "dllExport.h"
 
// Header of the protocol data units that tell of a HLAobjectRoot.Weather, by their kind.
class DT_DLL_CASE DtNetWeatherPdu : public DtNetPduHeader
{
public:
    enum
    {
        theKind = 6
    };
 
    DtNetWeatherPdu() { setPduKind(theKind); }
};

#endif
