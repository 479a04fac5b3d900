#include "exerciseLink.h"

#include <algorithm>
#include <random>

#include <qx/exerciseConn.h>

namespace
{
const int theMostDatagrams = 512;                  // taken in one go
const std::chrono::milliseconds theLongestNap(20); // the shortest heartbeat

// The slot makes the number unique at any one time, chance makes it differ from that of an earlier connection there.
DtU32 numberOfSender(int slot)
{
    std::random_device device;
    const DtU32 time = static_cast<DtU32>(std::chrono::system_clock::now().time_since_epoch().count());
    const DtU32 number = (static_cast<DtU32>(device()) ^ time) | 0x10u;
    return (number & ~0xFu) | static_cast<DtU32>(slot & 0xF);
}

std::chrono::steady_clock::duration durationOf(double seconds)
{
    return std::chrono::duration_cast<std::chrono::steady_clock::duration>(std::chrono::duration<double>(seconds));
}

DtObjectContent contentOf(DtExerciseObjectId id, const std::string& fullClassName, const std::string& name)
{
    const DtObjectContent content = {static_cast<DtU32>(id), fullClassName, name, DtAttributeValues()};
    return content;
}

// Fills one page, object by object and value by value, until it is full.
class PageFiller
{
public:
    explicit PageFiller(const DtPlace& from) : myPage(), myOctets(0)
    {
        myPage.from = from;
        myPage.to = from;
        myPage.isLast = true;
    }

    // False if the object does not go in, or not with all its values behind the page's beginning.
    bool put(DtU32 number, const DtExercise::Object& object)
    {
        const bool continued = number == myPage.from.object;
        DtAttributeValues::const_iterator value =
            continued ? object.values.upper_bound(myPage.from.attribute) : object.values.begin();
        const std::size_t octets = 16 + object.fullClassName.size() + object.name.size();
        if (!myPage.objects.empty() && myOctets + octets > DtExerciseConn::theMaximumMessage)
        {
            return finish();
        }
        begin(contentOf(number, object.fullClassName, object.name), octets);
        for (; value != object.values.end(); ++value)
        {
            if (!put(*value))
            {
                return finish();
            }
        }
        return true;
    }

    const DtPage& page() const { return myPage; }

private:
    void begin(const DtObjectContent& content, std::size_t octets)
    {
        myPage.objects.push_back(content);
        if (myPage.to.object != content.object)
        {
            myPage.to.object = content.object;
            myPage.to.attribute.clear();
        }
        myOctets += octets;
    }

    // The first value always goes, so that every page gets on.
    bool put(const DtAttributeValues::value_type& value)
    {
        DtObjectContent& content = myPage.objects.back();
        const bool isFirst = myPage.objects.size() == 1 && content.values.empty();
        if (!isFirst && myOctets + DtOctetsOfValue(value) > DtExerciseConn::theMaximumMessage)
        {
            return false;
        }
        content.values.insert(value);
        myPage.to.attribute = value.first;
        myOctets += DtOctetsOfValue(value);
        return true;
    }

    bool finish()
    {
        myPage.isLast = false;
        return false;
    }

    DtPage myPage;
    std::size_t myOctets;
};
} // namespace

DtExerciseLink::DtExerciseLink(const std::string& name, unsigned short firstPort, const DtExercise& exercise,
                               DtExerciseMember& member)
    : myName(name),
      myFirstPort(firstPort),
      myExercise(exercise),
      myMember(member),
      myPort(firstPort),
      mySender(numberOfSender(myPort.slot())),
      myLastObject(0),
      myObjectCount(0),
      mySequence(0),
      myHeartbeat(std::chrono::seconds(2)),
      myLastSign()
{
    if (isOpen())
    {
        tellAll(DtDatagram::Alive, DtValueBuffer());
    }
}

DtExerciseLink::~DtExerciseLink()
{
    if (isOpen())
    {
        tellAll(DtDatagram::Bye, DtValueBuffer());
    }
}

void DtExerciseLink::setHeartbeat(double seconds)
{
    myHeartbeat = durationOf(seconds > 0.02 ? std::min(seconds, 60.0) : 0.02);
    tellAll(DtDatagram::Alive, DtValueBuffer());
}

DtExerciseObjectId DtExerciseLink::newObjectId()
{
    return (static_cast<DtExerciseObjectId>(mySender) << 32) | ++myLastObject;
}

bool DtExerciseLink::hasRoom() const
{
    return myObjectCount < DtExerciseConn::theMostObjects;
}

DtAttributeValues DtExerciseLink::sendable(const DtExercise::Object& object, const DtAttributeValues& values,
                                           std::vector<std::string>* refused)
{
    DtAttributeValues good;
    std::size_t count = object.values.size();
    for (DtAttributeValues::const_iterator value = values.begin(); value != values.end(); ++value)
    {
        const bool isNew = object.values.count(value->first) == 0;
        if (DtOctetsOfValue(*value) <= DtExerciseConn::theMaximumMessage &&
            value->first.size() <= DtExerciseConn::theLongestAttributeName &&
            (!isNew || count < DtExerciseConn::theMostAttributes))
        {
            good.insert(*value);
            count += isNew ? 1 : 0;
        }
        else if (refused != nullptr)
        {
            refused->push_back(value->first);
        }
    }
    return good;
}

