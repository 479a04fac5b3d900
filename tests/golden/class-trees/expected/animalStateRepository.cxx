// Generated from case; the next generation writes it anew.
 
#include "animalStateRepository.h"
 
DtAnimalStateRepository::DtAnimalStateRepository() : Own()
{
}

void DtAnimalStateRepository::setName(const ValueOfName& value)
{
    Own.myName = value;
    DtStateRepository::markChanged("Name");
}
 
const DtAnimalStateRepository::ValueOfName& DtAnimalStateRepository::name() const
{
    return Own.myName;
}

void DtAnimalStateRepository::setLegs(const ValueOfLegs& value)
{
    Own.myLegs = value;
    DtStateRepository::markChanged("Legs");
}
 
const DtAnimalStateRepository::ValueOfLegs& DtAnimalStateRepository::legs() const
{
    return Own.myLegs;
}

