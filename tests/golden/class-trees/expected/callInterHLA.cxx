// Generated from case; the next generation writes it anew.
 
#include "callInterHLA.h"
 
#include "callInterDecoderHLA.h"
#include "callInterEncoderHLA.h"
 
DtCallInter::DtCallInter()
    : DtCallInter(DtInteractionCoding{
          "Call", &DtSharedEncoder<DtCallInterEncoder>, &DtSharedDecoder<DtCallInterDecoder>})
{
}
 
DtCallInter::DtCallInter(const DtInteractionCoding& coding)
    : DtInteractionWithEncDec(coding), Own()
{
}
 
void DtCallInter::addCallback(DtExerciseConn* exerciseConn, DtCallInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtCallInter::removeCallback(DtExerciseConn* exerciseConn, DtCallInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtCallInter::setText(const ValueOfText& value)
{
    Own.myText = value;
}
 
const DtCallInter::ValueOfText& DtCallInter::text() const
{
    return Own.myText;
}

