#ifndef FOUNDATION_MTL_INPUT_STREAM_H
#define FOUNDATION_MTL_INPUT_STREAM_H

#include <cstdio>

// Bytes for the s-expression reader, one after the other, with a look at the next one.
class DtlInputStream
{
public:
    DtlInputStream() = default;
    DtlInputStream(const DtlInputStream&) = delete;
    DtlInputStream& operator=(const DtlInputStream&) = delete;
    virtual ~DtlInputStream() = default;

    // The next byte, 0 to 255, or EOF.
    int peek()
    {
        if (!myHasNext)
            myNext = readByte();
        myHasNext = true;
        return myNext;
    }
    int get()
    {
        const int byte = peek();
        myHasNext = byte == EOF; // the end stays the end
        return byte;
    }

    // True once the input has ended within a list or a string.
    bool hasEndedEarly() const { return myHasEndedEarly; }
    void setEndedEarly() { myHasEndedEarly = true; }

private:
    virtual int readByte() = 0;

    int myNext = EOF;
    bool myHasNext = false;
    bool myHasEndedEarly = false;
};

// Reads an open file from its present position. Does not close it; null is an empty one, and an unreadable one ends.
class DtlFileInputStream : public DtlInputStream
{
public:
    explicit DtlFileInputStream(FILE* file) : myFile(file) {}

private:
    int readByte() override { return myFile != nullptr ? getc_unlocked(myFile) : EOF; }

    FILE* myFile;
};

#endif
