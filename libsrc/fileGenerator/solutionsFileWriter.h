#ifndef FILE_GENERATOR_SOLUTIONS_FILE_WRITER_H
#define FILE_GENERATOR_SOLUTIONS_FILE_WRITER_H

#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtObject.h"

#include <set>
#include <vector>

// Solution file: the library's project and, for the classes it is given, their example projects.
//
// The project name is the base name of the run until another one is set.
class DtSolutionsFileWriter : public DtFileWriter
{
public:
    DtSolutionsFileWriter(const DtString& fileName, const DtString& templateName);

    // Loops: Objects and Interactions, one pass a record. A record whose full name is its name has no parent path and
    // no project in the solution, so it gets no pass.
    void writeMultipleTimes(const DtString& header, std::istream& body) override;

    virtual void setObjects(const std::set<DtOmtObject>& objects);
    virtual void setInteractions(const std::set<DtOmtInteraction>& interactions);
    virtual void setProjectName(const DtString& name);

private:
    static const DtTokenTable<DtOmtObject>& objectTable();
    static const DtTokenTable<DtOmtInteraction>& interactionTable();
    static const DtTokenTable<DtSolutionsFileWriter>& projectTable();
    template <typename Record>
    void writeRecords(const std::set<Record>& records, DtTokenValues<Record>& current, std::istream& body);

    std::set<DtOmtObject> myObjects;
    std::set<DtOmtInteraction> myInteractions;
    DtString myProjectName;
    DtTokenValues<DtOmtObject> myCurrentObject; // without context outside its loop
    DtTokenValues<DtOmtInteraction> myCurrentInteraction;
    DtTokenValues<DtSolutionsFileWriter> myProjectTokens;
};

#endif
