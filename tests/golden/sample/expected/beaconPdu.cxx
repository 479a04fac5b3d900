// Generated from case; the next generation writes it anew.
 
#include "beaconPdu.h"
 
DtBeaconPdu::DtBeaconPdu()
{
    setHeader(DtNetBeaconPdu());
}

