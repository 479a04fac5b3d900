// The form, its actions, menus and context menus, and the slots that lead to the operations of the window.

#include "codeGenApp/codeGenAppGui.h"

#include "codeGenApp/aboutBox.h"
#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/customCodeGui.h"
#include "codeGenApp/deployment.h"
#include "codeGenApp/findBar.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/messageDock.h"
#include "codeGenApp/messageLog.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtProject.h"
#include "foundation/outputStream.h"
#include "omtReader/omtTree.h"
#include "ui_codeGenAppGui.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtGui/QDesktopServices>
#include <QtGui/QStatusTipEvent>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace
{
const char theCustomConfigFile[] = "../data/config/customCodeGenConfig.xml";
const char theModelFilter[] = "Object Model Files (*.omt *.xml *.fdd)";

// An empty icon when the file is not there.
QIcon imageIcon(const char* name)
{
    const QString file = QStringLiteral("../data/images/") + QString::fromLatin1(name);
    return QFile::exists(file) ? QIcon(file) : QIcon();
}

DtCodeGenAppGui::DtModelFile modelFile(const QByteArray& file)
{
    const DtFilename path(file.constData());
    DtFilename directory(path);
    directory.stripFilename();
    return {path, directory};
}

// Text stands beside the icons where there is room for all of it; no button may fall off the bar.
void fitToolBar(QToolBar* bar, int width)
{
    if (bar == nullptr) // the window is being made
        return;
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (bar->sizeHint().width() > width)
        bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    bar->setFixedHeight(bar->maximumHeight()); // the style has taken the lower limit away
}
} // namespace

DtCodeGenAppGui::DtCodeGenAppGui(DtCodeGenInitializer& initializer, QApplication* application, QWidget* parent)
    : QMainWindow(parent),
      myApplication(application),
      myInitializer(initializer),
      myIconManager(std::make_unique<DtWidgetIconStyleManager>([this](QIcon::Mode mode)
                                                               { return iconColorMappingsByMode(mode); })),
      myForm(std::make_unique<Ui_QtCodeGenApp>())
{
    createMessages();
    myForm->setupUi(this);
    setCentralWidget(myForm->widget);
    setObjectName(QStringLiteral("CodeGenAppGUI"));
    setUpLists();
    setWindowIcon(QIcon(QStringLiteral("../data/quorvexIcon.ico")));
    myAboutBox = std::make_unique<DtAboutBox>(this);
    DtCodeGenAppGui::loadStylesheet(true);
    myPreferences = std::make_unique<DtPreferencesDialog>(initializer, this);
    connect(myPreferences.get(), &QDialog::accepted, this, &DtCodeGenAppGui::refreshBadge); // they are saved with it
    createActions();
    createToolBar();
    createMenus();
    connectLists();
    createClassViews();
    createShortcuts();
}

DtCodeGenAppGui::~DtCodeGenAppGui()
{
    saveConfiguration();
}

// The two buttons have one name between them, by which the style sheet finds them.
void DtCodeGenAppGui::setUpLists()
{
    for (QPushButton* button : {myForm->myAddButton, myForm->myRemoveButton})
    {
        button->setObjectName(QStringLiteral("MiddleButton"));
        button->setAccessibleName(button->toolTip());
    }
    myForm->vboxLayout1->insertStretch(0); // keeps the two together in the middle
    myForm->vboxLayout1->addStretch();
    myListViewManager = std::make_unique<DtListViewManager>(myForm->myLeftListView, myForm->myRightListView);
    createStatusBar();
    setAcceptDrops(true);
}

void DtCodeGenAppGui::saveConfiguration()
{
    errno = 0;
    if (!myInitializer.isSaved() || myInitializer.saveConfigFile(theCustomConfigFile))
        return;
    DtString text = DtString("The configuration could not be saved to ") + theCustomConfigFile;
    if (errno != 0)
        text += DtString(": ") + std::strerror(errno);
    if (isVisible()) // else showStatus() writes it
        DtWarn << text << std::endl;
    showStatus(text);
}

QAction* DtCodeGenAppGui::addNamedAction(const char* text, const char* icon, const char* shortcut, const char* toolTip)
{
    auto* const action = new QAction(QString::fromLatin1(text), this);
    if (*icon != '\0')
        action->setIcon(imageIcon(icon));
    if (*shortcut != '\0')
        action->setShortcut(QKeySequence(QString::fromLatin1(shortcut)));
    if (*toolTip != '\0')
        action->setToolTip(QString::fromLatin1(toolTip));
    return action;
}

