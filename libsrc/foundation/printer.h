#ifndef FOUNDATION_PRINTER_H
#define FOUNDATION_PRINTER_H

#include <cstddef>

// A sink for text. Attached to any number of streams, owned by none.
class DtPrinter
{
public:
    virtual ~DtPrinter() = default;
    virtual void print(const char* text, std::size_t length) = 0;
    virtual void flush() {}
};

#endif
