// The text editor of the custom code window and the colours of its text.

#include "registerTest.h"

#include "codeGenApp/codeEditor.h"
#include "codeGenApp/highlighter.h"

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

namespace
{
// One letter for each character: the colour that the highlighter gave it, in capitals where it is bold or italic.
QString painted(const QTextBlock& block)
{
    struct Row
    {
        QColor color;
        char letter;
    };
    const Row theRows[] = {
        {Qt::darkBlue,    'k'},
        {Qt::darkMagenta, 'q'},
        {Qt::red,         's'},
        {Qt::blue,        'f'},
        {Qt::darkGreen,   'c'},
    };
    QString letters(block.length() - 1, '.');
    for (const QTextLayout::FormatRange& range : block.layout()->formats())
        for (const Row& row : theRows)
            if (range.format.foreground().color() == row.color)
            {
                const bool isStrong = range.format.fontWeight() == QFont::Bold || range.format.fontItalic();
                const QChar letter = isStrong ? QChar(row.letter).toUpper() : QChar(row.letter);
                letters.replace(range.start, range.length, QString(range.length, letter));
            }
    return letters;
}

QString painted(const QString& text)
{
    QTextDocument document;
    Highlighter highlighter(&document);
    document.setPlainText(text);
    highlighter.rehighlight();
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        lines += painted(block);
    return lines.join('\n');
}

QString numberedText(int lines)
{
    return QStringList(QVector<QString>(lines, "x").toList()).join('\n');
}
} // namespace

class TestCodeEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulesStandInOrder();
    void wordIsColored_data();
    void wordIsColored();
    void textIsColored_data();
    void textIsColored();
    void openCommentGoesOnInNextLines();
    void closedCommentEndsWhenItsEndIsTyped();
    void blockStateTellsOpenComment();
    void marginGrowsWithDigits();
    void marginStandsBesideText();
    void marginShowsNumbers();
    void emptyTextHasOneLineNumber();
    void lineOfCursorIsMarked();
    void readOnlyTextHasNoMark();
    void lineNumberAreaLeavesPaintingToEditor();
    void tabIsKeptAndFourCharactersWide();
    void linesAreNotWrapped();
    void textKeepsCharacters();
    void textHasLineFeedsOnly();
    void fontHasOneWidth();
    void biggerFontWidensMargin();
};

void TestCodeEditor::rulesStandInOrder()
{
    QTextDocument document;
    const Highlighter highlighter(&document);
    QStringList patterns;
    for (const Highlighter::HighlightingRule& rule : highlighter.rules())
        patterns += rule.pattern.pattern();
    const QString theKeywords =
        "char class const double enum explicit friend inline int long namespace operator private protected public "
        "short "
        "signals signed slots static struct template typedef typename union unsigned virtual void volatile map list "
        "vector std string set DtString";
    QStringList expected;
    for (const QString& keyword : theKeywords.split(' '))
        expected += "\\b" + keyword + "\\b";
    expected << "\\bQ[A-Za-z]+\\b"
             << "\".*\""
             << "\\b[A-Za-z0-9_]+(?=\\()"
             << "//[^\n]*";
    QCOMPARE(patterns, expected);
}

void TestCodeEditor::wordIsColored_data()
{
    QTest::addColumn<QString>("word");
    for (const char* word : {"char", "const", "volatile", "map", "list", "vector", "std", "string", "set", "DtString"})
        QTest::newRow(word) << QString(word);
}

void TestCodeEditor::wordIsColored()
{
    QFETCH(QString, word);
    QCOMPARE(painted("a " + word + " x" + word), ".." + QString(word.size(), 'K') + QString(word.size() + 2, '.'));
}

