#ifndef MODEL_TOOLS_SIGNAL_HOLD_H
#define MODEL_TOOLS_SIGNAL_HOLD_H

#include <csignal>

// Holds SIGINT and SIGTERM back for as long as it lives; one that arrives meanwhile takes effect at its end, as though
// it had just been sent. Holds may be nested: the outermost ends it.
//
// The signals are blocked for the calling thread. A program with further threads makes those while both are blocked, or
// the system hands the signal to one of them.
class DtSignalHold
{
public:
    DtSignalHold();
    ~DtSignalHold();
    DtSignalHold(const DtSignalHold&) = delete;
    DtSignalHold& operator=(const DtSignalHold&) = delete;

private:
    sigset_t myOldMask;
};

#endif
