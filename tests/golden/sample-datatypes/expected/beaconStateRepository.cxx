// Generated from case; the next generation writes it anew.
 
#include "beaconStateRepository.h"
 
DtBeaconStateRepository::DtBeaconStateRepository() : Own()
{
}

void DtBeaconStateRepository::setLamp(const ValueOfLamp& value)
{
    Own.myLamp = value;
    DtStateRepository::markChanged("Lamp");
}
 
const DtBeaconStateRepository::ValueOfLamp& DtBeaconStateRepository::lamp() const
{
    return Own.myLamp;
}

void DtBeaconStateRepository::setLamps(const ValueOfLamps& value)
{
    Own.myLamps = value;
    DtStateRepository::markChanged("Lamps");
}
 
const DtBeaconStateRepository::ValueOfLamps& DtBeaconStateRepository::lamps() const
{
    return Own.myLamps;
}

void DtBeaconStateRepository::setSector(const ValueOfSector& value)
{
    Own.mySector = value;
    DtStateRepository::markChanged("Sector");
}
 
const DtBeaconStateRepository::ValueOfSector& DtBeaconStateRepository::sector() const
{
    return Own.mySector;
}

void DtBeaconStateRepository::setCallSign(const ValueOfCallSign& value)
{
    Own.myCallSign = value;
    DtStateRepository::markChanged("CallSign");
}
 
const DtBeaconStateRepository::ValueOfCallSign& DtBeaconStateRepository::callSign() const
{
    return Own.myCallSign;
}

void DtBeaconStateRepository::setTemperature(const ValueOfTemperature& value)
{
    Own.myTemperature = value;
    DtStateRepository::markChanged("Temperature");
}
 
const DtBeaconStateRepository::ValueOfTemperature& DtBeaconStateRepository::temperature() const
{
    return Own.myTemperature;
}

void DtBeaconStateRepository::setTilt(const ValueOfTilt& value)
{
    Own.myTilt = value;
    DtStateRepository::markChanged("Tilt");
}
 
const DtBeaconStateRepository::ValueOfTilt& DtBeaconStateRepository::tilt() const
{
    return Own.myTilt;
}

void DtBeaconStateRepository::setTilts(const ValueOfTilts& value)
{
    Own.myTilts = value;
    DtStateRepository::markChanged("Tilts");
}
 
const DtBeaconStateRepository::ValueOfTilts& DtBeaconStateRepository::tilts() const
{
    return Own.myTilts;
}

void DtBeaconStateRepository::setTheRegister(const ValueOfTheRegister& value)
{
    Own.myTheRegister = value;
    DtStateRepository::markChanged("Register");
}
 
const DtBeaconStateRepository::ValueOfTheRegister& DtBeaconStateRepository::theRegister() const
{
    return Own.myTheRegister;
}

void DtBeaconStateRepository::setMark(const ValueOfMark& value)
{
    Own.myMark = value;
    DtStateRepository::markChanged("Mark");
}
 
const DtBeaconStateRepository::ValueOfMark& DtBeaconStateRepository::mark() const
{
    return Own.myMark;
}

void DtBeaconStateRepository::setImage(const ValueOfImage& value)
{
    Own.myImage = value;
    DtStateRepository::markChanged("Image");
}
 
const DtBeaconStateRepository::ValueOfImage& DtBeaconStateRepository::image() const
{
    return Own.myImage;
}

void DtBeaconStateRepository::setTested(const ValueOfTested& value)
{
    Own.myTested = value;
    DtStateRepository::markChanged("Tested");
}
 
const DtBeaconStateRepository::ValueOfTested& DtBeaconStateRepository::tested() const
{
    return Own.myTested;
}

void DtBeaconStateRepository::setManned(const ValueOfManned& value)
{
    Own.myManned = value;
    DtStateRepository::markChanged("Manned");
}
 
const DtBeaconStateRepository::ValueOfManned& DtBeaconStateRepository::manned() const
{
    return Own.myManned;
}

void DtBeaconStateRepository::setNeighbours(const ValueOfNeighbours& value)
{
    Own.myNeighbours = value;
    DtStateRepository::markChanged("Neighbours");
}
 
const DtBeaconStateRepository::ValueOfNeighbours& DtBeaconStateRepository::neighbours() const
{
    return Own.myNeighbours;
}

void DtBeaconStateRepository::setSights(const ValueOfSights& value)
{
    Own.mySights = value;
    DtStateRepository::markChanged("Sights");
}
 
