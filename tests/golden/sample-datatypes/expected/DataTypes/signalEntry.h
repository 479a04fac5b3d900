#ifndef DT_DLL_CASE_DtSignalEntry_H
#define DT_DLL_CASE_DtSignalEntry_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/clockTime.h"
#elif __has_include("DataTypes/clockTime.h")
#include "DataTypes/clockTime.h"
#endif
#ifndef __has_include
#include "DataTypes/signalMessage.h"
#elif __has_include("DataTypes/signalMessage.h")
#include "DataTypes/signalMessage.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtSignalEntry
{
public:
    DtSignalEntry();
    bool operator==(const DtSignalEntry& other) const;
    bool operator!=(const DtSignalEntry& other) const;
 
    const DtClockTime& sentAt() const { return Own.mySentAt; }
    void setSentAt(const DtClockTime& value) { Own.mySentAt = value; }
    const DtSignalMessage& what() const { return Own.myWhat; }
    void setWhat(const DtSignalMessage& value) { Own.myWhat = value; }

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
        DtClockTime mySentAt;
        DtSignalMessage myWhat;
    };
 
    OwnValues Own;
};
 
#endif

