// Generated from case; the next generation writes it anew.
 
#include "radioInterHLA.h"
 
#include "radioInterDecoderHLA.h"
#include "radioInterEncoderHLA.h"
 
DtRadioInter::DtRadioInter()
    : DtRadioInter(DtInteractionCoding{
          "Radio", &DtSharedEncoder<DtRadioInterEncoder>, &DtSharedDecoder<DtRadioInterDecoder>})
{
}
 
DtRadioInter::DtRadioInter(const DtInteractionCoding& coding)
    : DtInteractionWithEncDec(coding), Own()
{
}
 
void DtRadioInter::addCallback(DtExerciseConn* exerciseConn, DtRadioInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtRadioInter::removeCallback(DtExerciseConn* exerciseConn, DtRadioInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtRadioInter::setChannel(const ValueOfChannel& value)
{
    Own.myChannel = value;
}
 
const DtRadioInter::ValueOfChannel& DtRadioInter::channel() const
{
    return Own.myChannel;
}

void DtRadioInter::setText(const ValueOfText& value)
{
    Own.myText = value;
}
 
const DtRadioInter::ValueOfText& DtRadioInter::text() const
{
    return Own.myText;
}

