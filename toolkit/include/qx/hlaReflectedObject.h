#ifndef QX_HLA_REFLECTED_OBJECT_H
#define QX_HLA_REFLECTED_OBJECT_H

#include <memory>
#include <string>
#include <vector>

#include <qx/exerciseConn.h>
#include <qx/hlaStateDecoder.h>

// Base of the generated reflected objects: someone else's object, as far as its updates have told.
//
// Owns the state and the decoder that fills it. The reflected list of the class makes, updates and deletes it.
class DtHlaReflectedObject
{
public:
    virtual ~DtHlaReflectedObject() {}

    DtHlaReflectedObject(const DtHlaReflectedObject&) = delete;
    DtHlaReflectedObject& operator=(const DtHlaReflectedObject&) = delete;

    DtExerciseObjectId objectId() const { return myObject; }
    const std::string& objectName() const { return myName; }
    DtStateRepository* stateRepository() const { return myState.get(); }

    // Afterwards the state's changes() are the attributes that this update brought. False if some could not be read;
    // they keep their value and are named by refused().
    virtual bool update(const DtAttributeValues& values)
    {
        myRefused.clear();
        myState->clearChanges();
        return myDecoder->decode(values, *myState, &myRefused);
    }

    const std::vector<std::string>& refused() const { return myRefused; }

protected:
    DtHlaReflectedObject(DtExerciseObjectId object, const std::string& name, std::unique_ptr<DtStateRepository> state,
                         std::unique_ptr<DtHlaStateDecoder> decoder)
        : myObject(object), myName(name), myState(std::move(state)), myDecoder(std::move(decoder)), myRefused()
    {
    }

private:
    DtExerciseObjectId myObject;
    std::string myName;
    std::unique_ptr<DtStateRepository> myState;
    std::unique_ptr<DtHlaStateDecoder> myDecoder;
    std::vector<std::string> myRefused;
};

#endif
