#ifndef CODE_GEN_APP_HIGHLIGHTER_H
#define CODE_GEN_APP_HIGHLIGHTER_H

#include <QtCore/QRegExp>
#include <QtCore/QVector>
#include <QtGui/QSyntaxHighlighter>
#include <QtGui/QTextCharFormat>

// Colours C++ text: the rules run one after the other over a line, a later one over what an earlier one has set, and
// comments of several lines come last.
class Highlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    struct HighlightingRule
    {
        QRegExp pattern;
        QTextCharFormat format;
    };

    explicit Highlighter(QTextDocument* document);

    const QVector<HighlightingRule>& rules() const { return highlightingRules; }

protected:
    void highlightBlock(const QString& text) override;

private:
    void addRule(const QString& pattern, const QTextCharFormat& format);
    void addRules();
    void highlightComments(const QString& text);

    QVector<HighlightingRule> highlightingRules;
    QRegExp commentStartExpression;
    QRegExp commentEndExpression;
    QTextCharFormat multiLineCommentFormat;
};

#endif
