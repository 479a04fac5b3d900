#ifndef QX_HLA_PUBLISHER_BASE_H
#define QX_HLA_PUBLISHER_BASE_H

#include <memory>
#include <string>

#include <qx/hlaStateEncoder.h>
#include <qx/publisherBase.h>

// Base of the generated publishers: one object of ours in the exercise, from construction to destruction.
//
// Owns the object's state and its encoder. The caller sets attributes in the state and calls tick(), which sends what
// was set since the last one.
class DtHlaPublisherBase : public DtPublisherBase
{
public:
    ~DtHlaPublisherBase() override;

    // Sends the changed attributes, if any. False if some could not be coded or are too long: these are named by
    // refused() and stay unsent until they are set again.
    bool tick() override;

    // Takes an encoder of the caller's own in place of the generated one; a null pointer is passed over.
    void setEncoder(std::unique_ptr<DtHlaStateEncoder> encoder);

protected:
    DtHlaPublisherBase(DtExerciseConn* exerciseConn, const std::string& fullClassName, const std::string& name,
                       std::unique_ptr<DtStateRepository> state, std::unique_ptr<DtHlaStateEncoder> encoder);

private:
    std::unique_ptr<DtHlaStateEncoder> myEncoder;
};

#endif
