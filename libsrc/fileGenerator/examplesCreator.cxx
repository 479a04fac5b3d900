#include "fileGenerator/examplesCreator.h"

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/exMakefileWriter.h"
#include "fileGenerator/examplesProjWriter.h"
#include "fileGenerator/omtNode.h"
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
      myDirectory(makeDirectory(name)),
      myTalkProject(std::make_unique<DtExamplesProjectFileWriter>(myDirectory + "/" + name + "TalkVC14_64.vcxproj",
                                                                  "talkExProjVC14_64.tlt", node)),
      myListenProject(std::make_unique<DtExamplesProjectFileWriter>(myDirectory + "/" + name + "ListenVC14_64.vcxproj",
                                                                    "listenExProjVC14_64.tlt", node)),
      myMakefile(std::make_unique<DtExamplesMakefileWriter>(myDirectory + "/Makefile")),
      myTalkObject(makeSource("/talk.cxx", "talkObjExample.tlt", project)),
      myListenObject(makeSource("/listen.cxx", "listenObjExample.tlt", project)),
      myTalkInteraction(makeSource("/talk.cxx", "talkInterExample.tlt", project)),
      myListenInteraction(makeSource("/listen.cxx", "listenInterExample.tlt", project))
{
}

DtExamplesCreator::~DtExamplesCreator()
{
    // The pair that has written goes first. A printer without text empties its file, unless that has been written since
    // the printer was made, and a file that is emptied in between loses its time stamp.
    if (!myHasWrittenInteraction)
    {
        myTalkObject.reset();
        myListenObject.reset();
    }
}

DtExamplesCreator::DtSourceWriter DtExamplesCreator::makeSource(const char* fileName, const char* templateName,
                                                                const DtOmtProject& project) const
{
    auto writer =
        std::make_unique<DtClassFileWriter>(myDirectory + fileName, DtString("../data/templates/") + templateName);
    writer->setOmtProject(project);
    writer->setRootName(myName);
    return writer;
}

void DtExamplesCreator::setClassName(const DtString& name)
{
    for (const DtSourceWriter* writer : {&myTalkObject, &myListenObject, &myTalkInteraction, &myListenInteraction})
        (*writer)->setClassName(name);
}

void DtExamplesCreator::addAttribute(const DtAttribute& attribute)
{
    for (const DtSourceWriter* writer : {&myTalkObject, &myListenObject, &myTalkInteraction, &myListenInteraction})
        (*writer)->addAttribute(attribute);
}

void DtExamplesCreator::createInteractionExamples()
{
    myHasWrittenInteraction = true;
    writeExamples(myTalkInteraction, myListenInteraction);
}

void DtExamplesCreator::createObjectExamples()
{
    writeExamples(myTalkObject, myListenObject);
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

void DtExamplesCreator::writeExamples(const DtSourceWriter& talk, const DtSourceWriter& listen)
{
    talk->writeFile();
    listen->writeFile();
    writeProjectFiles();
}
