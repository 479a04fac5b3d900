#include "fileGenerator/examplesCreator.h"

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/exMakefileWriter.h"
#include "fileGenerator/examplesProjWriter.h"
#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtNode.h"
#include "fileGenerator/ownDecoding.h"
#include "fileGenerator/relativePath.h"
#include "fileGenerator/settings.h"
#include "foundation/fileUtils.h"

namespace
{
DtString libraryName()
{
    DtFilename base(DtSettings::instance().cpp.baseName);
    base.stripPath();
    base.stripExtension();
    return base;
}

// The directory of a class, from the output directory; it is made before the first file of it is opened.
DtString makeDirectory(const DtString& name)
{
    const DtString directory = DtString("Examples/") + name;
    if (staysBelow(directory))
        DtMakeDirectory(DtFileWriter::outputDirectory() + directory);
    return directory;
}
} // namespace

DtExamplesCreator::DtExamplesCreator(const DtString& name, const DtOmtProject& project, const DtOmtNode& node)
    : myName(name),
      myProject(project),
      myDirectory(makeDirectory(name)),
      myTalkProject(std::make_unique<DtExamplesProjectFileWriter>(myDirectory + "/" + name + "TalkVC14_64.vcxproj",
                                                                  "talkExProjVC14_64.tlt", node)),
      myListenProject(std::make_unique<DtExamplesProjectFileWriter>(myDirectory + "/" + name + "ListenVC14_64.vcxproj",
                                                                    "listenExProjVC14_64.tlt", node)),
      myMakefile(std::make_unique<DtExamplesMakefileWriter>(myDirectory + "/Makefile"))
{
    tellOwnDecoding(*myTalkProject);
    tellOwnDecoding(*myListenProject);
    tellOwnDecoding(*myMakefile);
    if (dynamic_cast<const DtOmtInteraction*>(&node) != nullptr)
        myInteractionSources = makeSources("Inter");
    else
        myObjectSources = makeSources("Obj");
}

DtExamplesCreator::~DtExamplesCreator()
{
    // The pair that has written goes first. A printer without text empties its file, unless that has been written since
    // the printer was made, and a file that is emptied in between loses its time stamp.
    if (!myHasWrittenInteraction)
        myObjectSources = DtSources();
}

DtExamplesCreator::DtSourceWriter DtExamplesCreator::makeSource(const DtString& fileName,
                                                                const DtString& templateName) const
{
    auto writer = std::make_unique<DtClassFileWriter>(myDirectory + fileName, "../data/templates/" + templateName);
    tellOwnDecoding(*writer);
    writer->setOmtProject(myProject);
    writer->setRootName(myName);
    return writer;
}

DtExamplesCreator::DtSources DtExamplesCreator::makeSources(const char* kind) const
{
    return {makeSource("/talk.cxx", DtString("talk") + kind + "Example.tlt"),
            makeSource("/listen.cxx", DtString("listen") + kind + "Example.tlt")};
}

void DtExamplesCreator::makeLate(DtSources& sources, const char* kind, const DtSources& other) const
{
    if (sources.talk != nullptr)
        return;
    sources = makeSources(kind);
    for (const DtSourceWriter* writer : {&sources.talk, &sources.listen})
    {
        (*writer)->setClassName(other.talk->className());
        for (const DtAttribute& attribute : other.talk->attributeList())
            (*writer)->addAttribute(attribute);
    }
}

void DtExamplesCreator::setClassName(const DtString& name)
{
    for (const DtSources* sources : {&myObjectSources, &myInteractionSources})
        for (const DtSourceWriter* writer : {&sources->talk, &sources->listen})
            if (*writer != nullptr)
                (*writer)->setClassName(name);
}

void DtExamplesCreator::addAttribute(const DtAttribute& attribute)
{
    for (const DtSources* sources : {&myObjectSources, &myInteractionSources})
        for (const DtSourceWriter* writer : {&sources->talk, &sources->listen})
            if (*writer != nullptr)
                (*writer)->addAttribute(attribute);
}

void DtExamplesCreator::createInteractionExamples()
{
    makeLate(myInteractionSources, "Inter", myObjectSources);
    myHasWrittenInteraction = true;
    writeExamples(myInteractionSources);
}

void DtExamplesCreator::createObjectExamples()
{
    makeLate(myObjectSources, "Obj", myInteractionSources);
    writeExamples(myObjectSources);
}

void DtExamplesCreator::setGenerateDis(bool generate)
{
    myTalkProject->setGenerateDis(generate);
    myListenProject->setGenerateDis(generate);
    myMakefile->setGenerateDis(generate);
}

void DtExamplesCreator::writeProjectFiles()
{
    const DtString library = libraryName();
    for (const auto* writer : {&myTalkProject, &myListenProject})
    {
        (*writer)->setLibraryName(library);
        (*writer)->writeFile();
    }
    myMakefile->setLibraryName(library);
    myMakefile->writeFile();
}

void DtExamplesCreator::writeExamples(const DtSources& sources)
{
    sources.talk->writeFile();
    sources.listen->writeFile();
    writeProjectFiles();
}
