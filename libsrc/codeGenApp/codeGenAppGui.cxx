#include "codeGenApp/codeGenAppGui.h"

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtProject.h"
#include "foundation/outputStream.h"
#include "omtReader/omtTree.h"
#include "ui_codeGenAppGui.h"

#include <QtCore/QFile>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

#include <cstdlib>

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

// The directory of a model file that the user has chosen.
DtCodeGenAppGui::DtModelFile modelFile(const QString& choice)
{
    const DtFilename path(choice.toLatin1().constData());
    DtFilename directory(path);
    directory.stripFilename();
    return {path, directory};
}
} // namespace

DtCodeGenAppGui::DtCodeGenAppGui(DtCodeGenInitializer& initializer, QApplication* application, QWidget* parent)
    : QMainWindow(parent),
      myApplication(application),
      myInitializer(initializer),
      myForm(std::make_unique<Ui_QtCodeGenApp>())
{
    myForm->setupUi(this);
    setCentralWidget(myForm->widget);
    setObjectName(QStringLiteral("CodeGenAppGUI"));
    myForm->myAddButton->setObjectName(QStringLiteral("MiddleButton"));
    myForm->myRemoveButton->setObjectName(QStringLiteral("MiddleButton"));
    myListViewManager = std::make_unique<DtListViewManager>(myForm->myLeftListView, myForm->myRightListView);
    setWindowIcon(QIcon(QStringLiteral("../data/quorvexIcon.ico")));
    DtCodeGenAppGui::loadStylesheet(true);
    myPreferences = std::make_unique<DtPreferencesDialog>(initializer);
    createActions();
    createToolBar();
    createMenus();
    connectLists();
}

DtCodeGenAppGui::~DtCodeGenAppGui()
{
    saveConfiguration();
}

void DtCodeGenAppGui::saveConfiguration()
{
    myInitializer.saveConfigFile(theCustomConfigFile);
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
    using DtSlot = void (DtCodeGenAppGui::*)();
    struct DtActionRow
    {
        QAction* DtCodeGenAppGui::*action;
        const char *text, *icon, *shortcut, *toolTip;
        DtSlot slot;
        bool enabled;
    };
    using DtGui = DtCodeGenAppGui;
    static const DtActionRow theActions[] = {
        {&DtGui::myNewProjectAction,  "New Project",  "",                  "",       "",                            &DtGui::slot_newOmtProject,           true },
        {&DtGui::myLoadProjectAction, "Load Project", "",                  "",       "",                            &DtGui::slot_loadOmtProject,          true },
        {&DtGui::mySaveProjectAction, "Save Project", "",                  "",       "",                            &DtGui::slot_saveOmtProject,          false},
        {&DtGui::myImportAction,      "Import FOM",   "FileNew.svg",       "Ctrl+O", "Open a FOM definition file",
         &DtGui::slot_openFile,                                                                                                                           false},
        {&DtGui::mySelectAllAction,   "Select All",   "",                  "Ctrl+A", "",                            &DtGui::selectAllObjectsInteractions, true },
        {&DtGui::myCloseAction,       "Close",        "UtilityClose.svg",  "",       "Close a FOM definition file",
         &DtGui::slot_closeOpenFiles,                                                                                                                     true },
        {&DtGui::myGenerateAction,    "Generate",     "UtilityExport.svg", "Ctrl+G", "Generate Quorvex extensions",
         &DtGui::slot_generateFiles,                                                                                                                      true },
        {&DtGui::myExitAction,        "Exit",         "FileExit.svg",      "",       "",                            &DtGui::slot_quitMe,                  true },
    };
    for (const DtActionRow& row : theActions)
    {
        QAction* const action = addNamedAction(row.text, row.icon, row.shortcut, row.toolTip);
        this->*row.action = action;
        action->setEnabled(row.enabled);
        connect(action, &QAction::triggered, this, [this, slot = row.slot] { (this->*slot)(); });
    }
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

    QMenu* const configuration = menuBar()->addMenu(QStringLiteral("&Configuration"));
    QAction* const preferences = addNamedAction("Preferences...", "SettingsSystem.svg", "", "");
    connect(preferences, &QAction::triggered, this, &DtCodeGenAppGui::showPreferencesDialog);
    QAction* const outputDirectory = addNamedAction("Choose Output Directory...", "FileOpen.svg", "", "");
    connect(outputDirectory, &QAction::triggered, this, [this] { setOutputDirectory(); });
    QAction* const darkMode = addNamedAction("&Toggle Dark Mode...", "", "Ctrl+Shift+D", "");
    darkMode->setCheckable(true);
    darkMode->setChecked(true);
    connect(darkMode, &QAction::toggled, this, &DtCodeGenAppGui::setToggleDarkMode);
    configuration->addActions({preferences, outputDirectory, darkMode});

    menuBar()->addMenu(QStringLiteral("&Build"))->addAction(myGenerateAction);
}

