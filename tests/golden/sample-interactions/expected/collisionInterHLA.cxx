// Generated from case; the next generation writes it anew.
 
#include "collisionInterHLA.h"
 
#include "collisionInterDecoderHLA.h"
#include "collisionInterEncoderHLA.h"
 
DtCollisionInter::DtCollisionInter()
    : DtCollisionInter(DtInteractionCoding{
          "Collision", &DtSharedEncoder<DtCollisionInterEncoder>, &DtSharedDecoder<DtCollisionInterDecoder>})
{
}
 
DtCollisionInter::DtCollisionInter(const DtInteractionCoding& coding)
    : DtInteractionWithEncDec(coding), Own()
{
}
 
void DtCollisionInter::addCallback(DtExerciseConn* exerciseConn, DtCollisionInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtCollisionInter::removeCallback(DtExerciseConn* exerciseConn, DtCollisionInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtCollisionInter::setForce(const ValueOfForce& value)
{
    Own.myForce = value;
}
 
const DtCollisionInter::ValueOfForce& DtCollisionInter::force() const
{
    return Own.myForce;
}

void DtCollisionInter::setWhere(const ValueOfWhere& value)
{
    Own.myWhere = value;
}
 
const DtCollisionInter::ValueOfWhere& DtCollisionInter::where() const
{
    return Own.myWhere;
}

void DtCollisionInter::setDebris(const ValueOfDebris& value)
{
    Own.myDebris = value;
}
 
const DtCollisionInter::ValueOfDebris& DtCollisionInter::debris() const
{
    return Own.myDebris;
}

