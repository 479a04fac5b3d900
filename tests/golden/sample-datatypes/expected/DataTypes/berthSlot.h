#ifndef DT_DLL_CASE_DtBerthSlot_H
#define DT_DLL_CASE_DtBerthSlot_H
 
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
#ifndef __has_include
#include "DataTypes/tideMark.h"
#elif __has_include("DataTypes/tideMark.h")
#include "DataTypes/tideMark.h"
#endif
#ifndef __has_include
#include "DataTypes/weight__Kg.h"
#elif __has_include("DataTypes/weight__Kg.h")
#include "DataTypes/weight__Kg.h"
#endif
#ifndef __has_include
#include "DataTypes/tideMark.h"
#elif __has_include("DataTypes/tideMark.h")
#include "DataTypes/tideMark.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtBerthSlot
{
public:
    DtBerthSlot();
    bool operator==(const DtBerthSlot& other) const;
    bool operator!=(const DtBerthSlot& other) const;
 
    const DtCount8& number() const { return Own.myNumber; }
    void setNumber(const DtCount8& value) { Own.myNumber = value; }
    const DtTideMark& start() const { return Own.myStart; }
    void setStart(const DtTideMark& value) { Own.myStart = value; }
    const DtWeight__Kg& load__Max() const { return Own.myLoad__Max; }
    void setLoad__Max(const DtWeight__Kg& value) { Own.myLoad__Max = value; }
    const DtTideMark& until() const { return Own.myUntil; }
    void setUntil(const DtTideMark& value) { Own.myUntil = value; }

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
        DtCount8 myNumber;
        DtTideMark myStart;
        DtWeight__Kg myLoad__Max;
        DtTideMark myUntil;
    };
 
    OwnValues Own;
};
 
#endif

