// Generated from case; the next generation writes it anew.
 
#include "berthPdu.h"
 
DtBerthPdu::DtBerthPdu()
{
    setHeader(DtNetBerthPdu());
}

