#ifndef DT_DLL_CASE_DtMeterStateRepository_H
#define DT_DLL_CASE_DtMeterStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateRepository.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/unsigned16LE.h"
#elif __has_include("DataTypes/unsigned16LE.h")
#include "DataTypes/unsigned16LE.h"
#endif
#ifndef __has_include
#include "DataTypes/hours.h"
#elif __has_include("DataTypes/hours.h")
#include "DataTypes/hours.h"
#endif
#ifndef __has_include
#include "DataTypes/row.h"
#elif __has_include("DataTypes/row.h")
#include "DataTypes/row.h"
#endif
#ifndef __has_include
#include "DataTypes/notes.h"
#elif __has_include("DataTypes/notes.h")
#include "DataTypes/notes.h"
#endif
#ifndef __has_include
#include "DataTypes/history.h"
#elif __has_include("DataTypes/history.h")
#include "DataTypes/history.h"
#endif
#ifndef __has_include
#include "DataTypes/reading.h"
#elif __has_include("DataTypes/reading.h")
#include "DataTypes/reading.h"
#endif
#ifndef __has_include
#include "DataTypes/content.h"
#elif __has_include("DataTypes/content.h")
#include "DataTypes/content.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one Meter: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtMeterStateRepository
    : public DtStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtMeterStateRepository();

    typedef DtUnsigned16LE ValueOfRaw;
    void setRaw(const ValueOfRaw& value);
    const ValueOfRaw& raw() const;

    typedef DtHours ValueOfRunning;
    void setRunning(const ValueOfRunning& value);
    const ValueOfRunning& running() const;

    typedef DtState8 ValueOfState;
    void setState(const ValueOfState& value);
    const ValueOfState& state() const;

    typedef DtRow ValueOfWeek;
    void setWeek(const ValueOfWeek& value);
    const ValueOfWeek& week() const;

    typedef DtNotes ValueOfRemarks;
    void setRemarks(const ValueOfRemarks& value);
    const ValueOfRemarks& remarks() const;

    typedef DtHistory ValueOfPast;
    void setPast(const ValueOfPast& value);
    const ValueOfPast& past() const;

    typedef DtReading ValueOfLast;
    void setLast(const ValueOfLast& value);
    const ValueOfLast& last() const;

    typedef DtContent ValueOfInside;
    void setInside(const ValueOfInside& value);
    const ValueOfInside& inside() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfRaw myRaw;
        ValueOfRunning myRunning;
        ValueOfState myState;
        ValueOfWeek myWeek;
        ValueOfRemarks myRemarks;
        ValueOfPast myPast;
        ValueOfLast myLast;
        ValueOfInside myInside;
    };
 
    OwnValues Own;
};

#endif
