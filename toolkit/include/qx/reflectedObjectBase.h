#ifndef QX_REFLECTED_OBJECT_BASE_H
#define QX_REFLECTED_OBJECT_BASE_H

#include <memory>
#include <string>
#include <vector>

#include <qx/exerciseObjectId.h>
#include <qx/stateRepository.h>

// What the reflected objects of both protocols have in common: someone else's object with its state.
class DtReflectedObjectBase
{
public:
    virtual ~DtReflectedObjectBase() {}

    DtReflectedObjectBase(const DtReflectedObjectBase&) = delete;
    DtReflectedObjectBase& operator=(const DtReflectedObjectBase&) = delete;

    DtExerciseObjectId objectId() const { return myObject; }
    const std::string& objectName() const { return myName; }
    DtStateRepository* stateRepository() const { return myState.get(); }

    // Attributes that the latest update() could not read.
    const std::vector<std::string>& refused() const { return myRefused; }

protected:
    DtReflectedObjectBase(DtExerciseObjectId object, const std::string& name, std::unique_ptr<DtStateRepository> state);

    // Forgets the changes and refusals of the update before, and gives the list of refusals to fill.
    std::vector<std::string>* beginUpdate();

private:
    DtExerciseObjectId myObject;
    std::string myName;
    std::unique_ptr<DtStateRepository> myState;
    std::vector<std::string> myRefused;
};

#endif
