#include "codeGenApp/detailPanel.h"

#include "codeGenApp/classFacts.h"

#include <QtWidgets/QTextBrowser>

DtDetailPanel::DtDetailPanel(QWidget* parent)
    : QDockWidget(QStringLiteral("Details"), parent), myText(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("Details"));
    setFeatures(QDockWidget::DockWidgetClosable);
    setAllowedAreas(Qt::RightDockWidgetArea);
    myText->setAccessibleName(windowTitle());
    myText->setOpenLinks(false);
    setWidget(myText);
}

void DtDetailPanel::showClass(const DtFedNode* node)
{
    myText->setHtml(node != nullptr ? DtClassDetails(*node) : QStringLiteral("No class is current in the lists."));
}
