#include "codeGenApp/generationWatch.h"

#include "codeGenApp/projectBadge.h"
#include "fileGenerator/qtProgressMeter.h"
#include "foundation/outputStream.h"

#include <QtCore/QDir>

namespace
{
QString countedFiles(int count)
{
    return DtCounted(static_cast<std::size_t>(count), "file", "files");
}
} // namespace

DtGenerationWatch::DtGenerationWatch() : myFilesBefore(DtQtProgressMeter::instance()->filesBegun())
{
    myClock.start();
}

void DtGenerationWatch::take(const DtWarning& warning)
{
    DtWarn << warning.text << std::flush;
    ++myWarnings;
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
