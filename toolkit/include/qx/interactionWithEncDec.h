#ifndef QX_INTERACTION_WITH_ENC_DEC_H
#define QX_INTERACTION_WITH_ENC_DEC_H

#include <qx/interactionDecoder.h>
#include <qx/interactionEncoder.h>

// What a generated interaction class tells its base: its name in the model, and who codes it.
struct DtInteractionCoding
{
    const char* fullClassName;
    const DtInteractionEncoder& (*encoder)();
    const DtInteractionDecoder& (*decoder)();
};

// The one encoder or decoder of a class, made at first use. They hold no state of any interaction.
template <class Encoder>
const DtInteractionEncoder& DtSharedEncoder()
{
    static const Encoder theEncoder;
    return theEncoder;
}

template <class Decoder>
const DtInteractionDecoder& DtSharedDecoder()
{
    static const Decoder theDecoder;
    return theDecoder;
}

// An interaction that can turn its parameters into named buffers and back.
class DtInteractionWithEncDec : public DtInteraction
{
public:
    // Both answer false if a parameter could not be coded; the others are.
    bool encode(DtAttributeValues& values, std::vector<std::string>* refused = nullptr) const
    {
        return myEncoder().encode(*this, values, refused);
    }
    bool decode(const DtAttributeValues& values, std::vector<std::string>* refused = nullptr)
    {
        return myDecoder().decode(values, *this, refused);
    }

protected:
    explicit DtInteractionWithEncDec(const DtInteractionCoding& coding)
        : DtInteraction(coding.fullClassName), myEncoder(coding.encoder), myDecoder(coding.decoder)
    {
    }

private:
    const DtInteractionEncoder& (*myEncoder)();
    const DtInteractionDecoder& (*myDecoder)();
};

#endif
