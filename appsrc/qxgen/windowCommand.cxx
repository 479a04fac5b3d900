// qxgen window [FILE.qxproj|MODEL...]

#include "commands.h"

#include "modelTools/windowStart.h"

#include <memory>
#include <string>
#include <vector>

namespace
{
struct DtWindowLine
{
    std::vector<std::string> files;
    std::string dataDirectory;
};
} // namespace

void addWindowCommand(CLI::App& program, DtCommandRun& run)
{
    CLI::App* const command = program.add_subcommand("window", "Opens the window, with a project or models if given");
    const auto line = std::make_shared<DtWindowLine>();
    command->add_option("FILE", line->files, "A project (.qxproj), or models")->type_name("");
    command->add_option("--data-dir", line->dataDirectory, "Called \"data\"; else QX_DATA_DIR")->type_name("DIR");
    command->footer("Examples: qxgen window, qxgen window harbour.qxproj");
    command->callback(
        [line, &run]
        { run = [line]() -> DtExitCode { DtWindowStart::of(line->files, line->dataDirectory).replaceProcess(); }; });
}