void DtCodeGenAppGui::createActions()
{
    using Gui = DtCodeGenAppGui;
    struct DtActionRow
    {
        QAction* Gui::*action;
        const char *text, *icon, *shortcut, *toolTip;
        void (Gui::*slot)();
    };
    static const DtActionRow theActions[] = {
        {&Gui::myNewProjectAction,  "New Project",  "",                  "",       "",                            &Gui::slot_newOmtProject          },
        {&Gui::myLoadProjectAction, "Load Project", "",                  "",       "",                            &Gui::slot_loadOmtProject         },
        {&Gui::mySaveProjectAction, "Save Project", "",                  "",       "",                            &Gui::slot_saveOmtProject         },
        {&Gui::myImportAction,      "Import FOM",   "FileNew.svg",       "Ctrl+O", "Open a FOM definition file",
         &Gui::slot_openFile                                                                                                                        },
        {&Gui::mySelectAllAction,   "Select All",   "",                  "Ctrl+A", "",                            &Gui::selectAllObjectsInteractions},
        {&Gui::myCloseAction,       "Close",        "UtilityClose.svg",  "",       "Close a FOM definition file",
         &Gui::slot_closeOpenFiles                                                                                                                  },
        {&Gui::myGenerateAction,    "Generate",     "UtilityExport.svg", "Ctrl+G", "Generate Quorvex extensions",
         &Gui::slot_generateFiles                                                                                                                   },
        {&Gui::myExitAction,        "Exit",         "FileExit.svg",      "",       "",                            &Gui::slot_quitMe                 },
    };
    for (const DtActionRow& row : theActions)
    {
        QAction* const action = addNamedAction(row.text, row.icon, row.shortcut, row.toolTip);
        this->*row.action = action;
        connect(action, &QAction::triggered, this, [this, slot = row.slot] { (this->*slot)(); });
    }
    mySaveProjectAction->setEnabled(false);
    myImportAction->setEnabled(false);
}

void DtCodeGenAppGui::createToolBar()
{
    QToolBar* const bar = addToolBar(QStringLiteral("Actions"));
    bar->setObjectName(QStringLiteral("Actions"));
    bar->setMovable(false);
    bar->setFixedHeight(30);
    bar->addActions({myNewProjectAction, myLoadProjectAction, mySaveProjectAction});
    bar->addSeparator();
    bar->addActions({myImportAction, myCloseAction});
    bar->addSeparator();
    bar->addAction(myGenerateAction);
}

void DtCodeGenAppGui::createMenus()
{
    QMenu* const file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addActions({myNewProjectAction, myLoadProjectAction, mySaveProjectAction, myImportAction, myCloseAction});
    file->addSeparator();
    file->addAction(myExitAction);
    menuBar()->addMenu(QStringLiteral("&Edit"))->addAction(mySelectAllAction);
    createConfigurationMenu();
    menuBar()->addMenu(QStringLiteral("&Build"))->addAction(myGenerateAction);
    createHelpMenu();
}

void DtCodeGenAppGui::createConfigurationMenu()
{
    QAction* const preferences = addNamedAction("Preferences...", "SettingsSystem.svg", "", "");
    connect(preferences, &QAction::triggered, this, &DtCodeGenAppGui::showPreferencesDialog);
    QAction* const outputDirectory = addNamedAction("Choose Output Directory...", "FileOpen.svg", "", "");
    connect(outputDirectory, &QAction::triggered, this, [this] { setOutputDirectory(); });
    QAction* const darkMode = addNamedAction("&Toggle Dark Mode...", "", "Ctrl+Shift+D", "");
    darkMode->setCheckable(true);
    darkMode->setChecked(true);
    connect(darkMode, &QAction::toggled, this, &DtCodeGenAppGui::setToggleDarkMode);
    menuBar()->addMenu(QStringLiteral("&Configuration"))->addActions({preferences, outputDirectory, darkMode});
}

