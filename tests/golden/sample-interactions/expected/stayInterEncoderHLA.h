#ifndef DT_DLL_CASE_DtStayInterEncoder_H
#define DT_DLL_CASE_DtStayInterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInterEncoderHLA.h"
#include "stayInterHLA.h"
#include "dllExport.h"
 
// Puts the parameters of HLAinteractionRoot.Radio.Order.Stay into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtStayInterEncoder
    : public DtOrderInterEncoder
{
public:
    DtStayInterEncoder();
 
protected:
    // One for each parameter; false if the value has no wire form.

private:
    // What the project leaves out has a coder all the same, but is not sent.
};

#endif
