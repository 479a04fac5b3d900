// Generated from case; the next generation writes it anew.
 
#include "reflectedAnimalHLA.h"
 
#include "animalDecoderHLA.h"
 
DtReflectedAnimal::DtReflectedAnimal(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtAnimalStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtAnimalDecoder))
{
}
 
DtAnimalStateRepository* DtReflectedAnimal::animalStateRep() const
{
    return static_cast<DtAnimalStateRepository*>(stateRepository());
}
 
DtAnimalStateRepository* DtReflectedAnimal::asr() const
{
    return animalStateRep();
}

