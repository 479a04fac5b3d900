#include <qx/disReflectedList.h>
#include <qx/hlaReflectedList.h>

DtHlaReflectedList::DtHlaReflectedList(DtExerciseConn* exerciseConn, const std::string& fullClassName)
    : myExerciseConn(exerciseConn)
{
    exerciseConn->addObserver(this, fullClassName);
}

DtHlaReflectedList::~DtHlaReflectedList()
{
    myExerciseConn->removeObserver(this);
}

void DtHlaReflectedList::objectAdded(DtExerciseObjectId id, const std::string& name)
{
    if (find(id) == nullptr)
    {
        callBack(Addition, insert(id, name));
    }
}

void DtHlaReflectedList::objectUpdated(DtExerciseObjectId id, const DtAttributeValues& values)
{
    DtHlaReflectedObject* const object = find(id);
    if (object != nullptr)
    {
        object->update(values);
        callBack(Update, *object);
    }
}

void DtHlaReflectedList::objectRemoved(DtExerciseObjectId id)
{
    remove(id);
}

DtDisReflectedList::DtDisReflectedList(DtExerciseConn* exerciseConn, int pduKind)
    : myExerciseConn(exerciseConn), myTimeOut(std::chrono::seconds(12)), myLastHeard()
{
    exerciseConn->addPduObserver(this, pduKind);
}

DtDisReflectedList::~DtDisReflectedList()
{
    myExerciseConn->removePduObserver(this);
}

void DtDisReflectedList::setTimeOut(double seconds)
{
    // Anything else would not fit the clock, and means "never".
    const double time = seconds > 0 && seconds < 1e8 ? seconds : 0;
    myTimeOut = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(time));
}

void DtDisReflectedList::pduReceived(const DtNetPduHeader& header, const DtValueBuffer& body)
{
    DtStateMsg message;
    if (!message.decodeMessage(header, body) || message.objectId() == 0)
    {
        return;
    }
    if (message.isRemoval())
    {
        remove(message.objectId());
        myLastHeard.erase(message.objectId());
        return;
    }
    DtDisReflectedObject* const known = find(message.objectId());
    if (known == nullptr && count() >= DtExerciseConn::theMostObjects)
    {
        return;
    }
    DtDisReflectedObject& object = known != nullptr ? *known : insert(message.objectId(), message.objectName());
    myLastHeard[message.objectId()] = Clock::now();
    object.update(message);
    if (known == nullptr)
    {
        callBack(Addition, object);
    }
    callBack(Update, object);
}

void DtDisReflectedList::inputDrained()
{
    const Clock::time_point now = Clock::now();
    typedef std::map<DtExerciseObjectId, Clock::time_point>::iterator Iterator;
    for (Iterator object = myLastHeard.begin(); object != myLastHeard.end();)
    {
        const Iterator here = object++;
        if (myTimeOut != Clock::duration::zero() && now - here->second > myTimeOut)
        {
            remove(here->first);
            myLastHeard.erase(here);
        }
    }
}
