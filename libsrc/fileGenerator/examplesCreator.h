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
// Owns the writers. It makes the writers of both kinds of class, and those of objects and of interactions write the
// same two files: one of the two create operations is called, once, and the other pair never writes. The files exist,
// at least empty, as soon as the creator stands.
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

    DtSourceWriter makeSource(const char* fileName, const char* templateName, const DtOmtProject& project) const;
    void writeExamples(const DtSourceWriter& talk, const DtSourceWriter& listen);

    DtString myName;
    DtString myDirectory; // from the output directory
    std::unique_ptr<DtExamplesProjectFileWriter> myTalkProject;
    std::unique_ptr<DtExamplesProjectFileWriter> myListenProject;
    std::unique_ptr<DtExamplesMakefileWriter> myMakefile;
    DtSourceWriter myTalkObject;
    DtSourceWriter myListenObject;
    DtSourceWriter myTalkInteraction; // these two close first
    DtSourceWriter myListenInteraction;
    bool myHasWrittenInteraction = false;
};

#endif
