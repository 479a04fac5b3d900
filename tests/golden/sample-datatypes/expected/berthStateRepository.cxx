// Generated from case; the next generation writes it anew.
 
#include "berthStateRepository.h"
 
DtBerthStateRepository::DtBerthStateRepository() : Own()
{
}

void DtBerthStateRepository::setLength(const ValueOfLength& value)
{
    Own.myLength = value;
    DtStateRepository::markChanged("Length");
}
 
const DtBerthStateRepository::ValueOfLength& DtBerthStateRepository::length() const
{
    return Own.myLength;
}

void DtBerthStateRepository::setDepths(const ValueOfDepths& value)
{
    Own.myDepths = value;
    DtStateRepository::markChanged("Depths");
}
 
const DtBerthStateRepository::ValueOfDepths& DtBerthStateRepository::depths() const
{
    return Own.myDepths;
}

void DtBerthStateRepository::setOccupant(const ValueOfOccupant& value)
{
    Own.myOccupant = value;
    DtStateRepository::markChanged("Occupant");
}
 
const DtBerthStateRepository::ValueOfOccupant& DtBerthStateRepository::occupant() const
{
    return Own.myOccupant;
}

void DtBerthStateRepository::setFlags(const ValueOfFlags& value)
{
    Own.myFlags = value;
    DtStateRepository::markChanged("Flags");
}
 
const DtBerthStateRepository::ValueOfFlags& DtBerthStateRepository::flags() const
{
    return Own.myFlags;
}

void DtBerthStateRepository::setKind64(const ValueOfKind64& value)
{
    Own.myKind64 = value;
    DtStateRepository::markChanged("Kind64");
}
 
const DtBerthStateRepository::ValueOfKind64& DtBerthStateRepository::kind64() const
{
    return Own.myKind64;
}

void DtBerthStateRepository::setFenders(const ValueOfFenders& value)
{
    Own.myFenders = value;
    DtStateRepository::markChanged("Fenders");
}
 
const DtBerthStateRepository::ValueOfFenders& DtBerthStateRepository::fenders() const
{
    return Own.myFenders;
}

