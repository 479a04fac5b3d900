// Generated from case; the next generation writes it anew.
 
#include "meterPublisherHLA.h"
 
#include "meterEncoderHLA.h"
 
DtMeterPublisher::DtMeterPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtMeterStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtMeterEncoder))
{
}
 
const char* DtMeterPublisher::fullClassName()
{
    return "Meter";
}
 
DtMeterStateRepository* DtMeterPublisher::meterStateRep() const
{
    return static_cast<DtMeterStateRepository*>(stateRepository());
}
 
DtMeterStateRepository* DtMeterPublisher::msr() const
{
    return meterStateRep();
}

