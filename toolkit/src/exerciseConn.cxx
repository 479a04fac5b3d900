#include <qx/exerciseConn.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "exerciseLink.h"

const std::size_t DtExerciseConn::theMaximumMessage;
const std::size_t DtExerciseConn::theMostObjects;
const std::size_t DtExerciseConn::theMostAttributes;
const std::size_t DtExerciseConn::theLongestName;
const std::size_t DtExerciseConn::theLongestAttributeName;
const std::size_t DtExerciseConn::theMostEvents;
const std::size_t DtExerciseConn::theMostQueuedOctets;

namespace
{
typedef std::chrono::steady_clock Clock;

const double theLongestWait = 1e6; // in seconds, some days

Clock::duration durationOf(double seconds)
{
    const double time = seconds > 0 ? std::min(seconds, theLongestWait) : 0;
    return std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(time));
}

// About what the event takes in memory.
std::size_t octetsOf(const DtExerciseEvent& event)
{
    std::size_t octets = sizeof event + event.fullClassName.size() + event.objectName.size() + event.octets.size();
    for (DtAttributeValues::const_iterator value = event.values.begin(); value != event.values.end(); ++value)
    {
        octets += sizeof *value + value->first.size() + value->second.size();
    }
    return octets;
}

void tell(DtExerciseObserver& observer, const DtExerciseEvent& what)
{
    switch (what.kind)
    {
    case DtExerciseEvent::ObjectAdded:
        observer.objectAdded(what.object, what.objectName);
        break;
    case DtExerciseEvent::ObjectUpdated:
        observer.objectUpdated(what.object, what.values);
        break;
    case DtExerciseEvent::ObjectRemoved:
        observer.objectRemoved(what.object);
        break;
    default:
        break;
    }
}

bool isOfObject(const DtExerciseEvent& event)
{
    return event.kind == DtExerciseEvent::ObjectAdded || event.kind == DtExerciseEvent::ObjectUpdated ||
           event.kind == DtExerciseEvent::ObjectRemoved;
}
} // namespace

DtExerciseConn::DtExerciseConn(const std::string& exerciseName) : DtExerciseConn(exerciseName, 0)
{
}

DtExerciseConn::DtExerciseConn(const std::string& exerciseName, unsigned short firstPort)
    : myExercise(DtExercise::named(exerciseName)),
      myLink(),
      myEvents(),
      myQueuedOctets(0),
      myRanOver(false),
      myToldObjects(),
      myRegistrations(),
      myLastKey(0)
{
    if (firstPort != 0 && exerciseName.size() <= theLongestExerciseName)
    {
        myLink.reset(new DtExerciseLink(exerciseName, firstPort, *myExercise, *this));
    }
    if (myLink && !myLink->isOpen())
    {
        myLink.reset();
    }
    myExercise->join(this);
}

DtExerciseConn::~DtExerciseConn()
{
    myExercise->leave(this);
}

unsigned short DtExerciseConn::port() const
{
    return myLink ? myLink->port() : 0;
}

void DtExerciseConn::setHeartbeat(double seconds)
{
    if (myLink)
    {
        myLink->setHeartbeat(seconds);
    }
}

DtExerciseObjectId DtExerciseConn::newObjectId()
{
    return myLink ? myLink->newObjectId() : myExercise->newObjectId();
}

DtExerciseObjectId DtExerciseConn::addObject(const std::string& fullClassName, const std::string& name)
{
    if (myLink && (fullClassName.size() > theLongestName || name.size() > theLongestName || !myLink->hasRoom()))
    {
        return 0;
    }
    const DtExerciseObjectId id = newObjectId();
    myExercise->addObject(this, id, fullClassName, name);
    if (myLink)
    {
        myLink->attend();
        myLink->tellAdded(id, fullClassName, name);
    }
    return id;
}

bool DtExerciseConn::updateObject(DtExerciseObjectId id, const DtAttributeValues& values,
                                  std::vector<std::string>* refused)
{
    const DtExercise::Object* const object = myExercise->objectOf(this, id);
    if (object == nullptr)
    {
        return false;
    }
    if (!myLink)
    {
        myExercise->updateObject(id, values);
        return true;
    }
    const DtAttributeValues sent = DtExerciseLink::sendable(*object, values, refused);
    if (!sent.empty() || values.empty())
    {
        myExercise->updateObject(id, sent);
        myLink->attend();
        myLink->tellUpdated(id, sent);
    }
    return sent.size() == values.size();
}

void DtExerciseConn::removeObject(DtExerciseObjectId id)
{
    if (myExercise->objectOf(this, id) == nullptr)
    {
        return;
    }
    myExercise->removeObject(id);
    if (myLink)
    {
        myLink->attend();
        myLink->tellRemoved(id);
    }
}

void DtExerciseConn::addObserver(DtExerciseObserver* observer, const std::string& fullClassName)
{
    Registration entry = Registration();
    entry.observer = observer;
    entry.wants = [fullClassName](const DtExerciseEvent& event)
    { return isOfObject(event) && DtExercise::isKindOf(event.fullClassName, fullClassName); };
    entry.deliver = [observer](const DtExerciseEvent& event) { tell(*observer, event); };
    const Key key = enter(entry);
    queueStanding(key, key);
}

