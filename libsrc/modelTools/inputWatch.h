#ifndef MODEL_TOOLS_INPUT_WATCH_H
#define MODEL_TOOLS_INPUT_WATCH_H

#include <map>
#include <set>
#include <string>

// Waits until one of some files has changed, come or gone. Their folders are watched too, since many editors put a new
// file in the place of the old one. Needs a QCoreApplication.
class DtInputWatch
{
public:
    // Notes the watched files as they are now: ahead of a run that reads them.
    void note();
    // Watches these files too. Those that are not watched yet are noted as they are now.
    void add(const std::set<std::string>& files);
    std::size_t count() const { return myFiles.size(); }
    // Returns when a noted file is no longer as it was noted, and nothing has changed for 100 ms.
    void waitForChange() const;

private:
    // Size and time of a file; nothing for one that is not there.
    using DtStamps = std::map<std::string, std::string>;

    static DtStamps stampsOf(const std::set<std::string>& files);

    std::set<std::string> myFiles;
    DtStamps myStamps;
};

#endif
