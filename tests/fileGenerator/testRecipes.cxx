// The page of recipes names files and tests; a file that is renamed or goes would leave it behind.

#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

namespace
{
const QString theTop = QStringLiteral(QX_SOURCE_DIR "/");

// What stands in backticks on the page and has this form.
QStringList namesLike(const char* form)
{
    static const QRegularExpression theCode(QStringLiteral("`([^`\n]+)`"));
    const QRegularExpression expression(QRegularExpression::anchoredPattern(form));
    const QString page = QString::fromUtf8(readTextFile(theTop + "docs/recipes.md"));
    QStringList names;
    for (auto each = theCode.globalMatch(page); each.hasNext();)
    {
        const QString name = each.next().captured(1);
        if (expression.match(name).hasMatch() && !names.contains(name))
            names += name;
    }
    return names;
}

// By their directory, or by their ending when they lie at the top; what a run writes is no file of the repository.
QStringList files()
{
    QStringList names = namesLike("[\\w.-]+(/[\\w.-]+)+|\\w+\\.(md|txt|h|cxx|ui|tlt|xml|dtd)");
    names.removeAll("parsedFom.txt");
    return names;
}

QString sourceOf(const QString& testClass)
{
    const QString file = "t" + testClass.mid(1) + ".cxx";
    for (const char* library : {"foundation", "omtReader", "fileGenerator", "codeGenApp", "generated", "toolkit"})
        if (QFile::exists(theTop + "tests/" + library + "/" + file))
            return QString::fromUtf8(readTextFile(theTop + "tests/" + library + "/" + file));
    return QString();
}
} // namespace

class TestRecipes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNamedFileExists()
    {
        const QStringList names = files();
        QVERIFY(names.size() >= 30);
        QStringList missing;
        for (const QString& name : names)
            if (!QFile::exists(theTop + name))
                missing += name;
        QCOMPARE(missing.join(' '), QString());
    }

    void everyNamedTestExists()
    {
        const QStringList names = namesLike("Test\\w+(::\\w+)?");
        QVERIFY(names.size() >= 10);
        QStringList missing;
        for (const QString& name : names)
        {
            const QString function = name.section("::", 1);
            const QString source = sourceOf(name.section("::", 0, 0));
            if (source.isEmpty() || (!function.isEmpty() && !source.contains("void " + function + "()")))
                missing += name;
        }
        QCOMPARE(missing.join(' '), QString());
    }
};

QX_REGISTER_TEST(TestRecipes)
#include "testRecipes.moc"
