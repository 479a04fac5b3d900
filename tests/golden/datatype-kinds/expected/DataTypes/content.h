#ifndef DT_DLL_CASE_DtContent_H
#define DT_DLL_CASE_DtContent_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#if __has_include("DataTypes/hours.h")
#include "DataTypes/hours.h"
#endif
#if __has_include("DataTypes/reading.h")
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
        return selector_;
    }
    template <class Value>
    void setDiscriminant(Value value)
    {
        selector_ = value;
    }
    // The place of the selected alternative among those that have a value, from 0; -1 when none is selected.
    template <class Result = int>
    Result selected() const
    {
        return places_().find(DtNumberOfDiscriminant(selector_));
    }
 
    const DtHours& idle() const { return myIdle; }
    void setIdle(const DtHours& value)
    {
        myIdle = value;
        select_(0);
    }
    const DtReading& busy() const { return myBusy; }
    void setBusy(const DtReading& value)
    {
        myBusy = value;
        select_(1);
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
    // Names that end in _ cannot be those of an alternative.
    static const DtAlternativeTable& places_();
    static DtWireForm formOf(unsigned int alternative);
    static DtWireForm discriminantForm_();
    static DtVariantKind kind_();
    static unsigned int alternativeBoundary_(const DtWireTrail* outer);
    void select_(unsigned int alternative);
 
    Discriminant selector_;
    DtHours myIdle;
    DtReading myBusy;
};
 
#endif

