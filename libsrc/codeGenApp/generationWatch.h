#ifndef CODE_GEN_APP_GENERATION_WATCH_H
#define CODE_GEN_APP_GENERATION_WATCH_H

#include "foundation/warning.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>

// Counts what the scripts of one run write and warn of, from when it is made until it is destroyed. The warnings go on
// to DtWarn as they would without it.
class DtGenerationWatch : public DtWarningTaker
{
public:
    DtGenerationWatch();

    void take(const DtWarning& warning) override;

    // Files that are written without being named to the progress meter.
    void addFiles(int count) { myFilesBefore -= count; }
    int filesBegun() const;
    // One sentence on a run that ends now. The directory is the one of the output.
    QString endText(const DtString& directory) const;
    QString cancelText() const;

private:
    int myFilesBefore; // count of the meter
    int myWarnings = 0;
    QElapsedTimer myClock;
};

#endif
