#ifndef TESTS_WRITER_PROBE_H
#define TESTS_WRITER_PROBE_H

#include "fileGenerator/codedDataTypeFileWriter.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/omtEnvWriter.h"
#include "foundation/restored.h"
#include "testSupport.h"

#include <QtCore/QTemporaryDir>

#include <sstream>

// Makes the protected side of a writer reachable and expands template text in memory.
template <class Writer>
class WriterProbe : public Writer
{
public:
    using Writer::Writer;

    // The text as the body of a template would come out.
    QString expand(const char* text)
    {
        DtCapture capture(this->myStream);
        std::istringstream in(text);
        this->writeFileStream(in);
        return capture.text();
    }
    // One line as it is decoded.
    QString decode(const char* text)
    {
        DtString line = text;
        this->decodeFileLine(line);
        return QString::fromUtf8(line.c_str());
    }
};

// The same for a writer that has attributes.
template <class Writer>
class AttributeProbe : public WriterProbe<Writer>
{
public:
    using WriterProbe<Writer>::WriterProbe;
    using Writer::setCurrentAttribute;
};

// Class-wide settings of a run with values of the test; what was there comes back at the end. Output goes to a
// temporary directory. The mapper's mappings and the names of the run are empty before and after.
class RunSettings
{
public:
    RunSettings()
    {
        clearTables();
        DtFileWriter::setOutputDirectory(myDirectory.path().toUtf8().constData() + DtString("/"));
        DtOMTEnvWriter::setPrefixName("");
        DtOMTEnvWriter::setIncludeName("");
        DtOMTEnvWriter::setBaseName("");
        DtOMTEnvWriter::setFomDefinitionFileName("model.xml");
    }
    ~RunSettings() { clearTables(); }
    RunSettings(const RunSettings&) = delete;
    RunSettings& operator=(const RunSettings&) = delete;

private:
    static void clearTables()
    {
        DtDataTypeMapper::instance()->clearMappings();
        DtDatatypeClassNames::instance().clear();
        DtCodedDataTypeFileWriter::resetPlusAttributeCounts();
    }

    QTemporaryDir myDirectory;
    const DtRestored<DtSettings> mySettings{DtSettings::instance()};
};

inline QString text(const DtString& string)
{
    return QString::fromUtf8(string.c_str());
}

#endif