bool DtExerciseLink::canSend(const std::string& fullClassName, const DtAttributeValues& values)
{
    return DtEncodeInteraction({0, fullClassName, std::string(), values}).size() <= DtExerciseConn::theMaximumMessage;
}

void DtExerciseLink::tellAdded(DtExerciseObjectId id, const std::string& fullClassName, const std::string& name)
{
    ++myObjectCount;
    tellAll(DtDatagram::Added, DtEncodeAdded(contentOf(id, fullClassName, name)));
}

void DtExerciseLink::tellUpdated(DtExerciseObjectId id, const DtAttributeValues& values)
{
    DtObjectContent content = contentOf(id, std::string(), std::string());
    std::size_t octets = 0;
    for (DtAttributeValues::const_iterator value = values.begin(); value != values.end(); ++value)
    {
        if (octets + DtOctetsOfValue(*value) > DtExerciseConn::theMaximumMessage)
        {
            tellAll(DtDatagram::Updated, DtEncodeUpdated(content));
            content.values.clear();
            octets = 0;
        }
        content.values.insert(*value);
        octets += DtOctetsOfValue(*value);
    }
    tellAll(DtDatagram::Updated, DtEncodeUpdated(content));
}

void DtExerciseLink::tellRemoved(DtExerciseObjectId id)
{
    --myObjectCount;
    tellAll(DtDatagram::Removed, DtEncodeRemoved(contentOf(id, std::string(), std::string())));
}

void DtExerciseLink::sendInteraction(const std::string& fullClassName, const DtAttributeValues& values)
{
    const DtObjectContent content = {0, fullClassName, std::string(), values};
    tellAll(DtDatagram::Interaction, DtEncodeInteraction(content));
}

void DtExerciseLink::sendMessage(const DtValueBuffer& octets)
{
    tellAll(DtDatagram::Message, octets);
}

void DtExerciseLink::attend()
{
    const bool isAllTaken = takeDatagrams();
    for (int slot = 0; slot < DtUdpPort::theSlots; ++slot)
    {
        DtPlace place;
        // What is still to be read may be its sign of life.
        if (isAllTaken && myPeers[slot].isSilent())
        {
            myPeers[slot].forget(myMember);
        }
        if (myPeers[slot].wantsPage(place))
        {
            myPort.send(slot, datagramOf(DtDatagram::Ask, DtEncodePlace(place)));
        }
    }
    if (Clock::now() - myLastSign >= myHeartbeat)
    {
        tellAll(DtDatagram::Alive, DtValueBuffer());
    }
}

void DtExerciseLink::wait(Clock::duration time)
{
    myPort.wait(std::min<Clock::duration>(time, theLongestNap));
}

void DtExerciseLink::addStanding(DtExercise::Objects& objects) const
{
    for (int slot = 0; slot < DtUdpPort::theSlots; ++slot)
    {
        objects.insert(myPeers[slot].objects().begin(), myPeers[slot].objects().end());
    }
}

DtValueBuffer DtExerciseLink::datagramOf(DtDatagram::Kind kind, const DtValueBuffer& content)
{
    const std::chrono::milliseconds heartbeat = std::chrono::duration_cast<std::chrono::milliseconds>(myHeartbeat);
    const DtDatagram datagram = {kind, mySender, mySequence, static_cast<DtU32>(heartbeat.count()), content};
    DtValueBuffer octets;
    DtEncodeDatagram(datagram, myName, octets);
    return octets;
}

void DtExerciseLink::tellAll(DtDatagram::Kind kind, const DtValueBuffer& content)
{
    mySequence += DtDatagram::isCounted(kind) ? 1 : 0;
    myPort.sendToOthers(datagramOf(kind, content));
    myLastSign = Clock::now();
}

// False if there may be more.
bool DtExerciseLink::takeDatagrams()
{
    DtValueBuffer octets;
    for (int count = 0; count < theMostDatagrams; ++count)
    {
        int slot = -1;
        if (!myPort.receive(octets, slot))
        {
            return true;
        }
        DtDatagram datagram;
        if (slot >= 0 && DtDecodeDatagram(octets, myName, datagram))
        {
            take(datagram, slot);
        }
    }
    return false;
}

void DtExerciseLink::take(const DtDatagram& datagram, int slot)
{
    if (static_cast<int>(datagram.sender & 0xF) != slot)
    {
        return;
    }
    myPeers[slot].take(datagram, myMember);
    DtPlace place;
    if (datagram.kind == DtDatagram::Ask && DtDecodePlace(datagram.content, place))
    {
        answer(place, slot);
    }
}

void DtExerciseLink::answer(const DtPlace& place, int slot)
{
    myPort.send(slot, datagramOf(DtDatagram::Page, DtEncodePage(pageFrom(place))));
}

DtPage DtExerciseLink::pageFrom(const DtPlace& place) const
{
    PageFiller filler(place);
    const DtExerciseObjectId from = (static_cast<DtExerciseObjectId>(mySender) << 32) | place.object;
    const DtExercise::Objects& objects = myExercise.objects();
    for (DtExercise::Objects::const_iterator object = objects.lower_bound(from); object != objects.end(); ++object)
    {
        if (object->second.owner == &myMember && !filler.put(static_cast<DtU32>(object->first), object->second))
        {
            break;
        }
    }
    return filler.page();
}
