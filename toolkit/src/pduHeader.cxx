#include <qx/packets/pduHeader.h>
#include <qx/wireBuffer.h>

const std::size_t DtNetPduHeader::theSize;
const int DtNetPduHeader::theMaximumKind;

DtNetPduHeader::DtNetPduHeader()
    : myProtocolVersion(7),
      myExerciseIdentifier(0),
      myPduKind(0),
      myProtocolFamily(0),
      myTimestamp(0),
      myLength(theSize)
{
}

void DtNetPduHeader::encodeHeader(DtValueBuffer& octets) const
{
    DtWireWriter writer;
    writer.putByte(myProtocolVersion);
    writer.putByte(myExerciseIdentifier);
    writer.putByte(static_cast<DtU8>(myPduKind & 0xFF));
    writer.putByte(myProtocolFamily);
    writer.putInteger(myTimestamp, 4);
    writer.putInteger(myLength, 2);
    writer.putInteger(static_cast<DtU64>(myPduKind >> 8), 2);
    octets.insert(octets.end(), writer.data(), writer.data() + writer.size());
}

bool DtNetPduHeader::decodeHeader(const DtValueBuffer& octets)
{
    DtWireReader reader(octets);
    DtU64 fields[7] = {0};
    const unsigned int lengths[7] = {1, 1, 1, 1, 4, 2, 2};
    for (int index = 0; index < 7; ++index)
    {
        if (!reader.getInteger(fields[index], lengths[index]))
        {
            return false;
        }
    }
    if (fields[5] < theSize)
    {
        return false;
    }
    myProtocolVersion = static_cast<DtU8>(fields[0]);
    myExerciseIdentifier = static_cast<DtU8>(fields[1]);
    myPduKind = static_cast<int>(fields[2] | fields[6] << 8);
    myProtocolFamily = static_cast<DtU8>(fields[3]);
    myTimestamp = static_cast<DtU32>(fields[4]);
    myLength = static_cast<DtU16>(fields[5]);
    return true;
}

bool DtEncodePdu(const DtNetPduHeader& header, const DtValueBuffer& body, DtValueBuffer& octets)
{
    octets.clear();
    const std::size_t length = DtNetPduHeader::theSize + body.size();
    if (length > 0xFFFF)
    {
        return false;
    }
    DtNetPduHeader withLength(header);
    withLength.setLength(static_cast<DtU16>(length));
    withLength.encodeHeader(octets);
    octets.insert(octets.end(), body.begin(), body.end());
    return true;
}

bool DtDecodePdu(const DtValueBuffer& octets, DtNetPduHeader& header, DtValueBuffer& body)
{
    DtNetPduHeader taken;
    if (!taken.decodeHeader(octets) || octets.size() < taken.length())
    {
        return false;
    }
    header = taken;
    body.assign(octets.begin() + static_cast<std::ptrdiff_t>(DtNetPduHeader::theSize), octets.begin() + taken.length());
    return true;
}
