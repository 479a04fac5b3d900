// Generated from case; the next generation writes it anew.
 
#include "cargoShipStateRepository.h"
 
DtCargoShipStateRepository::DtCargoShipStateRepository() : Own()
{
}

void DtCargoShipStateRepository::setHolds(const ValueOfHolds& value)
{
    Own.myHolds = value;
    DtStateRepository::markChanged("Holds");
}
 
const DtCargoShipStateRepository::ValueOfHolds& DtCargoShipStateRepository::holds() const
{
    return Own.myHolds;
}

void DtCargoShipStateRepository::setManifest(const ValueOfManifest& value)
{
    Own.myManifest = value;
    DtStateRepository::markChanged("Manifest");
}
 
const DtCargoShipStateRepository::ValueOfManifest& DtCargoShipStateRepository::manifest() const
{
    return Own.myManifest;
}

void DtCargoShipStateRepository::setDraught(const ValueOfDraught& value)
{
    Own.myDraught = value;
    DtStateRepository::markChanged("Draught");
}
 
const DtCargoShipStateRepository::ValueOfDraught& DtCargoShipStateRepository::draught() const
{
    return Own.myDraught;
}

void DtCargoShipStateRepository::setDangerous(const ValueOfDangerous& value)
{
    Own.myDangerous = value;
    DtStateRepository::markChanged("Dangerous");
}
 
const DtCargoShipStateRepository::ValueOfDangerous& DtCargoShipStateRepository::dangerous() const
{
    return Own.myDangerous;
}

void DtCargoShipStateRepository::setSeal(const ValueOfSeal& value)
{
    Own.mySeal = value;
    DtStateRepository::markChanged("Seal");
}
 
const DtCargoShipStateRepository::ValueOfSeal& DtCargoShipStateRepository::seal() const
{
    return Own.mySeal;
}

