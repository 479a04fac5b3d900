// Generated from case; the next generation writes it anew.
 
#include "animalPublisherHLA.h"
 
#include "animalEncoderHLA.h"
 
DtAnimalPublisher::DtAnimalPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtAnimalStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtAnimalEncoder))
{
}
 
const char* DtAnimalPublisher::fullClassName()
{
    return "Animal";
}
 
DtAnimalStateRepository* DtAnimalPublisher::animalStateRep() const
{
    return static_cast<DtAnimalStateRepository*>(stateRepository());
}
 
DtAnimalStateRepository* DtAnimalPublisher::asr() const
{
    return animalStateRep();
}

