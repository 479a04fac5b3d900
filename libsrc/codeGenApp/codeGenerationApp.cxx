#include "codeGenApp/codeGenerationApp.h"

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/keepFile.h"
#include "foundation/exception.h"
#include "foundation/filePrinter.h"
#include "foundation/fileUtils.h"
#include "foundation/outputStream.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSplashScreen>

#include <boost/filesystem.hpp>

#include <cstdlib>
#include <cstring>

namespace
{
const char theCustomConfigFile[] = "../data/config/customCodeGenConfig.xml";
const char theDefaultConfigFile[] = "../data/config/codeGenConfig.xml";
const char theProduct[] = "Quorvex Code Generator";
const DtVariableScope theScope = DtScopeBoth;

// Called once at start-up; nothing reads the result.
const int b5678 [[maybe_unused]] = diagonalizable();

// Qt edits the arguments it is given, so it gets a copy, which is never freed.
char** copyArguments(int argc, char** argv)
{
    char** const copy = new char*[static_cast<std::size_t>(argc) + 1];
    for (int index = 0; index < argc; ++index)
    {
        const std::size_t size = std::strlen(argv[index]) + 1;
        copy[index] = static_cast<char*>(std::malloc(size));
        std::memcpy(copy[index], argv[index], size);
    }
    copy[argc] = nullptr;
    return copy;
}

// True when the platform was chosen here because the machine shows no display. A variable that is set to nothing names
// no display either.
bool chooseOffscreenWithoutDisplay()
{
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name))
            return false;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    return true;
}

bool isUnseenPlatform()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("offscreen") || platform == QLatin1String("minimal");
}

struct DtSplashMessage
{
    int pass;
    const char* text;
};

const DtSplashMessage theSplashMessages[] = {
    {10, "Loading Translation Templates"},
    {15, "Loading Scripts"              },
    {23, "Generating Display"           },
};

void showMessage(QSplashScreen& splash, const char* text)
{
    splash.showMessage(QString::fromLatin1(text), Qt::AlignLeft, Qt::black);
}

// Three seconds on every start; the messages announce what comes later.
void runSplash(QSplashScreen& splash)
{
    splash.show();
    showMessage(splash, "Starting Code Generator...");
    for (int pass = 0; pass < 30; ++pass)
    {
        for (const DtSplashMessage& message : theSplashMessages)
            if (message.pass == pass)
                showMessage(splash, message.text);
        QCoreApplication::processEvents();
        DtSleep(0.1);
    }
}
} // namespace

DtCodeGenerationApp::DtCodeGenerationApp(int argc, char** argv)
    : myEarlyMessages(std::make_unique<DtMessageLog>()),
      mySettings("settings", theProduct, theProduct),
      myGenerate(&mySettings, "generate", false,
                 "Perform file generation without opening GUI (requires fom definition, output directory, and 'all' "
                 "flag to be set)",
                 theScope, false, "G"),
      myAll(&mySettings, "all", false, "Flag to generate all objects in FOM Definition", theScope, false, "A"),
      myOutputDir(&mySettings, "outputDir", DtString(), "Generated Code Output Directory", theScope, false, "O"),
      myFomDefFile(&mySettings, "fomDefFile", "fomDefFile", "FOM Definition File", theScope, false, "F"),
      myProject(&mySettings, "project", DtString(), "Project File", theScope, false, "P"),
      myIncludeDir(&mySettings, "includeDir", DtString(), "Generated Code Output Include Directory", theScope, false,
                   "I"),
      myClassPrefix(&mySettings, "classPrefix", DtString(), "Prefix for Generated Class Names", theScope, false, "p")
{
    readConfiguration();
    openLogFile();
    createApplication(argc, argv);
    createWindow();
    mySettings.parseCommandLine(argc, argv, false);
    myGui->setUnattended(myHasNoDisplay || isBatchAskedFor());
    myGui->setValidProject(false);
    loadProject();
    loadModels();
    applySelection();
}

DtCodeGenerationApp::~DtCodeGenerationApp()
{
    delete myGui;
    myGui = nullptr;
    delete myApplication;
    myApplication = nullptr;
}

void DtCodeGenerationApp::readConfiguration()
{
    boost::system::error_code ignored; // a directory that cannot be looked into holds no configuration
    const bool isCustomized = boost::filesystem::exists(theCustomConfigFile, ignored);
    const bool isRead = myInitializer.parseConfigFile(isCustomized ? theCustomConfigFile : theDefaultConfigFile);
    if (isRead || !isCustomized)
        return;
    // The end of the run writes this file anew, so that the next run finds the shipped settings. This one goes on with
    // those that are compiled in, in which no script is switched on.
    const bool isKept = DtKeepFile(theCustomConfigFile);
    myInitializer.setSaved(isKept);
    DtWarn << "Cannot read " << theCustomConfigFile
           << (isKept ? "; a copy of it is kept beside it." : "; no copy of it could be kept, so it stays as it is.");
    if (myInitializer.takeStore(theDefaultConfigFile) && isKept)
        DtWarn << " This run has no scripts, the next one has the shipped settings.";
    DtWarn << std::endl;
}

void DtCodeGenerationApp::openLogFile() const
{
    if (myInitializer.logFileName().isEmpty())
        return;
    auto* const printer = // lives until the process ends
        new DtFilePrinter(myInitializer.logFileName().c_str(), DtFilePrinter::Mode::WriteThrough);
    for (DtOutputStream* stream : {&DtWarn, &DtInfo, &DtVerbose, &DtFatal, &DtDebug})
        stream->attachPrinter(printer);
}

