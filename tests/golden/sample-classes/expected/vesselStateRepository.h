#ifndef DT_DLL_CASE_DtVesselStateRepository_H
#define DT_DLL_CASE_DtVesselStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityStateRepository.h"
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/personList.h"
#elif __has_include("DataTypes/personList.h")
#include "DataTypes/personList.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one PortEntity.Vessel: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtVesselStateRepository
    : public DtPortEntityStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtVesselStateRepository();

    typedef DtFloat32 ValueOfSpeed;
    void setSpeed(const ValueOfSpeed& value);
    const ValueOfSpeed& speed() const;

    typedef DtFloat64 ValueOfHeading__True;
    void setHeading__True(const ValueOfHeading__True& value);
    const ValueOfHeading__True& heading__True() const;

    typedef DtVesselState8 ValueOfState;
    void setState(const ValueOfState& value);
    const ValueOfState& state() const;

    typedef DtString ValueOfTheClass;
    void setTheClass(const ValueOfTheClass& value);
    const ValueOfTheClass& theClass() const;

    typedef DtInt32 ValueOfTheInt;
    void setTheInt(const ValueOfTheInt& value);
    const ValueOfTheInt& theInt() const;

    typedef DtVesselState16 ValueOfTheTemplate;
    void setTheTemplate(const ValueOfTheTemplate& value);
    const ValueOfTheTemplate& theTemplate() const;

    typedef DtPersonList ValueOfCrew;
    void setCrew(const ValueOfCrew& value);
    const ValueOfCrew& crew() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfSpeed mySpeed;
        ValueOfHeading__True myHeading__True;
        ValueOfState myState;
        ValueOfTheClass myTheClass;
        ValueOfTheInt myTheInt;
        ValueOfTheTemplate myTheTemplate;
        ValueOfCrew myCrew;
    };
 
    OwnValues Own;
};

#endif