const DtBeaconStateRepository::ValueOfSights& DtBeaconStateRepository::sights() const
{
    return Own.mySights;
}

void DtBeaconStateRepository::setZone(const ValueOfZone& value)
{
    Own.myZone = value;
    DtStateRepository::markChanged("Zone");
}
 
const DtBeaconStateRepository::ValueOfZone& DtBeaconStateRepository::zone() const
{
    return Own.myZone;
}

void DtBeaconStateRepository::setCurrent(const ValueOfCurrent& value)
{
    Own.myCurrent = value;
    DtStateRepository::markChanged("Current");
}
 
const DtBeaconStateRepository::ValueOfCurrent& DtBeaconStateRepository::current() const
{
    return Own.myCurrent;
}

void DtBeaconStateRepository::setWatch(const ValueOfWatch& value)
{
    Own.myWatch = value;
    DtStateRepository::markChanged("Watch");
}
 
const DtBeaconStateRepository::ValueOfWatch& DtBeaconStateRepository::watch() const
{
    return Own.myWatch;
}

void DtBeaconStateRepository::setCalls(const ValueOfCalls& value)
{
    Own.myCalls = value;
    DtStateRepository::markChanged("Calls");
}
 
const DtBeaconStateRepository::ValueOfCalls& DtBeaconStateRepository::calls() const
{
    return Own.myCalls;
}

void DtBeaconStateRepository::setFix(const ValueOfFix& value)
{
    Own.myFix = value;
    DtStateRepository::markChanged("Fix");
}
 
const DtBeaconStateRepository::ValueOfFix& DtBeaconStateRepository::fix() const
{
    return Own.myFix;
}

void DtBeaconStateRepository::setTest(const ValueOfTest& value)
{
    Own.myTest = value;
    DtStateRepository::markChanged("Test");
}
 
const DtBeaconStateRepository::ValueOfTest& DtBeaconStateRepository::test() const
{
    return Own.myTest;
}

void DtBeaconStateRepository::setPass(const ValueOfPass& value)
{
    Own.myPass = value;
    DtStateRepository::markChanged("Pass");
}
 
const DtBeaconStateRepository::ValueOfPass& DtBeaconStateRepository::pass() const
{
    return Own.myPass;
}

void DtBeaconStateRepository::setCondition(const ValueOfCondition& value)
{
    Own.myCondition = value;
    DtStateRepository::markChanged("Condition");
}
 
const DtBeaconStateRepository::ValueOfCondition& DtBeaconStateRepository::condition() const
{
    return Own.myCondition;
}

void DtBeaconStateRepository::setSurvey(const ValueOfSurvey& value)
{
    Own.mySurvey = value;
    DtStateRepository::markChanged("Survey");
}
 
const DtBeaconStateRepository::ValueOfSurvey& DtBeaconStateRepository::survey() const
{
    return Own.mySurvey;
}

void DtBeaconStateRepository::setGear(const ValueOfGear& value)
{
    Own.myGear = value;
    DtStateRepository::markChanged("Gear");
}
 
const DtBeaconStateRepository::ValueOfGear& DtBeaconStateRepository::gear() const
{
    return Own.myGear;
}

void DtBeaconStateRepository::setRule(const ValueOfRule& value)
{
    Own.myRule = value;
    DtStateRepository::markChanged("Rule");
}
 
const DtBeaconStateRepository::ValueOfRule& DtBeaconStateRepository::rule() const
{
    return Own.myRule;
}

void DtBeaconStateRepository::setPaper(const ValueOfPaper& value)
{
    Own.myPaper = value;
    DtStateRepository::markChanged("Paper");
}
 
const DtBeaconStateRepository::ValueOfPaper& DtBeaconStateRepository::paper() const
{
    return Own.myPaper;
}

void DtBeaconStateRepository::setTimes(const ValueOfTimes& value)
{
    Own.myTimes = value;
    DtStateRepository::markChanged("Times");
}
 
const DtBeaconStateRepository::ValueOfTimes& DtBeaconStateRepository::times() const
{
    return Own.myTimes;
}

void DtBeaconStateRepository::setChambers(const ValueOfChambers& value)
{
    Own.myChambers = value;
    DtStateRepository::markChanged("Chambers");
}
 
const DtBeaconStateRepository::ValueOfChambers& DtBeaconStateRepository::chambers() const
{
    return Own.myChambers;
}

void DtBeaconStateRepository::setRemark(const ValueOfRemark& value)
{
    Own.myRemark = value;
    DtStateRepository::markChanged("Remark");
}
 
