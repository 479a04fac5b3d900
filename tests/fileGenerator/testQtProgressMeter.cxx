#include "registerTest.h"

#include "fileGenerator/qtProgressMeter.h"
#include "foundation/exception.h"

#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>

#include <functional>

namespace
{
// Counts the paint events of the widgets of one dialog.
class DtPaintCounter : public QObject
{
public:
    int count() const { return myCount; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && object->inherits("QLabel"))
            ++myCount;
        return false;
    }

private:
    int myCount = 0;
};

QProgressDialog* shownDialog()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QProgressDialog*>(widget))
            return dialog;
    return nullptr;
}

QLabel* shownLabel()
{
    return shownDialog()->findChild<QLabel*>();
}
} // namespace

class TestQtProgressMeter : public QObject
{
    Q_OBJECT

private:
    DtQtProgressMeter& myMeter = *DtQtProgressMeter::instance();

    static void checkThrow(const std::function<void()>& operation, const char* message, const char* where)
    {
        try
        {
            operation();
        }
        catch (const DtException& exception)
        {
            QCOMPARE(exception.what(), message);
            QVERIFY2(exception.where().startsWith(where), exception.where().c_str());
            QVERIFY(exception.where().stdString().find("[qtProgressMeter.cxx:") != std::string::npos);
            return;
        }
        QFAIL("no exception");
    }

private Q_SLOTS:
    void initTestCase();
    void cleanup() { myMeter.reset(); }

    void operationsWithoutDialogThrow();
    void dialogLooksAsItShould();
    void longNamesHaveRoomForTheirLines();
    void nameWiderThanALineLosesItsMiddle();
    void dialogStaysWhenTheTotalIsReached();
    void cancelledDialogTurnsNoEvents();
    void valueAndLabelFollow();
    void newTotalStartsAtZeroWithOneDialog();
    void cancelShowsAtNextUpdate();
    void cancelDuringAnUpdateShowsAtOnce();
    void cancelAheadOfLastStepIsNotLost();
    void initClearsCancel();
    void cancelCanBeSet();
    void updatesProcessEvents();
    void deletedParentLeavesNoDialog();
    void resetTwiceIsHarmless();
    void unseenDialogIsPaintedOnce();
    void dialogIsPaintedTwentyFiveTimesASecond();
};

// First, while this process has not called init(). Another test class may have done so already.
void TestQtProgressMeter::initTestCase()
{
    bool wasInitialized = false;
    try
    {
        myMeter.checkInitialized();
        wasInitialized = true;
    }
    catch (const DtException& exception)
    {
        QCOMPARE(exception.what(), "DtException: init() must be called before object is used");
    }
    if (!wasInitialized)
        checkThrow([this] { myMeter.setTotalMeasure(3); }, "DtException: init() must be called before object is used",
                   "virtual void DtQtProgressMeter::checkInitialized()");
    myMeter.init(qApp, nullptr);
}

void TestQtProgressMeter::operationsWithoutDialogThrow()
{
    const char* message = "DtException: Need to setTotalMeasure() before using";
    checkThrow([this] { myMeter.setCurrentMeasure(1); }, message,
               "virtual void DtQtProgressMeter::setCurrentMeasure(int)");
    checkThrow([this] { myMeter.incrementCurrentMeasure(1); }, message,
               "virtual void DtQtProgressMeter::incrementCurrentMeasure(int)");
    checkThrow([this] { myMeter.setLabel("x"); }, message, "virtual void DtQtProgressMeter::setLabel(const DtString&)");
    checkThrow([this] { myMeter.setFileGenerated("x"); }, message,
               "virtual void DtQtProgressMeter::setFileGenerated(const DtString&)");
}

void TestQtProgressMeter::dialogLooksAsItShould()
{
    myMeter.setTotalMeasure(7);
    QProgressDialog* dialog = shownDialog();
    QVERIFY(dialog != nullptr && dialog->isVisible());
    QCOMPARE(dialog->windowTitle(), QString("Generating files..."));
    QCOMPARE(dialog->windowModality(), Qt::ApplicationModal);
    QCOMPARE(dialog->minimum(), 0);
    QCOMPARE(dialog->maximum(), 7);
    QCOMPARE(dialog->width(), 300);
    QCOMPARE(int(shownLabel()->alignment()), 1 + 128);
    QCOMPARE(dialog->findChild<QPushButton*>()->text(), QString("Cancel"));
    QCOMPARE(dialog->labelText(), QString("Generating files..."));
}

