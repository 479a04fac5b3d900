#ifndef DT_DLL_CASE_DtPaddedReport_H
#define DT_DLL_CASE_DtPaddedReport_H
 
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
#include "DataTypes/fillTo32.h"
#elif __has_include("DataTypes/fillTo32.h")
#include "DataTypes/fillTo32.h"
#endif
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif
#ifndef __has_include
#include "DataTypes/fillTo64.h"
#elif __has_include("DataTypes/fillTo64.h")
#include "DataTypes/fillTo64.h"
#endif
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtPaddedReport
{
public:
    DtPaddedReport();
    bool operator==(const DtPaddedReport& other) const;
    bool operator!=(const DtPaddedReport& other) const;
 
    const DtCount8& code() const { return Own.myCode; }
    void setCode(const DtCount8& value) { Own.myCode = value; }
    const DtFillTo32& fill() const { return Own.myFill; }
    void setFill(const DtFillTo32& value) { Own.myFill = value; }
    const DtCount8& value() const { return Own.myValue; }
    void setValue(const DtCount8& value) { Own.myValue = value; }
    const DtFillTo64& rest() const { return Own.myRest; }
    void setRest(const DtFillTo64& value) { Own.myRest = value; }
    const DtCount8& tail() const { return Own.myTail; }
    void setTail(const DtCount8& value) { Own.myTail = value; }

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
        DtCount8 myCode;
        DtFillTo32 myFill;
        DtCount8 myValue;
        DtFillTo64 myRest;
        DtCount8 myTail;
    };
 
    OwnValues Own;
};
 
#endif

