// Generated from case; the next generation writes it anew.
 
#include "cargoShipPublisherDIS.h"
 
#include "cargoShipEncoderDIS.h"
#include "netCargoShipPdu.h"
 
DtCargoShipPublisher::DtCargoShipPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtDisPublisherBase(exerciseConn, DtNetCargoShipPdu::theKind, name,
                         std::unique_ptr<DtStateRepository>(new DtCargoShipStateRepository),
                         std::unique_ptr<DtStateEncoder>(new DtCargoShipEncoder))
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

