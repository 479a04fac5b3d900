#ifndef DT_DLL_CASE_DtWindRecord_H
#define DT_DLL_CASE_DtWindRecord_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/gustPair.h"
#elif __has_include("DataTypes/gustPair.h")
#include "DataTypes/gustPair.h"
#endif
#ifndef __has_include
#include "DataTypes/oldRun.h"
#elif __has_include("DataTypes/oldRun.h")
#include "DataTypes/oldRun.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtWindRecord
{
public:
    DtWindRecord();
    bool operator==(const DtWindRecord& other) const;
    bool operator!=(const DtWindRecord& other) const;
 
    const DtFloat32& speed() const { return Own.mySpeed; }
    void setSpeed(const DtFloat32& value) { Own.mySpeed = value; }
    const DtFloat64& from() const { return Own.myFrom; }
    void setFrom(const DtFloat64& value) { Own.myFrom = value; }
    const DtGustPair& gusts() const { return Own.myGusts; }
    void setGusts(const DtGustPair& value) { Own.myGusts = value; }
    const DtOldRun& marks() const { return Own.myMarks; }
    void setMarks(const DtOldRun& value) { Own.myMarks = value; }

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
        DtFloat32 mySpeed;
        DtFloat64 myFrom;
        DtGustPair myGusts;
        DtOldRun myMarks;
    };
 
    OwnValues Own;
};
 
#endif

