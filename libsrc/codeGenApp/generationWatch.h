#ifndef CODE_GEN_APP_GENERATION_WATCH_H
#define CODE_GEN_APP_GENERATION_WATCH_H

#include "foundation/warning.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>

#include <functional>
#include <set>

// Counts what the scripts of one run write and warn of, from when it is made until it is destroyed. The warnings go on
// to DtWarn as they would without it. When the first ten files all fail, the user is asked once whether to stop.
class DtGenerationWatch : public DtWarningTaker
{
public:
    using DtAskToStop = std::function<bool(const DtString& reason)>;

    explicit DtGenerationWatch(const DtAskToStop& askToStop);

    void take(const DtWarning& warning) override;

    // Files that are written without being named to the progress meter.
    void addFiles(int count) { myFilesBefore -= count; }
    int filesBegun() const;
    // One sentence on a run that ends now. The directory is the one of the output.
    QString endText(const DtString& directory) const;
    QString cancelText() const;
    bool hasWarnings() const { return myWarnings > 0; }
    bool hasFailures() const { return !myFailures.empty(); }
    // How many of how many files could not be written, and why the first one could not.
    DtString failureText() const;

private:
    int failureCount() const;

    int myFilesBefore; // count of the meter
    int myWarnings = 0;
    std::set<DtString> myFailures; // files that could not be opened or written
    DtString myFirstFailure;
    bool myHasWritten = false; // when the latest file failed
    DtAskToStop myAskToStop;
    QElapsedTimer myClock;
};

#endif
