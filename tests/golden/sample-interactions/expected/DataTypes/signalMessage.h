#ifndef DT_DLL_CASE_DtSignalMessage_H
#define DT_DLL_CASE_DtSignalMessage_H
 
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
#include "DataTypes/geoPoint.h"
#elif __has_include("DataTypes/geoPoint.h")
#include "DataTypes/geoPoint.h"
#endif

// A variant record: a discriminant and the alternative that it selects. Setting an alternative selects it.
//
// Its own operations take an argument or are templates, so that an alternative may bear any name.
class DT_DLL_CASE DtSignalMessage
{
public:
    typedef DtSignalKind16 Discriminant;

    DtSignalMessage();
    bool operator==(const DtSignalMessage& other) const;
    bool operator!=(const DtSignalMessage& other) const;
 
    template <class Result = Discriminant>
    Result discriminant() const
    {
        return Own.selector;
    }
    template <class Value>
    void setDiscriminant(Value value)
    {
        Own.selector = value;
    }
    // The place of the selected alternative among those that have a value, from 0; -1 when none is selected.
    template <class Result = int>
    Result selected() const
    {
        return placeOf(Own.selector);
    }
 
    const DtInt32& visibility() const { return Own.myVisibility; }
    void setVisibility(const DtInt32& value)
    {
        Own.myVisibility = value;
        select(0);
    }
    const DtCount8& strength() const { return Own.myStrength; }
    void setStrength(const DtCount8& value)
    {
        Own.myStrength = value;
        select(1);
    }
    const DtGeoPoint& place() const { return Own.myPlace; }
    void setPlace(const DtGeoPoint& value)
    {
        Own.myPlace = value;
        select(2);
    }
    const DtString& station() const { return Own.myStation; }
    void setStation(const DtString& value)
    {
        Own.myStation = value;
        select(3);
    }
    const DtString& words() const { return Own.myWords; }
    void setWords(const DtString& value)
    {
        Own.myWords = value;
        select(4);
    }

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
    // How the record is coded. No accessor is called like this: the second letter would be a capital too.
    struct Coding
    {
        static const DtAlternativeTable& places();
        static DtVariantKind kind();
        static DtWireForm discriminantForm();
        static DtWireForm formOf(unsigned int alternative);
        static unsigned int alternativeBoundary(const DtWireTrail* outer);
    };
 
    static int placeOf(const Discriminant& selector);
    void select(unsigned int alternative);
 
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        Discriminant selector;
        DtInt32 myVisibility;
        DtCount8 myStrength;
        DtGeoPoint myPlace;
        DtString myStation;
        DtString myWords;
    };
 
    OwnValues Own;
};
 
#endif

