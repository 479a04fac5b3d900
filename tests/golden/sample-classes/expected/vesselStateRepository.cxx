// Generated from case; the next generation writes it anew.
 
#include "vesselStateRepository.h"
 
DtVesselStateRepository::DtVesselStateRepository() : Own()
{
}

void DtVesselStateRepository::setSpeed(const ValueOfSpeed& value)
{
    Own.mySpeed = value;
    DtStateRepository::markChanged("Speed");
}
 
const DtVesselStateRepository::ValueOfSpeed& DtVesselStateRepository::speed() const
{
    return Own.mySpeed;
}

void DtVesselStateRepository::setHeading__True(const ValueOfHeading__True& value)
{
    Own.myHeading__True = value;
    DtStateRepository::markChanged("Heading__True");
}
 
const DtVesselStateRepository::ValueOfHeading__True& DtVesselStateRepository::heading__True() const
{
    return Own.myHeading__True;
}

void DtVesselStateRepository::setState(const ValueOfState& value)
{
    Own.myState = value;
    DtStateRepository::markChanged("State");
}
 
const DtVesselStateRepository::ValueOfState& DtVesselStateRepository::state() const
{
    return Own.myState;
}

void DtVesselStateRepository::setTheClass(const ValueOfTheClass& value)
{
    Own.myTheClass = value;
    DtStateRepository::markChanged("_class");
}
 
const DtVesselStateRepository::ValueOfTheClass& DtVesselStateRepository::theClass() const
{
    return Own.myTheClass;
}

void DtVesselStateRepository::setTheInt(const ValueOfTheInt& value)
{
    Own.myTheInt = value;
    DtStateRepository::markChanged("int");
}
 
const DtVesselStateRepository::ValueOfTheInt& DtVesselStateRepository::theInt() const
{
    return Own.myTheInt;
}

void DtVesselStateRepository::setTheTemplate(const ValueOfTheTemplate& value)
{
    Own.myTheTemplate = value;
    DtStateRepository::markChanged("Template");
}
 
const DtVesselStateRepository::ValueOfTheTemplate& DtVesselStateRepository::theTemplate() const
{
    return Own.myTheTemplate;
}

void DtVesselStateRepository::setCrew(const ValueOfCrew& value)
{
    Own.myCrew = value;
    DtStateRepository::markChanged("Crew");
}
 
const DtVesselStateRepository::ValueOfCrew& DtVesselStateRepository::crew() const
{
    return Own.myCrew;
}

