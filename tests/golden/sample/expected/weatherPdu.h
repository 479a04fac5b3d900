#ifndef DT_DLL_CASE_DtWeatherPdu_H
#define DT_DLL_CASE_DtWeatherPdu_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateMsg.h>
#include "netWeatherPdu.h"
#include "dllExport.h"
 
// The protocol data unit that tells the whole state of a HLAobjectRoot.Weather.
class DT_DLL_CASE DtWeatherPdu : public DtStateMsg
{
public:
    enum
    {
        theKind = DtNetWeatherPdu::theKind
    };
 
    DtWeatherPdu();
};

#endif