void DtCodeGenAppGui::createHelpMenu()
{
    QAction* const versions = addNamedAction("Version Web Site...", "TerrainWorldView.svg", "", "");
    connect(versions, &QAction::triggered, this, &DtCodeGenAppGui::launchUpdate);
    QAction* const about = addNamedAction("About Quorvex Code Generator", "UtilityInformation.svg", "", "");
    connect(about, &QAction::triggered, this, &DtCodeGenAppGui::showAboutBox);
    QMenu* const help = menuBar()->addMenu(QStringLiteral("&Help"));
    help->addAction(versions);
    help->addSeparator();
    help->addAction(about);
}

void DtCodeGenAppGui::connectLists()
{
    connect(myForm->myAddButton, &QPushButton::clicked, this, &DtCodeGenAppGui::addSelectedItems);
    connect(myForm->myRemoveButton, &QPushButton::clicked, this, &DtCodeGenAppGui::removeSelectedItems);
    QTreeWidget* const right = myForm->myRightListView;
    connect(right, &QTreeWidget::customContextMenuRequested, this, &DtCodeGenAppGui::slot_showContextMenu);
    connect(right, &QTreeWidget::itemDoubleClicked, this, &DtCodeGenAppGui::slot_itemDoubleClicked);
    for (QTreeWidget* list : {myForm->myLeftListView, right})
        list->installEventFilter(this);
    auto* const find = new QShortcut(QKeySequence(QStringLiteral("Ctrl+F")), this);
    connect(find, &QShortcut::activated, this, &DtCodeGenAppGui::openFindBar);
}

// A pointer that passes over the menus asks to show the tip of each entry. None has one, and the text stays.
bool DtCodeGenAppGui::event(QEvent* event)
{
    if (event->type() == QEvent::StatusTip && static_cast<QStatusTipEvent*>(event)->tip().isEmpty())
        return true;
    const bool isHandled = QMainWindow::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
        fitToolBar(findChild<QToolBar*>(QStringLiteral("Actions")), width());
    if (event->type() == QEvent::Resize && myBadge != nullptr)
        fitBadge();
    if (event->type() == QEvent::Show)
    {
        refreshBadge();
        if (myMessages->count() > 0)
            openMessages();
    }
    return isHandled;
}

void DtCodeGenAppGui::slot_quitMe()
{
    if (!close())
        return;
    saveConfiguration(); // leaving this way destroys no window
    exit(0);
}

// Characters beyond Latin-1 are lost on this road, and on no other.
void DtCodeGenAppGui::slot_openFile()
{
    const QString choice = QFileDialog::getOpenFileName(this, QStringLiteral("Open File"), myLastDirectory,
                                                        QString::fromLatin1(theModelFilter));
    if (choice.isEmpty())
        return;
    noteDirectory(choice);
    const DtModelFile file = modelFile(choice.toLatin1());
    loadFile(file.first, file.second);
}

void DtCodeGenAppGui::slot_openFiles()
{
    const QStringList choices = QFileDialog::getOpenFileNames(this, QStringLiteral("Open File"), myLastDirectory,
                                                              QString::fromLatin1(theModelFilter));
    std::vector<DtModelFile> files;
    for (const QString& choice : choices)
        files.push_back(modelFile(choice.toUtf8()));
    if (files.empty())
        return;
    noteDirectory(choices.first());
    loadFiles(files);
}

void DtCodeGenAppGui::slot_closeOpenFiles()
{
    if (!mayLeaveProject())
        return;
    const QString project = QString::fromUtf8(DtFilename::stripPath(myProjectFile).c_str());
    closeOpenFiles();
    if (!project.isEmpty())
        showSuccess("Project " + project + " closed");
    if (isVisible()) // what the user would import now could not be saved
        enableProjectActions(false);
}

void DtCodeGenAppGui::slot_generateFiles()
{
    generateAllFiles();
}

void DtCodeGenAppGui::showPreferencesDialog()
{
    myPreferences->show();
}

void DtCodeGenAppGui::showAboutBox()
{
    myAboutBox->open();
}

void DtCodeGenAppGui::launchUpdate()
{
    const QString page = DtDeployment::read().versionPage;
    if (page.isEmpty())
        return showStatus("No version page is set in ../data/config/deployment.xml.");
    if (!QProcess::startDetached(QStringLiteral("htmlview"), {page}) && !QDesktopServices::openUrl(QUrl(page)))
        showStatus("The program htmlview could not be started.");
}

