#ifndef DT_DLL_CASE_DtContent_H
#define DT_DLL_CASE_DtContent_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/hours.h"
#elif __has_include("DataTypes/hours.h")
#include "DataTypes/hours.h"
#endif
#ifndef __has_include
#include "DataTypes/reading.h"
#elif __has_include("DataTypes/reading.h")
#include "DataTypes/reading.h"
#endif

// A variant record: a discriminant and the alternative that it selects. Setting an alternative selects it.
//
// Its own operations take an argument or are templates, so that an alternative may bear any name.
class DT_DLL_CASE DtContent
{
public:
    typedef DtState8 Discriminant;

    DtContent();
    bool operator==(const DtContent& other) const;
    bool operator!=(const DtContent& other) const;
 
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
 
    const DtHours& idle() const { return Own.myIdle; }
    void setIdle(const DtHours& value)
    {
        Own.myIdle = value;
        select(0);
    }
    const DtReading& busy() const { return Own.myBusy; }
    void setBusy(const DtReading& value)
    {
        Own.myBusy = value;
        select(1);
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
        DtHours myIdle;
        DtReading myBusy;
    };
 
    OwnValues Own;
};
 
#endif

