#ifndef MODEL_TOOLS_GENERATE_TOOL_H
#define MODEL_TOOLS_GENERATE_TOOL_H

#include "modelTools/color.h"
#include "modelTools/diagnostics.h"
#include "modelTools/modelGeneration.h"
#include "modelTools/outputStage.h"
#include "modelTools/runReport.h"
#include "modelTools/toolFailure.h"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

class DtOutputLock;

// How much is told on standard error beside diagnostics.
enum class DtTelling
{
    Quiet,  // errors only
    Normal, // diagnostics, and on a terminal what was done
    Verbose // each file that changes, too
};

// What to do with the output.
enum class DtOutputUse
{
    Commit,
    DryRun, // list what a commit would change
    Verify, // likewise, and end with Differs if anything would
    List    // name all outputs
};

struct DtGenerateOptions
{
    DtGenerationRequest request;
    std::string outputDirectory;
    DtOutputUse use = DtOutputUse::Commit;
    std::string depfile;
    std::string stamp;
    std::string report;
    std::string expectedList; // a file that names the outputs; empty when any will do
    bool warningsAreErrors = false;
    bool waitsForLock = true;
    DtTelling telling = DtTelling::Normal;
    DtColor color = DtColor::Auto;
    DtDiagnosticFormat format = DtDiagnosticFormat::Text;
};

// The command that generates: makes the output of one run in a stage, checks it, and puts it into place as a whole, or
// lists it. What was asked for goes to `out`, all else to `err`.
class DtGenerateTool
{
public:
    DtGenerateTool(const DtGenerateOptions& options, std::ostream& out, std::ostream& err);

    // Throws DtToolFailure and DtOutputException. Diagnostics are told in any case.
    DtExitCode run();

    // The inputs of the last run, also of one that failed as far as it came.
    const std::set<std::string>& inputs() const { return myInputs; }
    // What it has looked for in vain: files and directories that may change the output of the next run when they come.
    const std::set<std::string>& awaited() const { return myAwaited; }

private:
    struct DtCounts
    {
        std::size_t files = 0;
        std::size_t written = 0;
        std::size_t removed = 0;
    };

    DtExitCode runCompared(DtDiagnostics& diagnostics);
    DtExitCode runLocked(DtDiagnostics& diagnostics);
    std::unique_ptr<DtOutputLock> takeLock();
    DtExitCode runInto(DtOutputStage& stage, DtDiagnostics& diagnostics);
    static DtExitCode codeOfFaults(DtDiagnostics& diagnostics);
    void failOnFirstWrite(const DtOutputStage& stage, DtDiagnostics& diagnostics) const;
    void checkTargets(const DtOutputStage& stage) const;
    void addNotice(const DtOutputChange& change, DtDiagnostics& diagnostics) const;
    void generate(DtOutputStage& stage, DtDiagnostics& diagnostics);
    void noteInputs(const DtModelGeneration& generation);
    template <typename Steps>
    void noteInputsBehind(const DtModelGeneration& generation, const Steps& steps);
    void findPlaces(DtDiagnostics& diagnostics) const;
    void checkOutput(const DtOutputStage& stage, DtDiagnostics& diagnostics) const;
    void findEdits(DtOutputStage& stage, DtDiagnostics& diagnostics) const;
    DtExitCode listFiles(const DtOutputStage& stage) const;
    DtExitCode listDifferences(DtOutputStage& stage) const;
    void commit(DtOutputStage& stage);
    void tell(const DtDiagnostics& diagnostics) const;
    void tellNote(const std::string& text) const;
    void tellChange(const DtOutputChange& change) const;
    void tellSummary() const;
    std::set<std::string> presentInputs() const;
    void writeDependencies() const;
    void writeReport(const DtDiagnostics& diagnostics);
    void noteTime(const char* step);

    DtGenerateOptions myOptions;
    std::ostream& myOut;
    std::ostream& myErr;
    std::set<std::string> myInputs;
    std::set<std::string> myAwaited;
    std::vector<std::string> myModelFiles;
    std::vector<std::string> myCppFiles; // of the C++ script
    DtString myIncludePath;              // of the generated headers
    DtRunReport myReport;
    DtCounts myCounts;  // of the commit
    double myStart;     // seconds of a clock that does not jump
    double myStepStart; // likewise
};

#endif
