// Starting generation.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/generationRun.h"
#include "codeGenApp/generationWatch.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/qtProgressMeter.h"
#include "omtReader/omtTree.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <algorithm>

namespace
{
const int theListsOfMakefile = 2; // names of headers and of sources, which the progress does not name

// A progress meter for as long as a script runs.
class DtScriptRun
{
public:
    DtScriptRun(QApplication* application, QWidget* parent)
    {
        DtQtProgressMeter::instance()->init(application, parent);
    }
    ~DtScriptRun() { DtQtProgressMeter::instance()->reset(); }
    DtScriptRun(const DtScriptRun&) = delete;
    DtScriptRun& operator=(const DtScriptRun&) = delete;
};

// What has no place in the preferences is as in the configuration.
DtGenerationOptions optionsOf(const DtPreferencesDialog& preferences, const DtCodeGenInitializer& configuration)
{
    DtGenerationOptions options = DtGenerationOptions::of(configuration);
    options.namespaceName = preferences.namespaceName();
    options.includeName = preferences.includeName();
    options.prefixName = preferences.prefixName();
    options.generateExamples = preferences.generateExamples();
    options.generate64Bit = preferences.generate64Bit();
    options.generateErrors = preferences.generateErrors();
    options.generateDis = preferences.generateDis();
    options.dumpParseTree = preferences.dumpParseTree();
    options.mapRtiObjectIdToGlobalId = preferences.mapRtiObjectIdToGlobalId();
    options.firstPduKind = preferences.firstPduKind();
    return options;
}
} // namespace

void DtCodeGenAppGui::generateAllFiles()
{
    if (!myFileLoaded || myTree == nullptr)
    {
        showStatus("No file loaded... Cannot generate files.");
        return;
    }
    if (myOutputDir.isEmpty() && !setOutputDirectory())
        return;
    saveOmtProject();
    const std::map<DtString, bool> scripts = myPreferences->generateScripts();
    if (std::none_of(scripts.begin(), scripts.end(), [](const auto& script) { return script.second; }))
        return showStatus("No script is switched on... Nothing to generate.");
    DtGenerationWatch watch([this](const DtString& reason) { return askToStop(reason); });
    for (const auto& [script, isWanted] : scripts)
    {
        if (!isWanted)
            continue;
        if (DtGenerationRun::isCpp(script))
            generateCppFiles();
        else
            generateFile(script);
        if (DtQtProgressMeter::instance()->isCancelled())
            return tellOfRun(watch, true); // the next script would begin with a meter that knows nothing of it
        if (DtGenerationRun::isCpp(script))
            watch.addFiles(theListsOfMakefile + (myPreferences->dumpParseTree() ? 1 : 0));
    }
    tellOfRun(watch, false);
}

// A run that nobody sees has told of each file.
void DtCodeGenAppGui::tellOfRun(const DtGenerationWatch& watch, bool isCancelled)
{
    if (watch.hasFailures() && isVisible())
        showStatus((isCancelled ? "Cancelled. " : "") + watch.failureText());
    else
        showSuccess(isCancelled ? watch.cancelText() : watch.endText(myOutputDir));
    if (watch.hasWarnings() && isVisible())
        addToStatusToolTip({QStringLiteral("F5 shows and hides the messages.")});
}

bool DtCodeGenAppGui::askToStop(const DtString& reason)
{
    if (!isVisible() || myIsUnattended)
        return false;
    QMessageBox question(QMessageBox::Warning, windowTitle(),
                         QStringLiteral("None of the first ten files could be written."),
                         QMessageBox::Yes | QMessageBox::No, this);
    question.setInformativeText(QString::fromUtf8(reason.c_str()) + "\nDo you want to stop the run?");
    question.setDefaultButton(QMessageBox::Yes);
    question.setEscapeButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}

void DtCodeGenAppGui::generateCppFiles()
{
    const DtScriptRun run(myApplication, this);
    generationRun().generateCpp();
}

void DtCodeGenAppGui::generateFile(const DtString& script)
{
    const DtScriptRun run(myApplication, this);
    generationRun().generateScript(script);
}

DtGenerationRun DtCodeGenAppGui::generationRun()
{
    return DtGenerationRun(*myTree, myProject.get(), myFileName, optionsOf(*myPreferences, myInitializer));
}
