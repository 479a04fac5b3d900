// Generated from case; the next generation writes it anew.
 
#include "meterStateRepository.h"
 
DtMeterStateRepository::DtMeterStateRepository() : Own()
{
}

void DtMeterStateRepository::setRaw(const ValueOfRaw& value)
{
    Own.myRaw = value;
    DtStateRepository::markChanged("Raw");
}
 
const DtMeterStateRepository::ValueOfRaw& DtMeterStateRepository::raw() const
{
    return Own.myRaw;
}

void DtMeterStateRepository::setRunning(const ValueOfRunning& value)
{
    Own.myRunning = value;
    DtStateRepository::markChanged("Running");
}
 
const DtMeterStateRepository::ValueOfRunning& DtMeterStateRepository::running() const
{
    return Own.myRunning;
}

void DtMeterStateRepository::setState(const ValueOfState& value)
{
    Own.myState = value;
    DtStateRepository::markChanged("State");
}
 
const DtMeterStateRepository::ValueOfState& DtMeterStateRepository::state() const
{
    return Own.myState;
}

void DtMeterStateRepository::setWeek(const ValueOfWeek& value)
{
    Own.myWeek = value;
    DtStateRepository::markChanged("Week");
}
 
const DtMeterStateRepository::ValueOfWeek& DtMeterStateRepository::week() const
{
    return Own.myWeek;
}

void DtMeterStateRepository::setRemarks(const ValueOfRemarks& value)
{
    Own.myRemarks = value;
    DtStateRepository::markChanged("Remarks");
}
 
const DtMeterStateRepository::ValueOfRemarks& DtMeterStateRepository::remarks() const
{
    return Own.myRemarks;
}

void DtMeterStateRepository::setPast(const ValueOfPast& value)
{
    Own.myPast = value;
    DtStateRepository::markChanged("Past");
}
 
const DtMeterStateRepository::ValueOfPast& DtMeterStateRepository::past() const
{
    return Own.myPast;
}

void DtMeterStateRepository::setLast(const ValueOfLast& value)
{
    Own.myLast = value;
    DtStateRepository::markChanged("Last");
}
 
const DtMeterStateRepository::ValueOfLast& DtMeterStateRepository::last() const
{
    return Own.myLast;
}

void DtMeterStateRepository::setInside(const ValueOfInside& value)
{
    Own.myInside = value;
    DtStateRepository::markChanged("Inside");
}
 
const DtMeterStateRepository::ValueOfInside& DtMeterStateRepository::inside() const
{
    return Own.myInside;
}

