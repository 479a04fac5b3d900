// Generated from case; the next generation writes it anew.
 
#include "portEntityStateRepository.h"
 
DtPortEntityStateRepository::DtPortEntityStateRepository() : Own()
{
}

void DtPortEntityStateRepository::setPosition(const ValueOfPosition& value)
{
    Own.myPosition = value;
    DtStateRepository::markChanged("Position");
}
 
const DtPortEntityStateRepository::ValueOfPosition& DtPortEntityStateRepository::position() const
{
    return Own.myPosition;
}

void DtPortEntityStateRepository::setName(const ValueOfName& value)
{
    Own.myName = value;
    DtStateRepository::markChanged("Name");
}
 
const DtPortEntityStateRepository::ValueOfName& DtPortEntityStateRepository::name() const
{
    return Own.myName;
}

void DtPortEntityStateRepository::setSerial(const ValueOfSerial& value)
{
    Own.mySerial = value;
    DtStateRepository::markChanged("Serial");
}
 
const DtPortEntityStateRepository::ValueOfSerial& DtPortEntityStateRepository::serial() const
{
    return Own.mySerial;
}

