// Generated from case; the next generation writes it anew.
 
#include "portEntityPdu.h"
 
DtPortEntityPdu::DtPortEntityPdu()
{
    setHeader(DtNetPortEntityPdu());
}

