#ifndef FILE_GENERATOR_EXAMPLES_CREATOR_H
#define FILE_GENERATOR_EXAMPLES_CREATOR_H

#include "fileGenerator/attribute.h"
#include "fileGenerator/omtProject.h"

#include <memory>
#include <vector>

class DtClassFileWriter;
class DtExamplesMakefileWriter;
class DtExamplesProjectFileWriter;
class DtOmtNode;

// The talk and listen examples of one class: two programs, their project files and their makefile, in a directory of
// their own below the output directory.
//
// Owns the writers. Those of objects and of interactions write the same two files: one of the two create operations is
// called, once. The pair for the kind of the record is made at once, so that the files exist, at least empty, as soon
// as the creator stands; the other pair is made when it is called for all the same.
class DtExamplesCreator
{
public:
    // name: the class's short name, which names the directory too. node: its selection record.
    DtExamplesCreator(const DtString& name, const DtOmtProject& project, const DtOmtNode& node);
    DtExamplesCreator(const DtExamplesCreator&) = delete;
    DtExamplesCreator& operator=(const DtExamplesCreator&) = delete;

    virtual ~DtExamplesCreator();
    virtual void setClassName(const DtString& name);
    virtual const DtString& name() const { return myName; }
    virtual void addAttribute(const DtAttribute& attribute);
    virtual void createInteractionExamples();
    virtual void createObjectExamples();
    virtual void setGenerateDis(bool generate);
    virtual void writeProjectFiles();

private:
    using DtSourceWriter = std::unique_ptr<DtClassFileWriter>;

    // The two programs of one kind of class; empty until they are made.
    struct DtSources
    {
        DtSourceWriter talk;
        DtSourceWriter listen;
    };

    DtSourceWriter makeSource(const DtString& fileName, const DtString& templateName) const;
    DtSources makeSources(const char* kind) const;
    // Gives what the other pair was told to those that are made only now.
    void makeLate(DtSources& sources, const char* kind, const DtSources& other) const;
    void writeExamples(const DtSources& sources);

    DtString myName;
    DtOmtProject myProject;
    DtString myDirectory; // from the output directory
    std::unique_ptr<DtExamplesProjectFileWriter> myTalkProject;
    std::unique_ptr<DtExamplesProjectFileWriter> myListenProject;
    std::unique_ptr<DtExamplesMakefileWriter> myMakefile;
    DtSources myObjectSources;
    DtSources myInteractionSources; // these close first
    bool myHasWrittenInteraction = false;
};

#endif
