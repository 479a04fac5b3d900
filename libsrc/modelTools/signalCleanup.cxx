#include "modelTools/signalCleanup.h"

#include "modelTools/signalHold.h"

#include <csignal>
#include <initializer_list>

DtSignalCleanup* DtSignalCleanup::theNewest = nullptr;

DtSignalCleanup::~DtSignalCleanup()
{
    disarm();
}

void DtSignalCleanup::arm()
{
    const DtSignalHold hold;
    if (myIsArmed)
        return;
    myIsArmed = true;
    myOlder = theNewest;
    theNewest = this;
}

void DtSignalCleanup::disarm()
{
    const DtSignalHold hold;
    if (!myIsArmed)
        return;
    DtSignalCleanup** place = &theNewest;
    while (*place != this)
        place = &(*place)->myOlder;
    *place = myOlder;
    myIsArmed = false;
}

void DtSignalCleanup::install()
{
    for (const int signal : {SIGINT, SIGTERM})
    {
        struct sigaction action = {};
        if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = endBySignal;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaddset(&action.sa_mask, SIGINT);
        sigaddset(&action.sa_mask, SIGTERM);
        sigaction(signal, &action, nullptr);
    }
}

// The second signal, by which the process ends, is let through when this returns.
void DtSignalCleanup::endBySignal(int signal)
{
    for (DtSignalCleanup* each = theNewest; each != nullptr; each = each->myOlder)
        each->cleanUp();
    raise(signal);
}
