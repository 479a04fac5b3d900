// Generated from case; the next generation writes it anew.
 
#include "stayInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtStayInterDecoder::DtStayInterDecoder()
{
}

