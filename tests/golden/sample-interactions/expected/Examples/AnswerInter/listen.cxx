// Generated from case; the next generation writes it anew.
//
// Prints every AnswerInter that comes.
//
//     listen [port] [seconds]
//
// The port is that of talk. It ends after so many seconds; its exit code is 1 if none has come.
 
#include "answerInterHLA.h"
 
#include <qx/exerciseConn.h>
#include <qx/valueText.h>
 
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
 
namespace
{
template <class Value>
void print(const char* name, const Value& value)
{
    std::cout << "    " << name << ": " << DtValueText(value) << std::endl;
}
 
void received(DtAnswerInter* interaction, void* hasCome)
{
    std::cout << "received: " << interaction->DtInteraction::fullClassName() << std::endl;
    print("Channel", interaction->channel());
    print("Text", interaction->text());
    print("Done", interaction->done());
    print("Reason", interaction->reason());
    *static_cast<bool*>(hasCome) = true;
}
} // namespace
 
int main(int argc, char* argv[])
{
    const int port = argc > 1 ? std::atoi(argv[1]) : 17000;
    const double seconds = argc > 2 ? std::atof(argv[2]) : 30;
 
    // The connection takes the first of sixteen ports that is free.
    DtExerciseConn exerciseConn("case", static_cast<unsigned short>(port));
    if (exerciseConn.port() == 0)
    {
        std::cerr << "listen: none of the ports from " << port << " on is free" << std::endl;
        return 1;
    }
 
    bool hasCome = false;
    DtAnswerInter::addCallback(&exerciseConn, &received, &hasCome);
 
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (std::chrono::steady_clock::now() < end)
    {
        exerciseConn.waitForInput(0.1);
        exerciseConn.drainInput(); // calls the function above
    }
    return hasCome ? 0 : 1;
}
