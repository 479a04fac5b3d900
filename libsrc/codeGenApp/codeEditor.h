#ifndef CODE_GEN_APP_CODE_EDITOR_H
#define CODE_GEN_APP_CODE_EDITOR_H

#include <QtWidgets/QPlainTextEdit>

// A plain text editor for code, with line numbers in a margin at the left and the line of the cursor marked.
//
// Tabs are kept and have the width of four characters.
class CodeEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CodeEditor(QWidget* parent = nullptr);

    // A font whose characters all have one width.
    static QFont codeFont();
    // Width of the margin in pixels; grows with the digits of the number of lines.
    int lineNumberAreaWidth() const;
    void lineNumberAreaPaintEvent(QPaintEvent* event);

    // The text with line feeds, whatever its line ends were. Unlike toPlainText() it keeps no-break spaces.
    QString text() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void updateLineNumberAreaWidth();
    void highlightCurrentLine();
    void updateLineNumberArea(const QRect& rect, int dy);

private:
    void setTabWidth();

    QWidget* myLineNumberArea;
};

// The margin; leaves the painting to its editor.
class LineNumberArea : public QWidget
{
    Q_OBJECT

public:
    explicit LineNumberArea(CodeEditor* editor) : QWidget(editor), myEditor(editor) {}

    QSize sizeHint() const override { return QSize(myEditor->lineNumberAreaWidth(), 0); }

protected:
    void paintEvent(QPaintEvent* event) override { myEditor->lineNumberAreaPaintEvent(event); }

private:
    CodeEditor* myEditor;
};

#endif