void DtCodeGenerationApp::createApplication(int argc, char** argv)
{
    myHasNoDisplay = chooseOffscreenWithoutDisplay();
    myArgc = argc;
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // icons in the pixels of the screen
    myApplication = new QApplication(myArgc, copyArguments(argc, argv));
}

void DtCodeGenerationApp::createWindow()
{
    QSplashScreen splash(QPixmap(QStringLiteral("../data/images/SplashScreen_Quorvex.jpg")));
    runSplash(splash);
    const QStringList earlyMessages = myEarlyMessages->linesSince(0);
    myEarlyMessages.reset(); // the window has a log of its own
    myGui = new DtCodeGenAppGui(myInitializer, myApplication, nullptr);
    myGui->takeEarlierMessages(earlyMessages);
    myGui->setWindowTitle(QStringLiteral("Quorvex Code Generator - No File Loaded"));
    splash.finish(myGui);
}

void DtCodeGenerationApp::loadProject()
{
    if (!myProject.isSet())
        return;
    const DtFilename file(myProject.value());
    if (file.isEmpty())
        DtWarn << "Option --project has an empty value, which names no project file." << std::endl;
    myGui->loadOmtProject(file);
    if (myGui->omtProject() != nullptr)
        return;
    DtWarn << "Error loading project file, creating a new project instead" << std::endl;
    myGui->newOmtProject(file);
}

// Reading names no single model that is missing.
void DtCodeGenerationApp::reportMissingModels() const
{
    for (const DtString& name : myFomDefFile.values())
    {
        const DtFilename file(name);
        if (file.isEmpty())
            DtWarn << "Option --fomDefFile has an empty value, which names no model file." << std::endl;
        else if (!myGui->findFile(file))
            DtWarn << (file.exists() ? "Cannot open model file " : "There is no model file ") << file << "."
                   << std::endl;
    }
}

// A project that is valid brings its own models, and those of the command line are not looked at.
void DtCodeGenerationApp::loadModels()
{
    if (!myFomDefFile.isSet() || myGui->isValidProject())
        return;
    const std::vector<DtString>& files = myFomDefFile.values();
    reportMissingModels();
    if (myGui->omtProject() == nullptr && !files.front().isEmpty()) // the project would be called ".qxproj"
    {
        DtFilename project(files.front());
        project.setExtension("qxproj");
        myGui->newOmtProject(project);
    }
    std::vector<DtCodeGenAppGui::DtModelFile> models;
    models.reserve(files.size());
    for (const DtString& file : files)
        models.emplace_back(file, "");
    const int isLoaded = models.size() == 1 ? myGui->loadFile(files.front(), "") : myGui->loadFiles(models);
    if (isLoaded == 0)
        DtWarn << "Error loading input file(s)" << std::endl;
}

void DtCodeGenerationApp::applySelection()
{
    if (myAll.isSet())
        myGui->addAllObjectInteractions();
    if (myOutputDir.isSet())
    {
        const DtString& directory = myOutputDir.value();
        const char last = directory.isEmpty() ? '\0' : directory[directory.length() - 1];
        myGui->setOutputPath(last == '/' || last == '\\' ? directory : directory + "/");
    }
    if (myClassPrefix.isSet())
        myGui->setClassPrefix(QString::fromUtf8(myClassPrefix.value().c_str()));
    if (myIncludeDir.isSet())
        myGui->setIncludeDirectory(QString::fromUtf8(myIncludeDir.value().c_str()));
}

const char* DtCodeGenerationApp::missingOption() const
{
    if (!myGenerate.isSet() || !myGenerate.value())
        return "--generate was not given";
    if (!myOutputDir.isSet() || myOutputDir.value().length() == 0)
        return "no output directory was given";
    return nullptr;
}

// The command line asks for a batch run; whether there is one depends on what can be loaded.
bool DtCodeGenerationApp::isBatchAskedFor() const
{
    return missingOption() == nullptr && (myFomDefFile.isSet() || myProject.isSet());
}

// The option "all" is no condition: without it a batch run generates what the project selects.
const char* DtCodeGenerationApp::missingBatchCondition() const
{
    if (const char* option = missingOption())
        return option;
    const bool isModelGiven = myFomDefFile.isSet() && !myFomDefFile.values().empty();
    return isModelGiven || myGui->isValidProject() ? nullptr : "no model file was given and no project is valid";
}

int DtCodeGenerationApp::run()
{
    if (missingBatchCondition() != nullptr)
        return runWindow();
    myGui->generateAllFiles();
    return 0;
}

// A batch run that could not load its project ends on a platform whose windows nobody can see, also when that was not
// chosen here.
int DtCodeGenerationApp::runWindow()
{
    const bool isUnseen = myHasNoDisplay || (isBatchAskedFor() && isUnseenPlatform());
    myGui->setUnattended(isUnseen); // else somebody can answer from here on
    myGui->manageIcons();
    if (!isUnseen)
    {
        myGui->keepPlace();
        myGui->show();
    }
    QCoreApplication::processEvents();
    if (isUnseen)
    {
        DtWarn << "No display to show the window on, and no batch run: " << missingBatchCondition() << "." << std::endl;
        QTimer::singleShot(0, myApplication, &QCoreApplication::quit);
    }
    return QApplication::exec();
}
