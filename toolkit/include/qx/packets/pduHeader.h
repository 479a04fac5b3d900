#ifndef QX_PACKETS_PDU_HEADER_H
#define QX_PACKETS_PDU_HEADER_H

#include <cstddef>
#include <cstdint>

#include <qx/attributeValues.h>

// Header of a protocol data unit as IEEE 1278.1 lays it out: twelve octets, numbers with the high octet first.
class DtNetPduHeader
{
public:
    static const std::size_t theSize = 12;

    DtNetPduHeader()
        : myProtocolVersion(7),
          myExerciseIdentifier(0),
          myPduKind(0),
          myProtocolFamily(0),
          myTimestamp(0),
          myLength(theSize)
    {
    }
    virtual ~DtNetPduHeader() {}

    std::uint8_t protocolVersion() const { return myProtocolVersion; }
    void setProtocolVersion(std::uint8_t version) { myProtocolVersion = version; }
    std::uint8_t exerciseIdentifier() const { return myExerciseIdentifier; }
    void setExerciseIdentifier(std::uint8_t identifier) { myExerciseIdentifier = identifier; }
    std::uint8_t pduKind() const { return myPduKind; }
    void setPduKind(std::uint8_t kind) { myPduKind = kind; }
    std::uint8_t protocolFamily() const { return myProtocolFamily; }
    void setProtocolFamily(std::uint8_t family) { myProtocolFamily = family; }
    std::uint32_t timestamp() const { return myTimestamp; }
    void setTimestamp(std::uint32_t timestamp) { myTimestamp = timestamp; }
    // Of the whole unit in octets, header included.
    std::uint16_t length() const { return myLength; }
    void setLength(std::uint16_t length) { myLength = length; }

    // Appends the twelve octets.
    void encodeHeader(DtValueBuffer& octets) const
    {
        const std::uint8_t header[theSize] = {myProtocolVersion,
                                              myExerciseIdentifier,
                                              myPduKind,
                                              myProtocolFamily,
                                              octet(myTimestamp, 24),
                                              octet(myTimestamp, 16),
                                              octet(myTimestamp, 8),
                                              octet(myTimestamp, 0),
                                              octet(myLength, 8),
                                              octet(myLength, 0),
                                              0,
                                              0};
        octets.insert(octets.end(), header, header + theSize);
    }

    // False, with nothing changed, if there are fewer than twelve octets or the length field tells less than that.
    bool decodeHeader(const DtValueBuffer& octets)
    {
        if (octets.size() < theSize || number(octets, 8, 2) < theSize)
        {
            return false;
        }
        myProtocolVersion = octets[0];
        myExerciseIdentifier = octets[1];
        myPduKind = octets[2];
        myProtocolFamily = octets[3];
        myTimestamp = number(octets, 4, 4);
        myLength = static_cast<std::uint16_t>(number(octets, 8, 2));
        return true;
    }

private:
    static std::uint8_t octet(std::uint32_t value, unsigned shift)
    {
        return static_cast<std::uint8_t>((value >> shift) & 0xFFu);
    }
    static std::uint32_t number(const DtValueBuffer& octets, std::size_t from, std::size_t count)
    {
        std::uint32_t value = 0;
        for (std::size_t index = from; index < from + count; ++index)
        {
            value = (value << 8) | octets[index];
        }
        return value;
    }

    std::uint8_t myProtocolVersion;
    std::uint8_t myExerciseIdentifier;
    std::uint8_t myPduKind;
    std::uint8_t myProtocolFamily;
    std::uint32_t myTimestamp;
    std::uint16_t myLength;
};

#endif
