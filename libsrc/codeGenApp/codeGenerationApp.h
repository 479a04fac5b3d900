#ifndef CODE_GEN_APP_CODE_GENERATION_APP_H
#define CODE_GEN_APP_CODE_GENERATION_APP_H

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/messageLog.h"
#include "foundation/applicationSettings.h"
#include "foundation/configVariable.h"
#include "foundation/multiConfigVariable.h"

#include <memory>

class DtCodeGenAppGui;
class QApplication;

// The application: reads the configuration and the command line, builds the window and decides between a batch run and
// the event loop.
//
// Owns the QApplication, the window and the configuration. The window refers to the configuration and writes it when it
// is destroyed, so it goes first.
class DtCodeGenerationApp
{
public:
    // The whole start-up, three seconds of splash included: configuration, window, command line, project and models.
    // argv stays as it is. May throw what the steps throw; ends the process for --help, --version and a command line
    // that cannot be understood.
    DtCodeGenerationApp(int argc, char** argv);
    virtual ~DtCodeGenerationApp();
    DtCodeGenerationApp(const DtCodeGenerationApp&) = delete;
    DtCodeGenerationApp& operator=(const DtCodeGenerationApp&) = delete;

    // Generates and returns 0 when all a batch run needs was given; otherwise shows the window and returns the result
    // of the event loop. Where nobody can see the window, a batch run whose loading failed ends with the reason.
    virtual int run();

private:
    void readConfiguration();
    void openLogFile() const;
    void createApplication(int argc, char** argv);
    void createWindow();
    void loadProject();
    void loadModels();
    void reportMissingModels() const;
    void applySelection();
    // The first condition of a batch run that does not hold, null when all do.
    const char* missingBatchCondition() const;
    const char* missingOption() const; // among them, those that the command line alone decides
    bool isBatchAskedFor() const;
    int runWindow();

    QApplication* myApplication = nullptr;
    DtCodeGenAppGui* myGui = nullptr;
    std::unique_ptr<DtMessageLog> myEarlyMessages; // until there is a window
    DtCodeGenInitializer myInitializer;
    DtApplicationSettings mySettings;
    DtConfigVariable<bool> myGenerate;
    DtConfigVariable<bool> myAll;
    DtConfigVariable<DtString> myOutputDir;
    DtMultiConfigVariable<DtString> myFomDefFile;
    DtConfigVariable<DtString> myProject;
    DtConfigVariable<DtString> myIncludeDir;
    DtConfigVariable<DtString> myClassPrefix;
    int myArgc = 0; // QApplication keeps a reference to it
    bool myHasNoDisplay = false;
};

#endif
