#ifndef DT_DLL_CASE_DtLongNote_H
#define DT_DLL_CASE_DtLongNote_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/routeCode.h"
#elif __has_include("DataTypes/routeCode.h")
#include "DataTypes/routeCode.h"
#endif
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif
#ifndef __has_include
#include "DataTypes/registerNumber.h"
#elif __has_include("DataTypes/registerNumber.h")
#include "DataTypes/registerNumber.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtLongNote
{
public:
    DtLongNote();
    bool operator==(const DtLongNote& other) const;
    bool operator!=(const DtLongNote& other) const;
 
    const DtU16& author() const { return Own.myAuthor; }
    void setAuthor(const DtU16& value) { Own.myAuthor = value; }
    const DtRouteCode& words() const { return Own.myWords; }
    void setWords(const DtRouteCode& value) { Own.myWords = value; }
    const DtCount8& rating() const { return Own.myRating; }
    void setRating(const DtCount8& value) { Own.myRating = value; }
    const DtRegisterNumber& sum() const { return Own.mySum; }
    void setSum(const DtRegisterNumber& value) { Own.mySum = value; }

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
        DtU16 myAuthor;
        DtRouteCode myWords;
        DtCount8 myRating;
        DtRegisterNumber mySum;
    };
 
    OwnValues Own;
};
 
#endif

