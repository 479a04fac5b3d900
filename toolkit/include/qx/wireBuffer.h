#ifndef QX_WIRE_BUFFER_H
#define QX_WIRE_BUFFER_H

// Octets on their way out and in. Offsets and padding count from the start of the buffer, which is the start of one
// attribute or parameter value.

#include <qx/valueTypes.h>

#include <cstring>

// A growing buffer that an encoder fills.
//
// A value that cannot be encoded calls refuse(): the first reason stays, ok() turns false for good, and what the
// buffer holds must not be sent.
class DtWireWriter
{
public:
    DtWireWriter() : myReason(nullptr) {}

    bool ok() const { return myReason == nullptr; }
    const char* reason() const { return myReason ? myReason : ""; }
    // Keeps the pointer: the text has to be a literal.
    void refuse(const char* reason)
    {
        if (!myReason)
            myReason = reason;
    }

    std::size_t size() const { return myOctets.size(); }
    const DtU8* data() const { return myOctets.data(); }
    const std::vector<DtU8>& bytes() const { return myOctets; }
    void clear()
    {
        myOctets.clear();
        myReason = nullptr;
    }

    // Zeros up to the next multiple of the boundary; 0 and 1 add none.
    void pad(unsigned int boundary)
    {
        if (boundary > 1 && myOctets.size() % boundary != 0)
            myOctets.resize(myOctets.size() + boundary - myOctets.size() % boundary, DtU8(0));
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
        : myOctets(static_cast<const DtU8*>(octets)), mySize(size), myOffset(0), myDepth(0), myReason(nullptr)
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

    bool skip(std::size_t count)
    {
        if (!has(count))
            return false;
        myOffset += count;
        return true;
    }
    // Passes over what the writer's pad added; its content is not looked at.
    bool pad(unsigned int boundary)
    {
        const std::size_t over = boundary > 1 ? myOffset % boundary : 0;
        return over == 0 ? ok() : skip(boundary - over);
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
    // The next octet without taking it.
    bool peekByte(DtU8& octet)
    {
        if (!has(1))
            return false;
        octet = myOctets[myOffset];
        return true;
    }
    // Octets of more than eight count only as far as they fit.
    bool getInteger(DtU64& bits, unsigned int octets, bool little = false)
    {
        if (!has(octets))
            return false;
        bits = 0;
        for (unsigned int i = 0; i < octets; ++i)
        {
            const unsigned int place = little ? i : octets - 1 - i;
            if (place < 8)
                bits |= static_cast<DtU64>(myOctets[myOffset + i]) << (8 * place);
        }
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
    std::size_t mySize, myOffset;
    int myDepth;
    const char* myReason; // null while all is well
};

#endif
