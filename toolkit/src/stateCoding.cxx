#include <qx/stateDecoder.h>
#include <qx/stateEncoder.h>

bool DtStateEncoder::encodeState(const DtStateRepository& state, DtStateMsg& message,
                                 std::vector<std::string>* refused) const
{
    DtAttributeValues values;
    const bool complete = encode(state, values, refused);
    message.setValues(values);
    return complete;
}

bool DtStateDecoder::decodeState(const DtStateMsg& message, DtStateRepository& state,
                                 std::vector<std::string>* refused) const
{
    DtAttributeValues values;
    return message.values(values) && decode(values, state, refused);
}
