// Generated from case; the next generation writes it anew.
 
#include "cargoShipPublisherHLA.h"
 
#include "cargoShipEncoderHLA.h"
 
DtCargoShipPublisher::DtCargoShipPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtCargoShipStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtCargoShipEncoder))
{
}
 
const char* DtCargoShipPublisher::fullClassName()
{
    return "PortEntity.Vessel.CargoShip";
}
 
DtCargoShipStateRepository* DtCargoShipPublisher::cargoShipStateRep() const
{
    return static_cast<DtCargoShipStateRepository*>(stateRepository());
}
 
DtCargoShipStateRepository* DtCargoShipPublisher::csr() const
{
    return cargoShipStateRep();
}

