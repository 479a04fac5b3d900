#ifndef TESTS_TOOLKIT_OBJECTS_H
#define TESTS_TOOLKIT_OBJECTS_H

// The toolkit, for programs that are compiled with generated code.

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

inline QStringList toolkitSources()
{
    QStringList sources;
    for (const QFileInfo& file : QDir(QStringLiteral(QX_SOURCE_DIR "/toolkit/src")).entryInfoList({"*.cxx"}))
        sources += file.filePath();
    return sources;
}

// Its objects, which the first call compiles.
inline QStringList toolkitObjects()
{
    static const QTemporaryDir theDirectory;
    QStringList objects;
    if (theDirectory.isValid() && QDir(theDirectory.path()).isEmpty())
    {
        QProcess compiler;
        compiler.setWorkingDirectory(theDirectory.path());
        compiler.start("g++",
                       QStringList{"-c", "-std=c++11", "-I" QX_SOURCE_DIR "/toolkit/include"} + toolkitSources());
        compiler.waitForFinished(600000);
    }
    for (const QFileInfo& file : QDir(theDirectory.path()).entryInfoList({"*.o"}))
        objects += file.filePath();
    return objects;
}

#endif
