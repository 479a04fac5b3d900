// qxgen lint-templates DIR

#include "commands.h"
#include "options.h"
#include "tellingOptions.h"

#include "modelTools/dataDirectory.h"
#include "modelTools/generateTool.h"
#include "modelTools/templateLint.h"

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <unistd.h>

namespace
{
struct DtLintLine
{
    std::string directory;
    std::string dataDirectory;
    DtColor color = DtColor::Auto;
    DtDiagnosticFormat format = DtDiagnosticFormat::Text;
    bool warningsAreErrors = false;
    bool isQuiet = false;
};

// The findings are what was asked for, hence on standard output.
DtExitCode lint(const DtLintLine& line)
{
    if (line.directory.empty())
        throw DtToolFailure(DtExitCode::Usage, "no directory of templates is given.");
    DtTemplateLint templates(line.directory, DtFindDataDirectory(line.dataDirectory));
    bool hasFindings = false;
    for (const DtDiagnostic& diagnostic : templates.run())
    {
        const bool isFinding = diagnostic.severity == DtSeverity::Error || line.warningsAreErrors;
        hasFindings = hasFindings || isFinding;
        if (isFinding || !line.isQuiet)
            std::cout << DtFormatted(diagnostic, line.format, DtIsColored(line.color, STDOUT_FILENO));
    }
    return hasFindings ? DtExitCode::Findings : DtExitCode::Done;
}
} // namespace

void addLintTemplatesCommand(CLI::App& program, DtCommandRun& run)
{
    CLI::App* const command =
        program.add_subcommand("lint-templates", "Checks templates and command files for --template-dir");
    const auto line = std::make_shared<DtLintLine>();
    command->add_option("DIR", line->directory, "Laid over the shipped templates")->type_name("");
    addTellingChoices(*command, line->color, line->format, "findings");
    command->add_flag("--werror", line->warningsAreErrors, "Warnings end with 3 too");
    command->add_flag("-q,--quiet", line->isQuiet, "Errors only");
    command->add_option("--data-dir", line->dataDirectory, "The shipped templates; else QX_DATA_DIR")->type_name("DIR");
    command->footer("Example: qxgen lint-templates mine && qxgen generate model.xml -o out --template-dir mine");
    command->callback([line, &run] { run = [line] { return lint(*line); }; });
}
