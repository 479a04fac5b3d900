#include "modelTools/terminalProgress.h"

#include "modelTools/steadyTime.h"

#include <ostream>

namespace
{
constexpr double theInterval = 0.1; // seconds between two lines
constexpr const char* theWipe = "\r\033[K";
} // namespace

DtTerminalProgress::~DtTerminalProgress()
{
    if (myIsShown)
        myTerminal << theWipe << std::flush;
}

void DtTerminalProgress::setFileGenerated(const DtString& name)
{
    const double now = DtSteadySeconds();
    if (now - myLastTime < theInterval)
        return;
    myLastTime = now;
    myIsShown = true;
    const int total = totalMeasure();
    const int percent = total > 0 ? currentMeasure() * 100 / total : 0;
    myTerminal << theWipe << percent << " % " << name.c_str() << std::flush;
}
