#include "modelTools/generateTool.h"

#include "fileGenerator/settings.h"
#include "foundation/fileUtils.h"
#include "foundation/warningRules.h"
#include "modelTools/depfile.h"
#include "modelTools/expectedList.h"
#include "modelTools/inputPath.h"
#include "modelTools/leftoverTokens.h"
#include "modelTools/modelPlaces.h"
#include "modelTools/outputException.h"
#include "modelTools/outputLists.h"
#include "modelTools/outputLock.h"
#include "modelTools/outputPath.h"
#include "modelTools/outputRecovery.h"
#include "modelTools/programVersion.h"
#include "modelTools/signalHold.h"
#include "modelTools/steadyTime.h"
#include "modelTools/terminalProgress.h"
#include "modelTools/toolRules.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <ostream>
#include <set>
#include <sstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
bool isTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

// The lists of files of a model without classes are empty.
bool isList(const std::string& path)
{
    const std::string name = path.substr(path.rfind('\\') + 1);
    return name == "Files-cc.txt" || name == "Files-h.txt";
}

DtDiagnostic diagnosticAt(const std::string& path, DtSeverity severity, const std::string& text,
                          const DtWarningRule& rule)
{
    DtDiagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.place.file = path;
    diagnostic.text = text;
    diagnostic.rule = rule.id;
    return diagnostic;
}

// The path without links and detours, of a file that need not exist.
std::string realPath(const std::string& path)
{
    std::error_code ignored;
    return fs::weakly_canonical(fs::absolute(path), ignored).string();
}

// Half of the file may stand beside it until it is whole, so signals wait.
void writeWhole(const std::string& path, const std::string& text)
{
    const DtSignalHold hold;
    std::error_code ignored;
    fs::create_directories(fs::path(DtAbsolutePath(path)).parent_path(), ignored);
    errno = 0;
    if (!DtReplaceFile(DtString(path), text))
        throw DtOutputException::ofSystem(path, "cannot be written");
}
} // namespace

DtGenerateTool::DtGenerateTool(const DtGenerateOptions& options, std::ostream& out, std::ostream& err)
    : myOptions(options), myOut(out), myErr(err), myStart(DtSteadySeconds()), myStepStart(myStart)
{
}

DtExitCode DtGenerateTool::run()
{
    DtDiagnostics diagnostics;
    DtExitCode code = DtExitCode::Done;
    try
    {
        code = myOptions.use == DtOutputUse::Commit ? runLocked(diagnostics) : runCompared(diagnostics);
    }
    catch (...)
    {
        codeOfFaults(diagnostics);
        findPlaces(diagnostics);
        tell(diagnostics);
        throw;
    }
    tell(diagnostics);
    if (myReport.isCommitted)
        tellSummary();
    return code;
}

DtExitCode DtGenerateTool::runCompared(DtDiagnostics& diagnostics)
{
    const fs::path directory(myOptions.outputDirectory);
    if (myOptions.use != DtOutputUse::List && DtOutputRecovery::isNeeded(directory))
        diagnostics.add(diagnosticAt(directory.string(), DtSeverity::Note,
                                     "an earlier run was cut off here; the next one that writes finishes it",
                                     DtToolRules::recovery));
    DtOutputStage stage(directory, DtProgramVersion());
    return runInto(stage, diagnostics);
}

DtExitCode DtGenerateTool::runLocked(DtDiagnostics& diagnostics)
{
    const std::unique_ptr<DtOutputLock> lock = takeLock();
    const DtOutputRecovery recovery(*lock);
    if (recovery.hasFinishedCommit() && myOptions.telling != DtTelling::Quiet)
        tellNote("finished what an earlier run had begun in " + myOptions.outputDirectory);
    for (const DtOutputChange& change : recovery.changes())
        addNotice(change, diagnostics);
    for (const std::string& notice : recovery.notices())
        diagnostics.add(diagnosticAt("", DtSeverity::Warning, notice, DtToolRules::recovery));
    DtOutputStage stage(*lock, DtProgramVersion());
    return runInto(stage, diagnostics);
}

