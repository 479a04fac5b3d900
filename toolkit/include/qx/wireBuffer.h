#ifndef QX_WIRE_BUFFER_H
#define QX_WIRE_BUFFER_H

// Octets on their way out and in. The buffer starts with one attribute or parameter value; offsets count from there,
// and padding counts from where the innermost record began.

#include <qx/valueTypes.h>

#include <cstring>

// Small operations whose arguments are literals in generated code: a field is a handful of instructions once they are
// put in place, and compilers take them for too large for that.
#ifdef _MSC_VER
#define QX_IN_PLACE __forceinline
#else
#define QX_IN_PLACE inline __attribute__((always_inline))
#endif

// Numbers of 2, 4 and 8 octets, the high octet first. Compilers make one instruction of each.
QX_IN_PLACE void DtStoreBig(DtU8* to, DtU16 bits)
{
    to[0] = static_cast<DtU8>(bits >> 8);
    to[1] = static_cast<DtU8>(bits);
}
QX_IN_PLACE void DtStoreBig(DtU8* to, DtU32 bits)
{
    to[0] = static_cast<DtU8>(bits >> 24);
    to[1] = static_cast<DtU8>(bits >> 16);
    to[2] = static_cast<DtU8>(bits >> 8);
    to[3] = static_cast<DtU8>(bits);
}
QX_IN_PLACE void DtStoreBig(DtU8* to, DtU64 bits)
{
    DtStoreBig(to, static_cast<DtU32>(bits >> 32));
    DtStoreBig(to + 4, static_cast<DtU32>(bits));
}
QX_IN_PLACE void DtLoadBig(const DtU8* from, DtU16& bits)
{
    bits = static_cast<DtU16>(from[0] << 8 | from[1]);
}
QX_IN_PLACE void DtLoadBig(const DtU8* from, DtU32& bits)
{
    bits = static_cast<DtU32>(from[0]) << 24 | static_cast<DtU32>(from[1]) << 16 | static_cast<DtU32>(from[2]) << 8 |
           static_cast<DtU32>(from[3]);
}
QX_IN_PLACE void DtLoadBig(const DtU8* from, DtU64& bits)
{
    DtU32 high, low;
    DtLoadBig(from, high);
    DtLoadBig(from + 4, low);
    bits = static_cast<DtU64>(high) << 32 | low;
}

// And the low octet first.
QX_IN_PLACE DtU16 DtSwappedOctets(DtU16 bits)
{
    return static_cast<DtU16>(bits >> 8 | bits << 8);
}
QX_IN_PLACE DtU32 DtSwappedOctets(DtU32 bits)
{
    return bits >> 24 | (bits >> 8 & 0xff00) | (bits << 8 & 0xff0000) | bits << 24;
}
QX_IN_PLACE DtU64 DtSwappedOctets(DtU64 bits)
{
    return static_cast<DtU64>(DtSwappedOctets(static_cast<DtU32>(bits))) << 32 |
           DtSwappedOctets(static_cast<DtU32>(bits >> 32));
}
template <class Bits>
QX_IN_PLACE void DtStoreBits(DtU8* to, Bits bits, bool little)
{
    DtStoreBig(to, little ? DtSwappedOctets(bits) : bits);
}
template <class Bits>
QX_IN_PLACE Bits DtLoadBits(const DtU8* from, bool little)
{
    Bits bits;
    DtLoadBig(from, bits);
    return little ? DtSwappedOctets(bits) : bits;
}

// How many octets there are up to the next multiple of the boundary; 0 and 1 need none.
QX_IN_PLACE std::size_t DtPaddingTo(std::size_t boundary, std::size_t offset)
{
    if (boundary <= 1)
        return 0;
    const bool isPowerOfTwo = (boundary & (boundary - 1)) == 0;
    const std::size_t over = isPowerOfTwo ? offset & (boundary - 1) : offset % boundary;
    return over == 0 ? 0 : boundary - over;
}

