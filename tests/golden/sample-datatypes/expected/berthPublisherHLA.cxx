// Generated from case; the next generation writes it anew.
 
#include "berthPublisherHLA.h"
 
#include "berthEncoderHLA.h"
 
DtBerthPublisher::DtBerthPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtBerthStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtBerthEncoder))
{
}
 
const char* DtBerthPublisher::fullClassName()
{
    return "PortEntity.Berth";
}
 
DtBerthStateRepository* DtBerthPublisher::berthStateRep() const
{
    return static_cast<DtBerthStateRepository*>(stateRepository());
}
 
DtBerthStateRepository* DtBerthPublisher::bsr() const
{
    return berthStateRep();
}

