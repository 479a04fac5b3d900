#ifndef MODEL_TOOLS_SIGNAL_CLEANUP_H
#define MODEL_TOOLS_SIGNAL_CLEANUP_H

// Something on the disk that must not stay behind when Ctrl-C or TERM ends the program: the base of what makes it.
//
// An object arms itself when its files are there and disarms itself when they are gone, or are to stay; both under a
// DtSignalHold together with the making, or a signal finds one without the other. Where a signal may not come between,
// it is held back. For one thread only, the one that takes the signals.
class DtSignalCleanup
{
public:
    DtSignalCleanup() = default;
    virtual ~DtSignalCleanup();
    DtSignalCleanup(const DtSignalCleanup&) = delete;
    DtSignalCleanup& operator=(const DtSignalCleanup&) = delete;

    // From now on SIGINT and SIGTERM clean up, the newest object first, before they end the process as they do in any
    // case. A signal that the starter of the process has switched off stays so.
    static void install();

protected:
    void arm();
    void disarm();

private:
    // Called by the signal's handler, at whatever point the program is: takes no memory and uses system calls only.
    virtual void cleanUp() = 0;
    static void endBySignal(int signal);

    static DtSignalCleanup* theNewest;

    DtSignalCleanup* myOlder = nullptr;
    bool myIsArmed = false;
};

#endif
