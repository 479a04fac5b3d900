#ifndef QX_INTERACTION_ENCODER_H
#define QX_INTERACTION_ENCODER_H

#include <qx/bufferEncoder.h>
#include <qx/interaction.h>

extern template class DtBufferEncoder<DtInteraction>;

// Base of the generated encoders of interaction classes. By itself it knows no parameter.
class DtInteractionEncoder : public DtBufferEncoder<DtInteraction>
{
};

#endif
