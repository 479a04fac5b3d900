// Generated from case; the next generation writes it anew.
 
#include "signalInterHLA.h"
 
#include "signalInterDecoderHLA.h"
#include "signalInterEncoderHLA.h"
 
DtSignalInter::DtSignalInter()
    : DtSignalInter(DtInteractionCoding{
          "Signal", &DtSharedEncoder<DtSignalInterEncoder>, &DtSharedDecoder<DtSignalInterDecoder>})
{
}
 
DtSignalInter::DtSignalInter(const DtInteractionCoding& coding)
    : DtInteractionWithEncDec(coding), Own()
{
}
 
void DtSignalInter::addCallback(DtExerciseConn* exerciseConn, DtSignalInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtSignalInter::removeCallback(DtExerciseConn* exerciseConn, DtSignalInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtSignalInter::setSent(const ValueOfSent& value)
{
    Own.mySent = value;
}
 
const DtSignalInter::ValueOfSent& DtSignalInter::sent() const
{
    return Own.mySent;
}

void DtSignalInter::setMessage(const ValueOfMessage& value)
{
    Own.myMessage = value;
}
 
const DtSignalInter::ValueOfMessage& DtSignalInter::message() const
{
    return Own.myMessage;
}

void DtSignalInter::setSure(const ValueOfSure& value)
{
    Own.mySure = value;
}
 
const DtSignalInter::ValueOfSure& DtSignalInter::sure() const
{
    return Own.mySure;
}

