// Generated from case; the next generation writes it anew.
 
#include "move__ToInterHLA.h"
 
#include "move__ToInterDecoderHLA.h"
#include "move__ToInterEncoderHLA.h"
 
DtMove__ToInter::DtMove__ToInter()
    : DtMove__ToInter(DtInteractionCoding{
          "Radio.Order.Move-To", &DtSharedEncoder<DtMove__ToInterEncoder>, &DtSharedDecoder<DtMove__ToInterDecoder>})
{
}
 
DtMove__ToInter::DtMove__ToInter(const DtInteractionCoding& coding)
    : DtOrderInter(coding), Own()
{
}
 
void DtMove__ToInter::addCallback(DtExerciseConn* exerciseConn, DtMove__ToInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtMove__ToInter::removeCallback(DtExerciseConn* exerciseConn, DtMove__ToInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtMove__ToInter::setTarget_Point_(const ValueOfTarget_Point_& value)
{
    Own.myTarget_Point_ = value;
}
 
const DtMove__ToInter::ValueOfTarget_Point_& DtMove__ToInter::target_Point_() const
{
    return Own.myTarget_Point_;
}

void DtMove__ToInter::setBy__Hour(const ValueOfBy__Hour& value)
{
    Own.myBy__Hour = value;
}
 
const DtMove__ToInter::ValueOfBy__Hour& DtMove__ToInter::by__Hour() const
{
    return Own.myBy__Hour;
}

void DtMove__ToInter::setTugs(const ValueOfTugs& value)
{
    Own.myTugs = value;
}
 
const DtMove__ToInter::ValueOfTugs& DtMove__ToInter::tugs() const
{
    return Own.myTugs;
}

