// Generated from case; the next generation writes it anew.
 
#include "reflectedCargoShipHLA.h"
 
#include "cargoShipDecoderHLA.h"
 
DtReflectedCargoShip::DtReflectedCargoShip(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtCargoShipStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtCargoShipDecoder))
{
}
 
DtCargoShipStateRepository* DtReflectedCargoShip::cargoShipStateRep() const
{
    return static_cast<DtCargoShipStateRepository*>(stateRepository());
}
 
DtCargoShipStateRepository* DtReflectedCargoShip::csr() const
{
    return cargoShipStateRep();
}

