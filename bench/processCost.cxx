#include "processCost.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

namespace
{
double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

rusage usage(int who)
{
    rusage used = {};
    getrusage(who, &used);
    return used;
}

DtCost costOf(int who)
{
    const rusage used = usage(who);
    return {seconds(used.ru_utime), seconds(used.ru_stime)};
}
} // namespace

DtCost operator-(const DtCost& left, const DtCost& right)
{
    return {left.user - right.user, left.system - right.system};
}

DtCost ownCost()
{
    return costOf(RUSAGE_SELF);
}

DtCost childCost()
{
    return costOf(RUSAGE_CHILDREN);
}

double peakMegabytes()
{
    return static_cast<double>(usage(RUSAGE_SELF).ru_maxrss) / 1024;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int runProgram(const char* program, const QStringList& arguments)
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
