#include <qx/exerciseConn.h>

#include <qx/exercise.h>
#include <qx/packets/pduHeader.h>

#include <algorithm>
#include <chrono>
#include <deque>
#include <functional>
#include <map>
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

bool isPduOf(const DtExerciseEvent& event, int kind)
{
    DtNetPduHeader header;
    return event.kind == DtExerciseEvent::MessageSent && header.decodeHeader(event.octets) && header.pduKind() == kind;
}

bool takeParameters(const DtExerciseEvent& event, DtAttributeValues& values)
{
    DtNetPduHeader header;
    DtValueBuffer body;
    return DtDecodePdu(event.octets, header, body) && DtDecodeValues(body, values);
}
} // namespace

class DtExerciseConn::Own : public DtExerciseMember
{
public:
    typedef unsigned long Key; // of a registration; never used twice, so an event cannot reach a successor

    // Who wants to hear of something. An observer has `observer` set, a callback its callback and kind.
    struct Registration
    {
        Key key;
        const void* observer;
        int pduKind; // -1 for an interaction
        Callback callback;
        std::function<bool(const DtExerciseEvent&)> wants;
        std::function<void(const DtExerciseEvent&)> deliver;
        std::function<void()> drained; // may be empty
    };
    // For the registrations from `first` to `last`: an event does not reach one that was made after it.
    struct Event
    {
        DtExerciseEvent what;
        Key first;
        Key last;
    };

    Own(const std::string& exerciseName, unsigned short firstPort);
    ~Own() override;

    static Registration callbackEntry(int pduKind, const Callback& callback);
    Key enter(Registration entry);
    void removeEntry(const Registration& like);
    void removeObserverEntries(const void* observer);
    const Registration* find(Key key) const;
    std::vector<Key> keysFor(const Event& event) const;

    void receive(const DtExerciseEvent& what) override;
    unsigned int group() const override;

    void push(const Event& event);
    void queueStanding(Key first, Key last);
    void queueEverythingAnew();
    void deliver(const Event& event);
    void remember(const DtExerciseEvent& what);
    void tellDrained();

    std::shared_ptr<DtExercise> myExercise;
    std::unique_ptr<DtExerciseLink> myLink; // null without a port
    std::deque<Event> myEvents;
    std::size_t myQueuedOctets;
    bool myRanOver;
    std::map<DtExerciseObjectId, std::string> myToldObjects; // full class names of those that observers know
    std::vector<Registration> myRegistrations;
    Key myLastKey;
};

DtExerciseConn::DtExerciseConn(const std::string& exerciseName) : DtExerciseConn(exerciseName, 0)
{
}

DtExerciseConn::DtExerciseConn(const std::string& exerciseName, unsigned short firstPort)
    : myOwn(new Own(exerciseName, firstPort))
{
}

DtExerciseConn::~DtExerciseConn() = default;

DtExerciseConn::Own::Own(const std::string& exerciseName, unsigned short firstPort)
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

DtExerciseConn::Own::~Own()
{
    myExercise->leave(this);
}

unsigned short DtExerciseConn::port() const
{
    return myOwn->myLink ? myOwn->myLink->port() : 0;
}

void DtExerciseConn::setHeartbeat(double seconds)
{
    if (myOwn->myLink)
    {
        myOwn->myLink->setHeartbeat(seconds);
    }
}

DtExerciseObjectId DtExerciseConn::newObjectId()
{
    return myOwn->myLink ? myOwn->myLink->newObjectId() : myOwn->myExercise->newObjectId();
}

DtExerciseObjectId DtExerciseConn::addObject(const std::string& fullClassName, const std::string& name)
{
    if (myOwn->myLink &&
        (fullClassName.size() > theLongestName || name.size() > theLongestName || !myOwn->myLink->hasRoom()))
    {
        return 0;
    }
    const DtExerciseObjectId id = newObjectId();
    myOwn->myExercise->addObject(myOwn.get(), id, fullClassName, name);
    if (myOwn->myLink)
    {
        myOwn->myLink->attend();
        myOwn->myLink->tellAdded(id, fullClassName, name);
    }
    return id;
}

