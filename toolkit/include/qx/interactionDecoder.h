#ifndef QX_INTERACTION_DECODER_H
#define QX_INTERACTION_DECODER_H

#include <qx/bufferDecoder.h>
#include <qx/interaction.h>

extern template class DtBufferDecoder<DtInteraction>;

// Base of the generated decoders of interaction classes. By itself it knows no parameter.
class DtInteractionDecoder : public DtBufferDecoder<DtInteraction>
{
};

#endif
