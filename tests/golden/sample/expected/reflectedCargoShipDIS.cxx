// Generated from case; the next generation writes it anew.
 
#include "reflectedCargoShipDIS.h"
 
#include "cargoShipDecoderDIS.h"
 
DtReflectedCargoShip::DtReflectedCargoShip(DtExerciseObjectId id, const std::string& name)
    : DtDisReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtCargoShipStateRepository),
                           std::unique_ptr<DtStateDecoder>(new DtCargoShipDecoder))
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

