#include "fileGenerator/fileWriter.h"
#include "fileGenerator/progressMeter.h"
#include "fileGenerator/qtProgressMeter.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

namespace
{
class DtNotingMeter : public DtQuietProgressMeter
{
public:
    void setFileGenerated(const DtString& name) override { names += name.c_str(); }
    QStringList names;
};
} // namespace

class TestProgressMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAUseItIsTheOneOfTheDialog()
    {
        QCOMPARE(DtProgressMeter::current(), static_cast<DtProgressMeter*>(DtQtProgressMeter::instance()));
    }

    void usesNest()
    {
        DtQuietProgressMeter outer;
        DtQuietProgressMeter inner;
        const DtProgressUse outerUse(outer);
        {
            const DtProgressUse innerUse(inner);
            QCOMPARE(DtProgressMeter::current(), static_cast<DtProgressMeter*>(&inner));
        }
        QCOMPARE(DtProgressMeter::current(), static_cast<DtProgressMeter*>(&outer));
    }

    void quietMeterCountsAndKeepsACancel()
    {
        DtQuietProgressMeter meter;
        meter.setCurrentMeasure(4);
        meter.setTotalMeasure(10);
        QCOMPARE(meter.totalMeasure(), 10);
        QCOMPARE(meter.currentMeasure(), 0);
        meter.incrementCurrentMeasure(3);
        meter.incrementCurrentMeasure(2);
        QCOMPARE(meter.currentMeasure(), 5);
        QVERIFY(!meter.isCancelled());
        meter.setIsCancelled(true);
        meter.reset();
        QVERIFY(meter.isCancelled());
    }

    // No dialog is there, so a writer that spoke to it would throw.
    void writersTellTheMeterInUse()
    {
        const QTemporaryDir directory;
        const DtRunScope scope;
        DtFileWriter::setOutputDirectory((directory.path() + "/").toUtf8().constData());
        DtNotingMeter meter;
        const DtProgressUse use(meter);
        {
            const QString file = directory.filePath("t.tlt");
            writeTextFile(file, "text\n");
            DtFileWriter writer("a.txt", file.toUtf8().constData());
            writer.writeFile();
        }
        QCOMPARE(meter.names, QStringList("a.txt"));
        QCOMPARE(meter.currentMeasure(), 1);
    }
};

QX_REGISTER_TEST(TestProgressMeter)
#include "testProgressMeter.moc"
