#include "fileGenerator/qtProgressMeter.h"

#include "foundation/exception.h"

#include <QtCore/QString>

namespace
{
constexpr int theWidth = 300;              // pixels
constexpr qint64 thePaintingInterval = 20; // milliseconds
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
    myLabel = new QLabel(myDialog);
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
    noteCancel(); // ahead of the value: reaching the last one resets the dialog, the pressed button included
    myDialog->setValue(myCurrentMeasure);
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
        myLabel->setText(QString::fromUtf8(text.c_str()));
}

void DtQtProgressMeter::processEvents()
{
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
