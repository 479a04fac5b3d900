// Measures what loading a model and generating from it cost, without the splash of the program.
//
//   generationBench [options] DIRECTORY MODEL...      model files, merged in this order
//   generationBench [options] DIRECTORY --count N     a model of N classes made up here
//
// benchOptions.cxx lists the options. Works in a new folder below DIRECTORY, best on a memory file system, and removes
// it. Each round generates into an empty directory and then copies the result with "cp -r". Prints files, bytes,
// processor seconds (user and system, of this process from before the models are loaded to behind generation; of the
// copy as a child process), their medians and ratio, and the peak memory of the first round. With --again each round
// generates a second time into the same directory, and the ratio of the two runs is printed. With --load nothing is
// generated: the processor time from the files to the filled lists is printed beside that of a bare parse of the same
// files by the XML library with a walk over all nodes.

#include "benchOptions.h"
#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/codeGenInitializer.h"
#include "foundation/outputStream.h"
#include "processCost.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <libxml/parser.h>

#include <cstdio>
#include <string>
#include <vector>

namespace
{
// A scratch installation: the program's data, and a sibling of it to work in.
void enterScratch(const QString& scratch, const QString& data)
{
    if (runProgram("cp", {QStringLiteral("-r"), data, scratch + "/data"}) != 0 ||
        !QDir(scratch).mkdir(QStringLiteral("bin")))
        qFatal("cannot set up %s", qPrintable(scratch));
    QFile::remove(scratch + "/data/config/customCodeGenConfig.xml");
    QDir::setCurrent(scratch + "/bin");
}

DtCodeGenInitializer configuration(const DtBenchOptions& options)
{
    DtCodeGenInitializer initializer;
    initializer.parseConfigFile("../data/config/codeGenConfig.xml");
    initializer.setGenerateExamples(options.generatesExamples);
    initializer.setGenerateDis(options.generatesDis);
    initializer.setIncludeStandardMIM(options.includesMim);
    std::map<DtString, bool> scripts;
    for (const QString& script : options.scripts)
        scripts[script.toUtf8().constData()] = true;
    initializer.setScriptMap(scripts);
    return initializer;
}

void load(DtCodeGenAppGui& window, const DtBenchOptions& options)
{
    const int isLoaded = options.models.size() == 1 ? window.loadFile(options.models.front().first, "")
                                                    : window.loadFiles(options.models);
    if (isLoaded == 0)
        qFatal("the models could not be loaded");
}

// Milliseconds of the processor that the work takes.
template <typename Work>
double milliseconds(Work work)
{
    const DtCost before = ownCost();
    work();
    return (ownCost() - before).total() * 1e3;
}

std::size_t countNodes(const xmlNode* first)
{
    std::size_t count = 0;
    for (const xmlNode* node = first; node != nullptr; node = node->next)
        count += 1 + countNodes(node->children);
    return count;
}

void parseAndWalk(const DtBenchOptions& options)
{
    std::size_t nodes = 0;
    for (const DtCodeGenAppGui::DtModelFile& model : options.models)
    {
        xmlDoc* document = xmlReadFile(model.first.c_str(), nullptr, XML_PARSE_NONET);
        if (document == nullptr)
            qFatal("%s is no XML", model.first.c_str());
        nodes += countNodes(document->children);
        xmlFreeDoc(document);
    }
    if (nodes == 0)
        qFatal("the models are empty");
}

void measureLoading(QApplication& application, const DtBenchOptions& options)
{
    std::vector<double> loads;
    std::vector<double> parses;
    for (int round = 0; round < options.rounds; ++round)
    {
        DtCodeGenInitializer initializer = configuration(options);
        DtCodeGenAppGui window(initializer, &application, nullptr);
        window.setUnattended(true);
        loads.push_back(milliseconds([&] { load(window, options); }));
        parses.push_back(milliseconds([&] { parseAndWalk(options); }));
        std::printf("round %d: load %.1f ms; parse and walk %.1f ms\n", round + 1, loads.back(), parses.back());
    }
    std::printf("median load %.1f ms; parse and walk %.1f ms; ratio %.2f\n", median(loads), median(parses),
                median(loads) / median(parses));
}

DtCost generate(QApplication& application, const DtBenchOptions& options, const QString& scratch, const QString& output)
{
    DtCodeGenInitializer initializer = configuration(options);
    DtCodeGenAppGui window(initializer, &application, nullptr);
    window.setUnattended(true);
    const DtCost before = ownCost();
    window.newOmtProject(DtFilename((scratch + "/bench.qxproj").toUtf8().constData()));
    load(window, options);
    window.addAllObjectInteractions();
    window.setOutputDirectory(output + "/");
    window.generateAllFiles();
    return ownCost() - before;
}

DtCost copy(const QString& output, const QString& target)
{
    const DtCost before = childCost();
    runProgram("cp", {QStringLiteral("-r"), output, target});
    const DtCost cost = childCost() - before;
    QDir(target).removeRecursively();
    return cost;
}

void printOutput(const QString& output)
{
    qint64 files = 0;
    qint64 bytes = 0;
    for (QDirIterator each(output, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); each.hasNext();)
    {
        each.next();
        ++files;
        bytes += each.fileInfo().size();
    }
    std::printf("files %lld\nbytes %lld\n", static_cast<long long>(files), static_cast<long long>(bytes));
}

void measureGeneration(QApplication& application, const DtBenchOptions& options, const QString& scratch)
{
    std::vector<double> own;
    std::vector<double> user;
    std::vector<double> copies;
    std::vector<double> again;
    const QString output = scratch + "/out";
    for (int round = 0; round < options.rounds; ++round)
    {
        QDir().mkpath(output);
        const DtCost cost = generate(application, options, scratch, output);
        own.push_back(cost.total());
        user.push_back(cost.user);
        if (round == 0)
        {
            printOutput(output);
            std::printf("peak MB %.1f\n", peakMegabytes());
        }
        if (options.runsAgain)
            again.push_back(generate(application, options, scratch, output).total());
        copies.push_back(copy(output, scratch + "/copy").total());
        QDir(output).removeRecursively();
        std::printf("round %d: %.4f s, of it user %.4f; cp -r %.4f s\n", round + 1, own.back(), user.back(),
                    copies.back());
    }
    if (options.runsAgain)
        std::printf("again %.4f s; ratio to the first run %.2f\n", median(again), median(again) / median(own));
    std::printf("median %.4f s, user %.4f; cp -r %.4f s; ratio %.2f\n", median(own), median(user), median(copies),
                median(own) / median(copies));
}

void makeModel(DtBenchOptions& options, const QString& name)
{
    QFile model(name);
    const std::string text = madeUpModel(options.shape, options.count, options.attributes);
    if (!model.open(QIODevice::WriteOnly) || model.write(text.c_str()) < 0)
        qFatal("cannot write the model");
    options.models = {
        {DtString(name.toUtf8().constData()), ""}
    };
}
} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    DtBenchOptions options = readBenchOptions(QCoreApplication::arguments());
    if (!options.modelFile.isEmpty())
    {
        makeModel(options, options.modelFile);
        return 0;
    }
    QTemporaryDir scratch(options.directory + "/bench-XXXXXX");
    if (!scratch.isValid())
        qFatal("cannot work below %s", qPrintable(options.directory));
    enterScratch(scratch.path(), options.data);
    if (options.count > 0)
        makeModel(options, scratch.path() + "/synthetic.xml");
    if (options.onlyLoads)
        measureLoading(application, options);
    else
        measureGeneration(application, options, scratch.path());
    return 0;
}
