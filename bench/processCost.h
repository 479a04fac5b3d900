#ifndef BENCH_PROCESS_COST_H
#define BENCH_PROCESS_COST_H

#include <QtCore/QStringList>

#include <vector>

// Processor seconds of a process, as the system counts them.
struct DtCost
{
    double user = 0;
    double system = 0;
    double total() const { return user + system; }
};

DtCost operator-(const DtCost& left, const DtCost& right);

DtCost ownCost();       // of this process so far
DtCost childCost();     // of the children that have ended
double peakMegabytes(); // of this process so far
double median(std::vector<double> values);
// Runs a program to its end; its exit status as waitpid gives it.
int runProgram(const char* program, const QStringList& arguments);

#endif
