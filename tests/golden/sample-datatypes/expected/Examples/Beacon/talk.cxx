// Generated from case; the next generation writes it anew.
//
// Publishes one Beacon, changes its values round by round and removes it.
//
//     talk [port] [rounds]
//
// A round takes half a second. Start listen with the same port to see what comes.
 
#ifdef QX_DIS
#include "beaconPublisherDIS.h"
#else
#include "beaconPublisherHLA.h"
#endif
 
#include <qx/exerciseConn.h>
#include <qx/valueText.h>
 
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
 
namespace
{
typedef DtBeaconStateRepository Target;
 
// Gives every value that has a simple form another one in each round. Structures and arrays go out as they start.
void setValues(Target& target, std::size_t round)
{
    (void)target; // in case that nothing below needs them
    (void)round;
    target.setPosition(target.position());
    target.setName(target.name());
    target.setSerial(static_cast<Target::ValueOfSerial>(32 + round));
    target.setLamp(DtEnumeratorInTurn<Target::ValueOfLamp>(round));
    target.setLamps(target.lamps());
    target.setSector(target.sector());
    target.setCallSign(target.callSign());
    target.setTemperature(target.temperature());
    target.setTilt(target.tilt());
    target.setTilts(target.tilts());
    target.setTheRegister(target.theRegister());
    target.setMark(static_cast<Target::ValueOfMark>(32 + round));
    target.setImage("Image " + std::to_string(round));
    target.setTested(round % 2 == 0);
    target.setManned(round % 2 == 0);
    target.setNeighbours(target.neighbours());
    target.setSights(target.sights());
    target.setZone(DtEnumeratorInTurn<Target::ValueOfZone>(round));
    target.setCurrent(DtEnumeratorInTurn<Target::ValueOfCurrent>(round));
    target.setWatch(target.watch());
    target.setCalls(target.calls());
    target.setFix(target.fix());
    target.setTest(target.test());
    target.setPass(target.pass());
    target.setCondition(target.condition());
    target.setSurvey(target.survey());
    target.setGear(target.gear());
    target.setRule(target.rule());
    target.setPaper(target.paper());
    target.setTimes(target.times());
    target.setChambers(target.chambers());
    target.setRemark(target.remark());
    target.setDraughts(target.draughts());
    target.setRing(target.ring());
    target.setLines(target.lines());
    target.setDeep(DtEnumeratorInTurn<Target::ValueOfDeep>(round));
    target.setSlack(DtEnumeratorInTurn<Target::ValueOfSlack>(round));
    target.setFind(DtEnumeratorInTurn<Target::ValueOfFind>(round));
    target.setSpare(target.spare());
    target.setSteps(static_cast<Target::ValueOfSteps>(32 + round));
    target.setRank(static_cast<Target::ValueOfRank>(32 + round));
    target.setFloor(static_cast<Target::ValueOfFloor>(32 + round));
    target.setSign(static_cast<Target::ValueOfSign>(32 + round));
    target.setFooting(static_cast<Target::ValueOfFooting>(32 + round));
    target.setSwing(target.swing());
    target.setDoors(target.doors());
}

} // namespace
 
int main(int argc, char* argv[])
{
    const int port = argc > 1 ? std::atoi(argv[1]) : 17000;
    const std::size_t rounds = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 10;
 
    // The connection takes the first of sixteen ports that is free.
    DtExerciseConn exerciseConn("case", static_cast<unsigned short>(port));
    if (exerciseConn.port() == 0)
    {
        std::cerr << "talk: none of the ports from " << port << " on is free" << std::endl;
        return 1;
    }
 
    // The object is there from here on. Others learn of it, and of its values, whenever they come.
    DtBeaconPublisher publisher(&exerciseConn, "A Beacon");
    for (std::size_t round = 0; round < rounds; ++round)
    {
        setValues(*publisher.beaconStateRep(), round);
        if (!publisher.tick()) // sends what was set since the last time
        {
            for (const std::string& name : publisher.refused())
            {
                std::cerr << "talk: " << name << " could not be sent" << std::endl;
            }
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        exerciseConn.drainInput(); // answers those who have come
    }
    return 0; // and the publisher removes the object
}
