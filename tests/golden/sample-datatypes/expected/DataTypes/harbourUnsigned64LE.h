#ifndef DT_DLL_CASE_DtHarbourUnsigned64LE_H
#define DT_DLL_CASE_DtHarbourUnsigned64LE_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/wireFormat.h>
 
#include "dllExport.h"
 
// A basic representation: one number of the length and byte order that the model gives.
class DT_DLL_CASE DtHarbourUnsigned64LE
{
public:
    typedef DtU64 Number;

    DtHarbourUnsigned64LE() : myNumber() {}
    DtHarbourUnsigned64LE(Number number) : myNumber(number) {}
 
    Number number() const { return myNumber; }
    void setNumber(Number number) { myNumber = number; }
    bool operator==(const DtHarbourUnsigned64LE& other) const { return myNumber == other.myNumber; }
    bool operator!=(const DtHarbourUnsigned64LE& other) const { return !(*this == other); }
 
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

