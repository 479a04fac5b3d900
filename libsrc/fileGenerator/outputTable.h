#ifndef FILE_GENERATOR_OUTPUT_TABLE_H
#define FILE_GENERATOR_OUTPUT_TABLE_H

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/ownDecoding.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <type_traits>

// The condition under which a row of a table of output files counts.
enum class DtWanted
{
    Always,
    WithDis
};

// One file that a generator writes for a class: the generator's operation that makes the first part of its name, what
// stands behind that, the template, and what makes the writer.
template <typename Generator, typename Record>
struct DtOutputRow
{
    DtString (Generator::*stem)(const DtString& name) const;
    const char* ending;
    const char* templateName; // under the directory of the templates
    std::unique_ptr<DtClassFileWriter> (*make)(const DtString& fileName, const DtString& templateName,
                                               const Record& record);
    DtWanted wanted;
};

// The number of files that a table gives a class.
template <typename Table>
int countOutputs(const Table& table, bool generateDis)
{
    const auto counts = [generateDis](const auto& row) { return generateDis || row.wanted == DtWanted::Always; };
    return static_cast<int>(std::count_if(std::begin(table), std::end(table), counts));
}

// Makes a writer, which gets the selection record when its constructor takes one.
template <typename Writer, typename Record>
std::unique_ptr<DtClassFileWriter> makeWriter(const DtString& fileName, const DtString& templateName,
                                              const Record& record)
{
    std::unique_ptr<DtClassFileWriter> writer;
    if constexpr (std::is_constructible_v<Writer, const DtString&, const DtString&, const Record&>)
        writer = std::make_unique<Writer>(fileName, templateName, record);
    else
        writer = std::make_unique<Writer>(fileName, templateName);
    writer->setHasOwnDecoding(hasOwnDecoding<Writer>);
    return writer;
}

#endif
