#ifndef QX_SRC_EXERCISE_PEER_H
#define QX_SRC_EXERCISE_PEER_H

#include <chrono>
#include <set>

#include "datagram.h"

// What is known of the connection at one of the other ports: whether there is one, its objects, and what is missing.
//
// Turns datagrams into events for the member. It asks the other side for all objects, page by page, when it meets it
// and whenever the count of datagrams tells that one was lost; a page that does not come is asked for again. What the
// other side sends is taken within the bounds of DtExerciseConn.
class DtExercisePeer
{
public:
    typedef std::chrono::steady_clock Clock;

    DtExercisePeer();

    void take(const DtDatagram& datagram, DtExerciseMember& member);

    // True if a page is to be asked for now: the one from `place`.
    bool wantsPage(DtPlace& place);
    // True if it has been silent for five of its heartbeats.
    bool isSilent() const;
    // Forgets the connection, and its objects are removed.
    void forget(DtExerciseMember& member);

    const DtExercise::Objects& objects() const { return myObjects; }

private:
    void meet(const DtDatagram& datagram);
    void beginPages();
    void endPages(DtExerciseMember& member);
    void takeContent(const DtDatagram& datagram, DtExerciseMember& member);
    void takePage(const DtPage& page, DtExerciseMember& member);

    void add(const DtObjectContent& content, DtExerciseMember& member);
    void update(const DtObjectContent& content, DtExerciseMember& member);
    void remove(DtExerciseObjectId id, DtExerciseMember& member);
    void addPaged(const DtObjectContent& content, DtExerciseMember& member);
    DtExerciseObjectId idOf(DtU32 object) const;

    bool myIsKnown;
    DtU32 mySender;
    DtU32 mySequence; // of the latest datagram
    Clock::time_point myLastHeard;
    Clock::duration myTimeOut;
    DtExercise::Objects myObjects;

    bool myIsPaging;
    bool myIsPagingAgain; // a datagram was lost meanwhile, so one more time
    DtPlace myPlace;
    Clock::time_point myNextAsking;
    std::set<DtExerciseObjectId> myUnconfirmed; // stood when the paging began, and no page has named them yet
};

#endif