void TestQtProgressMeter::longNamesHaveRoomForTheirLines()
{
    myMeter.setTotalMeasure(7);
    const QSize size = shownDialog()->size();
    const auto heightOfText = [] { return shownLabel()->heightForWidth(shownLabel()->width()); };
    const int line = shownLabel()->fontMetrics().lineSpacing();
    myMeter.setFileGenerated("radioTransmitterStateRepository.cxx");
    QCOMPARE(shownDialog()->size(), size);
    QVERIFY(heightOfText() > line);
    QVERIFY(shownLabel()->height() >= heightOfText());
    myMeter.setFileGenerated("Examples/ActionRequestRInter/ActionRequestRInteractionTalkVC14_64.vcxproj");
    QVERIFY(heightOfText() > 2 * line);
    QVERIFY(shownLabel()->height() >= heightOfText());
}

void TestQtProgressMeter::nameWiderThanALineLosesItsMiddle()
{
    myMeter.setTotalMeasure(7);
    const QString name(120, 'w');
    myMeter.setFileGenerated(("DataTypes/a" + name + "z.cxx").toUtf8().constData());
    const QString text = shownLabel()->text();
    QVERIFY2(text.startsWith("Generating: DataTypes/aw") && text.endsWith("wz.cxx"), qPrintable(text));
    QVERIFY(!text.contains(name));
    for (const QString& piece : text.split(QRegularExpression("[ /]")))
        QVERIFY2(shownLabel()->fontMetrics().horizontalAdvance(piece) <= shownLabel()->width(), qPrintable(piece));
}

// A script whose files were not counted may go beyond the total; the window must not be open to the user then.
void TestQtProgressMeter::dialogStaysWhenTheTotalIsReached()
{
    myMeter.setTotalMeasure(2);
    for (int step = 0; step < 4; ++step)
    {
        myMeter.incrementCurrentMeasure(1);
        QVERIFY(shownDialog()->isVisible());
        QCOMPARE(QApplication::activeModalWidget(), shownDialog());
    }
    shownDialog()->findChild<QPushButton*>()->click();
    myMeter.incrementCurrentMeasure(1);
    QVERIFY(myMeter.isCancelled());
    myMeter.init(qApp, nullptr);
}

// Cancel hides the dialog, so what the user does next would reach the window in the middle of the run.
void TestQtProgressMeter::cancelledDialogTurnsNoEvents()
{
    myMeter.init(qApp, nullptr);
    myMeter.setTotalMeasure(10);
    shownDialog()->findChild<QPushButton*>()->click();
    bool hasRun = false;
    QTimer::singleShot(0, [&hasRun] { hasRun = true; });
    myMeter.incrementCurrentMeasure(1);
    myMeter.setFileGenerated("a.h");
    QVERIFY(!hasRun);
    QVERIFY(!shownDialog()->isVisible());
    QApplication::processEvents();
    QVERIFY(hasRun);
    myMeter.init(qApp, nullptr);
}

void TestQtProgressMeter::valueAndLabelFollow()
{
    myMeter.setTotalMeasure(10);
    myMeter.setCurrentMeasure(3);
    myMeter.incrementCurrentMeasure(2);
    QCOMPARE(myMeter.currentMeasure(), 5);
    QCOMPARE(shownDialog()->value(), 5);
    myMeter.setFileGenerated("a.h");
    QCOMPARE(shownLabel()->text(), QString("Generating: a.h"));
    myMeter.setLabel("text");
    QCOMPARE(shownLabel()->text(), QString("text"));
}

void TestQtProgressMeter::newTotalStartsAtZeroWithOneDialog()
{
    myMeter.setTotalMeasure(10);
    myMeter.setCurrentMeasure(3);
    myMeter.setTotalMeasure(20);
    QCOMPARE(myMeter.totalMeasure(), 20);
    QCOMPARE(myMeter.currentMeasure(), 0);
    int dialogs = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        dialogs += qobject_cast<QProgressDialog*>(widget) != nullptr ? 1 : 0;
    QCOMPARE(dialogs, 1);
}

