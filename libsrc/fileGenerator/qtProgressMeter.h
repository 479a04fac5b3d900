#ifndef FILE_GENERATOR_QT_PROGRESS_METER_H
#define FILE_GENERATOR_QT_PROGRESS_METER_H

#include "fileGenerator/progressMeter.h"
#include "foundation/string.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QProgressDialog>

#include <array>

// Progress of a generation run in a modal dialog; one object for the whole process.
//
// Generation runs on the event loop's thread, so every update also processes pending events. The window calls init()
// ahead of a run and reset() after it; the driver calls setTotalMeasure() and then the update operations, and polls
// isCancelled(). A dialog that goes down with its parent counts as none. Label and value are set at every update, but
// the dialog is painted 25 times a second at most, and once only where nobody can see it.
class DtQtProgressMeter : public DtProgressMeter
{
public:
    static DtQtProgressMeter* instance();

    // Makes and shows a new dialog, with the current measure at 0. Throws DtException before init().
    void setTotalMeasure(int total) override;
    int totalMeasure() override;
    // The next four throw DtException when there is no dialog.
    void setCurrentMeasure(int measure) override;
    int currentMeasure() override;
    void incrementCurrentMeasure(int step) override;
    void setLabel(const DtString& text) override;
    void setFileGenerated(const DtString& name) override;
    // A pressed Cancel button shows here from the next update on, until init() or setIsCancelled(false).
    void setIsCancelled(bool isCancelled) override;
    bool isCancelled() override;
    // Stores application and parent (may be null) and clears the cancelled state.
    void init(QApplication* application, QWidget* parent) override;
    // Deletes the dialog, if there is one.
    void reset() override;
    // Count of the files that were named to this object so far, in all runs.
    int filesBegun() const { return myFilesBegun; }
    ~DtQtProgressMeter() override;
    virtual void checkInitialized();

private:
    DtQtProgressMeter() = default;
    DtQtProgressMeter(const DtQtProgressMeter&) = delete;
    DtQtProgressMeter& operator=(const DtQtProgressMeter&) = delete;

    void makeDialog();
    void showMeasure();
    void noteCancel();
    void showLabel(const DtString& text);
    QString fitted(const QString& text);
    QString shortened(const QString& piece, int width);
    int widthOf(const QString& text);
    int widthOf(QChar character);
    void processEvents();
    void suspendPainting();

    QPointer<QProgressDialog> myDialog;
    QPointer<QApplication> myApplication;
    QPointer<QWidget> myParent;
    QPointer<QLabel> myLabel;
    QProgressBar* myBar = nullptr; // there when the dialog is
    DtString myLabelText;
    int myTotalMeasure = 0;
    int myCurrentMeasure = 0;
    int myFilesBegun = 0;
    bool myIsCancelled = false;
    bool myIsInitialized = false;
    QElapsedTimer mySincePainted;
    int myLineWidth = 0;                         // pixels in the dialog between its margins
    std::array<int, 128> myCharacterWidths = {}; // by ASCII code, in the font of the label; 0 until it is asked for
};

// When a dialog that was painted that many milliseconds ago is to be painted again; the platform is that of Qt.
bool DtIsPaintingDue(qint64 elapsed, const QString& platform);

#endif
