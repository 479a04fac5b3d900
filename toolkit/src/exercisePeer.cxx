#include "exercisePeer.h"

#include <algorithm>

#include <qx/exerciseConn.h>

namespace
{
const std::chrono::milliseconds thePatience(250); // with a page that was asked for
const DtU32 theShortestHeartbeat = 20;            // in milliseconds
const DtU32 theLongestHeartbeat = 60000;
const int theMostHeartbeatsOfSilence = 5;

DtExerciseEvent eventWith(DtExerciseEvent::Kind kind, const DtObjectContent& content, const DtValueBuffer& octets)
{
    const DtExerciseEvent event = {kind, 0, content.fullClassName, std::string(), content.values, octets};
    return event;
}
} // namespace

DtExercisePeer::DtExercisePeer()
    : myIsKnown(false),
      mySender(0),
      mySequence(0),
      myLastHeard(),
      myTimeOut(),
      myObjects(),
      myIsPaging(false),
      myIsPagingAgain(false),
      myPlace(),
      myNextAsking(),
      myUnconfirmed()
{
}

void DtExercisePeer::take(const DtDatagram& datagram, DtExerciseMember& member)
{
    if (!myIsKnown || mySender != datagram.sender)
    {
        forget(member);
        if (datagram.kind != DtDatagram::Bye)
        {
            meet(datagram);
        }
    }
    else if (datagram.sequence != mySequence + (DtDatagram::isCounted(datagram.kind) ? 1 : 0))
    {
        beginPages();
    }
    mySequence = datagram.sequence;
    myLastHeard = Clock::now();
    myTimeOut = theMostHeartbeatsOfSilence *
                std::chrono::milliseconds(
                    std::min(std::max(datagram.heartbeat, DtU32(theShortestHeartbeat)), DtU32(theLongestHeartbeat)));
    takeContent(datagram, member);
}

bool DtExercisePeer::wantsPage(DtPlace& place)
{
    const Clock::time_point now = Clock::now();
    if (!myIsPaging || now < myNextAsking)
    {
        return false;
    }
    myNextAsking = now + thePatience;
    place = myPlace;
    return true;
}

bool DtExercisePeer::isSilent() const
{
    return myIsKnown && Clock::now() - myLastHeard > myTimeOut;
}

void DtExercisePeer::forget(DtExerciseMember& member)
{
    while (!myObjects.empty())
    {
        remove(myObjects.begin()->first, member);
    }
    myIsKnown = false;
    myIsPaging = false;
}

void DtExercisePeer::meet(const DtDatagram& datagram)
{
    myIsKnown = true;
    mySender = datagram.sender;
    beginPages();
}

void DtExercisePeer::beginPages()
{
    myIsPagingAgain = myIsPaging;
    if (myIsPaging)
    {
        return;
    }
    myIsPaging = true;
    myPlace = DtPlace();
    myNextAsking = Clock::now();
    myUnconfirmed.clear();
    for (DtExercise::Objects::const_iterator object = myObjects.begin(); object != myObjects.end(); ++object)
    {
        myUnconfirmed.insert(object->first);
    }
}

void DtExercisePeer::endPages(DtExerciseMember& member)
{
    const std::set<DtExerciseObjectId> gone = myUnconfirmed;
    for (std::set<DtExerciseObjectId>::const_iterator id = gone.begin(); id != gone.end(); ++id)
    {
        remove(*id, member);
    }
    const bool again = myIsPagingAgain;
    myIsPaging = false;
    myIsPagingAgain = false;
    if (again)
    {
        beginPages();
    }
}

