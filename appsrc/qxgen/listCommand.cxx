// qxgen list MODEL...

#include "commands.h"
#include "options.h"

#include "modelTools/dataDirectory.h"
#include "modelTools/modelList.h"

#include <iostream>
#include <memory>

namespace
{
struct DtListLine
{
    DtListOptions options;
    std::string dataDirectory;
};

const DtChoices<DtListFormat> theFormats = {
    {"text", DtListFormat::Text},
    {"json", DtListFormat::Json},
};

void addOptions(CLI::App& command, DtListLine& line)
{
    DtListOptions& options = line.options;
    DtGenerationRequest& request = options.request;
    command.add_option("MODEL", request.models, "Model files; modules are merged in this order")->type_name("");
    command.add_flag("--objects", options.listsObjects, "Object classes");
    command.add_flag("--interactions", options.listsInteractions, "Interaction classes");
    command.add_flag("--datatypes", options.listsDatatypes, "Datatypes; all three when none is asked for");
    command.add_flag("--tree", options.isTree, "Indented below superclasses and families");
    addChoice(command, "--format", options.format, theFormats, "text (default), or json with members and datatypes");
    command.add_option("--project", request.project, "Project that gives selection, and models if none are given")
        ->type_name("FILE.qxproj");
    addRepeated(command, "--select", request.patterns, "PATTERN", "Classes, by patterns as for generate");
    command.add_flag("--with-management", request.withManagement, "Management classes too");
    addRepeated(command, "--model-path", request.modelPaths, "DIR", "Where models are looked for, besides RTI_CONFIG");
    command.add_option("--data-dir", line.dataDirectory, "Configuration; else QX_DATA_DIR")->type_name("DIR");
    command.add_flag("-q,--quiet", options.isQuiet, "No warnings");
}

DtExitCode list(const CLI::App& command, DtListLine& line)
{
    refuseEmptyValues(command, {});
    DtListOptions& options = line.options;
    if (options.request.models.empty() && options.request.project.empty())
        throw DtToolFailure(DtExitCode::Usage, "no model and no project is given.");
    if (options.isTree && options.format == DtListFormat::Json)
        throw DtToolFailure(DtExitCode::Usage, "--tree is for text; JSON tells the parent of each class.");
    options.request.dataDirectory = DtFindDataDirectory(line.dataDirectory);
    DtModelList(options).run(std::cout, std::cerr);
    return DtExitCode::Done;
}
} // namespace

void addListCommand(CLI::App& program, DtCommandRun& run)
{
    CLI::App* const command = program.add_subcommand("list", "Names classes and datatypes of a model");
    const auto line = std::make_shared<DtListLine>();
    addOptions(*command, *line);
    command->footer("Example: qxgen list --objects --tree model.xml");
    command->callback([command, line, &run] { run = [command, line] { return list(*command, *line); }; });
}
