#ifndef DT_DLL_CASE_DtStayInterDecoder_H
#define DT_DLL_CASE_DtStayInterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInterDecoderHLA.h"
#include "stayInterHLA.h"
#include "dllExport.h"
 
// Sets the parameters of HLAinteractionRoot.Radio.Order.Stay and of its superclasses from named buffers.
class DT_DLL_CASE DtStayInterDecoder
    : public DtOrderInterDecoder
{
public:
    DtStayInterDecoder();
 
protected:
    // One for each parameter; false if the buffer holds no value of it.
};

#endif