bool DtExerciseConn::updateObject(DtExerciseObjectId id, const DtAttributeValues& values,
                                  std::vector<std::string>* refused)
{
    const DtExercise::Object* const object = myOwn->myExercise->objectOf(myOwn.get(), id);
    if (object == nullptr)
    {
        return false;
    }
    if (!myOwn->myLink)
    {
        myOwn->myExercise->updateObject(id, values);
        return true;
    }
    const DtAttributeValues sent = DtExerciseLink::sendable(*object, values, refused);
    if (!sent.empty() || values.empty())
    {
        myOwn->myExercise->updateObject(id, sent);
        myOwn->myLink->attend();
        myOwn->myLink->tellUpdated(id, sent);
    }
    return sent.size() == values.size();
}

void DtExerciseConn::removeObject(DtExerciseObjectId id)
{
    if (myOwn->myExercise->objectOf(myOwn.get(), id) == nullptr)
    {
        return;
    }
    myOwn->myExercise->removeObject(id);
    if (myOwn->myLink)
    {
        myOwn->myLink->attend();
        myOwn->myLink->tellRemoved(id);
    }
}

void DtExerciseConn::addObserver(DtExerciseObserver* observer, const std::string& fullClassName)
{
    Own::Registration entry = Own::Registration();
    entry.observer = observer;
    entry.wants = [fullClassName](const DtExerciseEvent& event)
    { return isOfObject(event) && DtExercise::isKindOf(event.fullClassName, fullClassName); };
    entry.deliver = [observer](const DtExerciseEvent& event) { tell(*observer, event); };
    const Own::Key key = myOwn->enter(entry);
    myOwn->queueStanding(key, key);
}

void DtExerciseConn::removeObserver(const DtExerciseObserver* observer)
{
    myOwn->removeObserverEntries(observer);
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
    if (!myOwn->myLink)
    {
        myOwn->myExercise->tellOthers(myOwn.get(), event);
        return complete;
    }
    if (!DtExerciseLink::canSend(event.fullClassName, event.values))
    {
        return false;
    }
    myOwn->myExercise->tellOthers(myOwn.get(), event);
    myOwn->myLink->attend();
    myOwn->myLink->sendInteraction(event.fullClassName, event.values);
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
    myOwn->myExercise->tellOthers(myOwn.get(), event);
    if (myOwn->myLink)
    {
        myOwn->myLink->attend();
        myOwn->myLink->sendMessage(octets);
    }
    return true;
}

void DtExerciseConn::addMessageObserver(DtMessageObserver* observer)
{
    Own::Registration entry = Own::Registration();
    entry.observer = observer;
    entry.wants = [](const DtExerciseEvent& event) { return event.kind == DtExerciseEvent::MessageSent; };
    entry.deliver = [observer](const DtExerciseEvent& event) { observer->messageReceived(event.octets); };
    myOwn->enter(entry);
}

void DtExerciseConn::removeMessageObserver(const DtMessageObserver* observer)
{
    myOwn->removeObserverEntries(observer);
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
    Own::Registration entry = Own::Registration();
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
    myOwn->enter(entry);
}

void DtExerciseConn::removePduObserver(const DtPduObserver* observer)
{
    myOwn->removeObserverEntries(observer);
}

void DtExerciseConn::drainInput()
{
    if (myOwn->myLink)
    {
        myOwn->myLink->attend();
    }
    if (myOwn->myRanOver)
    {
        myOwn->queueEverythingAnew();
    }
    std::deque<Own::Event> events;
    events.swap(myOwn->myEvents);
    myOwn->myQueuedOctets = 0;
    for (std::size_t index = 0; index < events.size(); ++index)
    {
        myOwn->deliver(events[index]);
    }
    myOwn->tellDrained();
}

