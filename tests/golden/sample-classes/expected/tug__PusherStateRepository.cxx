// Generated from case; the next generation writes it anew.
 
#include "tug__PusherStateRepository.h"
 
DtTug__PusherStateRepository::DtTug__PusherStateRepository() : Own()
{
}

void DtTug__PusherStateRepository::setPull__Push(const ValueOfPull__Push& value)
{
    Own.myPull__Push = value;
    DtStateRepository::markChanged("Pull__Push");
}
 
const DtTug__PusherStateRepository::ValueOfPull__Push& DtTug__PusherStateRepository::pull__Push() const
{
    return Own.myPull__Push;
}

void DtTug__PusherStateRepository::setLine__1(const ValueOfLine__1& value)
{
    Own.myLine__1 = value;
    DtStateRepository::markChanged("Line__1");
}
 
const DtTug__PusherStateRepository::ValueOfLine__1& DtTug__PusherStateRepository::line__1() const
{
    return Own.myLine__1;
}

void DtTug__PusherStateRepository::setOwner(const ValueOfOwner& value)
{
    Own.myOwner = value;
    DtStateRepository::markChanged("Owner");
}
 
const DtTug__PusherStateRepository::ValueOfOwner& DtTug__PusherStateRepository::owner() const
{
    return Own.myOwner;
}

