#ifndef QX_DIS_PUBLISHER_BASE_H
#define QX_DIS_PUBLISHER_BASE_H

#include <chrono>
#include <memory>
#include <string>

#include <qx/publisherBase.h>
#include <qx/stateEncoder.h>

// Base of the generated DIS publishers: one object of ours, told of by protocol data units of one kind.
//
// Owns the object's state and its encoder. The caller sets attributes in the state and calls tick() again and again.
// The first unit makes the object known to the others, and the destructor sends one that removes it.
class DtDisPublisherBase : public DtPublisherBase
{
public:
    ~DtDisPublisherBase() override;

    // Sends the whole state the first time, after every change, and again when a heartbeat has passed, by which those
    // who come late learn of the object. False if some attributes could not be coded and went out as absent, or if the
    // unit is too long and stays here: refused() names them, in the second case all.
    bool tick() override;

    // Seconds after which an unchanged state is sent again, 5 at the start. The lists of the others wait for more than
    // two of the 5 before they give an object up.
    void setHeartbeat(double seconds);

    // Takes an encoder of the caller's own in place of the generated one; a null pointer is passed over.
    void setEncoder(std::unique_ptr<DtStateEncoder> encoder);

protected:
    // An empty name leaves the object without one.
    DtDisPublisherBase(DtExerciseConn* exerciseConn, int pduKind, const std::string& name,
                       std::unique_ptr<DtStateRepository> state, std::unique_ptr<DtStateEncoder> encoder);

private:
    typedef std::chrono::steady_clock Clock;

    bool isDue() const;
    bool send(const DtStateMsg& message);
    DtStateMsg emptyMessage() const;

    int myPduKind;
    std::string myName;
    std::unique_ptr<DtStateEncoder> myEncoder;
    Clock::duration myHeartbeat;
    Clock::time_point myLastSending;
    bool myIsKnown; // to the others: a unit has gone out
};

#endif
