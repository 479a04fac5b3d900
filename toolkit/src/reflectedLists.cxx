#include <qx/disReflectedList.h>
#include <qx/hlaReflectedList.h>
#include <qx/packets/pduHeader.h>

template <class ReflectedObject>
DtReflectedListBase<ReflectedObject>::DtReflectedListBase() : myObjects(), myCallbacks()
{
}

template <class ReflectedObject>
DtReflectedListBase<ReflectedObject>::~DtReflectedListBase() = default;

template <class ReflectedObject>
std::size_t DtReflectedListBase<ReflectedObject>::count() const
{
    return myObjects.size();
}

template <class ReflectedObject>
ReflectedObject* DtReflectedListBase<ReflectedObject>::find(DtExerciseObjectId id) const
{
    const typename Objects::const_iterator object = myObjects.find(id);
    return object == myObjects.end() ? nullptr : object->second.get();
}

template <class ReflectedObject>
ReflectedObject* DtReflectedListBase<ReflectedObject>::findAfter(DtExerciseObjectId id) const
{
    const typename Objects::const_iterator object = myObjects.upper_bound(id);
    return object == myObjects.end() ? nullptr : object->second.get();
}

template <class ReflectedObject>
void DtReflectedListBase<ReflectedObject>::enter(const Callback& entry)
{
    myCallbacks.push_back(entry);
}

template <class ReflectedObject>
void DtReflectedListBase<ReflectedObject>::takeOut(const Callback& like)
{
    for (std::size_t index = 0; index < myCallbacks.size(); ++index)
    {
        const Callback& entry = myCallbacks[index];
        if (entry.occasion == like.occasion && entry.function == like.function && entry.user == like.user)
        {
            myCallbacks.erase(myCallbacks.begin() + static_cast<std::ptrdiff_t>(index));
            return;
        }
    }
}

template <class ReflectedObject>
ReflectedObject& DtReflectedListBase<ReflectedObject>::insert(DtExerciseObjectId id, const std::string& name)
{
    std::unique_ptr<ReflectedObject>& object = myObjects[id];
    object = makeObject(id, name);
    return *object;
}

template <class ReflectedObject>
void DtReflectedListBase<ReflectedObject>::remove(DtExerciseObjectId id)
{
    ReflectedObject* const object = find(id);
    if (object != nullptr)
    {
        callBack(Removal, *object);
        myObjects.erase(id);
    }
}

template <class ReflectedObject>
void DtReflectedListBase<ReflectedObject>::callBack(Occasion occasion, ReflectedObject& object)
{
    const std::vector<Callback> callbacks = myCallbacks;
    for (std::size_t index = 0; index < callbacks.size(); ++index)
    {
        if (callbacks[index].occasion == occasion)
        {
            callbacks[index].call(callbacks[index].function, object, callbacks[index].user);
        }
    }
}

template class DtReflectedListBase<DtHlaReflectedObject>;
template class DtReflectedListBase<DtDisReflectedObject>;

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
