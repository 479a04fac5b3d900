// Generated from case; the next generation writes it anew.
 
#include "cargoShipPdu.h"
 
DtCargoShipPdu::DtCargoShipPdu()
{
    setHeader(DtNetCargoShipPdu());
}