// The content of a datagram that is not as its kind wants it is passed over.
void DtExercisePeer::takeContent(const DtDatagram& datagram, DtExerciseMember& member)
{
    DtObjectContent content = DtObjectContent();
    DtPage page;
    switch (datagram.kind)
    {
    case DtDatagram::Added:
        if (DtDecodeAdded(datagram.content, content))
            add(content, member);
        break;
    case DtDatagram::Updated:
        if (DtDecodeUpdated(datagram.content, content))
            update(content, member);
        break;
    case DtDatagram::Removed:
        if (DtDecodeRemoved(datagram.content, content))
            remove(idOf(content.object), member);
        break;
    case DtDatagram::Interaction:
        if (DtDecodeInteraction(datagram.content, content))
            member.receive(eventWith(DtExerciseEvent::InteractionSent, content, DtValueBuffer()));
        break;
    case DtDatagram::Message:
        member.receive(eventWith(DtExerciseEvent::MessageSent, content, datagram.content));
        break;
    case DtDatagram::Page:
        if (DtDecodePage(datagram.content, page))
            takePage(page, member);
        break;
    case DtDatagram::Bye:
        forget(member);
        break;
    default:
        break;
    }
}

// A page that was not asked for, or a second time, is passed over.
void DtExercisePeer::takePage(const DtPage& page, DtExerciseMember& member)
{
    if (!myIsPaging || !(page.from == myPlace))
    {
        return;
    }
    for (std::size_t index = 0; index < page.objects.size(); ++index)
    {
        addPaged(page.objects[index], member);
    }
    if (page.isLast || page.to == page.from)
    {
        endPages(member);
        return;
    }
    myPlace = page.to;
    myNextAsking = Clock::now();
}

// Tells the member only what is new to it: after a loss most of the pages is known.
void DtExercisePeer::addPaged(const DtObjectContent& content, DtExerciseMember& member)
{
    add(content, member);
    myUnconfirmed.erase(idOf(content.object));
    const DtExercise::Objects::const_iterator object = myObjects.find(idOf(content.object));
    if (object == myObjects.end())
    {
        return;
    }
    DtObjectContent news = content;
    const DtAttributeValues& known = object->second.values;
    for (DtAttributeValues::const_iterator value = content.values.begin(); value != content.values.end(); ++value)
    {
        const DtAttributeValues::const_iterator old = known.find(value->first);
        if (old != known.end() && old->second == value->second)
        {
            news.values.erase(value->first);
        }
    }
    if (!news.values.empty())
    {
        update(news, member);
    }
}

void DtExercisePeer::add(const DtObjectContent& content, DtExerciseMember& member)
{
    const DtExerciseObjectId id = idOf(content.object);
    if (content.object == 0 || myObjects.count(id) != 0 || myObjects.size() >= DtExerciseConn::theMostObjects ||
        content.name.size() > DtExerciseConn::theLongestName ||
        content.fullClassName.size() > DtExerciseConn::theLongestName)
    {
        return;
    }
    const DtExercise::Object object = {nullptr, content.fullClassName, content.name, DtAttributeValues()};
    myObjects[id] = object;
    member.receive(DtExercise::eventOf(DtExerciseEvent::ObjectAdded, id, object));
}

void DtExercisePeer::update(const DtObjectContent& content, DtExerciseMember& member)
{
    const DtExercise::Objects::iterator object = myObjects.find(idOf(content.object));
    if (object == myObjects.end())
    {
        return;
    }
    DtExerciseEvent event = DtExercise::eventOf(DtExerciseEvent::ObjectUpdated, object->first, object->second);
    DtAttributeValues& known = object->second.values;
    for (DtAttributeValues::const_iterator value = content.values.begin(); value != content.values.end(); ++value)
    {
        if (known.count(value->first) != 0 || known.size() < DtExerciseConn::theMostAttributes)
        {
            known[value->first] = value->second;
            event.values.insert(*value);
        }
    }
    member.receive(event);
}

void DtExercisePeer::remove(DtExerciseObjectId id, DtExerciseMember& member)
{
    const DtExercise::Objects::iterator found = myObjects.find(id);
    if (found == myObjects.end())
    {
        return;
    }
    const DtExerciseEvent event = DtExercise::eventOf(DtExerciseEvent::ObjectRemoved, id, found->second);
    myObjects.erase(found);
    myUnconfirmed.erase(id);
    member.receive(event);
}

DtExerciseObjectId DtExercisePeer::idOf(DtU32 object) const
{
    return (static_cast<DtExerciseObjectId>(mySender) << 32) | object;
}
