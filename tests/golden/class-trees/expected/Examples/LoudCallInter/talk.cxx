// Generated from case; the next generation writes it anew.
//
// Sends one LoudCallInter a round, each with other values.
//
//     talk [port] [rounds]
//
// A round takes half a second. Start listen with the same port, and first, to see what comes.
 
#include "loudCallInterHLA.h"
 
#include <qx/exerciseConn.h>
#include <qx/valueText.h>
 
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
 
namespace
{
typedef DtLoudCallInter Target;
 
// Gives every value that has a simple form another one in each round. Structures and arrays go out as they start.
void setValues(Target& target, std::size_t round)
{
    (void)target; // in case that nothing below needs them
    (void)round;
    target.setText("Text " + std::to_string(round));
    target.setLoudness(static_cast<Target::ValueOfLoudness>(7.02 + static_cast<double>(round)));
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
 
    for (std::size_t round = 0; round < rounds; ++round)
    {
        Target interaction;
        setValues(interaction, round);
        if (!exerciseConn.sendInteraction(interaction))
        {
            std::cerr << "talk: some parameters could not be sent" << std::endl;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        exerciseConn.drainInput(); // tells the others that we are still there
    }
    return 0;
}
