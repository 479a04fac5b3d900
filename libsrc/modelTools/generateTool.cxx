#include "modelTools/generateTool.h"

#include "fileGenerator/settings.h"
#include "modelTools/depfile.h"
#include "modelTools/leftoverTokens.h"
#include "modelTools/modelPlaces.h"
#include "modelTools/outputException.h"
#include "modelTools/outputLists.h"
#include "modelTools/outputLock.h"
#include "modelTools/outputRecovery.h"
#include "modelTools/programVersion.h"
#include "modelTools/steadyTime.h"
#include "modelTools/terminalProgress.h"

#include <QtCore/QSaveFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <ostream>
#include <set>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
bool isTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

DtDiagnostic diagnosticAt(const std::string& path, DtSeverity severity, const std::string& text, const char* rule)
{
    DtDiagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.place.file = path;
    diagnostic.text = text;
    diagnostic.rule = rule;
    return diagnostic;
}

void writeWhole(const std::string& path, const std::string& text)
{
    std::error_code ignored;
    fs::create_directories(fs::absolute(path).parent_path(), ignored);
    QSaveFile file(QString::fromLocal8Bit(path.c_str()));
    const auto length = static_cast<qint64>(text.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), length) != length || !file.commit())
        throw DtOutputException(path, file.errorString().toStdString());
}
} // namespace

DtGenerateTool::DtGenerateTool(const DtGenerateOptions& options, std::ostream& out, std::ostream& err)
    : myOptions(options), myOut(out), myErr(err), myStart(DtSteadySeconds()), myStepStart(myStart)
{
}

DtExitCode DtGenerateTool::run()
{
    if (myOptions.use != DtOutputUse::Commit)
    {
        DtOutputStage stage(fs::path(myOptions.outputDirectory), DtProgramVersion());
        return runInto(stage);
    }
    const auto notice = [this](const std::string& holder) {
        myErr << "qxgen: waiting for the run of process " << holder << " in " << myOptions.outputDirectory << std::endl;
    };
    const DtOutputLock lock(myOptions.outputDirectory, myOptions.waitsForLock ? DtLockWait::Wait : DtLockWait::NoWait,
                            notice);
    const DtOutputRecovery recovery(lock);
    if (recovery.hasFinishedCommit() && myOptions.telling != DtTelling::Quiet)
        myErr << "qxgen: finished what an earlier run had begun in " << myOptions.outputDirectory << std::endl;
    DtOutputStage stage(lock, DtProgramVersion());
    return runInto(stage);
}

DtExitCode DtGenerateTool::runInto(DtOutputStage& stage)
{
    DtDiagnostics diagnostics;
    try
    {
        generate(stage, diagnostics);
    }
    catch (...)
    {
        findPlaces(diagnostics);
        tell(diagnostics);
        throw;
    }
    findPlaces(diagnostics);
    if (!myOptions.report.empty())
        myReport.setFiles(stage.files(), stage.differences());
    const bool hasErrors = diagnostics.count(DtSeverity::Error) > 0;
    const bool hasFindings = myOptions.warningsAreErrors && diagnostics.count(DtSeverity::Warning) > 0;
    if (hasErrors || hasFindings)
    {
        tell(diagnostics);
        writeReport(diagnostics);
        return DtExitCode::Findings;
    }
    if (myOptions.use == DtOutputUse::List)
    {
        tell(diagnostics);
        return listFiles(stage);
    }
    if (myOptions.use != DtOutputUse::Commit)
    {
        tell(diagnostics);
        return listDifferences(stage);
    }
    const DtCounts counts = commit(stage, diagnostics);
    noteTime("commit");
    tell(diagnostics);
    writeReport(diagnostics);
    writeDependencies();
    tellSummary(counts);
    return DtExitCode::Done;
}

void DtGenerateTool::generate(DtOutputStage& stage, DtDiagnostics& diagnostics)
{
    DtQuietProgressMeter quiet;
    std::unique_ptr<DtTerminalProgress> shown;
    if (isTerminal() && myOptions.telling != DtTelling::Quiet)
        shown = std::make_unique<DtTerminalProgress>(myErr);
    const DtProgressUse use(shown != nullptr ? static_cast<DtProgressMeter&>(*shown) : quiet);
    DtModelGeneration generation(myOptions.request);
    try
    {
        generation.load();
        noteTime("load");
        generation.writeInto(stage.path());
        noteTime("generate");
    }
    catch (...)
    {
        noteInputs(generation);
        throw;
    }
    noteInputs(generation);
    myReport.setProject(generation.project());
    myIncludePath = DtSettings::instance().cpp.includePath();
    checkOutput(stage, diagnostics);
}

void DtGenerateTool::noteInputs(const DtModelGeneration& generation)
{
    myInputs = generation.inputs();
    myModelFiles = generation.modelFiles();
}

// The models are read once more for this, so only for what somebody gets to see.
void DtGenerateTool::findPlaces(DtDiagnostics& diagnostics) const
{
    if (myOptions.telling == DtTelling::Quiet && !myOptions.warningsAreErrors && myOptions.report.empty())
        return;
    DtModelPlaces places(myModelFiles);
    diagnostics.findPlaces([&places](const DtSubject& subject) { return places.of(subject); });
}

