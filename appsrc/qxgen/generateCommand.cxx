// qxgen generate MODEL... -o DIR

#include "commands.h"
#include "options.h"
#include "tellingOptions.h"

#include "modelTools/dataDirectory.h"
#include "modelTools/generateTool.h"
#include "modelTools/inputWatch.h"
#include "modelTools/outputException.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextCodec>

#include <iostream>
#include <memory>

namespace
{
// What stands on the command line and is turned into settings.
struct DtGenerateLine
{
    DtGenerateOptions options;
    std::string dataDirectory;
    std::string prefix, includeDirectory, nameSpace;
    bool generatesDis = false, generatesExamples = false;
    bool isDryRun = false, isVerified = false, isListed = false;
    bool isQuiet = false, isVerbose = false, doesNotWait = false, isWatching = false;
};

const DtChoices<DtCppLayout> theLayouts = {
    {"tree",    DtCppLayout::Tree   },
    {"classic", DtCppLayout::Classic},
};

void addModelOptions(CLI::App& command, DtGenerateLine& line)
{
    DtGenerationRequest& request = line.options.request;
    command.add_option("MODEL", request.models, "Model files; modules are merged in this order")->type_name("");
    command
        .add_option("--project", request.project,
                    "Project that gives selection, renames, custom code, and models if none are given")
        ->type_name("FILE.qxproj");
    addRepeated(command, "--select", request.patterns, "PATTERN",
                "Classes, by patterns such as Platform.* or *Collision*; !PATTERN takes away");
    command.add_flag("--with-management", request.withManagement, "Management classes too");
    addRepeated(command, "--model-path", request.modelPaths, "DIR", "Where models are looked for, besides RTI_CONFIG");
}

void addCodeOptions(CLI::App& command, DtGenerateLine& line)
{
    DtGenerationRequest& request = line.options.request;
    command.add_option("--name", request.name, "Stands for the model's name in library and header names")
        ->type_name("NAME");
    command.add_option("--prefix", line.prefix, "In front of class names")->type_name("TEXT");
    command.add_option("--include-dir", line.includeDirectory, "Directory of the headers, below the output")
        ->type_name("NAME");
    command.add_option("--namespace", line.nameSpace, "Namespace around the code")->type_name("NAME");
    command.add_flag("--dis", line.generatesDis, "Code for DIS too");
    command.add_flag("--examples", line.generatesExamples, "Example programs too");
    addRepeated(command, "--set", request.settings, "KEY=VALUE", "Any key of the configuration");
    command.add_option("--config", request.configFile, "Configuration in place of the shipped one")->type_name("FILE");
    addRepeated(command, "--script", request.scripts, "NAME", "cpp (default), html, python, json, or a command file");
    addRepeated(command, "--template-dir", request.templateDirectories, "DIR",
                "Its files stand in for shipped templates");
    addChoice(command, "--layout", request.layout, theLayouts,
              "tree (default), or classic: names and bytes of codeGen");
    command.add_option("--data-dir", line.dataDirectory, "Templates and configuration; else QX_DATA_DIR")
        ->type_name("DIR");
}

void addOutputOptions(CLI::App& command, DtGenerateLine& line)
{
    DtGenerateOptions& options = line.options;
    command.add_option("-o,--output", options.outputDirectory, "Output directory, made if missing")->type_name("DIR");
    command.add_flag("--dry-run", line.isDryRun, "List what would be added (A), changed (M), removed (D)");
    command.add_flag("--verify", line.isVerified, "Likewise, and end with 4 if anything would");
    command.add_flag("--list", line.isListed, "Name all outputs, write nothing");
    command.add_option("--depfile", options.depfile, "Dependency file in the syntax of make; needs --stamp")
        ->type_name("FILE");
    command.add_option("--stamp", options.stamp, "Written when all is done")->type_name("FILE");
    command.add_option("--report", options.report, "What the run has done, as JSON, or as a page if it ends in .html")
        ->type_name("FILE");
    command.add_option("--expect-list", options.expectedList, "End with 4 if the outputs are not those of this list")
        ->type_name("FILE");
    command.add_flag("--watch", line.isWatching, "Again whenever an input changes; Ctrl-C ends it");
    command.add_flag("--no-wait", line.doesNotWait, "Fail when another run holds the output directory");
}

void addTellingOptions(CLI::App& command, DtGenerateLine& line)
{
    DtGenerateOptions& options = line.options;
    command.add_flag("--werror", options.warningsAreErrors, "Warnings end with 3, and nothing is changed");
    command.add_flag("-q,--quiet", line.isQuiet, "Errors only");
    command.add_flag("-v,--verbose", line.isVerbose, "Each file that changes, too");
    addTellingChoices(command, options.color, options.format, "diagnostics");
}

[[noreturn]] void refuse(const std::string& text)
{
    throw DtToolFailure(DtExitCode::Usage, text);
}

void checkLine(const DtGenerateLine& line)
{
    const DtGenerateOptions& options = line.options;
    if (options.request.models.empty() && options.request.project.empty())
        refuse("no model and no project is given.");
    if (options.outputDirectory.empty() && !line.isListed)
        refuse("no output directory is given; -o DIR names it.");
    if (line.isDryRun + line.isVerified + line.isListed > 1)
        refuse("--dry-run, --verify and --list exclude one another.");
    if (line.isWatching && line.isDryRun + line.isVerified + line.isListed > 0)
        refuse("--watch writes the output, so it goes with none of --dry-run, --verify and --list.");
    if (!options.depfile.empty() && options.stamp.empty())
        refuse("--depfile needs --stamp, which is its target.");
    if (line.isQuiet && line.isVerbose)
        refuse("-q and -v exclude one another.");
}

// The settings that have an option of their own come ahead of --set.
void addSettings(const CLI::App& command, DtGenerateLine& line)
{
    std::vector<std::string> settings;
    if (command.count("--prefix") > 0)
        settings.push_back("prefixName=" + line.prefix);
    if (command.count("--include-dir") > 0)
        settings.push_back("includeName=" + line.includeDirectory);
    if (command.count("--namespace") > 0)
        settings.push_back("namespaceName=" + line.nameSpace);
    if (line.generatesDis)
        settings.emplace_back("generateDIS=true");
    if (line.generatesExamples)
        settings.emplace_back("generateExamples=true");
    std::vector<std::string>& all = line.options.request.settings;
    all.insert(all.begin(), settings.begin(), settings.end());
}

// One run. A watch goes on behind a failed one, so it ends here.
void runWatched(DtGenerateTool& tool, DtDiagnosticFormat format)
{
    try
    {
        tool.run();
    }
    catch (const DtToolFailure& failure)
    {
        std::cerr << DtFormattedNotice(DtSeverity::Error, failure.what(), format) << std::flush;
    }
    catch (const DtOutputException& failure)
    {
        std::cerr << DtFormattedNotice(DtSeverity::Error, failure.reason(), format, failure.path().string())
                  << std::flush;
    }
}

[[noreturn]] DtExitCode watch(const DtGenerateOptions& options)
{
    int count = 1;
    char name[] = "qxgen";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    // Names of files are bytes: each stands for one character of this encoding, so none is lost on the way to QtCore.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    DtInputWatch inputs;
    for (;;)
    {
        inputs.note();
        DtGenerateTool tool(options, std::cout, std::cerr);
        runWatched(tool, options.format);
        inputs.add(tool.inputs()); // a failed run may have come to a few only
        inputs.await(tool.awaited());
        const std::string note = "watching " + std::to_string(inputs.count()) + " files";
        if (options.telling != DtTelling::Quiet)
            std::cerr << DtFormattedNotice(DtSeverity::Note, note, options.format) << std::flush;
        inputs.waitForChange();
    }
}

DtExitCode generate(const CLI::App& command, DtGenerateLine& line)
{
    refuseEmptyValues(command, {"--prefix", "--include-dir", "--namespace", "--output", "--script", "--set"});
    checkLine(line);
    addSettings(command, line);
    DtGenerateOptions& options = line.options;
    options.use = line.isDryRun     ? DtOutputUse::DryRun
                  : line.isVerified ? DtOutputUse::Verify
                  : line.isListed   ? DtOutputUse::List
                                    : DtOutputUse::Commit;
    options.telling = line.isQuiet ? DtTelling::Quiet : line.isVerbose ? DtTelling::Verbose : DtTelling::Normal;
    options.waitsForLock = !line.doesNotWait;
    options.request.dataDirectory = DtFindDataDirectory(line.dataDirectory);
    return line.isWatching ? watch(options) : DtGenerateTool(options, std::cout, std::cerr).run();
}
} // namespace

void addGenerateCommand(CLI::App& program, DtCommandRun& run)
{
    CLI::App* const command = program.add_subcommand("generate", "Writes C++, and by scripts other files, for a model");
    const auto line = std::make_shared<DtGenerateLine>();
    addModelOptions(*command, *line);
    addOutputOptions(*command, *line);
    addCodeOptions(*command, *line);
    addTellingOptions(*command, *line);
    command->callback([command, line, &run] { run = [command, line] { return generate(*command, *line); }; });
}
