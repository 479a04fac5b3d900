// Generated from case; the next generation writes it anew.
 
#include "beds/flowerStateRepository.h"
 
namespace garden
{
 
DtQxFlowerStateRepository::DtQxFlowerStateRepository() : Own()
{
}

void DtQxFlowerStateRepository::setColour(const ValueOfColour& value)
{
    Own.myColour = value;
    DtStateRepository::markChanged("Colour");
}
 
const DtQxFlowerStateRepository::ValueOfColour& DtQxFlowerStateRepository::colour() const
{
    return Own.myColour;
}

void DtQxFlowerStateRepository::setSeed(const ValueOfSeed& value)
{
    Own.mySeed = value;
    DtStateRepository::markChanged("Seed");
}
 
const DtQxFlowerStateRepository::ValueOfSeed& DtQxFlowerStateRepository::seed() const
{
    return Own.mySeed;
}

} // namespace garden

