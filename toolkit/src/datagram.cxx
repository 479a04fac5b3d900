#include "datagram.h"

#include <qx/wireBuffer.h>

#include <algorithm>

namespace
{
const char theMagic[] = {'Q', 'X', 'E', 'X'};
const DtU8 theVersion = 1;

void putText(DtWireWriter& writer, const std::string& text, unsigned int lengthOctets = 2)
{
    writer.putInteger(text.size(), lengthOctets);
    writer.putBytes(text.data(), text.size());
}

void putRun(DtWireWriter& writer, const DtValueBuffer& run)
{
    writer.putInteger(run.size(), 4);
    writer.putBytes(run.data(), run.size());
}

void putValues(DtWireWriter& writer, const DtAttributeValues& values)
{
    DtValueBuffer octets;
    DtEncodeValues(values, octets);
    putRun(writer, octets);
}

void putPlace(DtWireWriter& writer, const DtPlace& place)
{
    writer.putInteger(place.object, 4);
    putText(writer, place.attribute);
}

// Takes so many octets as the length in front of them tells.
template <class Container>
bool getRun(DtWireReader& reader, Container& run, unsigned int lengthOctets)
{
    DtU64 length = 0;
    if (!reader.getInteger(length, lengthOctets) || length > reader.remaining())
    {
        return false;
    }
    run.resize(static_cast<std::size_t>(length));
    return length == 0 || reader.getBytes(&run[0], run.size());
}

bool getNumber(DtWireReader& reader, DtU32& number)
{
    DtU64 bits = 0;
    const bool good = reader.getInteger(bits, 4);
    number = static_cast<DtU32>(bits);
    return good;
}

bool getValues(DtWireReader& reader, DtAttributeValues& values)
{
    DtValueBuffer octets;
    return getRun(reader, octets, 4) && DtDecodeValues(octets, values);
}

bool getPlace(DtWireReader& reader, DtPlace& place)
{
    return getNumber(reader, place.object) && getRun(reader, place.attribute, 2);
}

bool getObject(DtWireReader& reader, DtObjectContent& object)
{
    return getNumber(reader, object.object) && getRun(reader, object.fullClassName, 2) &&
           getRun(reader, object.name, 2) && getValues(reader, object.values);
}

bool getMagic(DtWireReader& reader)
{
    char magic[sizeof theMagic];
    DtU8 version = 0;
    return reader.getBytes(magic, sizeof magic) && std::equal(magic, magic + sizeof magic, theMagic) &&
           reader.getByte(version) && version == theVersion;
}

bool getKind(DtWireReader& reader, DtDatagram::Kind& kind)
{
    DtU8 number = 0;
    if (!reader.getByte(number) || number >= DtDatagram::theKinds)
    {
        return false;
    }
    kind = static_cast<DtDatagram::Kind>(number);
    return true;
}
} // namespace

void DtEncodeDatagram(const DtDatagram& datagram, const std::string& exercise, DtValueBuffer& octets)
{
    DtWireWriter writer;
    writer.putBytes(theMagic, sizeof theMagic);
    writer.putByte(theVersion);
    writer.putByte(static_cast<DtU8>(datagram.kind));
    putText(writer, exercise, 1);
    writer.putInteger(datagram.sender, 4);
    writer.putInteger(datagram.sequence, 4);
    writer.putInteger(datagram.heartbeat, 4);
    putRun(writer, datagram.content);
    octets = writer.bytes();
}

bool DtDecodeDatagram(const DtValueBuffer& octets, const std::string& exercise, DtDatagram& datagram)
{
    DtWireReader reader(octets);
    std::string name;
    return getMagic(reader) && getKind(reader, datagram.kind) && getRun(reader, name, 1) && name == exercise &&
           getNumber(reader, datagram.sender) && getNumber(reader, datagram.sequence) &&
           getNumber(reader, datagram.heartbeat) && getRun(reader, datagram.content, 4) && reader.atEnd();
}

DtValueBuffer DtEncodeAdded(const DtObjectContent& content)
{
    DtWireWriter writer;
    writer.putInteger(content.object, 4);
    putText(writer, content.fullClassName);
    putText(writer, content.name);
    return writer.bytes();
}

bool DtDecodeAdded(const DtValueBuffer& octets, DtObjectContent& content)
{
    DtWireReader reader(octets);
    return getNumber(reader, content.object) && getRun(reader, content.fullClassName, 2) &&
           getRun(reader, content.name, 2) && reader.atEnd();
}

DtValueBuffer DtEncodeUpdated(const DtObjectContent& content)
{
    DtWireWriter writer;
    writer.putInteger(content.object, 4);
    putValues(writer, content.values);
    return writer.bytes();
}

bool DtDecodeUpdated(const DtValueBuffer& octets, DtObjectContent& content)
{
    DtWireReader reader(octets);
    return getNumber(reader, content.object) && getValues(reader, content.values) && reader.atEnd();
}

DtValueBuffer DtEncodeRemoved(const DtObjectContent& content)
{
    DtWireWriter writer;
    writer.putInteger(content.object, 4);
    return writer.bytes();
}

bool DtDecodeRemoved(const DtValueBuffer& octets, DtObjectContent& content)
{
    DtWireReader reader(octets);
    return getNumber(reader, content.object) && reader.atEnd();
}

DtValueBuffer DtEncodeInteraction(const DtObjectContent& content)
{
    DtWireWriter writer;
    putText(writer, content.fullClassName);
    putValues(writer, content.values);
    return writer.bytes();
}

bool DtDecodeInteraction(const DtValueBuffer& octets, DtObjectContent& content)
{
    DtWireReader reader(octets);
    return getRun(reader, content.fullClassName, 2) && getValues(reader, content.values) && reader.atEnd();
}

DtValueBuffer DtEncodePlace(const DtPlace& place)
{
    DtWireWriter writer;
    putPlace(writer, place);
    return writer.bytes();
}

bool DtDecodePlace(const DtValueBuffer& octets, DtPlace& place)
{
    DtWireReader reader(octets);
    return getPlace(reader, place) && reader.atEnd();
}

DtValueBuffer DtEncodePage(const DtPage& page)
{
    DtWireWriter writer;
    putPlace(writer, page.from);
    putPlace(writer, page.to);
    writer.putByte(page.isLast ? 1 : 0);
    for (std::size_t index = 0; index < page.objects.size(); ++index)
    {
        const DtObjectContent& object = page.objects[index];
        writer.putInteger(object.object, 4);
        putText(writer, object.fullClassName);
        putText(writer, object.name);
        putValues(writer, object.values);
    }
    return writer.bytes();
}

bool DtDecodePage(const DtValueBuffer& octets, DtPage& page)
{
    DtWireReader reader(octets);
    DtU8 last = 0;
    bool good = getPlace(reader, page.from) && getPlace(reader, page.to) && reader.getByte(last) && last <= 1;
    page.isLast = last == 1;
    page.objects.clear();
    while (good && !reader.atEnd())
    {
        DtObjectContent object;
        good = getObject(reader, object);
        page.objects.push_back(object);
    }
    return good;
}

std::size_t DtOctetsOfValue(const DtAttributeValues::value_type& value)
{
    return 8 + value.first.size() + value.second.size();
}
