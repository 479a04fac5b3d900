#ifndef QX_HLA_STATE_DECODER_H
#define QX_HLA_STATE_DECODER_H

#include <qx/bufferDecoder.h>
#include <qx/stateRepository.h>

extern template class DtBufferDecoder<DtStateRepository>;

// Base of the generated decoders of object classes. By itself it knows no attribute.
class DtHlaStateDecoder : public DtBufferDecoder<DtStateRepository>
{
};

#endif
