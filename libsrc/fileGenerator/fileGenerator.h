#ifndef FILE_GENERATOR_FILE_GENERATOR_H
#define FILE_GENERATOR_FILE_GENERATOR_H

#include "fileGenerator/documentation.h"
#include "fileGenerator/nameClashes.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/outputTable.h"

#include <functional>
#include <list>
#include <memory>
#include <set>

class DtExamplesCreator;

// All files of one selected class: creates a writer for each, feeds them its members and runs them in order.
//
// Owns the writers. Their files exist, at least empty, as soon as the generator stands. The driver constructs one
// generator a class, sets parent, PDU kind and full name, adds every member and calls generateFiles.
class DtFileGenerator
{
public:
    DtFileGenerator() = default;
    DtFileGenerator(const DtFileGenerator&) = delete;
    DtFileGenerator& operator=(const DtFileGenerator&) = delete;
    virtual ~DtFileGenerator();

    virtual void setParentClassName(const DtString& name);
    virtual void setPduKind(int kind);
    // Ahead of the members.
    void setDocumentation(const DtClassDocumentation& documentation);
    // Runs the writers in order and stops behind the file during which the user cancelled. Behind the last one, the
    // examples are made if they are wanted.
    virtual void generateFiles() = 0;
    // Resolves the model's datatype to a target type and hands the member to every writer, and to the examples.
    virtual void addAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality) = 0;
    // Hands a member of a superclass to the examples, which set and print it too; not to the writers. From the top
    // class down, and ahead of the members of the class.
    void addInheritedAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality);
    virtual void setFullClassName(const DtString& name);
    // Walks array and simple datatypes to a target type. The cardinality changes when the way leads over an array. A
    // datatype that leads back to itself stands as its own type.
    virtual void determineValueType(const DtString& datatype, DtString& cardinality, DtString& type) = 0;

    // Runs the body of a generator's constructor. Whatever leaves it comes out as a DtException that names the
    // generator and the place of the guard: another DtException as its predecessor, a std::exception with its text,
    // anything else as a DtTemplatedException<-2>.
    static void guardConstruction(const char* signature, const char* file, unsigned int line,
                                  const std::function<void()>& body);

protected:
    // Makes the writers of all wanted rows of a table, in order. Each file name enters the list ahead of its writer.
    // owner: the class of the model.
    template <typename Table, typename Generator, typename Record>
    void createWriters(const Table& table, const Generator& generator, const DtString& name, const Record& record,
                       const DtSubject& owner, bool generateDis, std::set<DtString>& fileList)
    {
        for (const auto& row : table)
        {
            if (row.wanted == DtWanted::WithDis && !generateDis)
                continue;
            const DtString fileName = (generator.*row.stem)(name) + row.ending;
            if (!fileList.insert(fileName).second)
                warnOfFile(fileName, owner);
            myWriters.push_back(row.make(fileName, DtString("../data/templates/") + row.templateName, record));
        }
    }
    // Gives every writer its names and the project.
    void initializeWriters(const DtString& name, const DtOmtProject& project);
    // False when the user cancelled: the writers behind the current one have not run then.
    bool runWriters();
    // Not owned; null, as at the start, when none are wanted.
    void setExamples(DtExamplesCreator* examples) { myExamples = examples; }
    DtAttribute makeAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality);
    // The member as every writer got it.
    DtAttribute addToWriters(const DtString& name, const DtString& datatype, const DtString& cardinality);

    std::list<std::unique_ptr<DtClassFileWriter>> myWriters;

private:
    DtClassDocumentation myDocumentation;
    DtExamplesCreator* myExamples = nullptr;
};

#endif
