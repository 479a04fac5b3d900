#ifndef TESTS_TEMPLATE_TEST_SUPPORT_H
#define TESTS_TEMPLATE_TEST_SUPPORT_H

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/qtProgressMeter.h"
#include "foundation/restored.h"
#include "testSupport.h"

#include <QtWidgets/QApplication>

#include <sstream>
#include <string>

// Collects text and nothing else.
class DtTextPrinter : public DtPrinter
{
public:
    void print(const char* text, std::size_t length) override { myText.append(text, length); }
    std::string text() const { return myText; }

private:
    std::string myText;
};

// A writer without files: expands a text and keeps the outcome.
class DtMemoryWriter : public DtFileWriter
{
public:
    DtMemoryWriter() : DtFileWriter("", "") { myStream.attachPrinter(&myCollected); }
    ~DtMemoryWriter() override { myStream.detachPrinter(&myCollected); }

    std::string text() const { return myCollected.text(); }
    // Through the stream that blocks and files are read from.
    std::string expand(const std::string& templateText)
    {
        DtTemplateStream in;
        in.open(templateText);
        writeFileStream(in);
        return text();
    }
    // Through a stream of the standard library.
    std::string expandPlain(const std::string& templateText)
    {
        std::istringstream in(templateText);
        writeFileStream(in);
        return text();
    }

private:
    DtTextPrinter myCollected;
};

// Puts the class-wide settings that templates see back when it goes.
class DtWriterSettings
{
public:
    ~DtWriterSettings() { DtDataTypeMapper::instance()->setMapRtiObjectIdToGlobalId(myMapsIds); }

private:
    const DtRestored<DtSettings> mySettings{DtSettings::instance()};
    const bool myMapsIds = DtDataTypeMapper::instance()->mapRtiObjectIdToGlobalId();
};

// The progress meter set up for some steps, and without a dialog again afterwards.
class DtWithMeter
{
public:
    explicit DtWithMeter(int total)
    {
        DtQtProgressMeter::instance()->init(qApp, nullptr);
        DtQtProgressMeter::instance()->setTotalMeasure(total);
    }
    ~DtWithMeter() { DtQtProgressMeter::instance()->reset(); }
    DtWithMeter(const DtWithMeter&) = delete;
    DtWithMeter& operator=(const DtWithMeter&) = delete;
};

#endif
