#ifndef CODE_GEN_APP_DETAIL_PANEL_H
#define CODE_GEN_APP_DETAIL_PANEL_H

#include <QtWidgets/QDockWidget>

class DtFedNode;
class QTextBrowser;

// Shows one class of the model at the right of the lists, with all it inherits.
class DtDetailPanel : public QDockWidget
{
public:
    explicit DtDetailPanel(QWidget* parent);
    // Null for no class. The node is read at once and not kept.
    void showClass(const DtFedNode* node);

private:
    QTextBrowser* myText;
};

#endif