// What is checked here is wrong in a template, if it is wrong at all; but a failed write of the system shows here too.
void DtGenerateTool::checkOutput(const DtOutputStage& stage, DtDiagnostics& diagnostics) const
{
    std::vector<std::string> models = myOptions.request.models;
    models.push_back(myOptions.request.project);
    DtLeftoverTokens tokens(models);
    const bool isClassic = myOptions.request.layout == DtCppLayout::Classic;
    const DtCppPaths paths = {isClassic ? "cpp\\" : "", myIncludePath.stdString()};
    const std::vector<std::string> listed = DtListedOutputs(stage.path(), paths);
    const auto search = [&tokens](const std::string&, const std::string& text) { return tokens.find(text); };
    for (const DtOutputProblem& problem : stage.check(search, listed))
        diagnostics.add(diagnosticAt(problem.path, DtSeverity::Error, problem.text(), "output-check"));
    if (listed.empty())
        return;
    const std::set<std::string> names(listed.begin(), listed.end());
    for (const std::string& file : DtOutputsToList(stage.files(), paths))
        if (names.count(file) == 0)
            diagnostics.add(diagnosticAt(file, DtSeverity::Error, "is in no list of files", "output-check"));
}

DtExitCode DtGenerateTool::listFiles(const DtOutputStage& stage) const
{
    for (const std::string& file : stage.files())
        myOut << file << '\n';
    return DtExitCode::Done;
}

DtExitCode DtGenerateTool::listDifferences(DtOutputStage& stage) const
{
    bool differs = false;
    for (const DtOutputChange& change : stage.differences())
    {
        if (!change.changesFolder())
            continue;
        differs = true;
        myOut << change.letter() << ' ' << change.path << '\n';
    }
    return differs && myOptions.use == DtOutputUse::Verify ? DtExitCode::Differs : DtExitCode::Done;
}

DtGenerateTool::DtCounts DtGenerateTool::commit(DtOutputStage& stage, DtDiagnostics& diagnostics)
{
    DtCounts counts;
    counts.files = stage.files().size();
    if (!stage.manifestDamage().empty())
        diagnostics.add(diagnosticAt("", DtSeverity::Warning, stage.manifestDamage(), "manifest-damaged"));
    for (const DtOutputChange& change : stage.differences())
    {
        const std::string path = (fs::path(myOptions.outputDirectory) / change.path).string();
        if (*change.notice() != '\0')
            diagnostics.add(diagnosticAt(path, DtSeverity::Warning, change.notice(), "edited-by-hand"));
        if (!change.changesFolder())
            continue;
        ++(change.kind == DtChangeKind::Removed ? counts.removed : counts.written);
        if (myOptions.telling == DtTelling::Verbose)
            myErr << change.letter() << ' ' << change.path << '\n';
    }
    stage.commit();
    return counts;
}

void DtGenerateTool::tell(const DtDiagnostics& diagnostics) const
{
    for (const DtDiagnostic& diagnostic : diagnostics.all())
        if (myOptions.telling != DtTelling::Quiet || diagnostic.severity == DtSeverity::Error ||
            myOptions.warningsAreErrors)
            myErr << DtFormatted(diagnostic, myOptions.format, isColored());
    myErr.flush();
}

void DtGenerateTool::tellSummary(const DtCounts& counts) const
{
    if (myOptions.telling == DtTelling::Quiet || (!isTerminal() && myOptions.telling != DtTelling::Verbose))
        return;
    char time[32];
    std::snprintf(time, sizeof time, "%.2f", DtSteadySeconds() - myStart);
    myErr << counts.files << " files in " << myOptions.outputDirectory << ": " << counts.written << " written, "
          << counts.removed << " removed, " << counts.files - counts.written << " unchanged (" << time << " s)"
          << std::endl;
}

// Last: a stamp says that all before it is done.
void DtGenerateTool::writeDependencies() const
{
    if (!myOptions.depfile.empty())
    {
        std::set<std::string> files;
        std::copy_if(myInputs.begin(), myInputs.end(), std::inserter(files, files.end()),
                     [](const std::string& file)
                     {
                         std::error_code ignored;
                         return fs::exists(file, ignored);
                     });
        std::error_code ignored;
        files.insert(fs::read_symlink("/proc/self/exe", ignored).string());
        writeWhole(myOptions.depfile, DtDepfileText(fs::absolute(myOptions.stamp).lexically_normal().string(), files));
    }
    if (!myOptions.stamp.empty())
        writeWhole(myOptions.stamp, "");
}

// Of a run that changes nothing, because of what it has found, too.
void DtGenerateTool::writeReport(const DtDiagnostics& diagnostics)
{
    if (myOptions.report.empty())
        return;
    myReport.outputDirectory = myOptions.outputDirectory;
    myReport.setInputs(myInputs);
    myReport.diagnostics = diagnostics.all();
    myReport.times.emplace_back("total", DtSteadySeconds() - myStart);
    writeWhole(myOptions.report, myReport.textFor(myOptions.report));
}

void DtGenerateTool::noteTime(const char* step)
{
    const double now = DtSteadySeconds();
    myReport.times.emplace_back(step, now - myStepStart);
    myStepStart = now;
}

bool DtGenerateTool::isColored() const
{
    if (myOptions.color != DtColor::Auto)
        return myOptions.color == DtColor::Always;
    const char* const off = std::getenv("NO_COLOR");
    return isTerminal() && (off == nullptr || *off == '\0');
}
