// Generated from case; the next generation writes it anew.
//
// Publishes one Meter, changes its values round by round and removes it.
//
//     talk [port] [rounds]
//
// A round takes half a second. Start listen with the same port to see what comes.
 
#ifdef QX_DIS
#include "meterPublisherDIS.h"
#else
#include "meterPublisherHLA.h"
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
typedef DtMeterStateRepository Target;
 
// Gives every value that has a simple form another one in each round. Structures and arrays go out as they start.
void setValues(Target& target, std::size_t round)
{
    (void)target; // in case that nothing below needs them
    (void)round;
    target.setRaw(target.raw());
    target.setRunning(target.running());
    target.setState(DtEnumeratorInTurn<Target::ValueOfState>(round));
    target.setWeek(target.week());
    target.setRemarks(target.remarks());
    target.setPast(target.past());
    target.setLast(target.last());
    target.setInside(target.inside());
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
    DtMeterPublisher publisher(&exerciseConn, "A Meter");
    for (std::size_t round = 0; round < rounds; ++round)
    {
        setValues(*publisher.meterStateRep(), round);
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