// What writers of octets have in common. A writer says where it is, and gives the place for the next octets: offset(),
// origin() and grow(count).
template <class Writer>
class DtOctetWriter
{
public:
    // Zeros up to the next multiple of the boundary; 0 and 1 add none.
    QX_IN_PLACE void pad(std::size_t boundary)
    {
        const std::size_t missing = DtPaddingTo(boundary, own().offset() - own().origin());
        if (missing != 0)
            std::memset(own().grow(missing), 0, missing);
    }
    QX_IN_PLACE void putByte(DtU8 octet) { *own().grow(1) = octet; }
    void putBytes(const void* octets, std::size_t count)
    {
        if (count != 0)
            std::memcpy(own().grow(count), octets, count);
    }
    // The low octets of a number; beyond the eighth the sign is carried on.
    QX_IN_PLACE void putInteger(DtU64 bits, unsigned int octets, bool little = false, bool negative = false)
    {
        switch (octets)
        {
        case 1:
            return putByte(static_cast<DtU8>(bits));
        case 2:
            return DtStoreBits(own().grow(2), static_cast<DtU16>(bits), little);
        case 4:
            return DtStoreBits(own().grow(4), static_cast<DtU32>(bits), little);
        case 8:
            return DtStoreBits(own().grow(8), bits, little);
        default:
            return putOddInteger(bits, octets, little, negative);
        }
    }
    QX_IN_PLACE void putFloat32(DtFloat32 value, bool little = false)
    {
        DtU32 bits;
        std::memcpy(&bits, &value, sizeof bits);
        DtStoreBits(own().grow(4), bits, little);
    }
    QX_IN_PLACE void putFloat64(DtFloat64 value, bool little = false)
    {
        DtU64 bits;
        std::memcpy(&bits, &value, sizeof bits);
        DtStoreBits(own().grow(8), bits, little);
    }

private:
    QX_IN_PLACE Writer& own() { return static_cast<Writer&>(*this); }
    void putOddInteger(DtU64 bits, unsigned int octets, bool little, bool negative)
    {
        for (unsigned int i = 0; i < octets; ++i)
        {
            const unsigned int place = little ? i : octets - 1 - i;
            const DtU8 filler = negative ? 0xff : 0x00;
            putByte(place < 8 ? static_cast<DtU8>(bits >> (8 * place)) : filler);
        }
    }
};

// A growing buffer that an encoder fills. Used again after clear(), it needs no memory anew.
//
// A value that cannot be encoded calls refuse(): the first reason stays, ok() turns false for good, and what the
// buffer holds must not be sent.
class DtWireWriter : public DtOctetWriter<DtWireWriter>
{
public:
    DtWireWriter() : myStart(myOwnRoom), myRoom(theOwnRoom), mySize(0), myOrigin(0), myReason(nullptr) {}
    DtWireWriter(const DtWireWriter& other)
        : myStart(myOwnRoom), myRoom(theOwnRoom), mySize(0), myOrigin(other.myOrigin), myReason(other.myReason)
    {
        putBytes(other.myStart, other.mySize);
    }
    DtWireWriter& operator=(const DtWireWriter& other)
    {
        if (this == &other)
            return *this;
        clear();
        putBytes(other.myStart, other.mySize);
        myOrigin = other.myOrigin;
        myReason = other.myReason;
        return *this;
    }

    bool ok() const { return myReason == nullptr; }
    const char* reason() const { return myReason ? myReason : ""; }
    // Keeps the pointer: the text has to be a literal.
    void refuse(const char* reason)
    {
        if (!myReason)
            myReason = reason;
    }

    std::size_t size() const { return mySize; }
    std::size_t offset() const { return mySize; }
    const DtU8* data() const { return myStart; }
    // A copy of the octets, as they are now; it goes with the writer.
    const std::vector<DtU8>& bytes() const
    {
        myBytes.assign(myStart, myStart + mySize);
        return myBytes;
    }
    void clear()
    {
        mySize = 0;
        myOrigin = 0;
        myReason = nullptr;
    }

