#ifndef QX_STATE_DECODER_H
#define QX_STATE_DECODER_H

#include <qx/bufferDecoder.h>
#include <qx/stateMsg.h>
#include <qx/stateRepository.h>

extern template class DtBufferDecoder<DtStateRepository>;

// Base of the generated decoders that read an object's state from one protocol data unit. By itself it knows no
// attribute.
class DtStateDecoder : public DtBufferDecoder<DtStateRepository>
{
public:
    // Sets the attributes of `state` from the message's body. An attribute that cannot be read keeps its value and is
    // named in `refused`, if given; the answer is then false, as it is when the body cannot be read at all.
    virtual bool decodeState(const DtStateMsg& message, DtStateRepository& state,
                             std::vector<std::string>* refused = nullptr) const;
};

#endif
