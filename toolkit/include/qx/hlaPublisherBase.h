#ifndef QX_HLA_PUBLISHER_BASE_H
#define QX_HLA_PUBLISHER_BASE_H

#include <memory>
#include <string>
#include <vector>

#include <qx/exerciseConn.h>
#include <qx/hlaStateEncoder.h>

// Base of the generated publishers: one object of ours in the exercise, from construction to destruction.
//
// Owns the object's state and its encoder. The caller sets attributes in the state and calls tick(), which sends what
// was set since the last one. The connection is not owned and must outlive the publisher.
class DtHlaPublisherBase
{
public:
    virtual ~DtHlaPublisherBase() { myExerciseConn->removeObject(myObject); }

    DtHlaPublisherBase(const DtHlaPublisherBase&) = delete;
    DtHlaPublisherBase& operator=(const DtHlaPublisherBase&) = delete;

    DtExerciseObjectId objectId() const { return myObject; }
    DtStateRepository* stateRepository() const { return myState.get(); }

    // Sends the changed attributes, if any. False if some could not be coded: these are named by refused() and stay
    // unsent until they are set again.
    virtual bool tick()
    {
        if (myState->changes().empty())
        {
            return true;
        }
        DtAttributeValues values;
        myRefused.clear();
        const bool complete = myEncoder->encodeChanges(*myState, values, &myRefused);
        myState->clearChanges();
        if (!values.empty())
        {
            myExerciseConn->updateObject(myObject, values);
        }
        return complete;
    }

    // Attributes that the latest tick() with changes could not code.
    const std::vector<std::string>& refused() const { return myRefused; }

    // Takes an encoder of the caller's own in place of the generated one; a null pointer is passed over.
    void setEncoder(std::unique_ptr<DtHlaStateEncoder> encoder)
    {
        if (encoder)
        {
            myEncoder = std::move(encoder);
        }
    }

protected:
    DtHlaPublisherBase(DtExerciseConn* exerciseConn, const std::string& fullClassName, const std::string& name,
                       std::unique_ptr<DtStateRepository> state, std::unique_ptr<DtHlaStateEncoder> encoder)
        : myExerciseConn(exerciseConn),
          myState(std::move(state)),
          myEncoder(std::move(encoder)),
          myObject(exerciseConn->addObject(fullClassName, name)),
          myRefused()
    {
    }

private:
    DtExerciseConn* myExerciseConn;
    std::unique_ptr<DtStateRepository> myState;
    std::unique_ptr<DtHlaStateEncoder> myEncoder;
    DtExerciseObjectId myObject;
    std::vector<std::string> myRefused;
};

#endif
