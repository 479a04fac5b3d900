// Generated from case; the next generation writes it anew.
 
#include "weatherPdu.h"
 
DtWeatherPdu::DtWeatherPdu()
{
    setHeader(DtNetWeatherPdu());
}

