// Generated from case; the next generation writes it anew.
 
#include "loudCallInterHLA.h"
 
#include "loudCallInterDecoderHLA.h"
#include "loudCallInterEncoderHLA.h"
 
DtLoudCallInter::DtLoudCallInter()
    : DtLoudCallInter(DtInteractionCoding{
          "Call.LoudCall", &DtSharedEncoder<DtLoudCallInterEncoder>, &DtSharedDecoder<DtLoudCallInterDecoder>})
{
}
 
DtLoudCallInter::DtLoudCallInter(const DtInteractionCoding& coding)
    : DtCallInter(coding), Own()
{
}
 
void DtLoudCallInter::addCallback(DtExerciseConn* exerciseConn, DtLoudCallInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtLoudCallInter::removeCallback(DtExerciseConn* exerciseConn, DtLoudCallInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtLoudCallInter::setLoudness(const ValueOfLoudness& value)
{
    Own.myLoudness = value;
}
 
const DtLoudCallInter::ValueOfLoudness& DtLoudCallInter::loudness() const
{
    return Own.myLoudness;
}

