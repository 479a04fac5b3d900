// Measures what loading a model and generating from it cost, without the splash of the program.
//
//   generationBench [--rounds N] DIRECTORY MODEL...       model files, merged in this order
//   generationBench [--rounds N] DIRECTORY --classes N    a model of N classes made up here
//   generationBench [--rounds N] --load DIRECTORY MODEL   loading alone, from the file to the filled lists
//
// Works in a new folder below DIRECTORY, best on a memory file system, and removes it. Each round generates into an
// empty directory and then copies the result with "cp -r". Prints files, bytes, processor seconds (user and system, of
// this process from before the models are loaded to behind generation; of the copy as a child process), their medians
// and ratio, and the peak memory of the first round.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/codeGenInitializer.h"
#include "foundation/outputStream.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{
struct DtCost
{
    double user = 0;
    double system = 0;
    double total() const { return user + system; }
};

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

DtCost usage(int who)
{
    rusage used = {};
    getrusage(who, &used);
    return {seconds(used.ru_utime), seconds(used.ru_stime)};
}

DtCost operator-(const DtCost& left, const DtCost& right)
{
    return {left.user - right.user, left.system - right.system};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double peakMegabytes()
{
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    return static_cast<double>(used.ru_maxrss) / 1024;
}

// Folders of ten classes below the root; every class has two attributes of a simple type.
std::string syntheticModel(int classes)
{
    std::string text = "<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">"
                       "<modelIdentification><name>Synthetic</name></modelIdentification>"
                       "<objects><objectClass><name>HLAobjectRoot</name>";
    for (int index = 0; index < classes; ++index)
    {
        const std::string number = std::to_string(index);
        text += "<objectClass><name>Class" + number + "</name>";
        for (const char* name : {"First", "Second"})
            text += std::string("<attribute><name>") + name + number + "</name><dataType>Size</dataType></attribute>";
        if (index % 10 == 9 || index == classes - 1)
            for (int depth = 0; depth <= index % 10; ++depth)
                text += "</objectClass>";
    }
    text += "</objectClass></objects><dataTypes><basicDataRepresentations/><simpleDataTypes><simpleData>"
            "<name>Size</name><representation>HLAfloat64BE</representation></simpleData></simpleDataTypes>"
            "</dataTypes></objectModel>";
    return text;
}

struct DtOptions
{
    int rounds = 9;
    int classes = 0;
    bool onlyLoads = false;
    QString directory;
    std::vector<DtCodeGenAppGui::DtModelFile> models;
};

DtOptions readOptions(const QStringList& arguments)
{
    DtOptions options;
    for (int index = 1; index < arguments.size(); ++index)
    {
        const QString& argument = arguments[index];
        if (argument == QStringLiteral("--rounds") && index + 1 < arguments.size())
            options.rounds = arguments[++index].toInt();
        else if (argument == QStringLiteral("--classes") && index + 1 < arguments.size())
            options.classes = arguments[++index].toInt();
        else if (argument == QStringLiteral("--load"))
            options.onlyLoads = true;
        else if (options.directory.isEmpty())
            options.directory = argument;
        else
            options.models.emplace_back(QDir().absoluteFilePath(argument).toUtf8().constData(), "");
    }
    if (options.directory.isEmpty() || options.rounds < 1 || (options.models.empty() && options.classes < 1))
    {
        std::fprintf(stderr, "usage: generationBench [--rounds N] [--load] DIRECTORY (MODEL... | --classes N)\n");
        std::exit(2);
    }
    return options;
}

int run(const char* program, const QStringList& arguments)
{
    std::vector<QByteArray> texts{program};
    for (const QString& argument : arguments)
        texts.push_back(argument.toUtf8());
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0)
    {
        execvp(program, pointers.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

// A scratch installation: the program's data, and a sibling of it to work in.
void enterScratch(const QString& scratch)
{
    const QString data = QStringLiteral(QX_SOURCE_DIR "/data");
    if (run("cp", {QStringLiteral("-r"), data, scratch + "/data"}) != 0 || !QDir(scratch).mkdir(QStringLiteral("bin")))
        qFatal("cannot set up %s", qPrintable(scratch));
    QFile::remove(scratch + "/data/config/customCodeGenConfig.xml");
    QDir::setCurrent(scratch + "/bin");
}

void load(DtCodeGenAppGui& window, const DtOptions& options)
{
    const int isLoaded = options.models.size() == 1 ? window.loadFile(options.models.front().first, "")
                                                    : window.loadFiles(options.models);
    if (isLoaded == 0)
        qFatal("the models could not be loaded");
}

// Prints the time by the clock of every round, in milliseconds.
void measureLoading(QApplication& application, const DtOptions& options)
{
    std::vector<double> times;
    for (int round = 0; round < options.rounds; ++round)
    {
        DtCodeGenInitializer initializer;
        initializer.parseConfigFile("../data/config/codeGenConfig.xml");
        DtCodeGenAppGui window(initializer, &application, nullptr);
        window.setUnattended(true);
        QElapsedTimer clock;
        clock.start();
        load(window, options);
        times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        std::printf("round %d: load %.1f ms\n", round + 1, times.back());
    }
    std::printf("median load %.1f ms\n", median(times));
}

DtCost generate(QApplication& application, const DtOptions& options, const QString& scratch, const QString& output)
{
    DtCodeGenInitializer initializer;
    initializer.parseConfigFile("../data/config/codeGenConfig.xml");
    DtCodeGenAppGui window(initializer, &application, nullptr);
    window.setUnattended(true);
    const DtCost before = usage(RUSAGE_SELF);
    window.newOmtProject(DtFilename((scratch + "/bench.qxproj").toUtf8().constData()));
    load(window, options);
    window.addAllObjectInteractions();
    window.setOutputDirectory(output + "/");
    window.generateAllFiles();
    return usage(RUSAGE_SELF) - before;
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
} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    DtOptions options = readOptions(QCoreApplication::arguments());
    QTemporaryDir scratch(options.directory + "/bench-XXXXXX");
    if (!scratch.isValid())
        qFatal("cannot work below %s", qPrintable(options.directory));
    enterScratch(scratch.path());
    if (options.classes > 0)
    {
        QFile model(scratch.path() + "/synthetic.xml");
        const std::string text = syntheticModel(options.classes);
        if (!model.open(QIODevice::WriteOnly) || model.write(text.c_str()) < 0)
            qFatal("cannot write the model");
        options.models = {
            {DtString(model.fileName().toUtf8().constData()), ""}
        };
    }
    if (options.onlyLoads)
    {
        measureLoading(application, options);
        return 0;
    }
    std::vector<double> own;
    std::vector<double> user;
    std::vector<double> copies;
    for (int round = 0; round < options.rounds; ++round)
    {
        const QString output = scratch.path() + "/out";
        QDir().mkpath(output);
        const DtCost cost = generate(application, options, scratch.path(), output);
        own.push_back(cost.total());
        user.push_back(cost.user);
        if (round == 0)
        {
            printOutput(output);
            std::printf("peak MB %.1f\n", peakMegabytes());
        }
        const DtCost before = usage(RUSAGE_CHILDREN);
        run("cp", {QStringLiteral("-r"), output, scratch.path() + "/copy"});
        copies.push_back((usage(RUSAGE_CHILDREN) - before).total());
        QDir(output).removeRecursively();
        QDir(scratch.path() + "/copy").removeRecursively();
        std::printf("round %d: %.4f s, of it user %.4f; cp -r %.4f s\n", round + 1, own.back(), user.back(),
                    copies.back());
    }
    std::printf("median %.4f s, user %.4f; cp -r %.4f s; ratio %.2f\n", median(own), median(user), median(copies),
                median(own) / median(copies));
    return 0;
}
