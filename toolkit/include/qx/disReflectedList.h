#ifndef QX_DIS_REFLECTED_LIST_H
#define QX_DIS_REFLECTED_LIST_H

#include <chrono>
#include <map>

#include <qx/disReflectedObject.h>
#include <qx/exerciseConn.h>
#include <qx/reflectedListBase.h>

extern template class DtReflectedListBase<DtDisReflectedObject>;

// Base of the generated DIS reflected lists: the objects that others tell of by protocol data units of one kind. A
// subclass has a kind, and so a list, of its own.
//
// Owns the objects. The first unit adds one, with its state, and counts as an update too; a unit that says so removes
// it, and so does silence. All this happens while DtExerciseConn::drainInput() runs, and the callbacks are called from
// there. The connection must outlive the list.
class DtDisReflectedList : public DtReflectedListBase<DtDisReflectedObject>, private DtPduObserver
{
public:
    ~DtDisReflectedList() override;

    // Seconds without a unit after which an object counts as gone: 12 at the start, and 0 for never.
    void setTimeOut(double seconds);

protected:
    DtDisReflectedList(DtExerciseConn* exerciseConn, int pduKind);

private:
    typedef std::chrono::steady_clock Clock;

    void pduReceived(const DtNetPduHeader& header, const DtValueBuffer& body) override;
    void inputDrained() override;

    DtExerciseConn* myExerciseConn;
    Clock::duration myTimeOut;
    std::map<DtExerciseObjectId, Clock::time_point> myLastHeard;
};

#endif
