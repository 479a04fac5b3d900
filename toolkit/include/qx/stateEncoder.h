#ifndef QX_STATE_ENCODER_H
#define QX_STATE_ENCODER_H

#include <qx/bufferEncoder.h>
#include <qx/stateMsg.h>
#include <qx/stateRepository.h>

extern template class DtBufferEncoder<DtStateRepository>;

// Base of the generated encoders that write an object's state as one protocol data unit.
//
// A generated encoder adds one coder for each attribute of its class, as a DtHlaStateEncoder does. By itself it knows
// no attribute.
class DtStateEncoder : public DtBufferEncoder<DtStateRepository>
{
public:
    // Sets the message's body from `state`, changed or not. Attributes that cannot be coded stay out and are named in
    // `refused`, if given; the answer is then false.
    virtual bool encodeState(const DtStateRepository& state, DtStateMsg& message,
                             std::vector<std::string>* refused = nullptr) const;
};

#endif
