#include "modelTools/dataDirectory.h"
#include "registerTest.h"
#include "testSupport.h"
#include "toolTest.h"

#include <QtTest/QtTest>

class TestDataDirectory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        for (const char* name : {"given", "named"})
            writeBytes(myFolder.path() / name / "config/codeGenConfig.xml", "<codeGenConfig/>");
    }

    void givenDirectoryGoesAheadOfTheVariable()
    {
        const DtWithEnvironment variable("QX_DATA_DIR", path("named").c_str());
        COMPARE_TEXT(DtFindDataDirectory(path("given")), (path("given") + "/").c_str());
    }

    void variableGoesAheadOfThePlacesBesideTheProgram()
    {
        const DtWithEnvironment variable("QX_DATA_DIR", path("named").c_str());
        COMPARE_TEXT(DtFindDataDirectory(""), (path("named") + "/").c_str());
    }

    void programOfTheBuildTreeFindsTheSources()
    {
        for (const char* value : {static_cast<const char*>(nullptr), ""})
        {
            const DtWithEnvironment variable("QX_DATA_DIR", value);
            COMPARE_TEXT(DtFindDataDirectory(""), QX_SOURCE_DIR "/data/");
        }
    }

    void relativeDirectoryCountsFromTheWorkingDirectory()
    {
        const DtInDirectory inside(QString::fromStdString(myFolder.path().native()));
        COMPARE_TEXT(DtFindDataDirectory("./named/../given"), (path("given") + "/").c_str());
    }

    void oneSeparatorStandsAtTheEnd()
    {
        COMPARE_TEXT(DtFindDataDirectory(path("given") + "/"), (path("given") + "/").c_str());
        COMPARE_TEXT(DtFindDataDirectory(path("given") + "//"), (path("given") + "/").c_str());
    }

    void directoryWithoutConfigurationIsRefused()
    {
        const std::string top = myFolder.path().native();
        COMPARE_TEXT(
            failureOf([&top] { DtFindDataDirectory(top); }),
            ("2: --data-dir names " + top + ", which is no data directory: it has no config/codeGenConfig.xml.")
                .c_str());
        const DtWithEnvironment variable("QX_DATA_DIR", (top + "/gone").c_str());
        COMPARE_TEXT(
            failureOf([] { DtFindDataDirectory(""); }),
            ("2: QX_DATA_DIR names " + top + "/gone, which is no data directory: it has no config/codeGenConfig.xml.")
                .c_str());
    }

private:
    std::string path(const char* name) const { return (myFolder.path() / name).native(); }

    DtTestFolder myFolder;
};

QX_REGISTER_TEST(TestDataDirectory)
#include "testDataDirectory.moc"
