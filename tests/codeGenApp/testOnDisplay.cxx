// What a person sees and does: the window on a real display, under a window manager, driven by keys and looked at on
// the screen. The other tests of the window need no display.

#include "progressWatch.h"
#include "windowFixture.h"

#include <QtCore/QProcess>
#include <QtGui/QScreen>
#include <QtTest/QtTest>

namespace
{
const QColor theDarkSelection(0x2f, 0x72, 0xc4); // of the style sheets
const QColor theLightSelection(0x1f, 0x63, 0xb5);

QImage screenPart(const QRect& rectangle)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height())
        .toImage();
}

// Where a widget is on the screen.
QRect placeOf(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

int countOf(const QColor& color, const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    return count;
}

// Presses keys on the display, as a person does: "alt+F4".
void press(const QString& keys)
{
    QVERIFY2(QProcess::startDetached("xdotool", {"key", keys}), "xdotool");
}

// Presses a key when a dialog has come up. A dialog turns the event loop itself, and a test that waits does not go on
// until it is closed.
class DtKeyForDialog : public QObject
{
public:
    explicit DtKeyForDialog(const char* key) : myKey(key) { startTimer(100); }
    bool isDone() const { return myIsDone; }

private:
    void timerEvent(QTimerEvent*) override
    {
        const QWidget* const dialog = QApplication::activeModalWidget();
        if (myIsDone || dialog == nullptr || !dialog->isActiveWindow())
            return;
        myIsDone = true;
        press(myKey);
    }

    const char* myKey;
    bool myIsDone = false;
};

// Looks at the bar of the progress dialog twenty times a second, and notes how many pixels of it are full.
class DtBarWatch : public QObject
{
public:
    DtBarWatch() { startTimer(50); }
    const std::vector<int>& full() const { return myFull; }

private:
    void timerEvent(QTimerEvent*) override
    {
        const auto* const dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        const auto* const bar = dialog != nullptr ? dialog->findChild<QProgressBar*>() : nullptr;
        if (bar == nullptr || !bar->isVisible())
            return;
        myFull.push_back(countOf(theDarkSelection, screenPart(placeOf(*bar))));
    }

    std::vector<int> myFull;
};
} // namespace

class TestOnDisplay : public QObject, private DtWindowFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(QGuiApplication::platformName(), QString("xcb")); }
    void init() { open(); }
    void cleanup() { close(); }

    void managerClosesTheWindowOnlyWhenTheWorkIsSaved()
    {
        qApp->removeEventFilter(myDialogs.get()); // a person answers
        loadModel(objectText("Ship"));
        show();
        itemOf(left(), "Ship")->setSelected(true);
        myWindow->addSelectedItems();
        for (const char* answer : {"Escape", "Return"}) // the default button saves
        {
            const DtKeyForDialog key(answer);
            press("alt+F4");
            QTRY_VERIFY(key.isDone() && QApplication::activeModalWidget() == nullptr);
            QCOMPARE(myWindow->isVisible(), QString(answer) == "Escape");
            QTRY_VERIFY(!myWindow->isVisible() || myWindow->isActiveWindow());
        }
        QVERIFY(readTextFile(path("models/p.qxproj")).contains("Ship"));
    }

    void currentEntryOfAMenuHasTheColorsOfTheSelection_data()
    {
        QTest::addColumn<bool>("isDark");
        QTest::newRow("dark") << true;
        QTest::newRow("light") << false;
    }
    void currentEntryOfAMenuHasTheColorsOfTheSelection()
    {
        QFETCH(bool, isDark);
        myWindow->loadStylesheet(isDark);
        show();
        press("alt+f");
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        const auto isMarked = [&](const QAction* action)
        {
            const QRect entry = menu->actionGeometry(const_cast<QAction*>(action)).adjusted(2, 2, -2, -2);
            const QImage image = screenPart(entry.translated(menu->mapToGlobal(QPoint())));
            return 2 * countOf(isDark ? theDarkSelection : theLightSelection, image) > image.width() * image.height();
        };
        press("Down");
        QTRY_VERIFY(menu->activeAction() != nullptr && isMarked(menu->activeAction()));
        const QAction* const close = &action("Close");
        const QPoint at = menu->mapToGlobal(menu->actionGeometry(const_cast<QAction*>(close)).center());
        QProcess::startDetached("xdotool", {"mousemove", QString::number(at.x()), QString::number(at.y()), "sleep",
                                            "0.2", "mousemove_relative", "4", "0"});
        QTRY_VERIFY(menu->activeAction() == close && isMarked(close));
        for (const QAction* each : menu->actions())
            QCOMPARE(isMarked(each), each == close);
        press("Escape");
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void currentItemOfAListHasAFrame()
    {
        loadModel(objectText("Ship"));
        show();
        myWindow->loadStylesheet(true);
        QTRY_VERIFY(left().hasFocus());
        myWindow->slot_saveOmtProject();
        myWindow->loadOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(left().selectedItems().size(), 0);
        const auto lineAbove = [this](const char* text)
        {
            const QRect item = left().visualItemRect(itemOf(left(), text));
            return screenPart({left().viewport()->mapToGlobal(item.topLeft()), QSize(item.width() / 2, 1)});
        };
        QTRY_VERIFY(countOf(QColor(0xe6, 0xe9, 0xee), lineAbove("Objects")) > 40);
        QCOMPARE(countOf(QColor(0xe6, 0xe9, 0xee), lineAbove("Ship")), 0);
        press("Down");
        QTRY_VERIFY(
            countOf(theDarkSelection, lineAbove("Ship")) + countOf(QColor(0xe6, 0xe9, 0xee), lineAbove("Ship")) > 40);
        right().setFocus(); // what is selected in the other list is quieter
        QTRY_COMPARE(countOf(theDarkSelection, screenPart(placeOf(left()))), 0);
    }

    void progressMovesWhileFilesAreWritten()
    {
        show();
        myWindow->newOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(myWindow->loadFile(myProgram->sampleModel(), ""), 1);
        myWindow->addAllObjectInteractions();
        myWindow->setOutputDirectory(path("out/"));
        const DtBarWatch bar;
        myWindow->generateAllFiles();
        std::set<int> widths(bar.full().begin(), bar.full().end());
        QVERIFY2(widths.size() > 4,
                 qPrintable(QString("%1 looks, %2 pictures").arg(bar.full().size()).arg(widths.size())));
        QVERIFY(std::is_sorted(bar.full().begin(), bar.full().end()));
    }
};

QTEST_MAIN(TestOnDisplay)
#include "testOnDisplay.moc"
