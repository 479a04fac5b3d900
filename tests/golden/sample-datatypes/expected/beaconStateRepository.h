#ifndef DT_DLL_CASE_DtBeaconStateRepository_H
#define DT_DLL_CASE_DtBeaconStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityStateRepository.h"
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/lampMatrix.h"
#elif __has_include("DataTypes/lampMatrix.h")
#include "DataTypes/lampMatrix.h"
#endif
#ifndef __has_include
#include "DataTypes/bearing.h"
#elif __has_include("DataTypes/bearing.h")
#include "DataTypes/bearing.h"
#endif
#ifndef __has_include
#include "DataTypes/routeCode.h"
#elif __has_include("DataTypes/routeCode.h")
#include "DataTypes/routeCode.h"
#endif
#ifndef __has_include
#include "DataTypes/celsius.h"
#elif __has_include("DataTypes/celsius.h")
#include "DataTypes/celsius.h"
#endif
#ifndef __has_include
#include "DataTypes/trim24.h"
#elif __has_include("DataTypes/trim24.h")
#include "DataTypes/trim24.h"
#endif
#ifndef __has_include
#include "DataTypes/tiltTable.h"
#elif __has_include("DataTypes/tiltTable.h")
#include "DataTypes/tiltTable.h"
#endif
#ifndef __has_include
#include "DataTypes/registerNumber.h"
#elif __has_include("DataTypes/registerNumber.h")
#include "DataTypes/registerNumber.h"
#endif
#ifndef __has_include
#include "DataTypes/nameList.h"
#elif __has_include("DataTypes/nameList.h")
#include "DataTypes/nameList.h"
#endif
#ifndef __has_include
#include "DataTypes/bearingList.h"
#elif __has_include("DataTypes/bearingList.h")
#include "DataTypes/bearingList.h"
#endif
#ifndef __has_include
#include "DataTypes/rotationList.h"
#elif __has_include("DataTypes/rotationList.h")
#include "DataTypes/rotationList.h"
#endif
#ifndef __has_include
#include "DataTypes/signalLog.h"
#elif __has_include("DataTypes/signalLog.h")
#include "DataTypes/signalLog.h"
#endif
#ifndef __has_include
#include "DataTypes/positionFix.h"
#elif __has_include("DataTypes/positionFix.h")
#include "DataTypes/positionFix.h"
#endif
#ifndef __has_include
#include "DataTypes/testResult.h"
#elif __has_include("DataTypes/testResult.h")
#include "DataTypes/testResult.h"
#endif
#ifndef __has_include
#include "DataTypes/permit.h"
#elif __has_include("DataTypes/permit.h")
#include "DataTypes/permit.h"
#endif
#ifndef __has_include
#include "DataTypes/lampReport.h"
#elif __has_include("DataTypes/lampReport.h")
#include "DataTypes/lampReport.h"
#endif
#ifndef __has_include
#include "DataTypes/inspection.h"
#elif __has_include("DataTypes/inspection.h")
#include "DataTypes/inspection.h"
#endif
#ifndef __has_include
#include "DataTypes/equipment.h"
#elif __has_include("DataTypes/equipment.h")
#include "DataTypes/equipment.h"
#endif
#ifndef __has_include
#include "DataTypes/zoneRule.h"
#elif __has_include("DataTypes/zoneRule.h")
#include "DataTypes/zoneRule.h"
#endif
#ifndef __has_include
#include "DataTypes/reportFrame.h"
#elif __has_include("DataTypes/reportFrame.h")
#include "DataTypes/reportFrame.h"
#endif
#ifndef __has_include
#include "DataTypes/gateTimes.h"
#elif __has_include("DataTypes/gateTimes.h")
#include "DataTypes/gateTimes.h"
#endif
#ifndef __has_include
#include "DataTypes/lockGrid.h"
#elif __has_include("DataTypes/lockGrid.h")
#include "DataTypes/lockGrid.h"
#endif
#ifndef __has_include
#include "DataTypes/longNote.h"
#elif __has_include("DataTypes/longNote.h")
#include "DataTypes/longNote.h"
#endif
#ifndef __has_include
#include "DataTypes/draughtTable.h"
#elif __has_include("DataTypes/draughtTable.h")
#include "DataTypes/draughtTable.h"
#endif
#ifndef __has_include
#include "DataTypes/tideRing.h"
#elif __has_include("DataTypes/tideRing.h")
#include "DataTypes/tideRing.h"
#endif
#ifndef __has_include
#include "DataTypes/lineList.h"
#elif __has_include("DataTypes/lineList.h")
#include "DataTypes/lineList.h"
#endif
#ifndef __has_include
#include "DataTypes/empty__Record.h"
#elif __has_include("DataTypes/empty__Record.h")
#include "DataTypes/empty__Record.h"
#endif
#ifndef __has_include
#include "DataTypes/harbourInteger24LE.h"
#elif __has_include("DataTypes/harbourInteger24LE.h")
#include "DataTypes/harbourInteger24LE.h"
#endif
#ifndef __has_include
#include "DataTypes/doorStates.h"
#elif __has_include("DataTypes/doorStates.h")
#include "DataTypes/doorStates.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one PortEntity.Beacon: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtBeaconStateRepository
    : public DtPortEntityStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtBeaconStateRepository();

    typedef DtLampState ValueOfLamp;
    void setLamp(const ValueOfLamp& value);
    const ValueOfLamp& lamp() const;

    typedef DtLampMatrix ValueOfLamps;
    void setLamps(const ValueOfLamps& value);
    const ValueOfLamps& lamps() const;

    typedef DtBearing ValueOfSector;
    void setSector(const ValueOfSector& value);
    const ValueOfSector& sector() const;

    typedef DtRouteCode ValueOfCallSign;
    void setCallSign(const ValueOfCallSign& value);
    const ValueOfCallSign& callSign() const;

    typedef DtCelsius ValueOfTemperature;
    void setTemperature(const ValueOfTemperature& value);
    const ValueOfTemperature& temperature() const;

    typedef DtTrim24 ValueOfTilt;
    void setTilt(const ValueOfTilt& value);
    const ValueOfTilt& tilt() const;

    typedef DtTiltTable ValueOfTilts;
    void setTilts(const ValueOfTilts& value);
    const ValueOfTilts& tilts() const;

    typedef DtRegisterNumber ValueOfTheRegister;
    void setTheRegister(const ValueOfTheRegister& value);
    const ValueOfTheRegister& theRegister() const;

    typedef DtU16 ValueOfMark;
    void setMark(const ValueOfMark& value);
    const ValueOfMark& mark() const;

    typedef DtString ValueOfImage;
    void setImage(const ValueOfImage& value);
    const ValueOfImage& image() const;

    typedef bool ValueOfTested;
    void setTested(const ValueOfTested& value);
    const ValueOfTested& tested() const;

    typedef bool ValueOfManned;
    void setManned(const ValueOfManned& value);
    const ValueOfManned& manned() const;

    typedef DtNameList ValueOfNeighbours;
    void setNeighbours(const ValueOfNeighbours& value);
    const ValueOfNeighbours& neighbours() const;

    typedef DtBearingList ValueOfSights;
    void setSights(const ValueOfSights& value);
    const ValueOfSights& sights() const;

    typedef DtZone64 ValueOfZone;
    void setZone(const ValueOfZone& value);
    const ValueOfZone& zone() const;

    typedef DtCurrent16 ValueOfCurrent;
    void setCurrent(const ValueOfCurrent& value);
    const ValueOfCurrent& current() const;

    typedef DtRotationList ValueOfWatch;
    void setWatch(const ValueOfWatch& value);
    const ValueOfWatch& watch() const;

    typedef DtSignalLog ValueOfCalls;
    void setCalls(const ValueOfCalls& value);
    const ValueOfCalls& calls() const;

    typedef DtPositionFix ValueOfFix;
    void setFix(const ValueOfFix& value);
    const ValueOfFix& fix() const;

    typedef DtTestResult ValueOfTest;
    void setTest(const ValueOfTest& value);
    const ValueOfTest& test() const;

    typedef DtPermit ValueOfPass;
    void setPass(const ValueOfPass& value);
    const ValueOfPass& pass() const;

    typedef DtLampReport ValueOfCondition;
    void setCondition(const ValueOfCondition& value);
    const ValueOfCondition& condition() const;

    typedef DtInspection ValueOfSurvey;
    void setSurvey(const ValueOfSurvey& value);
    const ValueOfSurvey& survey() const;

    typedef DtEquipment ValueOfGear;
    void setGear(const ValueOfGear& value);
    const ValueOfGear& gear() const;

    typedef DtZoneRule ValueOfRule;
    void setRule(const ValueOfRule& value);
    const ValueOfRule& rule() const;

    typedef DtReportFrame ValueOfPaper;
    void setPaper(const ValueOfPaper& value);
    const ValueOfPaper& paper() const;

    typedef DtGateTimes ValueOfTimes;
    void setTimes(const ValueOfTimes& value);
    const ValueOfTimes& times() const;

    typedef DtLockGrid ValueOfChambers;
    void setChambers(const ValueOfChambers& value);
    const ValueOfChambers& chambers() const;

    typedef DtLongNote ValueOfRemark;
    void setRemark(const ValueOfRemark& value);
    const ValueOfRemark& remark() const;

    typedef DtDraughtTable ValueOfDraughts;
    void setDraughts(const ValueOfDraughts& value);
    const ValueOfDraughts& draughts() const;

    typedef DtTideRing ValueOfRing;
    void setRing(const ValueOfRing& value);
    const ValueOfRing& ring() const;

    typedef DtLineList ValueOfLines;
    void setLines(const ValueOfLines& value);
    const ValueOfLines& lines() const;

    typedef DtDeep32 ValueOfDeep;
    void setDeep(const ValueOfDeep& value);
    const ValueOfDeep& deep() const;

    typedef DtSlack24 ValueOfSlack;
    void setSlack(const ValueOfSlack& value);
    const ValueOfSlack& slack() const;

    typedef DtHullPart32 ValueOfFind;
    void setFind(const ValueOfFind& value);
    const ValueOfFind& find() const;

    typedef DtEmpty__Record ValueOfSpare;
    void setSpare(const ValueOfSpare& value);
    const ValueOfSpare& spare() const;

    typedef DtInt32 ValueOfSteps;
    void setSteps(const ValueOfSteps& value);
    const ValueOfSteps& steps() const;

    typedef DtInt64 ValueOfRank;
    void setRank(const ValueOfRank& value);
    const ValueOfRank& rank() const;

    typedef DtInt16 ValueOfFloor;
    void setFloor(const ValueOfFloor& value);
    const ValueOfFloor& floor() const;

    typedef DtU8 ValueOfSign;
    void setSign(const ValueOfSign& value);
    const ValueOfSign& sign() const;

    typedef DtInt16 ValueOfFooting;
    void setFooting(const ValueOfFooting& value);
    const ValueOfFooting& footing() const;

    typedef DtHarbourInteger24LE ValueOfSwing;
    void setSwing(const ValueOfSwing& value);
    const ValueOfSwing& swing() const;

    typedef DtDoorStates ValueOfDoors;
    void setDoors(const ValueOfDoors& value);
    const ValueOfDoors& doors() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfLamp myLamp;
        ValueOfLamps myLamps;
        ValueOfSector mySector;
        ValueOfCallSign myCallSign;
        ValueOfTemperature myTemperature;
        ValueOfTilt myTilt;
        ValueOfTilts myTilts;
        ValueOfTheRegister myTheRegister;
        ValueOfMark myMark;
        ValueOfImage myImage;
        ValueOfTested myTested;
        ValueOfManned myManned;
        ValueOfNeighbours myNeighbours;
        ValueOfSights mySights;
        ValueOfZone myZone;
        ValueOfCurrent myCurrent;
        ValueOfWatch myWatch;
        ValueOfCalls myCalls;
        ValueOfFix myFix;
        ValueOfTest myTest;
        ValueOfPass myPass;
        ValueOfCondition myCondition;
        ValueOfSurvey mySurvey;
        ValueOfGear myGear;
        ValueOfRule myRule;
        ValueOfPaper myPaper;
        ValueOfTimes myTimes;
        ValueOfChambers myChambers;
        ValueOfRemark myRemark;
        ValueOfDraughts myDraughts;
        ValueOfRing myRing;
        ValueOfLines myLines;
        ValueOfDeep myDeep;
        ValueOfSlack mySlack;
        ValueOfFind myFind;
        ValueOfSpare mySpare;
        ValueOfSteps mySteps;
        ValueOfRank myRank;
        ValueOfFloor myFloor;
        ValueOfSign mySign;
        ValueOfFooting myFooting;
        ValueOfSwing mySwing;
        ValueOfDoors myDoors;
    };
 
    OwnValues Own;
};

#endif
