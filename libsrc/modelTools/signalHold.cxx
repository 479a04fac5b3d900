#include "modelTools/signalHold.h"

DtSignalHold::DtSignalHold()
{
    sigset_t held;
    sigemptyset(&held);
    sigaddset(&held, SIGINT);
    sigaddset(&held, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &held, &myOldMask);
}

DtSignalHold::~DtSignalHold()
{
    pthread_sigmask(SIG_SETMASK, &myOldMask, nullptr);
}