void DtExerciseConn::removeObserver(const DtExerciseObserver* observer)
{
    removeObserverEntries(observer);
}

bool DtExerciseConn::sendInteraction(const DtInteractionWithEncDec& interaction)
{
    DtExerciseEvent event = {DtExerciseEvent::InteractionSent,
                             0,
                             interaction.fullClassName(),
                             std::string(),
                             DtAttributeValues(),
                             DtValueBuffer()};
    const bool complete = interaction.encode(event.values);
    if (!myLink)
    {
        myExercise->tellOthers(this, event);
        return complete;
    }
    if (!DtExerciseLink::canSend(event.fullClassName, event.values))
    {
        return false;
    }
    myExercise->tellOthers(this, event);
    myLink->attend();
    myLink->sendInteraction(event.fullClassName, event.values);
    return complete;
}

bool DtExerciseConn::sendMessage(const DtValueBuffer& octets)
{
    if (octets.size() > theMaximumMessage)
    {
        return false;
    }
    const DtExerciseEvent event = {DtExerciseEvent::MessageSent, 0,     std::string(), std::string(),
                                   DtAttributeValues(),          octets};
    myExercise->tellOthers(this, event);
    if (myLink)
    {
        myLink->attend();
        myLink->sendMessage(octets);
    }
    return true;
}

void DtExerciseConn::addMessageObserver(DtMessageObserver* observer)
{
    Registration entry = Registration();
    entry.observer = observer;
    entry.wants = [](const DtExerciseEvent& event) { return event.kind == DtExerciseEvent::MessageSent; };
    entry.deliver = [observer](const DtExerciseEvent& event) { observer->messageReceived(event.octets); };
    enter(entry);
}

void DtExerciseConn::removeMessageObserver(const DtMessageObserver* observer)
{
    removeObserverEntries(observer);
}

bool DtExerciseConn::sendPdu(int kind, const DtValueBuffer& body)
{
    DtNetPduHeader header;
    header.setPduKind(kind);
    DtValueBuffer octets;
    return DtNetPduHeader::isKind(kind) && DtEncodePdu(header, body, octets) && sendMessage(octets);
}

bool DtExerciseConn::sendPdu(int kind, const DtInteraction& interaction, const DtInteractionEncoder& encoder)
{
    DtAttributeValues values;
    const bool complete = encoder.encode(interaction, values);
    DtValueBuffer body;
    DtEncodeValues(values, body);
    return sendPdu(kind, body) && complete;
}

void DtExerciseConn::addPduObserver(DtPduObserver* observer, int kind)
{
    Registration entry = Registration();
    entry.observer = observer;
    entry.wants = [kind](const DtExerciseEvent& event) { return isPduOf(event, kind); };
    entry.deliver = [observer](const DtExerciseEvent& event)
    {
        DtNetPduHeader header;
        DtValueBuffer body;
        if (DtDecodePdu(event.octets, header, body))
        {
            observer->pduReceived(header, body);
        }
    };
    entry.drained = [observer]() { observer->inputDrained(); };
    enter(entry);
}

void DtExerciseConn::removePduObserver(const DtPduObserver* observer)
{
    removeObserverEntries(observer);
}

void DtExerciseConn::drainInput()
{
    if (myLink)
    {
        myLink->attend();
    }
    if (myRanOver)
    {
        queueEverythingAnew();
    }
    std::deque<Event> events;
    events.swap(myEvents);
    myQueuedOctets = 0;
    for (std::size_t index = 0; index < events.size(); ++index)
    {
        deliver(events[index]);
    }
    tellDrained();
}

bool DtExerciseConn::waitForInput(double seconds)
{
    const Clock::time_point end = Clock::now() + durationOf(seconds);
    for (;;)
    {
        if (myLink)
        {
            myLink->attend();
        }
        if (!myEvents.empty() || myRanOver)
        {
            return true;
        }
        const Clock::time_point now = Clock::now();
        if (now >= end)
        {
            return false;
        }
        if (myLink)
        {
            myLink->wait(end - now);
        }
        else
        {
            std::this_thread::sleep_for(end - now);
        }
    }
}

bool DtExerciseConn::isPduOf(const DtExerciseEvent& event, int kind)
{
    DtNetPduHeader header;
    return event.kind == DtExerciseEvent::MessageSent && header.decodeHeader(event.octets) && header.pduKind() == kind;
}

bool DtExerciseConn::takeParameters(const DtExerciseEvent& event, DtAttributeValues& values)
{
    DtNetPduHeader header;
    DtValueBuffer body;
    return DtDecodePdu(event.octets, header, body) && DtDecodeValues(body, values);
}

DtExerciseConn::Key DtExerciseConn::enter(Registration entry)
{
    entry.key = ++myLastKey;
    myRegistrations.push_back(entry);
    return entry.key;
}

