#include "modelTools/inputWatch.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtTest/QtTest>

// A wait that does not end runs into the time limit of the test.
class TestInputWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myFolder = std::make_unique<DtTestFolder>();
        writeBytes(path("model.xml"), "old");
        writeBytes(path("more/other.xml"), "old");
    }

    void changeEndsTheWait_data()
    {
        QTest::addColumn<QByteArray>("change");
        for (const char* change : {"written in place", "grown", "replaced", "replaced by as many bytes", "removed",
                                   "moved away", "appeared", "moved in", "second file"})
            QTest::newRow(change) << QByteArray(change);
    }
    void changeEndsTheWait()
    {
        QFETCH(QByteArray, change);
        DtInputWatch watch;
        watch.add({path("model.xml").native(), path("more/other.xml").native(), path("later.xml").native()});
        bool isDone = false;
        QTimer::singleShot(50, this,
                           [&]
                           {
                               makeChange(change);
                               isDone = true;
                           });
        watch.waitForChange();
        QVERIFY(isDone);
    }

    void changeAheadOfTheWaitEndsItAtOnce()
    {
        DtInputWatch watch;
        watch.add({path("model.xml").native()});
        writeBytes(path("model.xml"), "newer");
        watch.waitForChange();
        watch.waitForChange(); // until it is noted
        watch.note();
        bool isDone = false;
        QTimer::singleShot(50, this,
                           [&]
                           {
                               writeBytes(path("model.xml"), "newest");
                               isDone = true;
                           });
        watch.waitForChange();
        QVERIFY(isDone);
    }

    void fileThatChangedSinceTheNoteEndsTheWaitOnceAdded()
    {
        DtInputWatch watch;
        watch.note();
        QTest::qSleep(20); // longer than the clock that stamps files takes to go on
        writeBytes(path("model.xml"), "newer");
        watch.add({path("model.xml").native()});
        watch.waitForChange();
        watch.note();
        bool isDone = false;
        QTimer::singleShot(300, this,
                           [&]
                           {
                               writeBytes(path("model.xml"), "newest");
                               isDone = true;
                           });
        watch.waitForChange();
        QVERIFY(isDone);
    }

    void fileThatIsOlderThanTheNoteDoesNotEndTheWait()
    {
        DtInputWatch watch;
        QTest::qSleep(20);
        watch.note();
        watch.add({path("model.xml").native()});
        bool isDone = false;
        QTimer::singleShot(300, this,
                           [&]
                           {
                               writeBytes(path("model.xml"), "newer");
                               isDone = true;
                           });
        watch.waitForChange();
        QVERIFY(isDone);
    }

    void otherFilesOfTheFolderDoNotEndTheWait()
    {
        DtInputWatch watch;
        watch.add({path("model.xml").native()});
        bool isDone = false;
        QTimer::singleShot(20, this, [this] { writeBytes(path("new.xml"), "new"); });
        QTimer::singleShot(40, this, [this] { writeBytes(path("more/other.xml"), "newer"); });
        QTimer::singleShot(400, this,
                           [&]
                           {
                               writeBytes(path("model.xml"), "newer");
                               isDone = true;
                           });
        watch.waitForChange();
        QVERIFY(isDone);
    }

    void fileThatWasReplacedOnceIsStillWatched()
    {
        DtInputWatch watch;
        watch.add({path("model.xml").native()});
        for (const char* content : {"one", "two", "six"})
        {
            watch.note();
            QTimer::singleShot(20, this, [&] { replace("model.xml", content); });
            watch.waitForChange();
            COMPARE_TEXT(readBytes(path("model.xml")), content);
        }
    }

    void fileOfAFolderThatIsMissingEndsTheWait_data()
    {
        QTest::addColumn<bool>("isAtOnce");
        QTest::newRow("moved in with its folders") << true;
        QTest::newRow("made bit by bit") << false;
    }
    void fileOfAFolderThatIsMissingEndsTheWait()
    {
        QFETCH(bool, isAtOnce);
        DtInputWatch watch;
        watch.add({path("one/two/model.xml").native(), path("more/other.xml").native()});
        bool isDone = false;
        writeBytes(path("away/two/model.xml"), "x");
        if (isAtOnce)
            QTimer::singleShot(20, this, [this] { std::filesystem::rename(path("away"), path("one")); });
        else
        {
            QTimer::singleShot(20, this, [this] { std::filesystem::create_directory(path("one")); });
            QTimer::singleShot(300, this, [this] { std::filesystem::create_directory(path("one/two")); });
            QTimer::singleShot(600, this, [this] { writeBytes(path("one/two/model.xml"), "x"); });
        }
        QTimer::singleShot(isAtOnce ? 0 : 500, this, [&] { isDone = true; });
        watch.waitForChange();
        QVERIFY(isDone);
    }

    void busyFolderDoesNotPutTheEndOff()
    {
        DtInputWatch watch;
        watch.add({path("model.xml").native()});
        QTimer busy;
        int count = 0;
        QObject::connect(&busy, &QTimer::timeout, this, [&] { writeBytes(path("busy"), std::to_string(++count)); });
        QObject::connect(&busy, &QTimer::timeout, this, [&] { std::filesystem::remove(path("busy")); });
        busy.start(20);
        QTimer::singleShot(100, this, [this] { writeBytes(path("model.xml"), "newer"); });
        QElapsedTimer time;
        time.start();
        watch.waitForChange();
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
        QVERIFY(count > 0);
    }

    void filesThatAreNotThereAreNotCounted()
    {
        DtInputWatch watch;
        watch.add({path("model.xml").native(), path("gone.xml").native()});
        QVERIFY(watch.count() == 1);
    }

    void addedFilesAreNotedOnce()
    {
        DtInputWatch watch;
        watch.add({path("model.xml").native()});
        writeBytes(path("model.xml"), "newer");
        watch.add({path("model.xml").native(), path("more/other.xml").native()});
        QVERIFY(watch.count() == 2);
        watch.waitForChange(); // the first one is still noted as it was
    }

private:
    std::filesystem::path path(const std::string& name) const { return myFolder->path() / name; }

    void replace(const std::string& name, const std::string& content) const
    {
        writeBytes(path("new"), content);
        std::filesystem::rename(path("new"), path(name));
    }

    void makeChange(const QByteArray& change) const
    {
        if (change == "written in place")
            writeBytes(path("model.xml"), "new");
        else if (change == "grown")
            std::ofstream(path("model.xml"), std::ios::app) << "x";
        else if (change == "replaced")
            replace("model.xml", "newer");
        else if (change == "replaced by as many bytes")
            replace("model.xml", "new");
        else if (change == "removed")
            std::filesystem::remove(path("model.xml"));
        else if (change == "moved away")
            std::filesystem::rename(path("model.xml"), path("away.xml"));
        else if (change == "appeared")
            writeBytes(path("later.xml"), "x");
        else if (change == "moved in")
            replace("later.xml", "x");
        else
            writeBytes(path("more/other.xml"), "newer");
    }

    std::unique_ptr<DtTestFolder> myFolder;
};

QX_REGISTER_TEST(TestInputWatch)
#include "testInputWatch.moc"
