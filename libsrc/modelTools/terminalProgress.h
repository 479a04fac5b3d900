#ifndef MODEL_TOOLS_TERMINAL_PROGRESS_H
#define MODEL_TOOLS_TERMINAL_PROGRESS_H

#include "fileGenerator/progressMeter.h"

#include <iosfwd>

// Progress as one line on a terminal, written over itself a few times a second and wiped at the end.
class DtTerminalProgress : public DtQuietProgressMeter
{
public:
    explicit DtTerminalProgress(std::ostream& terminal) : myTerminal(terminal) {}
    ~DtTerminalProgress() override;

    void setFileGenerated(const DtString& name) override;

private:
    std::ostream& myTerminal;
    double myLastTime = 0; // seconds
    bool myIsShown = false;
};

#endif
