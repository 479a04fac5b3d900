#include <qx/disPublisherBase.h>
#include <qx/hlaPublisherBase.h>

DtPublisherBase::DtPublisherBase(DtExerciseConn* exerciseConn, DtExerciseObjectId object,
                                 std::unique_ptr<DtStateRepository> state)
    : myExerciseConn(exerciseConn), myObject(object), myState(std::move(state)), myRefused()
{
}

DtHlaPublisherBase::DtHlaPublisherBase(DtExerciseConn* exerciseConn, const std::string& fullClassName,
                                       const std::string& name, std::unique_ptr<DtStateRepository> state,
                                       std::unique_ptr<DtHlaStateEncoder> encoder)
    : DtPublisherBase(exerciseConn, exerciseConn->addObject(fullClassName, name), std::move(state)),
      myEncoder(std::move(encoder))
{
}

DtHlaPublisherBase::~DtHlaPublisherBase()
{
    exerciseConn().removeObject(objectId());
}

bool DtHlaPublisherBase::tick()
{
    DtStateRepository& state = *stateRepository();
    if (state.changes().empty())
    {
        return true;
    }
    DtAttributeValues values;
    refusals().clear();
    const bool complete = myEncoder->encodeChanges(state, values, &refusals());
    state.clearChanges();
    return (values.empty() || exerciseConn().updateObject(objectId(), values, &refusals())) && complete;
}

void DtHlaPublisherBase::setEncoder(std::unique_ptr<DtHlaStateEncoder> encoder)
{
    if (encoder)
    {
        myEncoder = std::move(encoder);
    }
}

DtDisPublisherBase::DtDisPublisherBase(DtExerciseConn* exerciseConn, int pduKind, const std::string& name,
                                       std::unique_ptr<DtStateRepository> state,
                                       std::unique_ptr<DtStateEncoder> encoder)
    : DtPublisherBase(exerciseConn, exerciseConn->newObjectId(), std::move(state)),
      myPduKind(pduKind),
      myName(name),
      myEncoder(std::move(encoder)),
      myHeartbeat(std::chrono::seconds(5)),
      myLastSending(),
      myIsKnown(false)
{
}

DtDisPublisherBase::~DtDisPublisherBase()
{
    if (myIsKnown)
    {
        DtStateMsg message = emptyMessage();
        message.setRemoval(true);
        send(message);
    }
}

bool DtDisPublisherBase::tick()
{
    if (!isDue())
    {
        return true;
    }
    DtStateMsg message = emptyMessage();
    refusals().clear();
    const bool complete = myEncoder->encodeState(*stateRepository(), message, &refusals());
    stateRepository()->clearChanges();
    if (send(message))
    {
        return complete;
    }
    DtAttributeValues values;
    message.values(values);
    for (DtAttributeValues::const_iterator value = values.begin(); value != values.end(); ++value)
    {
        refusals().push_back(value->first);
    }
    return false;
}

void DtDisPublisherBase::setHeartbeat(double seconds)
{
    // Anything else would not fit the clock, and means "never".
    const double time = seconds >= 0 && seconds < 1e8 ? seconds : 1e8;
    myHeartbeat = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(time));
}

void DtDisPublisherBase::setEncoder(std::unique_ptr<DtStateEncoder> encoder)
{
    if (encoder)
    {
        myEncoder = std::move(encoder);
    }
}

bool DtDisPublisherBase::isDue() const
{
    return !myIsKnown || !stateRepository()->changes().empty() || Clock::now() - myLastSending >= myHeartbeat;
}

bool DtDisPublisherBase::send(const DtStateMsg& message)
{
    DtValueBuffer octets;
    if (!DtNetPduHeader::isKind(myPduKind) || !message.encodeMessage(octets) || !exerciseConn().sendMessage(octets))
    {
        return false;
    }
    myLastSending = Clock::now();
    myIsKnown = true;
    return true;
}

DtStateMsg DtDisPublisherBase::emptyMessage() const
{
    DtStateMsg message;
    message.setPduKind(myPduKind);
    message.setObjectId(objectId());
    message.setObjectName(myName);
    return message;
}
