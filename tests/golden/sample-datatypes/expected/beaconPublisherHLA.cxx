// Generated from case; the next generation writes it anew.
 
#include "beaconPublisherHLA.h"
 
#include "beaconEncoderHLA.h"
 
DtBeaconPublisher::DtBeaconPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtBeaconStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtBeaconEncoder))
{
}
 
const char* DtBeaconPublisher::fullClassName()
{
    return "PortEntity.Beacon";
}
 
DtBeaconStateRepository* DtBeaconPublisher::beaconStateRep() const
{
    return static_cast<DtBeaconStateRepository*>(stateRepository());
}
 
DtBeaconStateRepository* DtBeaconPublisher::bsr() const
{
    return beaconStateRep();
}

