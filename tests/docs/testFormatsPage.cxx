// The constructs in docs/formats.md against the tables of the readers. What the page says of them otherwise, its
// examples show.

#include "docPage.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
QString readerText(const QString& file)
{
    return sourceText("libsrc/omtReader/" + file);
}

// The names in one column of the table of constructs.
QStringList told(int column)
{
    QStringList names;
    for (const QStringList& cells : tableRows(sectionOf(pageText("formats.md"), "What is read"), "construct"))
        names += codesIn(cells[column]);
    names.removeDuplicates();
    names.sort();
    return names;
}

// What the table in processObjectModel() of a reader names, as it stands in a file.
QStringList dispatched(const QString& file)
{
    const QString table = readerText(file).section("processObjectModel", 1).section("};", 0, 0);
    const QString names = readerText("xmlModelNames.h");
    QStringList elements;
    for (auto each = QRegularExpression("\\{(tag\\w+),").globalMatch(table); each.hasNext();)
        elements += names.section(" " + each.next().captured(1) + " = \"", 1).section('"', 0, 0);
    return elements;
}
} // namespace

class TestFormatsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructsOf2010AreThoseOfItsReader()
    {
        QStringList known = dispatched("xmlEvolvedFileReader.cxx");
        QVERIFY(known.size() > 10);
        known.sort();
        QCOMPARE(told(1), known);
    }

    void constructsOf2000AreThoseOfItsReader()
    {
        QStringList known = dispatched("xml1516FileReader.cxx") + QStringList{"objectModel"};
        QVERIFY(known.size() > 10);
        known.sort();
        QCOMPARE(told(2), known);
    }

    void keywordsOfTheTextAreThoseOfItsReader()
    {
        QStringList known;
        for (const char* table : {"theModelItems[]", "theContactItems[]"})
            for (auto each = QRegularExpression("\\{\"(\\w+)\",")
                                 .globalMatch(readerText("omtItems.h").section(table, 1).section("};", 0, 0));
                 each.hasNext();)
                known += each.next().captured(1);
        QVERIFY(known.size() > 15);
        known.sort();
        QCOMPARE(told(3), known);
    }

    void namespacesAreThoseOfTheReaders()
    {
        const QStringList codes = codesIn(pageText("formats.md"));
        int count = 0;
        for (auto each = QRegularExpression("theNamespace\\w+\\[?\\]? *= *\"([^\"]+)\"")
                             .globalMatch(readerText("modelFormat.h"));
             each.hasNext(); ++count)
            QVERIFY(codes.contains(each.next().captured(1)));
        QCOMPARE(count, 2);
    }
};

QX_REGISTER_TEST(TestFormatsPage)
#include "testFormatsPage.moc"
