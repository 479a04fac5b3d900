#ifndef QX_DIS_REFLECTED_OBJECT_H
#define QX_DIS_REFLECTED_OBJECT_H

#include <memory>
#include <string>

#include <qx/reflectedObjectBase.h>
#include <qx/stateDecoder.h>

// Base of the generated DIS reflected objects: someone else's object, as its latest unit told.
//
// Owns the state and the decoder that fills it. The reflected list of the class makes, updates and deletes it.
class DtDisReflectedObject : public DtReflectedObjectBase
{
public:
    // Afterwards the state's changes() are the attributes that the unit brought, new values or not. False if the body
    // or some attributes could not be read; these keep their value, and refused() names the attributes.
    virtual bool update(const DtStateMsg& message);

protected:
    DtDisReflectedObject(DtExerciseObjectId object, const std::string& name, std::unique_ptr<DtStateRepository> state,
                         std::unique_ptr<DtStateDecoder> decoder);

private:
    std::unique_ptr<DtStateDecoder> myDecoder;
};

#endif
