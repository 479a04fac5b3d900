#ifndef MODEL_TOOLS_STEADY_TIME_H
#define MODEL_TOOLS_STEADY_TIME_H

#include <chrono>

// Seconds of a clock that does not jump, from an unknown start: for differences.
inline double DtSteadySeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

#endif