void DtExerciseConn::removeEntry(const Registration& like)
{
    for (std::size_t index = 0; index < myRegistrations.size(); ++index)
    {
        const Registration& entry = myRegistrations[index];
        if (entry.observer == nullptr && entry.pduKind == like.pduKind && entry.callback == like.callback &&
            entry.user == like.user)
        {
            myRegistrations.erase(myRegistrations.begin() + static_cast<std::ptrdiff_t>(index));
            return;
        }
    }
}

void DtExerciseConn::removeObserverEntries(const void* observer)
{
    for (std::size_t index = myRegistrations.size(); index-- > 0;)
    {
        if (myRegistrations[index].observer == observer && observer != nullptr)
        {
            myRegistrations.erase(myRegistrations.begin() + static_cast<std::ptrdiff_t>(index));
        }
    }
}

const DtExerciseConn::Registration* DtExerciseConn::find(Key key) const
{
    for (std::size_t index = 0; index < myRegistrations.size(); ++index)
    {
        if (myRegistrations[index].key == key)
        {
            return &myRegistrations[index];
        }
    }
    return nullptr;
}

std::vector<DtExerciseConn::Key> DtExerciseConn::keysFor(const Event& event) const
{
    std::vector<Key> keys;
    for (std::size_t index = 0; index < myRegistrations.size(); ++index)
    {
        const Registration& entry = myRegistrations[index];
        if (event.first <= entry.key && entry.key <= event.last && entry.wants(event.what))
        {
            keys.push_back(entry.key);
        }
    }
    return keys;
}

void DtExerciseConn::receive(const DtExerciseEvent& what)
{
    const Event event = {what, 0, myLastKey};
    push(event);
}

unsigned int DtExerciseConn::group() const
{
    return myLink ? myLink->firstPort() : 0;
}

void DtExerciseConn::push(const Event& event)
{
    const std::size_t octets = octetsOf(event.what);
    if (!myRanOver && myEvents.size() < theMostEvents && myQueuedOctets + octets <= theMostQueuedOctets)
    {
        myEvents.push_back(event);
        myQueuedOctets += octets;
        return;
    }
    myRanOver = true;
    myEvents.clear();
    myQueuedOctets = 0;
}

// As many as there are objects, so no bound is needed.
void DtExerciseConn::queueStanding(Key first, Key last)
{
    DtExercise::Objects objects;
    const DtExercise::Objects& here = myExercise->objects();
    for (DtExercise::Objects::const_iterator object = here.begin(); object != here.end(); ++object)
    {
        if (DtExercise::passes(object->second.owner, this))
        {
            objects.insert(*object);
        }
    }
    if (myLink)
    {
        myLink->addStanding(objects);
    }
    for (DtExercise::Objects::const_iterator object = objects.begin(); object != objects.end(); ++object)
    {
        Event event = {DtExercise::eventOf(DtExerciseEvent::ObjectAdded, object->first, object->second), first, last};
        myEvents.push_back(event);
        event.what.kind = DtExerciseEvent::ObjectUpdated;
        event.what.values = object->second.values;
        myEvents.push_back(event);
    }
}

// In place of what was lost: removals of all that observers know of, for those that are gone, and all that stands.
void DtExerciseConn::queueEverythingAnew()
{
    myRanOver = false;
    queueStanding(0, myLastKey);
    std::map<DtExerciseObjectId, std::string> gone = myToldObjects;
    for (std::size_t index = 0; index < myEvents.size(); ++index)
    {
        gone.erase(myEvents[index].what.object);
    }
    typedef std::map<DtExerciseObjectId, std::string>::const_iterator Iterator;
    for (Iterator object = gone.begin(); object != gone.end(); ++object)
    {
        const DtExerciseEvent removal = {DtExerciseEvent::ObjectRemoved,
                                         object->first,
                                         object->second,
                                         std::string(),
                                         DtAttributeValues(),
                                         DtValueBuffer()};
        const Event event = {removal, 0, myLastKey};
        myEvents.push_front(event);
    }
}

// Callbacks may add and remove registrations, so each is looked up again by its key before it is called, and what is
// called is a copy.
void DtExerciseConn::deliver(const Event& event)
{
    remember(event.what);
    const std::vector<Key> keys = keysFor(event);
    for (std::size_t index = 0; index < keys.size(); ++index)
    {
        const Registration* const entry = find(keys[index]);
        if (entry != nullptr)
        {
            const std::function<void(const DtExerciseEvent&)> handOver = entry->deliver;
            handOver(event.what);
        }
    }
}

void DtExerciseConn::remember(const DtExerciseEvent& what)
{
    if (what.kind == DtExerciseEvent::ObjectAdded)
    {
        myToldObjects[what.object] = what.fullClassName;
    }
    else if (what.kind == DtExerciseEvent::ObjectRemoved)
    {
        myToldObjects.erase(what.object);
    }
}

void DtExerciseConn::tellDrained()
{
    std::vector<Key> keys;
    for (std::size_t index = 0; index < myRegistrations.size(); ++index)
    {
        keys.push_back(myRegistrations[index].key);
    }
    for (std::size_t index = 0; index < keys.size(); ++index)
    {
        const Registration* const entry = find(keys[index]);
        if (entry != nullptr && entry->drained)
        {
            const std::function<void()> call = entry->drained;
            call();
        }
    }
}
