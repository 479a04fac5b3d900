#ifndef TESTS_SHIPPED_SCRIPTS_H
#define TESTS_SHIPPED_SCRIPTS_H

#include "testSupport.h"

#include <QtCore/QStringList>

// The command files that the program ships, as texts.

inline QString shippedData()
{
    return QStringLiteral(QX_SOURCE_DIR "/data");
}

inline QStringList shippedScripts()
{
    return QDir(shippedData()).entryList({"*.txt"}, QDir::Files, QDir::Name);
}

// The lines of a script that are commands.
inline QStringList commandsOf(const QString& script)
{
    QStringList commands;
    for (const QString& line : QString::fromUtf8(readTextFile(shippedData() + "/" + script)).split('\n'))
        if (!line.trimmed().isEmpty() && !line.trimmed().startsWith('#'))
            commands += line;
    return commands;
}

// The templates that a script opens, relative to the directory of all templates.
inline QStringList templatesOf(const QString& script)
{
    QStringList names;
    QString directory;
    for (const QString& command : commandsOf(script))
    {
        const QStringList words = command.split(' ');
        if (words.front() == "templateDir")
            directory = words.value(1).remove(QStringLiteral("templates/"));
        else if (words.front() == "file")
            names += directory + "/" + words.value(2);
    }
    return names;
}

// Where the templates of scripts lie, relative to the directory of all templates.
inline QStringList scriptTemplateDirectories()
{
    QStringList directories;
    for (const QString& script : shippedScripts())
        for (const QString& name : templatesOf(script))
            if (!directories.contains(QFileInfo(name).path()))
                directories += QFileInfo(name).path();
    return directories;
}

#endif
