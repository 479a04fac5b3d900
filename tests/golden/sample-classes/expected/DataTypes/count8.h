#ifndef DT_DLL_CASE_DtCount8_H
#define DT_DLL_CASE_DtCount8_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/wireFormat.h>
 
#include "dllExport.h"
 
// A simple datatype: one number under a name of its own.
class DT_DLL_CASE DtCount8
{
public:
    typedef DtU8 Number;

    DtCount8() : myNumber() {}
    DtCount8(Number number) : myNumber(number) {}
 
    Number number() const { return myNumber; }
    void setNumber(Number number) { myNumber = number; }
    bool operator==(const DtCount8& other) const { return myNumber == other.myNumber; }
    bool operator!=(const DtCount8& other) const { return !(*this == other); }
 
    void encode(DtWireWriter& writer) const;
    // False: the octets are no such number, and this one is as it was.
    bool decode(DtWireReader& reader);
    // Octets on the wire, from an offset of 0.
    unsigned int netSize() const;
    static unsigned int octetBoundary();
 
private:
    static unsigned int octets();
    static bool isLittleEndian();
 
    Number myNumber;
};
 
#endif

