#ifndef QX_HLA_REFLECTED_OBJECT_H
#define QX_HLA_REFLECTED_OBJECT_H

#include <memory>
#include <string>

#include <qx/hlaStateDecoder.h>
#include <qx/reflectedObjectBase.h>

// Base of the generated reflected objects: someone else's object, as far as its updates have told.
//
// Owns the state and the decoder that fills it. The reflected list of the class makes, updates and deletes it.
class DtHlaReflectedObject : public DtReflectedObjectBase
{
public:
    // Afterwards the state's changes() are the attributes that this update brought. False if some could not be read;
    // they keep their value and are named by refused().
    virtual bool update(const DtAttributeValues& values);

protected:
    DtHlaReflectedObject(DtExerciseObjectId object, const std::string& name, std::unique_ptr<DtStateRepository> state,
                         std::unique_ptr<DtHlaStateDecoder> decoder);

private:
    std::unique_ptr<DtHlaStateDecoder> myDecoder;
};

#endif
