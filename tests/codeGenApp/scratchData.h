#ifndef TESTS_SCRATCH_DATA_H
#define TESTS_SCRATCH_DATA_H

#include "testSupport.h"

#include <QtCore/QDateTime>
#include <QtCore/QDirIterator>
#include <QtCore/QMap>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <memory>

inline QStringList filesBelow(const QString& directory)
{
    QStringList names;
    for (QDirIterator each(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); each.hasNext();)
        names += QDir(directory).relativeFilePath(each.next());
    names.sort();
    return names;
}

// Files and folders below a directory, with their times; a folder has none.
inline QMap<QString, QDateTime> entriesBelow(const QString& directory)
{
    QMap<QString, QDateTime> entries;
    for (QDirIterator each(directory, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                           QDirIterator::Subdirectories);
         each.hasNext();)
    {
        const QString name = QDir(directory).relativeFilePath(each.next());
        entries[name] = each.fileInfo().isDir() ? QDateTime() : each.fileInfo().lastModified();
    }
    return entries;
}

inline void copyTree(const QString& from, const QString& to)
{
    QDir().mkpath(to);
    const QMap<QString, QDateTime> entries = entriesBelow(from); // folders ahead of what is in them
    for (auto each = entries.begin(); each != entries.end(); ++each)
    {
        if (each.value().isNull())
            QDir().mkpath(to + "/" + each.key());
        else
            writeTextFile(to + "/" + each.key(),
                          readTextFile(from + "/" + each.key())); // QFile::copy() waits for the disk
    }
}

// A copy of the program's data, or of some of its folders, with room for "bin", models and output beside it.
//
// A test class has one for all its tests. They may write what they like, but leave alone what was copied: tidy() puts
// away what they have left, and cannot put back what they have changed.
class DtScratchTree
{
public:
    explicit DtScratchTree(const QStringList& folders = {""})
    {
        for (const QString& folder : folders)
            copyTree(QStringLiteral(QX_SOURCE_DIR "/data/") + folder, data() + folder);
        QFile::remove(data() + "config/customCodeGenConfig.xml");
        myEntries = entriesBelow(data());
    }

    QString path() const { return myDirectory.path() + "/"; }
    // Removes the configuration of the user, models, output and whatever else was not copied.
    void tidy() const
    {
        const QDir top(path());
        for (const QFileInfo& each : top.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
            if (each.fileName() != "data")
                remove(each.filePath());
        for (const QString& name : entriesBelow(data()).keys())
            if (!myEntries.contains(name))
                remove(data() + name);
    }
    // What was copied and is no longer as it was.
    QStringList changed() const
    {
        const QMap<QString, QDateTime> entries = entriesBelow(data());
        QStringList names;
        for (auto each = myEntries.begin(); each != myEntries.end(); ++each)
            if (!entries.contains(each.key()) || entries[each.key()] != each.value())
                names += each.key();
        return names;
    }

private:
    QString data() const { return path() + "data/"; }
    static void remove(const QString& name)
    {
        if (QFileInfo(name).isDir())
            QDir(name).removeRecursively();
        else
            QFile::remove(name);
    }

    QTemporaryDir myDirectory;
    QMap<QString, QDateTime> myEntries;
};

// Works in "bin" beside a copy of the program's data while it lives.
class DtScratchData
{
public:
    // On the data that the tests of a class share; fails the test that has changed them.
    explicit DtScratchData(const DtScratchTree& shared) : myTree(shared) { enter(); }
    // On a copy of some folders for a test that changes them.
    explicit DtScratchData(const QStringList& folders)
        : myOwnTree(std::make_unique<DtScratchTree>(folders)), myTree(*myOwnTree)
    {
        enter();
    }
    ~DtScratchData()
    {
        myWorkingDirectory.reset();
        if (myOwnTree == nullptr)
            QCOMPARE(myTree.changed().join(' '), QString());
    }

    QString path(const char* name) const { return myTree.path() + QString::fromLatin1(name); }

private:
    void enter()
    {
        myTree.tidy();
        QDir().mkpath(path("bin"));
        myWorkingDirectory = std::make_unique<DtInDirectory>(path("bin"));
    }

    std::unique_ptr<DtScratchTree> myOwnTree; // none where the tree is shared
    const DtScratchTree& myTree;
    std::unique_ptr<DtInDirectory> myWorkingDirectory;
};

#endif