    // Where padding counts from.
    std::size_t origin() const { return myOrigin; }
    void setOrigin(std::size_t offset) { myOrigin = offset; }

    // Room for this many octets more, to be filled by the caller. Valid until the next operation.
    QX_IN_PLACE DtU8* grow(std::size_t count)
    {
        if (count > myRoom - mySize)
            makeRoom(count);
        DtU8* const room = myStart + mySize;
        mySize += count;
        return room;
    }

private:
    enum
    {
        theOwnRoom = 256 // octets that most values get along with
    };
    void makeRoom(std::size_t count)
    {
        std::vector<DtU8> larger(2 * myRoom < mySize + count ? mySize + count : 2 * myRoom);
        std::memcpy(larger.data(), myStart, mySize);
        myLargeRoom.swap(larger);
        myStart = myLargeRoom.data();
        myRoom = myLargeRoom.size();
    }

    DtU8 myOwnRoom[theOwnRoom];
    std::vector<DtU8> myLargeRoom; // once the own one does not suffice
    mutable std::vector<DtU8> myBytes;
    DtU8* myStart; // of either room
    std::size_t myRoom;
    std::size_t mySize;
    std::size_t myOrigin;
    const char* myReason; // null while all is well
};

// Reads from octets that it does not own and never beyond them.
//
// The first failure stays: ok() turns false, every later operation answers false and leaves its argument alone.
class DtWireReader
{
public:
    explicit DtWireReader(const std::vector<DtU8>& octets) : DtWireReader(octets.data(), octets.size()) {}
    DtWireReader(const void* octets, std::size_t size)
        : myOctets(static_cast<const DtU8*>(octets)),
          mySize(size),
          myOffset(0),
          myOrigin(0),
          myDepth(0),
          myIsClosed(false),
          myReason(nullptr)
    {
    }

    bool ok() const { return myReason == nullptr; }
    const char* reason() const { return myReason ? myReason : ""; }
    // Answers false, so that a decoder can end with it. Keeps the pointer: the text has to be a literal.
    bool fail(const char* reason)
    {
        if (!myReason)
            myReason = reason;
        return false;
    }

    std::size_t offset() const { return myOffset; }
    std::size_t remaining() const { return mySize - myOffset; }
    bool atEnd() const { return myOffset == mySize; }

    // Where padding counts from.
    std::size_t origin() const { return myOrigin; }
    void setOrigin(std::size_t offset) { myOrigin = offset; }

    // To be called behind a part that reaches to the end of the octets by its nature: no value can follow it.
    void close() { myIsClosed = true; }
    bool isClosed() const { return myIsClosed; }

