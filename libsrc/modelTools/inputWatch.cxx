#include "modelTools/inputWatch.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <algorithm>
#include <iterator>
#include <sys/stat.h>
#include <utility>

namespace
{
constexpr int theSettlingTime = 100; // milliseconds

QString nearestFolder(QString folder)
{
    while (!QFileInfo(folder).isDir())
        folder = QFileInfo(folder).path();
    return folder;
}

QStringList watchedPaths(const std::set<std::string>& files)
{
    QStringList paths;
    for (const std::string& file : files)
    {
        const QFileInfo info(QFile::decodeName(file.c_str()));
        if (info.exists())
            paths += info.filePath();
        paths += nearestFolder(info.absolutePath());
    }
    paths.removeDuplicates();
    return paths;
}
} // namespace

void DtInputWatch::note()
{
    clock_gettime(CLOCK_REALTIME_COARSE, &myNoteTime); // ahead of the stamps, and the one that files are stamped by
    myStamps = stampsOf(myFiles);
}

void DtInputWatch::add(const std::set<std::string>& files)
{
    std::set<std::string> added;
    std::set_difference(files.begin(), files.end(), myFiles.begin(), myFiles.end(), std::inserter(added, added.end()));
    for (const auto& [file, stamp] : stampsOf(added))
        myStamps[file] = hasChangedSinceNote(file) ? "changed" : stamp;
    myFiles.merge(added);
}

// A time equal to that of the note counts as before it: a run that follows at once reads what was written then.
bool DtInputWatch::hasChangedSinceNote(const std::string& file) const
{
    struct stat status = {};
    if (myNoteTime.tv_sec == 0 || stat(file.c_str(), &status) != 0)
        return false;
    const timespec& changed = status.st_ctim; // unlike the other times, set by nobody
    return std::make_pair(changed.tv_sec, changed.tv_nsec) > std::make_pair(myNoteTime.tv_sec, myNoteTime.tv_nsec);
}

void DtInputWatch::await(const std::set<std::string>& files)
{
    myFiles.insert(files.begin(), files.end());
}

DtInputWatch::DtStamps DtInputWatch::stampsOf(const std::set<std::string>& files)
{
    DtStamps stamps;
    for (const std::string& file : files)
    {
        struct stat status = {};
        if (stat(file.c_str(), &status) == 0)
            stamps[file] = std::to_string(status.st_ino) + " " + std::to_string(status.st_size) + " " +
                           std::to_string(status.st_mtim.tv_sec) + "." + std::to_string(status.st_mtim.tv_nsec);
    }
    return stamps;
}

// A file that was replaced is no longer watched, nor is a folder nearer than the one that is, so each wait watches
// anew. What happens beside the files does not put the end off: only a change of what is looked at starts the time
// again.
void DtInputWatch::waitForChange() const
{
    while (stampsOf(myFiles) == myStamps)
    {
        auto seen = std::make_pair(myStamps, watchedPaths(myFiles));
        QFileSystemWatcher watcher;
        watcher.addPaths(seen.second);
        QTimer settled;
        settled.setSingleShot(true);
        settled.setInterval(theSettlingTime);
        QEventLoop loop;
        const auto look = [this, &seen, &settled]
        {
            auto present = std::make_pair(stampsOf(myFiles), watchedPaths(myFiles));
            if (present != seen)
                settled.start();
            seen = std::move(present);
        };
        QObject::connect(&settled, &QTimer::timeout, &loop, &QEventLoop::quit);
        QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &settled, look);
        QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &settled, look);
        look(); // for what has changed between the noting and the watching
        loop.exec();
    }
}
