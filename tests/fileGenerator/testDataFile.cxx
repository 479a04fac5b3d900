#include "fileGenerator/dataFile.h"
#include "fileGenerator/settings.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

class TestDataFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myScope = std::make_unique<DtRunScope>();
        myDirectory = std::make_unique<QTemporaryDir>();
    }
    void cleanup()
    {
        myScope.reset();
        myDirectory.reset();
    }

    void withoutSettingsTheNameStays()
    {
        QCOMPARE(found("../data/templates/enums.tlt"), QString("../data/templates/enums.tlt"));
    }

    void dataDirectoryStandsForTheStart()
    {
        files().dataDirectory = "/somewhere/data/";
        QCOMPARE(found("../data/templates/enums.tlt"), QString("/somewhere/data/templates/enums.tlt"));
        QCOMPARE(found("../data/genHtml.txt"), QString("/somewhere/data/genHtml.txt"));
    }

    void otherNamesStay_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"/a/../data/x.tlt", "x.tlt", "data/templates/x.tlt", "../datax", ""})
            QTest::newRow(name) << name;
    }
    void otherNamesStay()
    {
        QFETCH(QString, name);
        files().dataDirectory = "/somewhere/";
        QCOMPARE(found(name), name);
    }

    void templateDirectoryStandsInForFilesThatItHas()
    {
        const QString own = overlay("one", "enums.tlt");
        QCOMPARE(found("../data/templates/enums.tlt"), own);
        QCOMPARE(found("../data/templates/makefile.tlt"), QString("../data/templates/makefile.tlt"));
        QCOMPARE(found("../data/templates/html/enums.tlt"), QString("../data/templates/html/enums.tlt"));
    }

    void foldersBelowTheTemplatesCount()
    {
        const QString own = overlay("one", "html/model.tlt");
        QCOMPARE(found("../data/templates/html/model.tlt"), own);
        QCOMPARE(found("../data/templates/json/model.tlt"), QString("../data/templates/json/model.tlt"));
    }

    void commandFilesStandBesideTheTemplates()
    {
        const QString own = overlay("one", "genHtml.txt");
        QCOMPARE(found("../data/genHtml.txt"), own);
    }

    void firstDirectoryThatHasTheFileCounts()
    {
        const QString first = overlay("one", "enums.tlt");
        const QString second = overlay("two", "enums.tlt");
        const QString later = overlay("two", "makefile.tlt");
        QCOMPARE(found("../data/templates/enums.tlt"), first);
        QCOMPARE(found("../data/templates/makefile.tlt"), later);
        QVERIFY(first != second);
    }

    void folderOfTheNameStandsInForNothing()
    {
        overlay("one", "enums.tlt/x");
        QCOMPARE(found("../data/templates/enums.tlt"), QString("../data/templates/enums.tlt"));
    }

    void whatWasAskedForIsNoted()
    {
        const QString own = overlay("one", "enums.tlt");
        QVERIFY(DtReadDataFiles().empty());
        found("../data/templates/enums.tlt");
        found("../data/templates/enums.tlt");
        found("../data/genHtml.txt");
        QCOMPARE(DtReadDataFiles(), (std::set<std::string>{own.toStdString(), "../data/genHtml.txt"}));
    }

private:
    static DtFileSettings& files() { return DtSettings::instance().files; }
    static QString found(const QString& name) { return QString::fromUtf8(DtDataFile(toDt(name)).c_str()); }
    static DtString toDt(const QString& text) { return text.toUtf8().constData(); }
    QString overlay(const char* directory, const char* file)
    {
        const QString top = myDirectory->filePath(directory);
        const DtString name = toDt(top);
        auto& directories = files().templateDirectories;
        if (std::find(directories.begin(), directories.end(), name) == directories.end())
            directories.push_back(name);
        const QString path = top + "/" + file;
        QDir().mkpath(QFileInfo(path).path());
        writeTextFile(path, "text\n");
        return path;
    }

    std::unique_ptr<DtRunScope> myScope;
    std::unique_ptr<QTemporaryDir> myDirectory;
};

QX_REGISTER_TEST(TestDataFile)
#include "testDataFile.moc"
