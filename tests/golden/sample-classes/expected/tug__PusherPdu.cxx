// Generated from case; the next generation writes it anew.
 
#include "tug__PusherPdu.h"
 
DtTug__PusherPdu::DtTug__PusherPdu()
{
    setHeader(DtNetTug__PusherPdu());
}

