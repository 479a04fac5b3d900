#ifndef DT_DLL_CASE_DtReportFrame_H
#define DT_DLL_CASE_DtReportFrame_H
 
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
#include "DataTypes/paddedReport.h"
#elif __has_include("DataTypes/paddedReport.h")
#include "DataTypes/paddedReport.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtReportFrame
{
public:
    DtReportFrame();
    bool operator==(const DtReportFrame& other) const;
    bool operator!=(const DtReportFrame& other) const;
 
    const DtCount8& lead() const { return Own.myLead; }
    void setLead(const DtCount8& value) { Own.myLead = value; }
    const DtPaddedReport& body() const { return Own.myBody; }
    void setBody(const DtPaddedReport& value) { Own.myBody = value; }

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
        DtCount8 myLead;
        DtPaddedReport myBody;
    };
 
    OwnValues Own;
};
 
#endif

