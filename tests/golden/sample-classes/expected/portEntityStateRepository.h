#ifndef DT_DLL_CASE_DtPortEntityStateRepository_H
#define DT_DLL_CASE_DtPortEntityStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateRepository.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/geoPoint.h"
#elif __has_include("DataTypes/geoPoint.h")
#include "DataTypes/geoPoint.h"
#endif
#ifndef __has_include
#include "DataTypes/shortText.h"
#elif __has_include("DataTypes/shortText.h")
#include "DataTypes/shortText.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one PortEntity: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtPortEntityStateRepository
    : public DtStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtPortEntityStateRepository();

    typedef DtGeoPoint ValueOfPosition;
    void setPosition(const ValueOfPosition& value);
    const ValueOfPosition& position() const;

    typedef DtShortText ValueOfName;
    void setName(const ValueOfName& value);
    const ValueOfName& name() const;

    typedef DtInt64 ValueOfSerial;
    void setSerial(const ValueOfSerial& value);
    const ValueOfSerial& serial() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfPosition myPosition;
        ValueOfName myName;
        ValueOfSerial mySerial;
    };
 
    OwnValues Own;
};

#endif