// What is wrong with the command line or with an input goes ahead of an output that cannot be had.
std::unique_ptr<DtOutputLock> DtGenerateTool::takeLock()
{
    const auto notice = [this](const std::string& holder)
    { tellNote("waiting for the run of process " + holder + " in " + myOptions.outputDirectory); };
    try
    {
        return std::make_unique<DtOutputLock>(myOptions.outputDirectory,
                                              myOptions.waitsForLock ? DtLockWait::Wait : DtLockWait::NoWait, notice);
    }
    catch (const DtOutputException&)
    {
        DtModelGeneration generation(myOptions.request);
        noteInputsBehind(generation, [&generation] { generation.load(); });
        throw;
    }
}

DtExitCode DtGenerateTool::runInto(DtOutputStage& stage, DtDiagnostics& diagnostics)
{
    generate(stage, diagnostics);
    checkTargets(stage);
    const DtExitCode faults = codeOfFaults(diagnostics);
    if (faults == DtExitCode::Unwritable)
        failOnFirstWrite(stage, diagnostics);
    if (faults == DtExitCode::Done && myOptions.use != DtOutputUse::List)
        findEdits(stage, diagnostics);
    findPlaces(diagnostics);
    if (faults == DtExitCode::Done && myOptions.use == DtOutputUse::List)
        myReport.listed = stage.files();
    else if (faults == DtExitCode::Done && !myOptions.report.empty())
        myReport.setFiles(stage.files(), stage.differences());
    const bool hasFindings = myOptions.warningsAreErrors && diagnostics.count(DtSeverity::Warning) > 0;
    if (faults != DtExitCode::Done || hasFindings)
    {
        writeReport(diagnostics);
        return faults != DtExitCode::Done ? faults : DtExitCode::Findings;
    }
    if (!myOptions.expectedList.empty())
        DtCheckExpectedList(myOptions.expectedList, stage.files());
    if (myOptions.use != DtOutputUse::Commit)
    {
        writeReport(diagnostics);
        return myOptions.use == DtOutputUse::List ? listFiles(stage) : listDifferences(stage);
    }
    commit(stage);
    myReport.isCommitted = true;
    noteTime("commit");
    writeReport(diagnostics);
    writeDependencies();
    return DtExitCode::Done;
}

// Some warnings of the libraries mean that there is no whole output. They count as errors here, where it is put into
// place as a whole or not at all.
DtExitCode DtGenerateTool::codeOfFaults(DtDiagnostics& diagnostics)
{
    struct DtFaultRow
    {
        const DtWarningRule& rule;
        DtExitCode code;
    };
    static const DtFaultRow theFaults[] = {
        {DtRules::unreadableModel,       DtExitCode::Unreadable},
        {DtRules::unreadableCommandFile, DtExitCode::Unreadable},
        {DtRules::outputNotWritten,      DtExitCode::Unwritable},
        {DtRules::outsideOutput,         DtExitCode::Unwritable},
    };
    DtExitCode code = diagnostics.count(DtSeverity::Error) > 0 ? DtExitCode::Findings : DtExitCode::Done;
    for (const DtFaultRow& row : theFaults)
        if (diagnostics.makeErrors(row.rule))
            code = DtGraver(code, row.code);
    return code;
}

// One file stands for all: a full disk fails them by the hundred, and what was found in them follows from that. It is
// told under the name that it would have had, but for a run that only compares: no file of the output is in the way
// then, and the disk that is full is that of the temporary files.
void DtGenerateTool::failOnFirstWrite(const DtOutputStage& stage, DtDiagnostics& diagnostics) const
{
    const std::vector<DtDiagnostic>& all = diagnostics.all();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [](const DtDiagnostic& each) { return each.rule == DtRules::outputNotWritten.id; });
    if (found == all.end())
        return;
    const std::string name = found->subject.name.stdString();
    const std::size_t end = found->text.rfind(name + ": ");
    const std::string reason = end == std::string::npos ? std::string() : found->text.substr(end + name.size());
    diagnostics.clear();
    const fs::path meant = fs::path(myOptions.outputDirectory) / fs::path(name).lexically_relative(stage.path());
    throw DtOutputException(myOptions.use == DtOutputUse::Commit ? meant : fs::path(name),
                            "cannot be written" + reason);
}

