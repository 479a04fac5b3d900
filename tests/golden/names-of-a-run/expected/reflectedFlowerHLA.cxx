// Generated from case; the next generation writes it anew.
 
#include "beds/reflectedFlowerHLA.h"
 
#include "beds/flowerDecoderHLA.h"
 
namespace garden
{
 
DtReflectedQxFlower::DtReflectedQxFlower(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtQxFlowerStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtQxFlowerDecoder))
{
}
 
DtQxFlowerStateRepository* DtReflectedQxFlower::flowerStateRep() const
{
    return static_cast<DtQxFlowerStateRepository*>(stateRepository());
}
 
DtQxFlowerStateRepository* DtReflectedQxFlower::fsr() const
{
    return flowerStateRep();
}

} // namespace garden

