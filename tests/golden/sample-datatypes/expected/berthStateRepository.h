#ifndef DT_DLL_CASE_DtBerthStateRepository_H
#define DT_DLL_CASE_DtBerthStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityStateRepository.h"
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/depthGrid.h"
#elif __has_include("DataTypes/depthGrid.h")
#include "DataTypes/depthGrid.h"
#endif
#ifndef __has_include
#include "DataTypes/occupant.h"
#elif __has_include("DataTypes/occupant.h")
#include "DataTypes/occupant.h"
#endif
#ifndef __has_include
#include "DataTypes/flagBits.h"
#elif __has_include("DataTypes/flagBits.h")
#include "DataTypes/flagBits.h"
#endif
#ifndef __has_include
#include "DataTypes/fenderList.h"
#elif __has_include("DataTypes/fenderList.h")
#include "DataTypes/fenderList.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one PortEntity.Berth: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtBerthStateRepository
    : public DtPortEntityStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtBerthStateRepository();

    typedef DtFloat64 ValueOfLength;
    void setLength(const ValueOfLength& value);
    const ValueOfLength& length() const;

    typedef DtDepthGrid ValueOfDepths;
    void setDepths(const ValueOfDepths& value);
    const ValueOfDepths& depths() const;

    typedef DtOccupant ValueOfOccupant;
    void setOccupant(const ValueOfOccupant& value);
    const ValueOfOccupant& occupant() const;

    typedef DtFlagBits ValueOfFlags;
    void setFlags(const ValueOfFlags& value);
    const ValueOfFlags& flags() const;

    typedef DtBerthKind64 ValueOfKind64;
    void setKind64(const ValueOfKind64& value);
    const ValueOfKind64& kind64() const;

    typedef DtFenderList ValueOfFenders;
    void setFenders(const ValueOfFenders& value);
    const ValueOfFenders& fenders() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfLength myLength;
        ValueOfDepths myDepths;
        ValueOfOccupant myOccupant;
        ValueOfFlags myFlags;
        ValueOfKind64 myKind64;
        ValueOfFenders myFenders;
    };
 
    OwnValues Own;
};

#endif
