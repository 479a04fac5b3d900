#include "fileGenerator/qtProgressMeter.h"

#include "foundation/exception.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtWidgets/QStyle>

namespace
{
constexpr int theWidth = 300;              // pixels
constexpr qint64 thePaintingInterval = 20; // milliseconds
const QRegularExpression theSeparators(QStringLiteral("[ /]"));
constexpr const char* theTitle = "Generating files...";
constexpr const char* theNoDialogMessage = "Need to setTotalMeasure() before using";
} // namespace

// Each operation that needs the dialog names itself in the exception.
#define CHECK_DIALOG()                                                                                                 \
    if (myDialog.isNull())                                                                                             \
    DT_THROW(theNoDialogMessage)

DtQtProgressMeter* DtQtProgressMeter::instance()
{
    static DtQtProgressMeter theMeter;
    return &theMeter;
}

void DtQtProgressMeter::setTotalMeasure(int total)
{
    checkInitialized();
    myCurrentMeasure = 0;
    myTotalMeasure = total;
    makeDialog();
    myDialog->show();
    QApplication::processEvents();
    suspendPainting();
}

int DtQtProgressMeter::totalMeasure()
{
    return myTotalMeasure;
}

void DtQtProgressMeter::setCurrentMeasure(int measure)
{
    CHECK_DIALOG();
    myCurrentMeasure = measure;
    showMeasure();
}

int DtQtProgressMeter::currentMeasure()
{
    return myCurrentMeasure;
}

void DtQtProgressMeter::incrementCurrentMeasure(int step)
{
    CHECK_DIALOG();
    myCurrentMeasure += step;
    showMeasure();
}

void DtQtProgressMeter::setLabel(const DtString& text)
{
    CHECK_DIALOG();
    showLabel(text);
}

void DtQtProgressMeter::setFileGenerated(const DtString& name)
{
    CHECK_DIALOG();
    showLabel("Generating: " + name);
    processEvents();
}

void DtQtProgressMeter::setIsCancelled(bool isCancelled)
{
    myIsCancelled = isCancelled;
}

bool DtQtProgressMeter::isCancelled()
{
    return myIsCancelled;
}

void DtQtProgressMeter::init(QApplication* application, QWidget* parent)
{
    myApplication = application;
    myParent = parent;
    myIsCancelled = false;
    myIsInitialized = true;
}

void DtQtProgressMeter::reset()
{
    delete myDialog.data(); // its label with it
}

DtQtProgressMeter::~DtQtProgressMeter()
{
    // The last use of a process-wide object may be behind the end of the application, and of all widgets with it.
    if (!myApplication.isNull())
        delete myDialog.data();
}

void DtQtProgressMeter::checkInitialized()
{
    if (!myIsInitialized)
        DT_THROW("init() must be called before object is used");
}

void DtQtProgressMeter::makeDialog()
{
    delete myDialog.data(); // one of a run that was not reset
    myDialog = new QProgressDialog(theTitle, "Cancel", 0, myTotalMeasure, myParent);
    myDialog->setWindowModality(Qt::ApplicationModal);
    myDialog->setAutoReset(false); // it stays, and keeps the window from the user, when a script writes more than it
    myDialog->setAutoClose(false); // has counted, as in its first run
    myLabel = new QLabel(theTitle, myDialog);
    myLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    myLabel->setWordWrap(true);
    myDialog->setLabel(myLabel);
    myDialog->setFixedWidth(theWidth);
    const int twoLines = 2 * myLabel->fontMetrics().lineSpacing(); // most names need one of their own
    myDialog->setFixedHeight(myDialog->sizeHint().height() - myLabel->sizeHint().height() + twoLines);
    myDialog->setWindowTitle(theTitle);
}

void DtQtProgressMeter::showMeasure()
{
    noteCancel();
    if (!myDialog->wasCanceled())
        myDialog->setValue(myCurrentMeasure); // turns the event loop, too
    processEvents();
    noteCancel(); // also of a button pressed just now, so that no further file is begun
}

void DtQtProgressMeter::noteCancel()
{
    if (!myDialog.isNull() && myDialog->wasCanceled())
        myIsCancelled = true;
}

void DtQtProgressMeter::showLabel(const DtString& text)
{
    myLabelText = text;
    if (!myLabel.isNull())
        myLabel->setText(fitted(QString::fromUtf8(text.c_str())));
}

// The label breaks lines behind blanks and slashes; what is wider than a line between these loses its middle.
QString DtQtProgressMeter::fitted(const QString& text) const
{
    const int margins = myDialog->style()->pixelMetric(QStyle::PM_LayoutLeftMargin) +
                        myDialog->style()->pixelMetric(QStyle::PM_LayoutRightMargin);
    QString result;
    for (int at = 0, end = 0; at < text.size(); at = end)
    {
        const int separator = text.indexOf(theSeparators, at);
        end = separator < 0 ? text.size() : separator + 1;
        result += myLabel->fontMetrics().elidedText(text.mid(at, end - at), Qt::ElideMiddle, theWidth - margins);
    }
    return result;
}

// Not behind a pressed Cancel, which hides the dialog: until the run ends, the window would be open to the user.
void DtQtProgressMeter::processEvents()
{
    if (!myDialog.isNull() && myDialog->wasCanceled())
        return;
    const bool isPaintingDue = mySincePainted.hasExpired(thePaintingInterval);
    if (isPaintingDue && !myDialog.isNull())
        myDialog->setUpdatesEnabled(true);
    QApplication::processEvents();
    if (isPaintingDue)
        suspendPainting();
}

void DtQtProgressMeter::suspendPainting()
{
    if (!myDialog.isNull())
        myDialog->setUpdatesEnabled(false);
    mySincePainted.start();
}
