// What the window takes beside its menus: keys in the lists, the find bar, files that are dropped on it, and its place
// on the screen.

#include "codeGenApp/classFacts.h"
#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/findBar.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/windowPlace.h"
#include "fileGenerator/omtProject.h"
#include "ui_codeGenAppGui.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QShortcut>

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{
const char theProjectExtension[] = "qxproj";
const char* const theModelExtensions[] = {"omt", "xml", "fdd"};

bool hasExtension(const QString& file, const char* extension)
{
    return QFileInfo(file).suffix().compare(QLatin1String(extension), Qt::CaseInsensitive) == 0;
}

bool isModel(const QString& file)
{
    return std::any_of(std::begin(theModelExtensions), std::end(theModelExtensions),
                       [&file](const char* extension) { return hasExtension(file, extension); });
}

// Empty for what is no file of this machine.
QStringList filesOf(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            files += url.toLocalFile();
    return files;
}
} // namespace

void DtCodeGenAppGui::createShortcuts()
{
    const std::pair<const char*, QAction*> theKeys[] = {
        {"Ctrl+N", myNewProjectAction },
        {"Ctrl+S", mySaveProjectAction},
        {"Ctrl+W", myCloseAction      },
        {"Ctrl+Q", myExitAction       },
    };
    for (const auto& [key, action] : theKeys) // an action that is disabled does nothing
        connect(new QShortcut(QKeySequence(QString::fromLatin1(key)), this), &QShortcut::activated, action,
                &QAction::trigger);
    connect(new QShortcut(QKeySequence(QStringLiteral("Ctrl+Z")), this), &QShortcut::activated, this,
            &DtCodeGenAppGui::undoLastChange);
}

// What changes nothing leaves the change before it to be taken back.
void DtCodeGenAppGui::changeSelection(const std::function<void()>& change)
{
    std::unique_ptr<DtOmtProject> before;
    if (isVisible() && myProject != nullptr)
        before = std::make_unique<DtOmtProject>(*myProject);
    change();
    if (before != nullptr &&
        !(before->getObjects() == myProject->getObjects() && before->getInteractions() == myProject->getInteractions()))
        myBeforeChange = std::move(before);
    refreshBadge();
}

// The selected classes alone: custom code that was saved in between stays.
void DtCodeGenAppGui::undoLastChange()
{
    if (myBeforeChange == nullptr || myProject == nullptr)
        return;
    myProject->setObjects(myBeforeChange->getObjects());
    myProject->setInteractions(myBeforeChange->getInteractions());
    myBeforeChange.reset();
    myListViewManager->clearRightList();
    showProjectOnTheRight();
    showSuccess(QStringLiteral("The last change of the selection is taken back"));
}

void DtCodeGenAppGui::noteDirectory(const QString& file)
{
    if (!file.isEmpty())
        myLastDirectory = QFileInfo(file).path();
}

bool DtCodeGenAppGui::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const list = qobject_cast<const QTreeWidget*>(watched);
    if (list != nullptr && event->type() == QEvent::KeyPress)
        return handleListKey(list, *static_cast<QKeyEvent*>(event));
    const auto* const listOfViewport = qobject_cast<const QTreeWidget*>(watched->parent());
    if (listOfViewport != nullptr && event->type() == QEvent::ToolTip)
        return showClassToolTip(listOfViewport, *static_cast<QHelpEvent*>(event));
    return QMainWindow::eventFilter(watched, event);
}

// True when the key was meant for the window.
bool DtCodeGenAppGui::handleListKey(const QTreeWidget* list, const QKeyEvent& event)
{
    struct DtKeyRow
    {
        int key;
        bool isForRightListOnly;
        void (DtCodeGenAppGui::*operation)();
    };
    static const DtKeyRow theKeys[] = {
        {Qt::Key_Insert, false, &DtCodeGenAppGui::addSelectedItems    },
        {Qt::Key_Delete, true,  &DtCodeGenAppGui::removeSelectedItems },
        {Qt::Key_F2,     true,  &DtCodeGenAppGui::customizeCurrentItem},
        {Qt::Key_Return, true,  &DtCodeGenAppGui::customizeCurrentItem},
        {Qt::Key_Enter,  true,  &DtCodeGenAppGui::customizeCurrentItem},
    };
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    if (event.key() == Qt::Key_Escape && myFindBar != nullptr && myFindBar->isVisible())
    {
        myFindBar->dismiss();
        return true;
    }
    for (const DtKeyRow& row : theKeys)
        if (row.key == event.key() && (!row.isForRightListOnly || list == myForm->myRightListView))
        {
            (this->*row.operation)();
            return true;
        }
    return false;
}

void DtCodeGenAppGui::customizeCurrentItem()
{
    customize(myForm->myRightListView->currentItem());
}

// The bar is made, and put below the left list, when it is asked for the first time.
void DtCodeGenAppGui::openFindBar()
{
    if (myFindBar == nullptr)
    {
        QTreeWidget* const list = myForm->myLeftListView;
        myFindBar = new DtFindBar(list, myForm->widget);
        myFindBar->setMembers(
            [this](QTreeWidgetItem* item)
            {
                const DtFedNode* const node = nodeOf(item);
                return node != nullptr ? DtMemberNames(*node) : QStringList();
            });
        auto* const column = new QVBoxLayout;
        myForm->hboxLayout->removeWidget(list);
        column->addWidget(list);
        column->addWidget(myFindBar);
        myForm->hboxLayout->insertLayout(0, column);
        setTabOrder(list, myFindBar);
    }
    myFindBar->open();
}

bool DtCodeGenAppGui::takesFile(const QString& file) const
{
    return hasExtension(file, theProjectExtension) || (isModel(file) && myImportAction->isEnabled());
}

void DtCodeGenAppGui::dragEnterEvent(QDragEnterEvent* event)
{
    const QStringList files = filesOf(*event->mimeData());
    const bool isTaken =
        std::any_of(files.begin(), files.end(), [this](const QString& file) { return takesFile(file); });
    if (isTaken && QApplication::activeModalWidget() == nullptr)
        event->acceptProposedAction();
}

void DtCodeGenAppGui::dropEvent(QDropEvent* event)
{
    if (QApplication::activeModalWidget() != nullptr)
        return;
    event->acceptProposedAction();
    for (const QString& file : filesOf(*event->mimeData()))
        takeFile(file);
}

// A project that is dropped together with models is loaded first when it stands first, and takes them then.
void DtCodeGenAppGui::takeFile(const QString& file)
{
    if (!takesFile(file))
        return;
    const DtFilename path(file.toUtf8().constData());
    if (hasExtension(file, theProjectExtension))
    {
        if (mayLeaveProject())
            loadOmtProject(path);
        return;
    }
    DtFilename directory(path);
    directory.stripFilename();
    loadFile(path, directory);
}

void DtCodeGenAppGui::keepPlace()
{
    DtRestoreWindowPlace(*this);
    myKeepsPlace = true;
}

void DtCodeGenAppGui::closeEvent(QCloseEvent* event)
{
    if (!mayLeaveProject())
        return event->ignore();
    if (myKeepsPlace)
        DtSaveWindowPlace(*this);
    QMainWindow::closeEvent(event);
}