void TestCodeEditor::textIsColored_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto add = [](const char* name, const char* text, const char* expected)
    { QTest::newRow(name) << QString(text) << QString(expected); };
    add("plain", "a = b;", "......");
    add("Qt class", "QIcon i", "QQQQQ..");
    add("Q alone", "Q x", "...");
    add("quotes", "a \"b\" c", "..sss..");
    add("up to the last quote", "\"a\" b \"c\"", "sssssssss");
    add("one quote", "a \"b", "....");
    add("call", "run(a)", "FFF...");
    add("call with blank", "run (a)", ".......");
    add("call of a keyword", "int(a)", "FFF..."); // the later rule wins
    add("remark", "a // int b", "..cccccccc");
    add("remark over quotes", "// \"a\" run()", "cccccccccccc");
    add("comment", "a /* int */ b", "..ccccccccc..");
    add("two comments", "/*a*/ b /*c*/", "ccccc...ccccc");
    add("comment ends at its first end", "/* a */ b */", "ccccccc.....");
    add("comment starts in a remark", "// /* a", "ccccccc");
}

void TestCodeEditor::textIsColored()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(painted(text), expected);
}

void TestCodeEditor::openCommentGoesOnInNextLines()
{
    QCOMPARE(painted(QString("a /* b\nint c\nd */ int\nint")), QString("..cccc\nccccc\ncccc.KKK\nKKK"));
    QCOMPARE(painted(QString("/* a\n\n*/")), QString("cccc\n\ncc"));
}

void TestCodeEditor::closedCommentEndsWhenItsEndIsTyped()
{
    CodeEditor editor;
    QTextDocument& document = *editor.document();
    const Highlighter highlighter(&document);
    editor.setPlainText("/* a\nint b");
    QCoreApplication::processEvents(); // it starts from the event loop
    QCOMPARE(painted(document.lastBlock()), QString("ccccc"));
    QTest::keyClick(&editor, Qt::Key_End);
    QTest::keyClicks(&editor, " */");
    QCOMPARE(painted(document.lastBlock()), QString("KKK.."));
}

void TestCodeEditor::blockStateTellsOpenComment()
{
    QTextDocument document("a\n/* b\nc\n*/");
    Highlighter highlighter(&document);
    highlighter.rehighlight();
    QList<int> states;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        states += block.userState();
    QCOMPARE(states, QList<int>({0, 1, 1, 0}));
}

void TestCodeEditor::marginGrowsWithDigits()
{
    CodeEditor editor;
    std::vector<int> widths;
    for (const int lines : {1, 9, 10, 99, 100})
    {
        editor.setPlainText(numberedText(lines));
        widths.push_back(editor.lineNumberAreaWidth());
    }
    const int digit = editor.fontMetrics().horizontalAdvance('9');
    QCOMPARE(widths[1], widths[0]);
    QCOMPARE(widths[2], widths[1] + digit);
    QCOMPARE(widths[3], widths[2]);
    QCOMPARE(widths[4], widths[3] + digit);
}

void TestCodeEditor::marginStandsBesideText()
{
    CodeEditor editor;
    editor.resize(300, 200);
    editor.show();
    editor.setPlainText(numberedText(100));
    QCoreApplication::processEvents();
    QCOMPARE(editor.viewport()->x(), editor.contentsRect().x() + editor.lineNumberAreaWidth());
    editor.resize(320, 240);
    const auto* const area = editor.findChild<LineNumberArea*>();
    QCOMPARE(area->height(), editor.contentsRect().height());
    QCOMPARE(area->width(), editor.lineNumberAreaWidth());
}

void TestCodeEditor::marginShowsNumbers()
{
    CodeEditor editor;
    editor.resize(300, 200);
    editor.setPlainText("a\nb\nc");
    auto* const area = editor.findChild<LineNumberArea*>();
    editor.grab();
    const QImage image = area->grab().toImage();
    const int line = editor.fontMetrics().height();
    const auto isPainted = [&image, &area](int from, int to)
    {
        for (int y = from; y < to; ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != area->palette().color(QPalette::Window))
                    return true;
        return false;
    };
    for (int row = 0; row < 3; ++row)
        QVERIFY(isPainted(4 + row * line, 4 + (row + 1) * line));
    QVERIFY(!isPainted(8 + 3 * line, image.height()));
}

