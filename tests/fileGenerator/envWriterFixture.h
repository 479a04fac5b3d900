#ifndef TESTS_ENV_WRITER_FIXTURE_H
#define TESTS_ENV_WRITER_FIXTURE_H

#include "generatorFixture.h"

#include "fileGenerator/omtProject.h"

#include <memory>
#include <vector>

// A driver over an empty project and an empty model of the 2010 format, which a test fills and then runs.
class DtEnvWriterFixture
{
protected:
    void open()
    {
        myFixture = std::make_unique<DtGeneratorFixture>();
        myModel = std::make_unique<DtTestModel>();
        myProject = std::make_unique<DtOmtProject>();
        myWriter = std::make_unique<DtOMTEnvWriter>();
        myWriter->setOmtTree(myModel->tree());
        myWriter->setHlaVersion(DtHla1516e);
        myWriter->setOmtProject(myProject.get());
    }
    void close()
    {
        myWriter.reset();
        myProject.reset();
        myModel.reset();
        myFixture.reset();
    }
    int run(const char* model = "model.xml")
    {
        DtDataTypeMapper::instance()->populateFromOmtTree(myModel->tree());
        return myWriter->writeFile(model);
    }
    // Puts classes of the model into project and selection.
    void select(const std::vector<const char*>& objects, const std::vector<const char*>& interactions = {})
    {
        for (const char* name : objects)
            myProject->addObject(name, false, "");
        for (const char* name : interactions)
            myProject->addInteraction(name, false, "");
        myWriter->setObjectsToGenerate(myProject->getObjects());
        myWriter->setInteractionsToGenerate(myProject->getInteractions());
    }
    bool isListed(const char* name) const { return myWriter->fileList().count(name) != 0; }

    std::unique_ptr<DtGeneratorFixture> myFixture;
    std::unique_ptr<DtTestModel> myModel;
    std::unique_ptr<DtOmtProject> myProject;
    std::unique_ptr<DtOMTEnvWriter> myWriter;
};

#endif
