// Generated from case; the next generation writes it anew.
 
#include "stayInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtStayInterEncoder::DtStayInterEncoder()
{
}

