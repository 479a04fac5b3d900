#ifndef QX_HLA_STATE_ENCODER_H
#define QX_HLA_STATE_ENCODER_H

#include <qx/bufferEncoder.h>
#include <qx/stateRepository.h>

extern template class DtBufferEncoder<DtStateRepository>;

// Base of the generated encoders of object classes. By itself it knows no attribute.
class DtHlaStateEncoder : public DtBufferEncoder<DtStateRepository>
{
public:
    // Codes the attributes that were set since the last clearChanges() of `state`.
    bool encodeChanges(const DtStateRepository& state, DtAttributeValues& values,
                       std::vector<std::string>* refused = nullptr) const
    {
        return encode(state, state.changes(), values, refused);
    }
};

#endif
