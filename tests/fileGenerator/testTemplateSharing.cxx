#include "registerTest.h"

#include <QtTest/QtTest>

#include <map>
#include <set>

namespace
{
const QString theTemplates = QStringLiteral(QX_SOURCE_DIR "/data/templates/");
constexpr int theBlockLength = 15; // lines that make two places a repetition

QByteArray contentOf(const QString& file)
{
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

// The templates of C++ by their paths below data/templates: those of projects and makefiles, of the scripts and of the
// custom code window are others.
std::map<QString, QList<QByteArray>> cppTemplates()
{
    static const QRegularExpression theOthers(
        QStringLiteral("^(project|solution|talkExProj|listenExProj|makefile|exMakefile|exampleProject)"));
    std::map<QString, QList<QByteArray>> templates;
    for (const char* directory : {"", "subTemplates/"})
        for (const QString& name : QDir(theTemplates + directory).entryList({"*.tlt"}, QDir::Files))
            if (!theOthers.match(name).hasMatch())
                templates[directory + name] = contentOf(theTemplates + directory + name).split('\n');
    return templates;
}

QByteArray blockAt(const QList<QByteArray>& lines, int start)
{
    return lines.mid(start, theBlockLength).join('\n');
}
} // namespace

class TestTemplateSharing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fewLinesStandInASecondTemplate()
    {
        const std::map<QString, QList<QByteArray>> templates = cppTemplates();
        QVERIFY(templates.size() > 60);
        std::map<QByteArray, std::set<QString>> places;
        for (const auto& [name, lines] : templates)
            for (int start = 0; start + theBlockLength <= lines.size(); ++start)
                places[blockAt(lines, start)].insert(name);
        int count = 0, shared = 0;
        for (const auto& [name, lines] : templates)
        {
            std::set<int> repeated;
            for (int start = 0; start + theBlockLength <= lines.size(); ++start)
                for (int line = 0; places[blockAt(lines, start)].size() > 1 && line < theBlockLength; ++line)
                    repeated.insert(start + line);
            count += lines.size();
            shared += static_cast<int>(repeated.size());
        }
        QVERIFY2(shared * 100 < count * 10, qPrintable(QStringLiteral("%1 of %2 lines").arg(shared).arg(count)));
    }

    // A blank line of a template becomes a line with a blank, so a token stands there. That of an included file stays
    // empty.
    void noLineEndsInABlank_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isIncluded");
        static const QRegularExpression theInclude(QStringLiteral("subTemplates/(\\w+\\.tlt)[#?]"));
        std::set<QString> included;
        for (const auto& [name, lines] : cppTemplates())
            for (auto each = theInclude.globalMatch(QString::fromUtf8(lines.join('\n'))); each.hasNext();)
                included.insert("subTemplates/" + each.next().captured(1));
        QVERIFY(included.size() > 15);
        for (const auto& [name, lines] : cppTemplates())
            QTest::newRow(qPrintable(name)) << lines.join('\n') << (included.count(name) != 0);
    }
    void noLineEndsInABlank()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isIncluded);
        QVERIFY(!text.isEmpty() && !text.startsWith('\n'));
        QVERIFY(!text.contains(" \n"));
        QVERIFY(isIncluded || !text.contains("\n\n"));
    }
};

QX_REGISTER_TEST(TestTemplateSharing)
#include "testTemplateSharing.moc"
