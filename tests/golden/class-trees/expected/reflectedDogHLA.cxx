// Generated from case; the next generation writes it anew.
 
#include "reflectedDogHLA.h"
 
#include "dogDecoderHLA.h"
 
DtReflectedDog::DtReflectedDog(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtDogStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtDogDecoder))
{
}
 
DtDogStateRepository* DtReflectedDog::dogStateRep() const
{
    return static_cast<DtDogStateRepository*>(stateRepository());
}
 
DtDogStateRepository* DtReflectedDog::dsr() const
{
    return dogStateRep();
}

