// Generated from case; the next generation writes it anew.
 
#include "dogStateRepository.h"
 
DtDogStateRepository::DtDogStateRepository() : Own()
{
}

void DtDogStateRepository::setBarks(const ValueOfBarks& value)
{
    Own.myBarks = value;
    DtStateRepository::markChanged("Barks");
}
 
const DtDogStateRepository::ValueOfBarks& DtDogStateRepository::barks() const
{
    return Own.myBarks;
}

void DtDogStateRepository::setWeight__Kg(const ValueOfWeight__Kg& value)
{
    Own.myWeight__Kg = value;
    DtStateRepository::markChanged("Weight__Kg");
}
 
const DtDogStateRepository::ValueOfWeight__Kg& DtDogStateRepository::weight__Kg() const
{
    return Own.myWeight__Kg;
}