void DtCodeGenAppGui::connectLists()
{
    connect(myForm->myAddButton, &QPushButton::clicked, this, &DtCodeGenAppGui::addSelectedItems);
    connect(myForm->myRemoveButton, &QPushButton::clicked, this, &DtCodeGenAppGui::removeSelectedItems);
}

void DtCodeGenAppGui::manageIcons()
{
    myForm->myAddButton->setIcon(imageIcon("DarkMode/SettingsAddWindow.svg"));
    myForm->myRemoveButton->setIcon(imageIcon("DarkMode/SettingsRemoveWindow.svg"));
}

void DtCodeGenAppGui::showStatus(const DtString& text)
{
    statusBar()->showMessage(QString::fromUtf8(text.c_str()), 0);
    if (!isVisible()) // nobody could read it otherwise
        DtWarn << text << std::endl;
}

namespace
{
QString readStylesheet(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}
} // namespace

void DtCodeGenAppGui::loadStylesheet(bool dark)
{
    const QString directory = QStringLiteral("../data/config/qt") + (dark ? "/DarkMode" : "/LightMode");
    setStyleSheet(
        resolveVars(readStylesheet(directory + "/00_common.qss") + readStylesheet(directory + "/01_qvx.qss")));
}

void DtCodeGenAppGui::setToggleDarkMode(bool dark)
{
    loadStylesheet(dark);
}

void DtCodeGenAppGui::replaceAll(QString& text, const QString& from, const QString& to)
{
    for (int at = text.indexOf(from); at >= 0; at = text.indexOf(from))
        text.replace(at, from.length(), to);
}

QString DtCodeGenAppGui::resolveVars(const QString& text)
{
    QString result(text);
    replaceAll(result, QStringLiteral("$(APP_DIR)"), myAppDir);
    return result;
}

void DtCodeGenAppGui::slot_quitMe()
{
    close();
    saveConfiguration(); // leaving this way destroys no window
    exit(0);
}

void DtCodeGenAppGui::slot_openFile()
{
    const QString choice = QFileDialog::getOpenFileName(this, QStringLiteral("Open File"), QStringLiteral("."),
                                                        QString::fromLatin1(theModelFilter));
    if (choice.isEmpty())
        return;
    const DtModelFile file = modelFile(choice);
    loadFile(file.first, file.second);
}

void DtCodeGenAppGui::slot_openFiles()
{
    const QStringList choices = QFileDialog::getOpenFileNames(this, QStringLiteral("Open File"), QStringLiteral("."),
                                                              QString::fromLatin1(theModelFilter));
    std::vector<DtModelFile> files;
    for (const QString& choice : choices)
        files.push_back(modelFile(choice));
    if (!files.empty())
        loadFiles(files);
}

void DtCodeGenAppGui::slot_closeOpenFiles()
{
    closeOpenFiles();
}

void DtCodeGenAppGui::slot_generateFiles()
{
    generateAllFiles();
}

void DtCodeGenAppGui::showPreferencesDialog()
{
    myPreferences->show();
}

void DtCodeGenAppGui::selectAllObjectsInteractions()
{
    myListViewManager->selectAll();
}

void DtCodeGenAppGui::addSelectedItems()
{
    myListViewManager->processAddition(true, myProject.get(), myObjectItems, myInteractionItems, false);
}

void DtCodeGenAppGui::addAllObjectInteractions()
{
    myListViewManager->processAddition(false, myProject.get(), myObjectItems, myInteractionItems, false);
}

void DtCodeGenAppGui::removeSelectedItems()
{
    myListViewManager->processRemoval(myProject.get());
}

void DtCodeGenAppGui::setOutputDirectory(const QString& directory)
{
    myOutputDir = directory.toUtf8().constData();
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
