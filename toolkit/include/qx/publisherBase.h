#ifndef QX_PUBLISHER_BASE_H
#define QX_PUBLISHER_BASE_H

#include <memory>
#include <string>
#include <vector>

#include <qx/exerciseConn.h>
#include <qx/stateRepository.h>

// What the publishers of both protocols have in common: an object of ours with its state, and the connection that it
// goes out by. The connection is not owned and must outlive the publisher.
class DtPublisherBase
{
public:
    virtual ~DtPublisherBase() {}

    DtPublisherBase(const DtPublisherBase&) = delete;
    DtPublisherBase& operator=(const DtPublisherBase&) = delete;

    DtExerciseObjectId objectId() const { return myObject; }
    DtStateRepository* stateRepository() const { return myState.get(); }

    // Sends what is to be sent now. False if something could not be: refused() names it.
    virtual bool tick() = 0;

    // Attributes that the latest tick() with something to send could not code or send.
    const std::vector<std::string>& refused() const { return myRefused; }

protected:
    DtPublisherBase(DtExerciseConn* exerciseConn, DtExerciseObjectId object, std::unique_ptr<DtStateRepository> state);

    DtExerciseConn& exerciseConn() const { return *myExerciseConn; }
    std::vector<std::string>& refusals() { return myRefused; }

private:
    DtExerciseConn* myExerciseConn;
    DtExerciseObjectId myObject;
    std::unique_ptr<DtStateRepository> myState;
    std::vector<std::string> myRefused;
};

#endif
