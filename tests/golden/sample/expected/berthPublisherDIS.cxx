// Generated from case; the next generation writes it anew.
 
#include "berthPublisherDIS.h"
 
#include "berthEncoderDIS.h"
#include "netBerthPdu.h"
 
DtBerthPublisher::DtBerthPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtDisPublisherBase(exerciseConn, DtNetBerthPdu::theKind, name,
                         std::unique_ptr<DtStateRepository>(new DtBerthStateRepository),
                         std::unique_ptr<DtStateEncoder>(new DtBerthEncoder))
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