void DtGenerateTool::generate(DtOutputStage& stage, DtDiagnostics& diagnostics)
{
    DtQuietProgressMeter quiet;
    std::unique_ptr<DtTerminalProgress> shown;
    if (isTerminal() && myOptions.telling != DtTelling::Quiet && myOptions.format != DtDiagnosticFormat::Json)
        shown = std::make_unique<DtTerminalProgress>(myErr);
    const DtProgressUse use(shown != nullptr ? static_cast<DtProgressMeter&>(*shown) : quiet);
    DtModelGeneration generation(myOptions.request);
    noteInputsBehind(generation,
                     [&]
                     {
                         generation.load();
                         noteTime("load");
                         generation.writeInto(stage.path());
                         noteTime("generate");
                     });
    myReport.setProject(generation.project());
    myIncludePath = DtSettings::instance().cpp.includePath();
    checkOutput(stage, diagnostics);
}

// Of steps that fail, too.
template <typename Steps>
void DtGenerateTool::noteInputsBehind(const DtModelGeneration& generation, const Steps& steps)
{
    try
    {
        steps();
    }
    catch (...)
    {
        noteInputs(generation);
        throw;
    }
    noteInputs(generation);
}

void DtGenerateTool::noteInputs(const DtModelGeneration& generation)
{
    myInputs = generation.inputs();
    myAwaited = generation.awaited();
    myModelFiles = generation.modelFiles();
    myCppFiles = generation.cppFiles();
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
    std::vector<std::string> sources = myModelFiles;
    sources.push_back(myOptions.request.project);
    DtLeftoverTokens tokens(sources);
    const bool isClassic = myOptions.request.layout == DtCppLayout::Classic;
    const DtCppPaths paths = {isClassic ? "cpp\\" : "", myIncludePath.stdString()};
    const std::vector<std::string> listed = DtListedOutputs(stage.path(), paths);
    const auto search = [&tokens](const std::string&, const std::string& text) { return tokens.find(text); };
    for (const DtOutputProblem& problem : stage.check(search, listed))
        if (problem.kind != DtProblemKind::EmptyFile || !isList(problem.path))
            diagnostics.add(diagnosticAt(problem.path, DtSeverity::Error, problem.text(), DtToolRules::outputCheck));
    if (listed.empty())
        return;
    const std::set<std::string> names(listed.begin(), listed.end());
    for (const std::string& file : DtOutputsToList(myCppFiles, paths))
        if (names.count(file) == 0)
            diagnostics.add(diagnosticAt(file, DtSeverity::Error, "is in no list of files", DtToolRules::outputCheck));
}

// The files beside the output must be neither inputs nor output, nor one another.
void DtGenerateTool::checkTargets(const DtOutputStage& stage) const
{
    std::set<std::string> taken;
    for (const std::string& input : myInputs)
        taken.insert(realPath(input));
    for (const std::string& file : stage.files())
        taken.insert(realPath((fs::path(myOptions.outputDirectory) / file).string()));
    for (const std::string& target : {myOptions.depfile, myOptions.stamp, myOptions.report})
    {
        const bool isReserved = DtIsReservedPath(fs::path(target).filename().string());
        if (!target.empty() && (isReserved || !taken.insert(realPath(target)).second))
            throw DtToolFailure(DtExitCode::Usage, target + " is an input, an output or a file of qxgen itself, and "
                                                            "cannot be written for another purpose.");
    }
}

// Ahead of the commit, since --werror prevents that.
void DtGenerateTool::findEdits(DtOutputStage& stage, DtDiagnostics& diagnostics) const
{
    if (!stage.manifestDamage().empty())
        diagnostics.add(diagnosticAt("", DtSeverity::Warning, stage.manifestDamage(), DtToolRules::manifestDamaged));
    std::set<std::string> inputs;
    for (const std::string& input : myInputs)
        inputs.insert(realPath(input));
    for (const DtOutputChange& change : stage.differences())
    {
        const std::string path = (fs::path(myOptions.outputDirectory) / change.path).string();
        if (inputs.count(realPath(path)) != 0)
            throw DtOutputException(path, "is read by this run and cannot be one of its outputs");
        addNotice(change, diagnostics);
    }
}

