// Generated from case; the next generation writes it anew.
//
// Publishes one Tug__Pusher, changes its values round by round and removes it.
//
//     talk [port] [rounds]
//
// A round takes half a second. Start listen with the same port to see what comes.
 
#ifdef QX_DIS
#include "tug__PusherPublisherDIS.h"
#else
#include "tug__PusherPublisherHLA.h"
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
typedef DtTug__PusherStateRepository Target;
 
// Gives every value that has a simple form another one in each round. Structures and arrays go out as they start.
void setValues(Target& target, std::size_t round)
{
    (void)target; // in case that nothing below needs them
    (void)round;
    target.setPosition(target.position());
    target.setName(target.name());
    target.setSerial(static_cast<Target::ValueOfSerial>(32 + round));
    target.setSpeed(static_cast<Target::ValueOfSpeed>(7.02 + static_cast<double>(round)));
    target.setHeading__True(static_cast<Target::ValueOfHeading__True>(7.02 + static_cast<double>(round)));
    target.setState(DtEnumeratorInTurn<Target::ValueOfState>(round));
    target.setTheClass("_class " + std::to_string(round));
    target.setTheInt(static_cast<Target::ValueOfTheInt>(32 + round));
    target.setTheTemplate(DtEnumeratorInTurn<Target::ValueOfTheTemplate>(round));
    target.setCrew(target.crew());
    target.setPull__Push(static_cast<Target::ValueOfPull__Push>(7.02 + static_cast<double>(round)));
    target.setLine__1(DtEnumeratorInTurn<Target::ValueOfLine__1>(round));
    target.setOwner("Owner " + std::to_string(round));
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
    DtTug__PusherPublisher publisher(&exerciseConn, "A Tug__Pusher");
    for (std::size_t round = 0; round < rounds; ++round)
    {
        setValues(*publisher.tug__PusherStateRep(), round);
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
