#ifndef BENCH_BENCH_OPTIONS_H
#define BENCH_BENCH_OPTIONS_H

#include "codeGenApp/codeGenAppGui.h"
#include "madeUpModel.h"

#include <QtCore/QStringList>

#include <vector>

// The command line of generationBench.
struct DtBenchOptions
{
    int rounds = 9;
    int count = 0; // of classes or datatypes in a model that is made up
    DtModelShape shape = DtModelShape::Classes;
    int attributes = 2;
    QString modelFile; // where the model that is made up is written, and nothing else done
    bool onlyLoads = false;
    bool runsAgain = false; // a second time, over the unchanged output of the first
    bool generatesExamples = true;
    bool generatesDis = false;
    bool includesMim = true;
    QString data;        // the program's data, which is copied
    QStringList scripts; // "genHtml.txt" and the like; "genCpp.txt" alone when none is named
    QString directory;
    std::vector<DtCodeGenAppGui::DtModelFile> models;
};

// Prints the usage and ends the program when the arguments make no sense.
DtBenchOptions readBenchOptions(const QStringList& arguments);

#endif
