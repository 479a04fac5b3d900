// Generated from case; the next generation writes it anew.
 
#include "orderInterHLA.h"
 
#include "orderInterDecoderHLA.h"
#include "orderInterEncoderHLA.h"
 
DtOrderInter::DtOrderInter()
    : DtOrderInter(DtInteractionCoding{
          "Radio.Order", &DtSharedEncoder<DtOrderInterEncoder>, &DtSharedDecoder<DtOrderInterDecoder>})
{
}
 
DtOrderInter::DtOrderInter(const DtInteractionCoding& coding)
    : DtRadioInter(coding), Own()
{
}
 
void DtOrderInter::addCallback(DtExerciseConn* exerciseConn, DtOrderInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtOrderInter::removeCallback(DtExerciseConn* exerciseConn, DtOrderInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtOrderInter::setUrgency(const ValueOfUrgency& value)
{
    Own.myUrgency = value;
}
 
const DtOrderInter::ValueOfUrgency& DtOrderInter::urgency() const
{
    return Own.myUrgency;
}

void DtOrderInter::setTheRegister(const ValueOfTheRegister& value)
{
    Own.myTheRegister = value;
}
 
const DtOrderInter::ValueOfTheRegister& DtOrderInter::theRegister() const
{
    return Own.myTheRegister;
}