void TestCodeEditor::emptyTextHasOneLineNumber()
{
    const CodeEditor editor;
    QVERIFY(editor.lineNumberAreaWidth() > editor.fontMetrics().horizontalAdvance('9'));
    QCOMPARE(editor.text(), QString());
}

void TestCodeEditor::lineOfCursorIsMarked()
{
    CodeEditor editor;
    editor.setPlainText("a\nb");
    QCOMPARE(editor.extraSelections().size(), 1);
    QCOMPARE(editor.extraSelections().first().cursor.blockNumber(), 0);
    editor.moveCursor(QTextCursor::End);
    const QTextEdit::ExtraSelection selection = editor.extraSelections().first();
    QCOMPARE(selection.cursor.blockNumber(), 1);
    QVERIFY(!selection.cursor.hasSelection());
    QVERIFY(selection.format.property(QTextFormat::FullWidthSelection).toBool());
}

void TestCodeEditor::readOnlyTextHasNoMark()
{
    CodeEditor editor;
    editor.setPlainText("a\nb");
    editor.setReadOnly(true);
    editor.moveCursor(QTextCursor::End);
    QVERIFY(editor.extraSelections().isEmpty());
}

void TestCodeEditor::lineNumberAreaLeavesPaintingToEditor()
{
    CodeEditor editor;
    auto* const area = editor.findChild<LineNumberArea*>();
    QCOMPARE(area->sizeHint(), QSize(editor.lineNumberAreaWidth(), 0));
    QPalette palette = area->palette();
    palette.setColor(QPalette::Window, Qt::green);
    area->setPalette(palette);
    editor.resize(200, 200);
    editor.grab();
    QCOMPARE(area->grab().toImage().pixelColor(1, area->height() - 2), QColor(Qt::green));
}

void TestCodeEditor::tabIsKeptAndFourCharactersWide()
{
    CodeEditor editor;
    QTest::keyClick(&editor, Qt::Key_Tab);
    QCOMPARE(editor.text(), QString("\t"));
    QCOMPARE(editor.tabStopDistance(), 4 * QFontMetricsF(editor.font()).horizontalAdvance(' '));
}

void TestCodeEditor::linesAreNotWrapped()
{
    QCOMPARE(CodeEditor().lineWrapMode(), QPlainTextEdit::NoWrap);
}

void TestCodeEditor::textKeepsCharacters()
{
    CodeEditor editor;
    const QString text = QString::fromUtf8("\tä € 漢 \xF0\x9F\x98\x80 a\xC2\xA0z\n\n  \n");
    editor.setPlainText(text);
    QCOMPARE(editor.text(), text);
}

void TestCodeEditor::textHasLineFeedsOnly()
{
    CodeEditor editor;
    editor.setPlainText("a\r\nb\rc");
    editor.moveCursor(QTextCursor::End);
    QTest::keyClick(&editor, Qt::Key_Return, Qt::ShiftModifier); // a separator within the line
    QTest::keyClick(&editor, Qt::Key_D);
    QCOMPARE(editor.text(), QString("a\nb\nc\nd"));
}

void TestCodeEditor::fontHasOneWidth()
{
    const QFontMetrics metrics(CodeEditor().font());
    QCOMPARE(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('W'));
}

void TestCodeEditor::biggerFontWidensMargin()
{
    CodeEditor editor;
    const int width = editor.lineNumberAreaWidth();
    QFont font = editor.font();
    font.setPointSize(3 * font.pointSize());
    editor.setFont(font);
    QVERIFY(editor.lineNumberAreaWidth() > width);
    QCOMPARE(editor.tabStopDistance(), 4 * QFontMetricsF(font).horizontalAdvance(' '));
}

QX_REGISTER_TEST(TestCodeEditor)
#include "testCodeEditor.moc"
