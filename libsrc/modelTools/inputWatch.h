#ifndef MODEL_TOOLS_INPUT_WATCH_H
#define MODEL_TOOLS_INPUT_WATCH_H

#include <ctime>
#include <map>
#include <set>
#include <string>

// Waits until one of some files has changed, come or gone. Their folders are watched too, since many editors put a new
// file in the place of the old one; for a folder that is not there, the nearest one above it. Needs a QCoreApplication.
class DtInputWatch
{
public:
    // Notes the watched files as they are now: ahead of a run that reads them.
    void note();
    // Watches these files too. Those that are not watched yet are noted as they are now, but for one that has changed
    // since the last note(): whoever read it may have read the old content, so it ends the wait.
    void add(const std::set<std::string>& files);
    // Likewise files that were looked for in vain. Those that are not watched yet are noted as not there, so one that
    // has come since then ends the wait.
    void await(const std::set<std::string>& files);
    // How many there are, as far as noted.
    std::size_t count() const { return myStamps.size(); }
    // Returns when a noted file is no longer as it was noted, and nothing has changed for 100 ms.
    void waitForChange() const;

private:
    // Size and time of a file; nothing for one that is not there.
    using DtStamps = std::map<std::string, std::string>;

    static DtStamps stampsOf(const std::set<std::string>& files);
    bool hasChangedSinceNote(const std::string& file) const;

    std::set<std::string> myFiles;
    DtStamps myStamps;
    timespec myNoteTime = {}; // of the clock that stamps files
};

#endif
