#ifndef TESTS_DOC_PAGE_H
#define TESTS_DOC_PAGE_H

// Reads pages of the documentation: their text and the rows of their tables.

#include "testSupport.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <vector>

inline QString sourceText(const QString& file)
{
    return QString::fromUtf8(readTextFile(QStringLiteral(QX_SOURCE_DIR "/") + file));
}

// A page by its name below docs/.
inline QString pageText(const QString& name)
{
    return sourceText("docs/" + name);
}

// What stands below a heading of any depth, up to the next one.
inline QString sectionOf(const QString& page, const QString& heading)
{
    const QRegularExpression start("^#+ " + QRegularExpression::escape(heading) + "$",
                                   QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = start.match(page);
    if (!match.hasMatch())
        return QString();
    const int begin = match.capturedEnd();
    return page.mid(begin, page.indexOf(QRegularExpression("\n#+ "), begin) - begin);
}

// The cells of one row of a table; a bar behind a backslash is text.
inline QStringList cellsOf(QString row)
{
    const QString kept(QChar(1));
    row.replace("\\|", kept);
    QStringList cells = row.split('|').mid(1);
    cells.removeLast();
    for (QString& cell : cells)
        cell = cell.replace(kept, "|").trimmed();
    return cells;
}

// The rows of all tables in the text whose head begins with this cell.
inline std::vector<QStringList> tableRows(const QString& text, const QString& firstHead)
{
    std::vector<QStringList> rows;
    bool isIn = false;
    for (const QString& line : text.split('\n'))
    {
        if (!line.startsWith('|'))
            isIn = false;
        else if (isIn && !line.startsWith("|---") && !line.startsWith("| ---"))
            rows.push_back(cellsOf(line));
        else if (cellsOf(line).value(0) == firstHead)
            isIn = true;
    }
    return rows;
}

// What stands in backticks.
inline QStringList codesIn(const QString& text)
{
    static const QRegularExpression theCode(QStringLiteral("``\\s?(.+?)\\s?``|`([^`]+)`"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QStringList codes;
    for (auto each = theCode.globalMatch(text); each.hasNext();)
    {
        const QRegularExpressionMatch match = each.next();
        codes += match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
    }
    return codes;
}

#endif
