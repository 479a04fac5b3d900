#ifndef TESTS_SOURCE_TEXTS_H
#define TESTS_SOURCE_TEXTS_H

// The string literals of C++ sources, each with the statement that it stands in.

#include "testSupport.h"

#include <QtCore/QDirIterator>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <vector>

struct DtSourceText
{
    QString text;      // adjacent literals joined; line feeds and runs of blanks as one blank
    QString statement; // what stands around it, without literals, from one of ; { } to the next
    QString file;
};

inline QString plainText(QString literal)
{
    literal.replace("\\n", " ").replace("\\t", " ").replace("\\\"", "\"");
    return literal.simplified();
}

// Finds the literals of one file. Comments, characters and raw strings are passed over.
inline std::vector<DtSourceText> textsOfSource(const QString& source, const QString& file)
{
    static const QRegularExpression theToken(
        R"regex((?<skipped>//[^\n]*|/\*.*?\*/|'(?:\\.|[^'\\])'|\#\s*include[^\n]*)regex"
        R"regex(|R"(?<delimiter>\w*)\(.*?\)\k<delimiter>"))regex"
        R"regex(|"(?<text>(?:\\.|[^"\\\n])*)"|(?<end>[;{}])|(?<blank>\s+)|[\w$]+|.)regex",
        QRegularExpression::DotMatchesEverythingOption);
    std::vector<DtSourceText> texts;
    std::size_t statementStart = 0;
    QString statement;
    bool isJoined = false;
    const auto endStatement = [&]
    {
        for (; statementStart < texts.size(); ++statementStart)
            texts[statementStart].statement = statement;
        statement.clear();
    };
    for (auto each = theToken.globalMatch(source); each.hasNext();)
    {
        const QRegularExpressionMatch token = each.next();
        if (token.capturedStart("skipped") >= 0 || token.capturedStart("blank") >= 0)
            continue;
        if (token.capturedStart("text") >= 0)
        {
            if (!isJoined)
                texts.push_back({QString(), QString(), file});
            texts.back().text += token.captured("text");
            isJoined = true;
            continue;
        }
        isJoined = false;
        if (token.capturedStart("end") >= 0)
            endStatement();
        else
            statement += token.captured() + " ";
    }
    endStatement();
    for (DtSourceText& text : texts)
        text.text = plainText(text.text);
    return texts;
}

// Those of the programs and their libraries, in the order of the files.
inline std::vector<DtSourceText> textsOfThePrograms()
{
    QStringList files;
    for (const char* top : {"appsrc", "libsrc"})
        for (QDirIterator each(QStringLiteral(QX_SOURCE_DIR "/") + top, {"*.cxx", "*.h"}, QDir::Files,
                               QDirIterator::Subdirectories);
             each.hasNext();)
            files += each.next();
    files.sort();
    std::vector<DtSourceText> all;
    for (const QString& file : files)
    {
        const QString name = file.mid(int(sizeof QX_SOURCE_DIR));
        const std::vector<DtSourceText> texts = textsOfSource(QString::fromUtf8(readTextFile(file)), name);
        all.insert(all.end(), texts.begin(), texts.end());
    }
    return all;
}

#endif
