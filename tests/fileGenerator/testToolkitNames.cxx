#include "fileGenerator/toolkitNames.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
const QRegularExpression theName(QStringLiteral("\\bDt[A-Za-z0-9_]+"));

// All names below a directory that begin like those of the toolkit, comments and texts left out.
QStringList namesBelow(const QString& directory, const QStringList& patterns)
{
    static const QRegularExpression theIgnored(QStringLiteral("//[^\n]*|\"[^\"\n]*\""));
    QStringList names;
    QDirIterator files(directory, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
    {
        QFile file(files.next());
        if (file.fileName().contains("customUITemplates") || !file.open(QIODevice::ReadOnly))
            continue;
        const QString text = QString::fromLatin1(file.readAll()).remove(theIgnored);
        for (auto each = theName.globalMatch(text); each.hasNext();)
            names += each.next().captured();
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

QStringList toolkitNames()
{
    return namesBelow(QStringLiteral(QX_SOURCE_DIR "/toolkit/include/qx"), {"*.h"});
}

DtString text(const QString& name)
{
    return DtString(name.toStdString());
}
} // namespace

class TestToolkitNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPublicNameIsKnown()
    {
        const QStringList names = toolkitNames();
        QVERIFY(names.contains("DtVector") && names.size() > 150);
        for (const QString& name : names)
            QVERIFY2(isToolkitName(text(name)), qPrintable(name));
    }

    void otherNamesAreNot_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"DtVessel", "DtVectorType", "Dtvector", "Vector", "DtVecto", "DtVector6", ""})
            QTest::newRow(name) << name;
    }
    void otherNamesAreNot()
    {
        QFETCH(QString, name);
        QVERIFY(!isToolkitName(text(name)));
    }

    void namesOfTheTemplatesAreThoseInGeneratedCode()
    {
        const QStringList inTemplates = namesBelow(QStringLiteral(QX_SOURCE_DIR "/data/templates"), {"*.tlt"});
        int count = 0;
        for (const QString& name : toolkitNames())
        {
            if (!inTemplates.contains(name))
                continue;
            ++count;
            QVERIFY2(isToolkitNameInGeneratedCode(text(name)), qPrintable(name));
        }
        QVERIFY(count > 40);
        QVERIFY(!isToolkitNameInGeneratedCode("DtVector"));
    }
};

QX_REGISTER_TEST(TestToolkitNames)
#include "testToolkitNames.moc"
