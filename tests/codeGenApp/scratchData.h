#ifndef TESTS_SCRATCH_DATA_H
#define TESTS_SCRATCH_DATA_H

#include "scratchProgram.h"

// A scratch copy of some folders of the program's data with a sibling "bin", which is the working directory while this
// lives: for tests that need no program around what they look at.
class DtScratchData
{
public:
    explicit DtScratchData(const QStringList& folders)
    {
        for (const QString& folder : folders)
            copyTree(QStringLiteral(QX_SOURCE_DIR "/data/") + folder, path("data/") + folder);
        QDir().mkpath(path("bin"));
        myWorkingDirectory = std::make_unique<DtInDirectory>(path("bin"));
    }

    QString path(const char* name) const { return myDirectory.path() + "/" + QString::fromLatin1(name); }

private:
    QTemporaryDir myDirectory;
    std::unique_ptr<DtInDirectory> myWorkingDirectory;
};

#endif
