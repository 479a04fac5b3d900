#include "fileGenerator/qtProgressMeter.h"

#include "foundation/exception.h"

#include <QtCore/QString>
#include <QtWidgets/QStyle>

namespace
{
constexpr int theWidth = 300;              // pixels
constexpr qint64 thePaintingInterval = 40; // milliseconds
constexpr const char* theTitle = "Generating files...";
constexpr const char* theNoDialogMessage = "Need to setTotalMeasure() before using";

// Behind which the label may break a line; -1 when there is none.
int nextSeparator(const QString& text, int from)
{
    for (int at = from; at < text.size(); ++at)
        if (text[at] == ' ' || text[at] == '/')
            return at;
    return -1;
}
} // namespace

bool DtIsPaintingDue(qint64 elapsed, const QString& platform)
{
    return elapsed >= thePaintingInterval && platform != QLatin1String("offscreen");
}

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
    if (!myLabel.isNull())
        myLabel->setFixedSize(myLabel->size()); // else each of its texts has the dialog laid out again
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
    ++myFilesBegun;
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
    myBar = new QProgressBar(myDialog);
    myBar->setRange(0, myTotalMeasure);
    myDialog->setBar(myBar);
    myDialog->setFixedWidth(theWidth);
    myCharacterWidths.fill(0);
    myLineWidth = theWidth - myDialog->style()->pixelMetric(QStyle::PM_LayoutLeftMargin) -
                  myDialog->style()->pixelMetric(QStyle::PM_LayoutRightMargin);
    const int lines = 3 * myLabel->fontMetrics().lineSpacing(); // as the files of examples need
    myDialog->setFixedHeight(myDialog->sizeHint().height() - myLabel->sizeHint().height() + lines);
    myDialog->setWindowTitle(theTitle);
}

void DtQtProgressMeter::showMeasure()
{
    noteCancel();
    if (!myDialog->wasCanceled())
        myBar->setValue(myCurrentMeasure); // to set that of the dialog turns the event loop once more
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
QString DtQtProgressMeter::fitted(const QString& text)
{
    if (widthOf(text) < myLineWidth) // as most are
        return text;
    QString result;
    for (int at = 0, end = 0; at < text.size(); at = end)
    {
        const int separator = nextSeparator(text, at);
        end = separator < 0 ? text.size() : separator + 1;
        result += shortened(text.mid(at, end - at), myLineWidth);
    }
    return result;
}

// By the widths of single characters, each with room for what differs when they stand together: to lay the text out, as
// the library does for this, takes as long as to write a small file.
QString DtQtProgressMeter::shortened(const QString& piece, int width)
{
    if (widthOf(piece) < width)
        return piece;
    const QChar ellipsis(0x2026);
    int left = width - widthOf(ellipsis);
    int front = 0;
    int back = 0;
    while (front + back < piece.size())
    {
        const bool isFront = front <= back;
        left -= widthOf(isFront ? piece[front] : piece[piece.size() - 1 - back]);
        if (left < 0)
            break;
        ++(isFront ? front : back);
    }
    return piece.left(front) + ellipsis + piece.right(back);
}

int DtQtProgressMeter::widthOf(const QString& text)
{
    int width = 0;
    for (const QChar character : text)
        width += widthOf(character);
    return width;
}

int DtQtProgressMeter::widthOf(QChar character)
{
    const std::size_t code = character.unicode();
    if (code >= myCharacterWidths.size())
        return myLabel->fontMetrics().horizontalAdvance(character) + 1;
    int& known = myCharacterWidths[code];
    if (known == 0)
        known = myLabel->fontMetrics().horizontalAdvance(character) + 1;
    return known;
}

// Not behind a pressed Cancel, which hides the dialog: until the run ends, the window would be open to the user.
void DtQtProgressMeter::processEvents()
{
    if (!myDialog.isNull() && myDialog->wasCanceled())
        return;
    const bool isPaintingDue = DtIsPaintingDue(mySincePainted.elapsed(), QGuiApplication::platformName());
    if (isPaintingDue && !myDialog.isNull())
    {
        myDialog->setUpdatesEnabled(true);
        myDialog->repaint(); // what came to be painted while painting was off is not asked for again
    }
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
