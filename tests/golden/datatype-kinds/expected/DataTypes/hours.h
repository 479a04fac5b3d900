#ifndef DT_DLL_CASE_DtHours_H
#define DT_DLL_CASE_DtHours_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/wireFormat.h>
 
#include "dllExport.h"
 
// A simple datatype: one number under a name of its own.
class DT_DLL_CASE DtHours
{
public:
    typedef DtU8 Number;

    DtHours() : myNumber() {}
    DtHours(Number number) : myNumber(number) {}
 
    Number number() const { return myNumber; }
    void setNumber(Number number) { myNumber = number; }
    bool operator==(const DtHours& other) const { return myNumber == other.myNumber; }
    bool operator!=(const DtHours& other) const { return !(*this == other); }
 
    // The form names the representation, whose byte order counts.
    void encode(DtWireWriter& writer, const DtWireForm& form = DtWireForm()) const;
    // False: the octets are no such number, and this one is as it was.
    bool decode(DtWireReader& reader, const DtWireForm& form = DtWireForm());
    // Octets on the wire, from an offset of 0.
    unsigned int netSize() const;
    static unsigned int octetBoundary();
 
private:
    static unsigned int octets();
 
    Number myNumber;
};
 
#endif

