#include "modelTools/inputWatch.h"

#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <algorithm>
#include <iterator>
#include <sys/stat.h>

namespace
{
constexpr int theSettlingTime = 100; // milliseconds

QStringList watchedPaths(const std::set<std::string>& files)
{
    QStringList paths;
    for (const std::string& file : files)
    {
        const QFileInfo info(QFile::decodeName(file.c_str()));
        if (info.exists())
            paths += info.filePath();
        if (info.dir().exists())
            paths += info.path();
    }
    paths.removeDuplicates();
    return paths;
}
} // namespace

void DtInputWatch::note()
{
    myStamps = stampsOf(myFiles);
}

void DtInputWatch::add(const std::set<std::string>& files)
{
    std::set<std::string> added;
    std::set_difference(files.begin(), files.end(), myFiles.begin(), myFiles.end(), std::inserter(added, added.end()));
    myStamps.merge(stampsOf(added));
    myFiles.merge(added);
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

// A file that was replaced is no longer watched, so each wait watches anew.
void DtInputWatch::waitForChange() const
{
    while (stampsOf(myFiles) == myStamps)
    {
        QFileSystemWatcher watcher;
        watcher.addPaths(watchedPaths(myFiles));
        QTimer settled;
        settled.setSingleShot(true);
        settled.setInterval(theSettlingTime);
        QEventLoop loop;
        QObject::connect(&settled, &QTimer::timeout, &loop, &QEventLoop::quit);
        QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &settled, [&settled] { settled.start(); });
        QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &settled, [&settled] { settled.start(); });
        if (stampsOf(myFiles) != myStamps) // between the noting and the watching
            settled.start();
        loop.exec();
    }
}
