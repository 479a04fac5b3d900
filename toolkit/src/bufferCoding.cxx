#include <qx/bufferDecoder.h>
#include <qx/bufferEncoder.h>
#include <qx/interaction.h>
#include <qx/stateRepository.h>
#include <qx/wireBuffer.h>

#include <algorithm>

namespace
{
// Where a coder of that name stands, or would stand.
template <class Coders>
auto placeOf(Coders& coders, const std::string& name) -> decltype(coders.begin())
{
    typedef typename Coders::value_type Coder;
    return std::lower_bound(coders.begin(), coders.end(), name,
                            [](const Coder& coder, const std::string& wanted) { return coder.name < wanted; });
}

template <class Coder>
void enterInto(std::vector<Coder>& coders, const Coder& coder)
{
    const typename std::vector<Coder>::iterator place = placeOf(coders, coder.name);
    if (place != coders.end() && place->name == coder.name)
    {
        *place = coder;
    }
    else
    {
        coders.insert(place, coder);
    }
}

template <class Coder>
const Coder* findIn(const std::vector<Coder>& coders, const std::string& name)
{
    const typename std::vector<Coder>::const_iterator place = placeOf(coders, name);
    return place != coders.end() && place->name == name ? &*place : nullptr;
}
} // namespace

template <class Source>
DtBufferEncoder<Source>::DtBufferEncoder() = default;
template <class Source>
DtBufferEncoder<Source>::DtBufferEncoder(const DtBufferEncoder& other) = default;
template <class Source>
DtBufferEncoder<Source>& DtBufferEncoder<Source>::operator=(const DtBufferEncoder& other) = default;
template <class Source>
DtBufferEncoder<Source>::~DtBufferEncoder() = default;

template <class Source>
bool DtBufferEncoder<Source>::encode(const Source& source, DtAttributeValues& values,
                                     std::vector<std::string>* refused) const
{
    bool complete = true;
    for (const Coder& coder : myCoders)
    {
        complete = encodeOne(coder, source, values, refused) && complete;
    }
    return complete;
}

template <class Source>
bool DtBufferEncoder<Source>::encode(const Source& source, const std::vector<std::string>& names,
                                     DtAttributeValues& values, std::vector<std::string>* refused) const
{
    bool complete = true;
    for (const std::string& name : names)
    {
        const Coder* const coder = find(name);
        complete = (coder == nullptr || encodeOne(*coder, source, values, refused)) && complete;
    }
    return complete;
}

template <class Source>
void DtBufferEncoder<Source>::enter(const char* name, AnyFunction code, Call call)
{
    enterInto(myCoders, Coder{name, code, call});
}

template <class Source>
const typename DtBufferEncoder<Source>::Coder* DtBufferEncoder<Source>::find(const std::string& name) const
{
    return findIn(myCoders, name);
}

template <class Source>
bool DtBufferEncoder<Source>::encodeOne(const Coder& coder, const Source& source, DtAttributeValues& values,
                                        std::vector<std::string>* refused)
{
    DtWireWriter writer;
    if (coder.call(coder.code, source, writer))
    {
        values[coder.name].assign(writer.data(), writer.data() + writer.size());
        return true;
    }
    if (refused != nullptr)
    {
        refused->push_back(coder.name);
    }
    return false;
}

template <class Target>
DtBufferDecoder<Target>::DtBufferDecoder() = default;
template <class Target>
DtBufferDecoder<Target>::DtBufferDecoder(const DtBufferDecoder& other) = default;
template <class Target>
DtBufferDecoder<Target>& DtBufferDecoder<Target>::operator=(const DtBufferDecoder& other) = default;
template <class Target>
DtBufferDecoder<Target>::~DtBufferDecoder() = default;

template <class Target>
bool DtBufferDecoder<Target>::decode(const DtAttributeValues& values, Target& target,
                                     std::vector<std::string>* refused) const
{
    bool complete = true;
    for (const DtAttributeValues::value_type& value : values)
    {
        complete = decodeOne(value.first, value.second, target, refused) && complete;
    }
    return complete;
}

template <class Target>
void DtBufferDecoder<Target>::enter(const char* name, AnyFunction code, Call call)
{
    enterInto(myCoders, Coder{name, code, call});
}

template <class Target>
const typename DtBufferDecoder<Target>::Coder* DtBufferDecoder<Target>::find(const std::string& name) const
{
    return findIn(myCoders, name);
}

template <class Target>
bool DtBufferDecoder<Target>::decodeOne(const std::string& name, const DtValueBuffer& octets, Target& target,
                                        std::vector<std::string>* refused) const
{
    const Coder* const coder = find(name);
    if (coder == nullptr)
    {
        return true;
    }
    DtWireReader reader(octets.data(), octets.size());
    if (coder->call(coder->code, target, reader))
    {
        return true;
    }
    if (refused != nullptr)
    {
        refused->push_back(name);
    }
    return false;
}

template class DtBufferEncoder<DtStateRepository>;
template class DtBufferEncoder<DtInteraction>;
template class DtBufferDecoder<DtStateRepository>;
template class DtBufferDecoder<DtInteraction>;
