#include "codeGenApp/codeEditor.h"

#include <QtCore/QEvent>
#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>

#include <algorithm>

namespace
{
const int theTabCharacters = 4;
const int theGap = 6;                 // to either side of the line numbers
const QColor theLineColor = 0xf2f6fc; // the palette of the text has to be readable on it
} // namespace

QFont CodeEditor::codeFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch()) // a platform without a theme has none
    {
        font.setFamily(QStringLiteral("monospace"));
        font.setStyleHint(QFont::TypeWriter);
    }
    return font;
}

CodeEditor::CodeEditor(QWidget* parent) : QPlainTextEdit(parent), myLineNumberArea(new LineNumberArea(this))
{
    setFont(codeFont());
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabWidth();
    connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeEditor::updateLineNumberAreaWidth);
    connect(this, &QPlainTextEdit::updateRequest, this, &CodeEditor::updateLineNumberArea);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEditor::highlightCurrentLine);
    updateLineNumberAreaWidth();
    highlightCurrentLine();
}

void CodeEditor::setTabWidth()
{
    setTabStopDistance(theTabCharacters * QFontMetricsF(font()).horizontalAdvance(' '));
}

int CodeEditor::lineNumberAreaWidth() const
{
    const int digits = QString::number(std::max(1, blockCount())).length();
    return 2 * theGap + fontMetrics().horizontalAdvance('9') * digits;
}

void CodeEditor::updateLineNumberAreaWidth()
{
    setViewportMargins(lineNumberAreaWidth(), 0, 0, 0);
}

void CodeEditor::updateLineNumberArea(const QRect& rect, int dy)
{
    if (dy != 0)
        myLineNumberArea->scroll(0, dy);
    else
        myLineNumberArea->update(0, rect.y(), myLineNumberArea->width(), rect.height());
    if (rect.contains(viewport()->rect()))
        updateLineNumberAreaWidth();
}

void CodeEditor::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect area = contentsRect();
    myLineNumberArea->setGeometry(QRect(area.left(), area.top(), lineNumberAreaWidth(), area.height()));
}

void CodeEditor::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
    {
        setTabWidth();
        updateLineNumberAreaWidth();
    }
}

void CodeEditor::highlightCurrentLine()
{
    if (isReadOnly())
        return setExtraSelections({});
    QTextEdit::ExtraSelection selection;
    selection.format.setBackground(theLineColor);
    selection.format.setProperty(QTextFormat::FullWidthSelection, true);
    selection.cursor = textCursor();
    selection.cursor.clearSelection();
    setExtraSelections({selection});
}

// The colours are those that the style gives the margin.
void CodeEditor::lineNumberAreaPaintEvent(QPaintEvent* event)
{
    QPainter painter(myLineNumberArea);
    painter.fillRect(event->rect(), myLineNumberArea->palette().color(QPalette::Window));
    painter.setPen(myLineNumberArea->palette().color(QPalette::WindowText));
    QTextBlock block = firstVisibleBlock();
    QRectF line = blockBoundingGeometry(block).translated(contentOffset());
    for (; block.isValid() && line.top() <= event->rect().bottom(); block = block.next())
    {
        line.setHeight(blockBoundingRect(block).height());
        if (block.isVisible() && line.bottom() >= event->rect().top())
            painter.drawText(0, qRound(line.top()), myLineNumberArea->width() - theGap, fontMetrics().height(),
                             Qt::AlignRight, QString::number(block.blockNumber() + 1));
        line.moveTop(line.bottom());
    }
}

QString CodeEditor::text() const
{
    // The document's own separators: between lines, within a line, and around frames.
    static const QChar theSeparators[] = {QChar(0x2029), QChar(0x2028), QChar(0xfdd0), QChar(0xfdd1)};
    QString text = document()->toRawText();
    for (const QChar separator : theSeparators)
        text.replace(separator, '\n');
    return text;
}
