// Generated from case; the next generation writes it anew.
 
#include "answerInterHLA.h"
 
#include "answerInterDecoderHLA.h"
#include "answerInterEncoderHLA.h"
 
DtAnswerInter::DtAnswerInter()
    : DtAnswerInter(DtInteractionCoding{
          "Radio.Answer", &DtSharedEncoder<DtAnswerInterEncoder>, &DtSharedDecoder<DtAnswerInterDecoder>})
{
}
 
DtAnswerInter::DtAnswerInter(const DtInteractionCoding& coding)
    : DtRadioInter(coding), Own()
{
}
 
void DtAnswerInter::addCallback(DtExerciseConn* exerciseConn, DtAnswerInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtAnswerInter::removeCallback(DtExerciseConn* exerciseConn, DtAnswerInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtAnswerInter::setDone(const ValueOfDone& value)
{
    Own.myDone = value;
}
 
const DtAnswerInter::ValueOfDone& DtAnswerInter::done() const
{
    return Own.myDone;
}

void DtAnswerInter::setReason(const ValueOfReason& value)
{
    Own.myReason = value;
}
 
const DtAnswerInter::ValueOfReason& DtAnswerInter::reason() const
{
    return Own.myReason;
}

