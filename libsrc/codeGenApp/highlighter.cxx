#include "codeGenApp/highlighter.h"

namespace
{
// Words of C++, of Qt and of the standard library that stand out.
const char* const theKeywords[] = {
    "char",  "class",     "const",    "double",   "enum",      "explicit", "friend", "inline",   "int",
    "long",  "namespace", "operator", "private",  "protected", "public",   "short",  "signals",  "signed",
    "slots", "static",    "struct",   "template", "typedef",   "typename", "union",  "unsigned", "virtual",
    "void",  "volatile",  "map",      "list",     "vector",    "std",      "string", "set",      "DtString",
};

QTextCharFormat colored(Qt::GlobalColor color)
{
    QTextCharFormat format;
    format.setForeground(color);
    return format;
}

QTextCharFormat bold(Qt::GlobalColor color)
{
    QTextCharFormat format = colored(color);
    format.setFontWeight(QFont::Bold);
    return format;
}

QTextCharFormat italic(Qt::GlobalColor color)
{
    QTextCharFormat format = colored(color);
    format.setFontItalic(true);
    return format;
}
} // namespace

Highlighter::Highlighter(QTextDocument* document)
    : QSyntaxHighlighter(document),
      commentStartExpression(QStringLiteral("/\\*")),
      commentEndExpression(QStringLiteral("\\*/")),
      multiLineCommentFormat(colored(Qt::darkGreen))
{
    addRules();
}

void Highlighter::addRules()
{
    for (const char* keyword : theKeywords)
        addRule(QStringLiteral("\\b%1\\b").arg(QString::fromLatin1(keyword)), bold(Qt::darkBlue));
    addRule(QStringLiteral("\\bQ[A-Za-z]+\\b"), bold(Qt::darkMagenta));
    addRule(QStringLiteral("\".*\""), colored(Qt::red)); // up to the last quote of the line
    addRule(QStringLiteral("\\b[A-Za-z0-9_]+(?=\\()"), italic(Qt::blue));
    addRule(QStringLiteral("//[^\n]*"), colored(Qt::darkGreen));
}

void Highlighter::addRule(const QString& pattern, const QTextCharFormat& format)
{
    highlightingRules.append({QRegExp(pattern), format});
}

void Highlighter::highlightBlock(const QString& text)
{
    for (const HighlightingRule& rule : qAsConst(highlightingRules))
    {
        const QRegExp expression(rule.pattern);
        for (int index = expression.indexIn(text); index >= 0;)
        {
            const int length = expression.matchedLength();
            setFormat(index, length, rule.format);
            index = expression.indexIn(text, index + length);
        }
    }
    highlightComments(text);
}

// A block that ends inside a comment has the state 1.
void Highlighter::highlightComments(const QString& text)
{
    setCurrentBlockState(0);
    int start = previousBlockState() == 1 ? 0 : commentStartExpression.indexIn(text);
    while (start >= 0)
    {
        const int end = commentEndExpression.indexIn(text, start);
        const bool isOpen = end < 0;
        const int length = isOpen ? text.length() - start : end - start + commentEndExpression.matchedLength();
        if (isOpen)
            setCurrentBlockState(1);
        setFormat(start, length, multiLineCommentFormat);
        start = commentStartExpression.indexIn(text, start + length);
    }
}
