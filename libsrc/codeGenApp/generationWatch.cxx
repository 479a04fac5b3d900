#include "codeGenApp/generationWatch.h"

#include "codeGenApp/projectBadge.h"
#include "fileGenerator/qtProgressMeter.h"
#include "foundation/outputStream.h"
#include "foundation/warningRules.h"

#include <QtCore/QDir>

namespace
{
const int theFailuresToAsk = 10;

QString countedFiles(int count)
{
    return DtCounted(static_cast<std::size_t>(count), "file", "files");
}
} // namespace

DtGenerationWatch::DtGenerationWatch(const DtAskToStop& askToStop)
    : myFilesBefore(DtQtProgressMeter::instance()->filesBegun()), myAskToStop(askToStop)
{
    myClock.start();
}

void DtGenerationWatch::take(const DtWarning& warning)
{
    DtWarn << warning.text << std::flush;
    ++myWarnings;
    if (&warning.rule != &DtRules::outputNotWritten)
        return;
    const int failures = failureCount();
    myHasWritten = myHasWritten || filesBegun() > failures; // a file is opened ahead of its turn
    if (failures == 0)
    {
        myFirstFailure = warning.text;
        myFirstFailure.snipBack('\n');
    }
    const bool isNew = myFailures.insert(warning.subject.name).second;
    if (isNew && failureCount() == theFailuresToAsk && !myHasWritten && myAskToStop(myFirstFailure))
        DtQtProgressMeter::instance()->setIsCancelled(true);
}

// Two writers may share a file, of which one stays silent; it fails for both.
int DtGenerationWatch::failureCount() const
{
    return static_cast<int>(myFailures.size());
}

int DtGenerationWatch::filesBegun() const
{
    return DtQtProgressMeter::instance()->filesBegun() - myFilesBefore;
}

QString DtGenerationWatch::endText(const DtString& directory) const
{
    QString text = countedFiles(filesBegun()) + " written to " + QDir::cleanPath(QString::fromUtf8(directory.c_str())) +
                   " in " + QString::number(static_cast<double>(myClock.elapsed()) / 1000, 'f', 1) + " s";
    if (myWarnings > 0)
        text += QStringLiteral(", ") + DtCounted(static_cast<std::size_t>(myWarnings), "warning", "warnings");
    return text;
}

QString DtGenerationWatch::cancelText() const
{
    return QStringLiteral("Cancelled after ") + countedFiles(filesBegun());
}

DtString DtGenerationWatch::failureText() const
{
    const QString text = QString::number(failureCount()) + " of " + countedFiles(qMax(failureCount(), filesBegun())) +
                         " could not be written. " + QString::fromUtf8(myFirstFailure.c_str());
    return text.toUtf8().constData();
}