bool DtExerciseConn::waitForInput(double seconds)
{
    const Clock::time_point end = Clock::now() + durationOf(seconds);
    for (;;)
    {
        if (myOwn->myLink)
        {
            myOwn->myLink->attend();
        }
        if (!myOwn->myEvents.empty() || myOwn->myRanOver)
        {
            return true;
        }
        const Clock::time_point now = Clock::now();
        if (now >= end)
        {
            return false;
        }
        if (myOwn->myLink)
        {
            myOwn->myLink->wait(end - now);
        }
        else
        {
            std::this_thread::sleep_for(end - now);
        }
    }
}

void DtExerciseConn::enterInteraction(const std::string& fullClassName, const Callback& callback)
{
    Own::Registration entry = Own::callbackEntry(-1, callback);
    entry.wants = [fullClassName](const DtExerciseEvent& event) {
        return event.kind == DtExerciseEvent::InteractionSent &&
               DtExercise::isKindOf(event.fullClassName, fullClassName);
    };
    entry.deliver = [callback](const DtExerciseEvent& event) { callback.deliver(callback, nullptr, event.values); };
    myOwn->enter(entry);
}

void DtExerciseConn::removeInteraction(const Callback& callback)
{
    myOwn->removeEntry(Own::callbackEntry(-1, callback));
}

void DtExerciseConn::enterPdu(int kind, Decoder decoder, const Callback& callback)
{
    Own::Registration entry = Own::callbackEntry(kind, callback);
    entry.wants = [kind](const DtExerciseEvent& event) { return isPduOf(event, kind); };
    entry.deliver = [decoder, callback](const DtExerciseEvent& event)
    {
        DtAttributeValues values;
        if (takeParameters(event, values))
        {
            callback.deliver(callback, decoder, values);
        }
    };
    myOwn->enter(entry);
}

void DtExerciseConn::removePdu(int kind, const Callback& callback)
{
    myOwn->removeEntry(Own::callbackEntry(kind, callback));
}

DtExerciseConn::Own::Registration DtExerciseConn::Own::callbackEntry(int pduKind, const Callback& callback)
{
    Registration entry = Registration();
    entry.pduKind = pduKind;
    entry.callback = callback;
    return entry;
}

DtExerciseConn::Own::Key DtExerciseConn::Own::enter(Registration entry)
{
    entry.key = ++myLastKey;
    myRegistrations.push_back(entry);
    return entry.key;
}

void DtExerciseConn::Own::removeEntry(const Registration& like)
{
    for (std::size_t index = 0; index < myRegistrations.size(); ++index)
    {
        const Registration& entry = myRegistrations[index];
        if (entry.observer == nullptr && entry.pduKind == like.pduKind &&
            entry.callback.function == like.callback.function && entry.callback.user == like.callback.user)
        {
            myRegistrations.erase(myRegistrations.begin() + static_cast<std::ptrdiff_t>(index));
            return;
        }
    }
}

void DtExerciseConn::Own::removeObserverEntries(const void* observer)
{
    for (std::size_t index = myRegistrations.size(); index-- > 0;)
    {
        if (myRegistrations[index].observer == observer && observer != nullptr)
        {
            myRegistrations.erase(myRegistrations.begin() + static_cast<std::ptrdiff_t>(index));
        }
    }
}

const DtExerciseConn::Own::Registration* DtExerciseConn::Own::find(Key key) const
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

std::vector<DtExerciseConn::Own::Key> DtExerciseConn::Own::keysFor(const Event& event) const
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

void DtExerciseConn::Own::receive(const DtExerciseEvent& what)
{
    const Event event = {what, 0, myLastKey};
    push(event);
}

unsigned int DtExerciseConn::Own::group() const
{
    return myLink ? myLink->firstPort() : 0;
}

void DtExerciseConn::Own::push(const Event& event)
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
void DtExerciseConn::Own::queueStanding(Key first, Key last)
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
void DtExerciseConn::Own::queueEverythingAnew()
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
void DtExerciseConn::Own::deliver(const Event& event)
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

void DtExerciseConn::Own::remember(const DtExerciseEvent& what)
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

void DtExerciseConn::Own::tellDrained()
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