    QX_IN_PLACE bool skip(std::size_t count)
    {
        if (!has(count))
            return false;
        myOffset += count;
        return true;
    }
    // Passes over what the writer's pad added; its content is not looked at.
    QX_IN_PLACE bool pad(std::size_t boundary)
    {
        const std::size_t missing = DtPaddingTo(boundary, myOffset - myOrigin);
        return missing == 0 ? ok() : skip(missing);
    }
    // Takes the next octets out as a buffer of their own, which is read apart from this one.
    bool split(std::size_t count, DtWireReader& part)
    {
        if (!has(count))
            return false;
        part = DtWireReader(myOctets + myOffset, count);
        part.myDepth = myDepth;
        myOffset += count;
        return true;
    }
    bool getByte(DtU8& octet) { return getBytes(&octet, 1); }
    bool getBytes(void* octets, std::size_t count)
    {
        if (!has(count))
            return false;
        if (count != 0)
            std::memcpy(octets, myOctets + myOffset, count);
        myOffset += count;
        return true;
    }
    // A number of fewer than eight octets fills them with its sign, or with zeros; one of more has to fit into eight.
    QX_IN_PLACE bool getInteger(DtU64& bits, unsigned int octets, bool little = false, bool isSigned = false)
    {
        if (!has(octets))
            return false;
        const DtU8* const from = myOctets + myOffset;
        switch (octets)
        {
        case 1:
            bits = widened(*from, 0x80, isSigned);
            break;
        case 2:
            bits = widened(DtLoadBits<DtU16>(from, little), 0x8000, isSigned);
            break;
        case 4:
            bits = widened(DtLoadBits<DtU32>(from, little), 0x80000000, isSigned);
            break;
        case 8:
            bits = DtLoadBits<DtU64>(from, little);
            break;
        default:
            return getOddInteger(bits, octets, little, isSigned);
        }
        myOffset += octets;
        return true;
    }
    QX_IN_PLACE bool getFloat32(DtFloat32& value, bool little = false)
    {
        if (!has(4))
            return false;
        const DtU32 bits = DtLoadBits<DtU32>(myOctets + myOffset, little);
        std::memcpy(&value, &bits, sizeof value);
        myOffset += 4;
        return true;
    }
    QX_IN_PLACE bool getFloat64(DtFloat64& value, bool little = false)
    {
        if (!has(8))
            return false;
        const DtU64 bits = DtLoadBits<DtU64>(myOctets + myOffset, little);
        std::memcpy(&value, &bits, sizeof value);
        myOffset += 8;
        return true;
    }
    // Where the remaining octets lie.
    const DtU8* next() const { return myOctets + myOffset; }
    // The next octets, to be read by the caller; null, after a failure, when there are fewer.
    QX_IN_PLACE const DtU8* take(std::size_t count)
    {
        if (!has(count))
            return nullptr;
        const DtU8* const taken = myOctets + myOffset;
        myOffset += count;
        return taken;
    }

    // Arrays inside arrays, for types that can hold themselves: a hostile input must not use up the stack.
    bool enter() { return ++myDepth <= theDeepest || fail("arrays are nested too deeply"); }
    void leave() { --myDepth; }

private:
    enum
    {
        theDeepest = 128
    };
    // The sign is carried on into the high octets.
    static QX_IN_PLACE DtU64 widened(DtU64 bits, DtU64 signBit, bool isSigned)
    {
        return isSigned ? (bits ^ signBit) - signBit : bits;
    }
    bool getOddInteger(DtU64& bits, unsigned int octets, bool little, bool isSigned)
    {
        const std::size_t high = myOffset + (little ? octets - 1 : 0);
        const DtU8 filler = isSigned && octets > 0 && (myOctets[high] & 0x80) != 0 ? 0xff : 0x00;
        DtU64 taken = filler ? ~DtU64(0) : 0;
        for (unsigned int i = 0; i < octets; ++i)
        {
            const DtU8 octet = myOctets[myOffset + (little ? octets - 1 - i : i)];
            if (octets - i > 8 && octet != filler)
                return fail("the number has more than 64 bits");
            taken = taken << 8 | octet;
        }
        if (octets > 8 && isSigned && (taken >> 63 != 0) != (filler != 0))
            return fail("the number has more than 64 bits");
        bits = taken;
        myOffset += octets;
        return true;
    }
    QX_IN_PLACE bool has(std::size_t count)
    {
        if (!ok())
            return false;
        return count <= remaining() || fail("the value ends too early");
    }

    const DtU8* myOctets;
    std::size_t mySize, myOffset, myOrigin;
    int myDepth;
    bool myIsClosed;
    const char* myReason; // null while all is well
};

// As long as it lives, padding counts from where it was made: the start of a record.
template <class Buffer>
class DtRecordScope
{
public:
    explicit DtRecordScope(Buffer& buffer) : myBuffer(buffer), myOuter(buffer.origin())
    {
        myBuffer.setOrigin(myBuffer.offset());
    }
    DtRecordScope(const DtRecordScope&) = delete;
    DtRecordScope& operator=(const DtRecordScope&) = delete;
    ~DtRecordScope() { myBuffer.setOrigin(myOuter); }

private:
    Buffer& myBuffer;
    const std::size_t myOuter;
};

#endif
