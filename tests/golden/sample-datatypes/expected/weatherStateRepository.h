#ifndef DT_DLL_CASE_DtWeatherStateRepository_H
#define DT_DLL_CASE_DtWeatherStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateRepository.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/windRecord.h"
#elif __has_include("DataTypes/windRecord.h")
#include "DataTypes/windRecord.h"
#endif
#ifndef __has_include
#include "DataTypes/reportText.h"
#elif __has_include("DataTypes/reportText.h")
#include "DataTypes/reportText.h"
#endif
#ifndef __has_include
#include "DataTypes/sampleRun.h"
#elif __has_include("DataTypes/sampleRun.h")
#include "DataTypes/sampleRun.h"
#endif
#ifndef __has_include
#include "DataTypes/codeRange.h"
#elif __has_include("DataTypes/codeRange.h")
#include "DataTypes/codeRange.h"
#endif
#ifndef __has_include
#include "DataTypes/tide16LE.h"
#elif __has_include("DataTypes/tide16LE.h")
#include "DataTypes/tide16LE.h"
#endif
#ifndef __has_include
#include "DataTypes/paddedTrace.h"
#elif __has_include("DataTypes/paddedTrace.h")
#include "DataTypes/paddedTrace.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one Weather: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtWeatherStateRepository
    : public DtStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtWeatherStateRepository();

    typedef DtWindRecord ValueOfWind;
    void setWind(const ValueOfWind& value);
    const ValueOfWind& wind() const;

    typedef DtReportText ValueOfReport;
    void setReport(const ValueOfReport& value);
    const ValueOfReport& report() const;

    typedef DtSampleRun ValueOfSamples;
    void setSamples(const ValueOfSamples& value);
    const ValueOfSamples& samples() const;

    typedef DtCodeRange ValueOfCodes;
    void setCodes(const ValueOfCodes& value);
    const ValueOfCodes& codes() const;

    typedef DtTide16LE ValueOfTide;
    void setTide(const ValueOfTide& value);
    const ValueOfTide& tide() const;

    typedef DtPaddedTrace ValueOfTrace;
    void setTrace(const ValueOfTrace& value);
    const ValueOfTrace& trace() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfWind myWind;
        ValueOfReport myReport;
        ValueOfSamples mySamples;
        ValueOfCodes myCodes;
        ValueOfTide myTide;
        ValueOfTrace myTrace;
    };
 
    OwnValues Own;
};

#endif
