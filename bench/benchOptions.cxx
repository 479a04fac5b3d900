#include "benchOptions.h"

#include <QtCore/QDir>

#include <cstdio>
#include <cstdlib>

namespace
{
constexpr const char* theUsage = "usage: generationBench [options] DIRECTORY (MODEL... | --count N)\n"
                                 "  --rounds N       rounds, 9 at first\n"
                                 "  --count N        a model made up of N classes in place of model files\n"
                                 "  --shape NAME     what it has N of: classes, siblings, namesakes or datatypes\n"
                                 "  --attributes N   of each class that is made up, 2 at first\n"
                                 "  --write-model F  writes that model to a file and does nothing else\n"
                                 "  --load           loading alone, beside a bare parse and walk of the files\n"
                                 "  --again          a second run over the unchanged output, too\n"
                                 "  --no-examples    without the example programs\n"
                                 "  --no-mim         without the standard management model\n"
                                 "  --dis            with the code for DIS\n"
                                 "  --data DIR       data folder in place of that of the sources\n"
                                 "  --script NAME    genHtml.txt, say, in place of the C++; may come again\n";

[[noreturn]] void refuse()
{
    std::fputs(theUsage, stderr);
    std::exit(2);
}

struct DtSwitch
{
    const char* name;
    bool DtBenchOptions::*field;
    bool value;
};

const DtSwitch theSwitches[] = {
    {"--load",        &DtBenchOptions::onlyLoads,         true },
    {"--again",       &DtBenchOptions::runsAgain,         true },
    {"--no-examples", &DtBenchOptions::generatesExamples, false},
    {"--no-mim",      &DtBenchOptions::includesMim,       false},
    {"--dis",         &DtBenchOptions::generatesDis,      true },
};

bool takeSwitch(const QString& argument, DtBenchOptions& options)
{
    for (const DtSwitch& row : theSwitches)
    {
        if (argument != QLatin1String(row.name))
            continue;
        options.*row.field = row.value;
        return true;
    }
    return false;
}

// False for an argument that is no option with a value.
bool takeValue(const QString& argument, const QString& value, DtBenchOptions& options)
{
    if (argument == QStringLiteral("--rounds"))
        options.rounds = value.toInt();
    else if (argument == QStringLiteral("--count"))
        options.count = value.toInt();
    else if (argument == QStringLiteral("--attributes"))
        options.attributes = value.toInt();
    else if (argument == QStringLiteral("--write-model"))
        options.modelFile = QDir().absoluteFilePath(value);
    else if (argument == QStringLiteral("--data"))
        options.data = QDir().absoluteFilePath(value);
    else if (argument == QStringLiteral("--script"))
        options.scripts += value;
    else if (argument == QStringLiteral("--shape"))
        return shapeOfName(value.toStdString(), options.shape);
    else
        return false;
    return true;
}

void takeName(const QString& argument, DtBenchOptions& options)
{
    if (options.directory.isEmpty())
        options.directory = argument;
    else
        options.models.emplace_back(QDir().absoluteFilePath(argument).toUtf8().constData(), "");
}
} // namespace

DtBenchOptions readBenchOptions(const QStringList& arguments)
{
    DtBenchOptions options;
    options.data = QStringLiteral(QX_SOURCE_DIR "/data");
    for (int index = 1; index < arguments.size(); ++index)
    {
        const QString& argument = arguments[index];
        if (takeSwitch(argument, options))
            continue;
        if (!argument.startsWith(QStringLiteral("--")))
            takeName(argument, options);
        else if (index + 1 == arguments.size() || !takeValue(argument, arguments[++index], options))
            refuse();
    }
    if (options.directory.isEmpty() || options.rounds < 1 || (options.models.empty() && options.count < 1))
        refuse();
    if (options.scripts.isEmpty())
        options.scripts += QStringLiteral("genCpp.txt");
    return options;
}
