#ifndef DT_DLL_CASE_DtClockTime_H
#define DT_DLL_CASE_DtClockTime_H
 
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
class DT_DLL_CASE DtClockTime
{
public:
    DtClockTime();
    bool operator==(const DtClockTime& other) const;
    bool operator!=(const DtClockTime& other) const;
 
    const DtCount8& hour() const { return Own.myHour; }
    void setHour(const DtCount8& value) { Own.myHour = value; }
    const DtCount8& minute() const { return Own.myMinute; }
    void setMinute(const DtCount8& value) { Own.myMinute = value; }
    const DtCount8& second() const { return Own.mySecond; }
    void setSecond(const DtCount8& value) { Own.mySecond = value; }

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
        DtCount8 myHour;
        DtCount8 myMinute;
        DtCount8 mySecond;
    };
 
    OwnValues Own;
};
 
#endif

