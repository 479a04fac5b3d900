// Generated from case; the next generation writes it anew.
 
#include "beaconPublisherDIS.h"
 
#include "beaconEncoderDIS.h"
#include "netBeaconPdu.h"
 
DtBeaconPublisher::DtBeaconPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtDisPublisherBase(exerciseConn, DtNetBeaconPdu::theKind, name,
                         std::unique_ptr<DtStateRepository>(new DtBeaconStateRepository),
                         std::unique_ptr<DtStateEncoder>(new DtBeaconEncoder))
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

