#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
const QString theLibrary = QStringLiteral(QX_SOURCE_DIR "/libsrc/fileGenerator/");

QString contentOf(const QString& file)
{
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? QString::fromUtf8(input.readAll()) : QString();
}

// The floor of each file, 0 at the top, as the build lists them.
QMap<QString, int> floorsOfFiles()
{
    static const QRegularExpression theEntry(QStringLiteral("# (\\w+): |(\\w+\\.(?:cxx|h))\\b"));
    const QString list = contentOf(theLibrary + "CMakeLists.txt");
    QMap<QString, int> floors;
    int floor = -1;
    for (auto each = theEntry.globalMatch(list); each.hasNext();)
    {
        const QRegularExpressionMatch entry = each.next();
        if (!entry.captured(1).isEmpty())
            ++floor;
        else
            floors.insert(entry.captured(2), floor);
    }
    return floors;
}
} // namespace

class TestFloors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileStandsOnAFloor()
    {
        QStringList files = QDir(theLibrary).entryList({"*.h", "*.cxx"}, QDir::Files);
        files.sort();
        QVERIFY(files.size() > 100);
        QCOMPARE(QStringList(floorsOfFiles().keys()), files);
        QVERIFY(!floorsOfFiles().values().contains(-1));
    }

    void noIncludeRunsUpwards()
    {
        static const QRegularExpression theInclude(QStringLiteral("#include \"fileGenerator/(\\w+\\.h)\""));
        const QMap<QString, int> floors = floorsOfFiles();
        QStringList upwards;
        for (auto file = floors.begin(); file != floors.end(); ++file)
        {
            const QString text = contentOf(theLibrary + file.key());
            for (auto each = theInclude.globalMatch(text); each.hasNext();)
            {
                const QString included = each.next().captured(1);
                if (floors.value(included, -1) < file.value())
                    upwards += file.key() + " includes " + included;
            }
        }
        QVERIFY2(upwards.isEmpty(), qPrintable(upwards.join('\n')));
    }
};

QX_REGISTER_TEST(TestFloors)
#include "testFloors.moc"
