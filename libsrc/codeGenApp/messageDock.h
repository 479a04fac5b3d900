#ifndef CODE_GEN_APP_MESSAGE_DOCK_H
#define CODE_GEN_APP_MESSAGE_DOCK_H

#include <QtWidgets/QDockWidget>

class DtMessageLog;
class QListWidget;

// Shows the lines of a log below the lists, with buttons that copy and clear them.
//
// The log is not owned and must outlive the dock. The lines that are there already are shown at once, later ones when
// the event loop is turned.
class DtMessageDock : public QDockWidget
{
    Q_OBJECT

public:
    DtMessageDock(const DtMessageLog& log, QWidget* parent);

    // Takes over what the log has got since the last call.
    void takeLines();

Q_SIGNALS:
    void lineChosen(const QString& line);

private:
    void copyLines() const;

    const DtMessageLog& myLog;
    QListWidget* myList;
    int myTaken = 0; // lines of the log
    bool myIsWaiting = false;
};

#endif