void DtCodeGenAppGui::slot_showContextMenu(const QPoint& point)
{
    QMenu menu(this);
    const QAction* const customizing = menu.addAction(QStringLiteral("Customize"));
    const QTreeWidget* const list = myForm->myRightListView;
    if (menu.exec(list->viewport()->mapToGlobal(point)) == customizing && !list->selectedItems().isEmpty())
        customize(list->selectedItems().first());
}

void DtCodeGenAppGui::slot_itemDoubleClicked(QTreeWidgetItem* item, int)
{
    customize(item);
}

void DtCodeGenAppGui::customize(QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    myCustomCodeGui = new DtCustomCodeGui(myApplication, item, this); // deletes itself when it is closed
    myCustomCodeGui->show();
}

DtCustomCodeGui* DtCodeGenAppGui::customCodeGui() const
{
    return myCustomCodeGui;
}

void DtCodeGenAppGui::leftListRightButtonPressedCb(QTreeWidgetItem* item, const QPoint& point, int)
{
    if (item != nullptr)
        popUpMenu(myAdditionMenu, "AdditionMenuPop", "Add", &DtCodeGenAppGui::additionPressed, point);
}

void DtCodeGenAppGui::rightListRightButtonPressedCb(QTreeWidgetItem* item, const QPoint& point, int)
{
    if (item != nullptr)
        popUpMenu(myRemovalMenu, "RemovalMenuPop", "Remove", &DtCodeGenAppGui::removalPressed, point);
}

// A menu with one entry, made once.
void DtCodeGenAppGui::popUpMenu(QMenu*& menu, const char* name, const char* text, void (DtCodeGenAppGui::*slot)(),
                                const QPoint& point)
{
    if (menu == nullptr)
    {
        menu = new QMenu(QString::fromLatin1(name), this);
        menu->setObjectName(QString::fromLatin1(name));
        connect(menu->addAction(QString::fromLatin1(text)), &QAction::triggered, this, slot);
    }
    menu->popup(point);
}

// Without the maps no class is found for an item, so nothing enters the project.
void DtCodeGenAppGui::additionPressed()
{
    DtItemMap noObjects;
    DtItemMap noInteractions;
    myListViewManager->processAddition(true, myProject.get(), noObjects, noInteractions, false);
}

void DtCodeGenAppGui::removalPressed()
{
    removeSelectedItems();
}

void DtCodeGenAppGui::selectAllObjectsInteractions()
{
    myListViewManager->selectAll();
}

void DtCodeGenAppGui::addSelectedItems()
{
    changeSelection(
        [this]
        { myListViewManager->processAddition(true, myProject.get(), myObjectItems, myInteractionItems, false); });
}

void DtCodeGenAppGui::addAllObjectInteractions()
{
    changeSelection(
        [this]
        { myListViewManager->processAddition(false, myProject.get(), myObjectItems, myInteractionItems, false); });
}

void DtCodeGenAppGui::removeSelectedItems()
{
    changeSelection([this] { myListViewManager->processRemoval(myProject.get()); });
}

void DtCodeGenAppGui::setOutputDirectory(const QString& directory)
{
    setOutputPath(directory.toUtf8().constData());
}

void DtCodeGenAppGui::setOutputPath(const DtString& directory)
{
    myOutputDir = directory;
    DtFileWriter::setOutputDirectory(myOutputDir);
}

bool DtCodeGenAppGui::setOutputDirectory()
{
    if (myIsUnattended)
    {
        DtWarn << "Choose an Output Directory" << std::endl;
        return false;
    }
    const DtString& start = myOutputDir.isEmpty() ? myProjectFile : myOutputDir;
    const QString choice = QFileDialog::getExistingDirectory(this, QStringLiteral("Choose an Output Directory"),
                                                             QString::fromUtf8(start.c_str()));
    if (choice.isNull())
        return false;
    setOutputDirectory(choice + "/");
    return true;
}

void DtCodeGenAppGui::setIncludeDirectory(const QString& directory)
{
    myIncludeDir = directory.toUtf8().constData();
    myPreferences->setIncludeDir(myIncludeDir);
}

void DtCodeGenAppGui::setClassPrefix(const QString& prefix)
{
    myClassPrefix = prefix.toUtf8().constData();
    myPreferences->setPrefix(myClassPrefix);
}