void TestQtProgressMeter::cancelShowsAtNextUpdate()
{
    myMeter.init(qApp, nullptr);
    myMeter.setTotalMeasure(10);
    shownDialog()->findChild<QPushButton*>()->click();
    QVERIFY(!myMeter.isCancelled());
    myMeter.incrementCurrentMeasure(1);
    QVERIFY(myMeter.isCancelled());
}

void TestQtProgressMeter::cancelDuringAnUpdateShowsAtOnce()
{
    myMeter.init(qApp, nullptr);
    myMeter.setTotalMeasure(10);
    QTimer::singleShot(0, shownDialog(), [] { shownDialog()->findChild<QPushButton*>()->click(); });
    myMeter.incrementCurrentMeasure(1); // turns the event loop
    QVERIFY(myMeter.isCancelled());
    myMeter.init(qApp, nullptr);
}

void TestQtProgressMeter::cancelAheadOfLastStepIsNotLost()
{
    myMeter.init(qApp, nullptr);
    myMeter.setTotalMeasure(1);
    shownDialog()->findChild<QPushButton*>()->click();
    myMeter.setCurrentMeasure(1);
    QVERIFY(myMeter.isCancelled());
}

void TestQtProgressMeter::initClearsCancel()
{
    myMeter.setIsCancelled(true);
    myMeter.setTotalMeasure(1);
    QVERIFY(myMeter.isCancelled());
    myMeter.init(qApp, nullptr);
    QVERIFY(!myMeter.isCancelled());
}

void TestQtProgressMeter::cancelCanBeSet()
{
    myMeter.setIsCancelled(true);
    QVERIFY(myMeter.isCancelled());
    myMeter.setIsCancelled(false);
    QVERIFY(!myMeter.isCancelled());
}

void TestQtProgressMeter::updatesProcessEvents()
{
    myMeter.setTotalMeasure(10);
    const std::function<void()> updates[] = {
        [this] { myMeter.setCurrentMeasure(1); },
        [this] { myMeter.incrementCurrentMeasure(1); },
        [this] { myMeter.setFileGenerated("a.h"); },
    };
    for (const auto& update : updates)
    {
        bool hasRun = false;
        QTimer::singleShot(0, [&hasRun] { hasRun = true; });
        update();
        QVERIFY(hasRun);
    }
}

void TestQtProgressMeter::deletedParentLeavesNoDialog()
{
    auto parent = std::make_unique<QWidget>();
    myMeter.init(qApp, parent.get());
    myMeter.setTotalMeasure(10);
    parent.reset();
    QVERIFY_EXCEPTION_THROWN(myMeter.incrementCurrentMeasure(1), DtException);
    myMeter.reset();
    myMeter.setTotalMeasure(10); // the parent is known to be gone
    myMeter.init(qApp, nullptr);
}

void TestQtProgressMeter::resetTwiceIsHarmless()
{
    myMeter.setTotalMeasure(10);
    myMeter.reset();
    myMeter.reset();
    QVERIFY(shownDialog() == nullptr);
}

// The tests run where nobody can see the dialog.
void TestQtProgressMeter::unseenDialogIsPaintedOnce()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QSKIP("The dialog can be seen.");
    myMeter.setTotalMeasure(1000);
    DtPaintCounter counter;
    shownLabel()->installEventFilter(&counter);
    for (int i = 0; i < 500; ++i)
    {
        myMeter.setFileGenerated(DtString(i));
        myMeter.incrementCurrentMeasure(1);
    }
    QTest::qSleep(50);
    myMeter.setFileGenerated("last");
    QCOMPARE(counter.count(), 0);
}

void TestQtProgressMeter::dialogIsPaintedTwentyFiveTimesASecond()
{
    QVERIFY(!DtIsPaintingDue(39, "xcb"));
    QVERIFY(DtIsPaintingDue(40, "xcb"));
    QVERIFY(!DtIsPaintingDue(1000, "offscreen"));
}

QX_REGISTER_TEST(TestQtProgressMeter)
#include "testQtProgressMeter.moc"
