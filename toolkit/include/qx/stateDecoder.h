#ifndef QX_STATE_DECODER_H
#define QX_STATE_DECODER_H

#include <qx/stateMsg.h>
#include <qx/stateRepository.h>

// Base of the generated decoders that read an object's state from one protocol data unit.
class DtStateDecoder
{
public:
    virtual ~DtStateDecoder() {}

    // Sets the attributes of `state` from the message's body. False if the body is not of the decoder's class.
    virtual bool decodeState(const DtStateMsg& message, DtStateRepository& state) const = 0;
};

#endif
