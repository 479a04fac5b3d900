#ifndef QX_HLA_REFLECTED_LIST_H
#define QX_HLA_REFLECTED_LIST_H

#include <string>

#include <qx/exerciseConn.h>
#include <qx/hlaReflectedObject.h>
#include <qx/reflectedListBase.h>

extern template class DtReflectedListBase<DtHlaReflectedObject>;

// Base of the generated reflected lists: the objects of one class and its subclasses that others publish.
//
// Owns the objects. They come, change and go while DtExerciseConn::drainInput() runs, and the callbacks are called from
// there. The connection must outlive the list.
class DtHlaReflectedList : public DtReflectedListBase<DtHlaReflectedObject>, private DtExerciseObserver
{
public:
    ~DtHlaReflectedList() override;

protected:
    DtHlaReflectedList(DtExerciseConn* exerciseConn, const std::string& fullClassName);

private:
    void objectAdded(DtExerciseObjectId id, const std::string& name) override;
    void objectUpdated(DtExerciseObjectId id, const DtAttributeValues& values) override;
    void objectRemoved(DtExerciseObjectId id) override;

    DtExerciseConn* myExerciseConn;
};

#endif
