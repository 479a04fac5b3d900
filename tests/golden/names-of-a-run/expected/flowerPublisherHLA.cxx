// Generated from case; the next generation writes it anew.
 
#include "beds/flowerPublisherHLA.h"
 
#include "beds/flowerEncoderHLA.h"
 
namespace garden
{
 
DtQxFlowerPublisher::DtQxFlowerPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtQxFlowerStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtQxFlowerEncoder))
{
}
 
const char* DtQxFlowerPublisher::fullClassName()
{
    return "Flower";
}
 
DtQxFlowerStateRepository* DtQxFlowerPublisher::flowerStateRep() const
{
    return static_cast<DtQxFlowerStateRepository*>(stateRepository());
}
 
DtQxFlowerStateRepository* DtQxFlowerPublisher::fsr() const
{
    return flowerStateRep();
}

} // namespace garden

