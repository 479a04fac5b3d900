#ifndef QX_PACKETS_PDU_HEADER_H
#define QX_PACKETS_PDU_HEADER_H

#include <cstddef>
#include <cstdint>

#include <qx/attributeValues.h>

// Header of a protocol data unit as IEEE 1278.1 lays it out: twelve octets, numbers with the high octet first.
//
// The standard has one octet for the kind. Large models have more classes than that, so what is above it goes into the
// two octets at the end, which the standard pads with.
class DtNetPduHeader
{
public:
    static const std::size_t theSize = 12;
    static const int theMaximumKind = 0xFFFFFF;

    DtNetPduHeader();
    virtual ~DtNetPduHeader() {}

    std::uint8_t protocolVersion() const { return myProtocolVersion; }
    void setProtocolVersion(std::uint8_t version) { myProtocolVersion = version; }
    std::uint8_t exerciseIdentifier() const { return myExerciseIdentifier; }
    void setExerciseIdentifier(std::uint8_t identifier) { myExerciseIdentifier = identifier; }
    // 0 to theMaximumKind. Setting another number gives 0.
    int pduKind() const { return myPduKind; }
    void setPduKind(int kind) { myPduKind = isKind(kind) ? kind : 0; }
    static bool isKind(int kind) { return kind >= 0 && kind <= theMaximumKind; }
    std::uint8_t protocolFamily() const { return myProtocolFamily; }
    void setProtocolFamily(std::uint8_t family) { myProtocolFamily = family; }
    std::uint32_t timestamp() const { return myTimestamp; }
    void setTimestamp(std::uint32_t timestamp) { myTimestamp = timestamp; }
    // Of the whole unit in octets, header included.
    std::uint16_t length() const { return myLength; }
    void setLength(std::uint16_t length) { myLength = length; }

    // Appends the twelve octets.
    void encodeHeader(DtValueBuffer& octets) const;

    // False, with nothing changed, if there are fewer than twelve octets or the length field tells less than that.
    bool decodeHeader(const DtValueBuffer& octets);

private:
    std::uint8_t myProtocolVersion;
    std::uint8_t myExerciseIdentifier;
    int myPduKind;
    std::uint8_t myProtocolFamily;
    std::uint32_t myTimestamp;
    std::uint16_t myLength;
};

// The unit of that header with that body, its length set. False, and no octets, if the body is too long for the field.
bool DtEncodePdu(const DtNetPduHeader& header, const DtValueBuffer& body, DtValueBuffer& octets);

// False, with nothing changed, if the octets are no header or fewer than it tells. What stands behind is left.
bool DtDecodePdu(const DtValueBuffer& octets, DtNetPduHeader& header, DtValueBuffer& body);

#endif
