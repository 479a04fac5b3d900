// Generated from case; the next generation writes it anew.
 
#include "dogPublisherHLA.h"
 
#include "dogEncoderHLA.h"
 
DtDogPublisher::DtDogPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtDogStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtDogEncoder))
{
}
 
const char* DtDogPublisher::fullClassName()
{
    return "Animal.Dog";
}
 
DtDogStateRepository* DtDogPublisher::dogStateRep() const
{
    return static_cast<DtDogStateRepository*>(stateRepository());
}
 
DtDogStateRepository* DtDogPublisher::dsr() const
{
    return dogStateRep();
}

