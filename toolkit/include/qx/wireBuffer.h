#ifndef QX_WIRE_BUFFER_H
#define QX_WIRE_BUFFER_H

// Octets on their way out and in. The buffer starts with one attribute or parameter value; offsets count from there,
// and padding counts from where the innermost record began.

#include <qx/valueTypes.h>

#include <cstring>

// A growing buffer that an encoder fills.
//
// A value that cannot be encoded calls refuse(): the first reason stays, ok() turns false for good, and what the
// buffer holds must not be sent.
class DtWireWriter
{
public:
    DtWireWriter() : myOrigin(0), myReason(nullptr) {}

    bool ok() const { return myReason == nullptr; }
    const char* reason() const { return myReason ? myReason : ""; }
    // Keeps the pointer: the text has to be a literal.
    void refuse(const char* reason)
    {
        if (!myReason)
            myReason = reason;
    }

    std::size_t size() const { return myOctets.size(); }
    std::size_t offset() const { return myOctets.size(); }
    const DtU8* data() const { return myOctets.data(); }
    const std::vector<DtU8>& bytes() const { return myOctets; }
    void clear()
    {
        myOctets.clear();
        myOrigin = 0;
        myReason = nullptr;
    }

    // Where padding counts from.
    std::size_t origin() const { return myOrigin; }
    void setOrigin(std::size_t offset) { myOrigin = offset; }

    // Zeros up to the next multiple of the boundary; 0 and 1 add none.
    void pad(std::size_t boundary)
    {
        const std::size_t over = boundary > 1 ? (offset() - myOrigin) % boundary : 0;
        if (over != 0)
            myOctets.resize(myOctets.size() + boundary - over, DtU8(0));
    }
    void putByte(DtU8 octet) { myOctets.push_back(octet); }
    void putBytes(const void* octets, std::size_t count)
    {
        const DtU8* first = static_cast<const DtU8*>(octets);
        if (count != 0)
            myOctets.insert(myOctets.end(), first, first + count);
    }
    // The low octets of a number; beyond the eighth the sign is carried on.
    void putInteger(DtU64 bits, unsigned int octets, bool little = false, bool negative = false)
    {
        for (unsigned int i = 0; i < octets; ++i)
        {
            const unsigned int place = little ? i : octets - 1 - i;
            const DtU8 filler = negative ? 0xff : 0x00;
            putByte(place < 8 ? static_cast<DtU8>(bits >> (8 * place)) : filler);
        }
    }
    void putFloat32(DtFloat32 value, bool little = false)
    {
        DtU32 bits;
        std::memcpy(&bits, &value, sizeof bits);
        putInteger(bits, 4, little);
    }
    void putFloat64(DtFloat64 value, bool little = false)
    {
        DtU64 bits;
        std::memcpy(&bits, &value, sizeof bits);
        putInteger(bits, 8, little);
    }

private:
    std::vector<DtU8> myOctets;
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

    bool skip(std::size_t count)
    {
        if (!has(count))
            return false;
        myOffset += count;
        return true;
    }
    // Passes over what the writer's pad added; its content is not looked at.
    bool pad(std::size_t boundary)
    {
        const std::size_t over = boundary > 1 ? (myOffset - myOrigin) % boundary : 0;
        return over == 0 ? ok() : skip(boundary - over);
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
    bool getInteger(DtU64& bits, unsigned int octets, bool little = false, bool isSigned = false)
    {
        if (!has(octets))
            return false;
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
    bool getFloat32(DtFloat32& value, bool little = false)
    {
        DtU64 wide;
        if (!getInteger(wide, 4, little))
            return false;
        const DtU32 bits = static_cast<DtU32>(wide);
        std::memcpy(&value, &bits, sizeof value);
        return true;
    }
    bool getFloat64(DtFloat64& value, bool little = false)
    {
        DtU64 bits;
        if (!getInteger(bits, 8, little))
            return false;
        std::memcpy(&value, &bits, sizeof value);
        return true;
    }

    // Arrays inside arrays, for types that can hold themselves: a hostile input must not use up the stack.
    bool enter() { return ++myDepth <= theDeepest || fail("arrays are nested too deeply"); }
    void leave() { --myDepth; }

private:
    enum
    {
        theDeepest = 128
    };
    bool has(std::size_t count)
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
