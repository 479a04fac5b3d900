// Generated from case; the next generation writes it anew.
 
#include "stayInterHLA.h"
 
#include "stayInterDecoderHLA.h"
#include "stayInterEncoderHLA.h"
 
DtStayInter::DtStayInter()
    : DtStayInter(DtInteractionCoding{
          "Radio.Order.Stay", &DtSharedEncoder<DtStayInterEncoder>, &DtSharedDecoder<DtStayInterDecoder>})
{
}
 
DtStayInter::DtStayInter(const DtInteractionCoding& coding)
    : DtOrderInter(coding)
{
}
 
void DtStayInter::addCallback(DtExerciseConn* exerciseConn, DtStayInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtStayInter::removeCallback(DtExerciseConn* exerciseConn, DtStayInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

