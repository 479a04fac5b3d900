#ifndef DT_DLL_CASE_DtPerson_H
#define DT_DLL_CASE_DtPerson_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtPerson
{
public:
    DtPerson();
    bool operator==(const DtPerson& other) const;
    bool operator!=(const DtPerson& other) const;
 
    const DtString& fullName() const { return Own.myFullName; }
    void setFullName(const DtString& value) { Own.myFullName = value; }
    const DtCount8& age() const { return Own.myAge; }
    void setAge(const DtCount8& value) { Own.myAge = value; }
    const DtInt16& height__cm() const { return Own.myHeight__cm; }
    void setHeight__cm(const DtInt16& value) { Own.myHeight__cm = value; }

    void encode(DtWireWriter& writer) const;
    // False: the octets are no such record, and this one is as it was.
    bool decode(DtWireReader& reader);
    // Octets on the wire, from an offset of 0.
    template <class Size = unsigned int>
    Size netSize() const
    {
        return DtNetSizeOf(*this);
    }
    template <class Size = unsigned int>
    static Size octetBoundary()
    {
        return octetBoundary(static_cast<const DtWireTrail*>(nullptr));
    }
    static unsigned int octetBoundary(const DtWireTrail* outer);
 
private:
    static DtWireForm formOf(unsigned int field);

    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        DtString myFullName;
        DtCount8 myAge;
        DtInt16 myHeight__cm;
    };
 
    OwnValues Own;
};
 
#endif