void DtGenerateTool::addNotice(const DtOutputChange& change, DtDiagnostics& diagnostics) const
{
    const std::string path = (fs::path(myOptions.outputDirectory) / change.path).string();
    if (*change.notice() != '\0')
        diagnostics.add(diagnosticAt(path, DtSeverity::Warning, change.notice(), DtToolRules::editedByHand));
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

void DtGenerateTool::commit(DtOutputStage& stage)
{
    myCounts.files = stage.files().size();
    for (const DtOutputChange& change : stage.differences())
    {
        if (!change.changesFolder())
            continue;
        ++(change.kind == DtChangeKind::Removed ? myCounts.removed : myCounts.written);
        if (myOptions.telling == DtTelling::Verbose)
            tellChange(change);
    }
    stage.commit();
}

void DtGenerateTool::tellNote(const std::string& text) const
{
    myErr << DtFormattedNotice(DtSeverity::Note, text, myOptions.format) << std::flush;
}

void DtGenerateTool::tellChange(const DtOutputChange& change) const
{
    if (myOptions.format == DtDiagnosticFormat::Json)
        myErr << DtFormattedNotice(DtSeverity::Note, std::string(1, change.letter()), myOptions.format,
                                   (fs::path(myOptions.outputDirectory) / change.path).string());
    else
        myErr << change.letter() << ' ' << change.path << '\n';
}

void DtGenerateTool::tell(const DtDiagnostics& diagnostics) const
{
    for (const DtDiagnostic& diagnostic : diagnostics.all())
        if (myOptions.telling != DtTelling::Quiet || diagnostic.severity == DtSeverity::Error ||
            myOptions.warningsAreErrors)
            myErr << DtFormatted(diagnostic, myOptions.format, DtIsColored(myOptions.color, STDERR_FILENO));
    myErr.flush();
}

void DtGenerateTool::tellSummary() const
{
    if (myOptions.telling == DtTelling::Quiet || (!isTerminal() && myOptions.telling != DtTelling::Verbose))
        return;
    char time[32];
    std::snprintf(time, sizeof time, "%.2f", DtSteadySeconds() - myStart);
    std::ostringstream text;
    text << myCounts.files << " files in " << myOptions.outputDirectory << ": " << myCounts.written << " written, "
         << myCounts.removed << " removed, " << myCounts.files - myCounts.written << " unchanged (" << time << " s)";
    if (myOptions.format == DtDiagnosticFormat::Json)
        tellNote(text.str());
    else
        myErr << text.str() << std::endl; // on a terminal nobody needs to be told by whom
}

// Some inputs are places where a file would have counted, had there been one.
std::set<std::string> DtGenerateTool::presentInputs() const
{
    std::set<std::string> files;
    std::copy_if(myInputs.begin(), myInputs.end(), std::inserter(files, files.end()),
                 [](const std::string& file)
                 {
                     std::error_code ignored;
                     return fs::exists(file, ignored);
                 });
    return files;
}

// Last: a stamp says that all before it is done.
void DtGenerateTool::writeDependencies() const
{
    if (!myOptions.depfile.empty())
    {
        std::set<std::string> files = presentInputs();
        std::error_code ignored;
        files.insert(fs::read_symlink("/proc/self/exe", ignored).string());
        writeWhole(myOptions.depfile, DtDepfileText(DtAbsolutePath(myOptions.stamp), files));
    }
    if (!myOptions.stamp.empty())
        writeWhole(myOptions.stamp, "");
}

// Of a run that changes nothing too, because of what it has found or because it compares or lists only: a build system
// takes the inputs from there ahead of the build.
void DtGenerateTool::writeReport(const DtDiagnostics& diagnostics)
{
    if (myOptions.report.empty())
        return;
    myReport.outputDirectory = myOptions.outputDirectory;
    myReport.setInputs(presentInputs());
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
