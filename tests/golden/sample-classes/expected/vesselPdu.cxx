// Generated from case; the next generation writes it anew.
 
#include "vesselPdu.h"
 
DtVesselPdu::DtVesselPdu()
{
    setHeader(DtNetVesselPdu());
}

