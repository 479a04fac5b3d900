#ifndef CODE_GEN_APP_ABOUT_BOX_H
#define CODE_GEN_APP_ABOUT_BOX_H

#include "codeGenApp/deployment.h"

#include <QtWidgets/QDialog>

class QGridLayout;
class QLabel;
class QVBoxLayout;

// What a support request needs: platform, compiler, versions, and how to reach the support. It can copy itself to the
// clipboard as an image.
//
// Splash image and fonts are optional; without them the box has no image and the default font. What the deployment
// leaves empty takes no room.
class DtAboutBox : public QDialog
{
    Q_OBJECT

public:
    explicit DtAboutBox(QWidget* parent = nullptr);

public Q_SLOTS:
    void slot_saveDialogToClipboardClicked();

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setupGui();
    QGridLayout* createAllLabels();
    void addImage(QVBoxLayout* column);
    void addMaker(QVBoxLayout* column);
    void addSupport(QVBoxLayout* column);
    void addButtons(QVBoxLayout* column);
    QLabel* addText(QVBoxLayout* column, const QString& text, const QFont& font);
    void colorLinks();

    const DtDeployment myDeployment;
    QLabel* myLinks = nullptr; // empty and hidden when there are no addresses
};

#endif
