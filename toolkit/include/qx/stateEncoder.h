#ifndef QX_STATE_ENCODER_H
#define QX_STATE_ENCODER_H

#include <qx/stateMsg.h>
#include <qx/stateRepository.h>

// Base of the generated encoders that write an object's state as one protocol data unit.
class DtStateEncoder
{
public:
    virtual ~DtStateEncoder() {}

    // Fills the message's body from `state`. False if the state is not of the encoder's class or cannot be coded.
    virtual bool encodeState(const DtStateRepository& state, DtStateMsg& message) const = 0;
};

#endif