const DtBeaconStateRepository::ValueOfRemark& DtBeaconStateRepository::remark() const
{
    return Own.myRemark;
}

void DtBeaconStateRepository::setDraughts(const ValueOfDraughts& value)
{
    Own.myDraughts = value;
    DtStateRepository::markChanged("Draughts");
}
 
const DtBeaconStateRepository::ValueOfDraughts& DtBeaconStateRepository::draughts() const
{
    return Own.myDraughts;
}

void DtBeaconStateRepository::setRing(const ValueOfRing& value)
{
    Own.myRing = value;
    DtStateRepository::markChanged("Ring");
}
 
const DtBeaconStateRepository::ValueOfRing& DtBeaconStateRepository::ring() const
{
    return Own.myRing;
}

void DtBeaconStateRepository::setLines(const ValueOfLines& value)
{
    Own.myLines = value;
    DtStateRepository::markChanged("Lines");
}
 
const DtBeaconStateRepository::ValueOfLines& DtBeaconStateRepository::lines() const
{
    return Own.myLines;
}

void DtBeaconStateRepository::setDeep(const ValueOfDeep& value)
{
    Own.myDeep = value;
    DtStateRepository::markChanged("Deep");
}
 
const DtBeaconStateRepository::ValueOfDeep& DtBeaconStateRepository::deep() const
{
    return Own.myDeep;
}

void DtBeaconStateRepository::setSlack(const ValueOfSlack& value)
{
    Own.mySlack = value;
    DtStateRepository::markChanged("Slack");
}
 
const DtBeaconStateRepository::ValueOfSlack& DtBeaconStateRepository::slack() const
{
    return Own.mySlack;
}

void DtBeaconStateRepository::setFind(const ValueOfFind& value)
{
    Own.myFind = value;
    DtStateRepository::markChanged("Find");
}
 
const DtBeaconStateRepository::ValueOfFind& DtBeaconStateRepository::find() const
{
    return Own.myFind;
}

void DtBeaconStateRepository::setSpare(const ValueOfSpare& value)
{
    Own.mySpare = value;
    DtStateRepository::markChanged("Spare");
}
 
const DtBeaconStateRepository::ValueOfSpare& DtBeaconStateRepository::spare() const
{
    return Own.mySpare;
}

void DtBeaconStateRepository::setSteps(const ValueOfSteps& value)
{
    Own.mySteps = value;
    DtStateRepository::markChanged("Steps");
}
 
const DtBeaconStateRepository::ValueOfSteps& DtBeaconStateRepository::steps() const
{
    return Own.mySteps;
}

void DtBeaconStateRepository::setRank(const ValueOfRank& value)
{
    Own.myRank = value;
    DtStateRepository::markChanged("Rank");
}
 
const DtBeaconStateRepository::ValueOfRank& DtBeaconStateRepository::rank() const
{
    return Own.myRank;
}

void DtBeaconStateRepository::setFloor(const ValueOfFloor& value)
{
    Own.myFloor = value;
    DtStateRepository::markChanged("Floor");
}
 
const DtBeaconStateRepository::ValueOfFloor& DtBeaconStateRepository::floor() const
{
    return Own.myFloor;
}

void DtBeaconStateRepository::setSign(const ValueOfSign& value)
{
    Own.mySign = value;
    DtStateRepository::markChanged("Sign");
}
 
const DtBeaconStateRepository::ValueOfSign& DtBeaconStateRepository::sign() const
{
    return Own.mySign;
}

void DtBeaconStateRepository::setFooting(const ValueOfFooting& value)
{
    Own.myFooting = value;
    DtStateRepository::markChanged("Footing");
}
 
const DtBeaconStateRepository::ValueOfFooting& DtBeaconStateRepository::footing() const
{
    return Own.myFooting;
}

void DtBeaconStateRepository::setSwing(const ValueOfSwing& value)
{
    Own.mySwing = value;
    DtStateRepository::markChanged("Swing");
}
 
const DtBeaconStateRepository::ValueOfSwing& DtBeaconStateRepository::swing() const
{
    return Own.mySwing;
}

void DtBeaconStateRepository::setDoors(const ValueOfDoors& value)
{
    Own.myDoors = value;
    DtStateRepository::markChanged("Doors");
}
 
const DtBeaconStateRepository::ValueOfDoors& DtBeaconStateRepository::doors() const
{
    return Own.myDoors;
}

