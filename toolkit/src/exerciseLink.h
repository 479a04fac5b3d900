#ifndef QX_SRC_EXERCISE_LINK_H
#define QX_SRC_EXERCISE_LINK_H

#include <string>
#include <vector>

#include "exercisePeer.h"
#include "udpPort.h"

// A connection's way to those of other processes.
//
// Tells them what its member does, gives the member what they tell, and answers them when they ask for the member's
// objects. All of it happens in the calls; attend() is the one that reads.
class DtExerciseLink
{
public:
    typedef std::chrono::steady_clock Clock;

    // The exercise is where the member's own objects stand. Both must outlive the link.
    DtExerciseLink(const std::string& name, unsigned short firstPort, const DtExercise& exercise,
                   DtExerciseMember& member);
    // Says goodbye.
    ~DtExerciseLink();

    DtExerciseLink(const DtExerciseLink&) = delete;
    DtExerciseLink& operator=(const DtExerciseLink&) = delete;

    bool isOpen() const { return myPort.isOpen(); }
    unsigned short port() const { return myPort.port(); }
    unsigned short firstPort() const { return myFirstPort; }
    void setHeartbeat(double seconds);

    // Unlike those of an exercise inside a process these begin at 2^32, each connection with a range of its own.
    DtExerciseObjectId newObjectId();

    // False if the member has as many objects as others would take.
    bool hasRoom() const;
    // What fits in datagrams; the names of the rest are added to `refused`, if given.
    static DtAttributeValues sendable(const DtExercise::Object& object, const DtAttributeValues& values,
                                      std::vector<std::string>* refused);
    static bool canSend(const std::string& fullClassName, const DtAttributeValues& values);

    void tellAdded(DtExerciseObjectId id, const std::string& fullClassName, const std::string& name);
    // The values have to be sendable.
    void tellUpdated(DtExerciseObjectId id, const DtAttributeValues& values);
    void tellRemoved(DtExerciseObjectId id);
    void sendInteraction(const std::string& fullClassName, const DtAttributeValues& values);
    void sendMessage(const DtValueBuffer& octets);

    // Takes in what has come, up to a bound, and sends what is due: pages, questions, signs of life.
    void attend();
    // Until it is worth while to attend again, or the time has passed.
    void wait(Clock::duration time);

    // Adds the objects of the others.
    void addStanding(DtExercise::Objects& objects) const;

private:
    DtValueBuffer datagramOf(DtDatagram::Kind kind, const DtValueBuffer& content);
    void tellAll(DtDatagram::Kind kind, const DtValueBuffer& content);
    bool takeDatagrams();
    void take(const DtDatagram& datagram, int slot);
    void answer(const DtPlace& place, int slot);
    DtPage pageFrom(const DtPlace& place) const;

    const std::string myName;
    const unsigned short myFirstPort;
    const DtExercise& myExercise;
    DtExerciseMember& myMember;
    DtUdpPort myPort;
    DtU32 mySender;
    DtU32 myLastObject;
    std::size_t myObjectCount; // of those that stand
    DtU32 mySequence;
    Clock::duration myHeartbeat;
    Clock::time_point myLastSign;
    DtExercisePeer myPeers[DtUdpPort::theSlots]; // by slot; the one at our own stays unknown
};

#endif
