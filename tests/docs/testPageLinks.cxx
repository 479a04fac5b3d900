// Links of the pages lead somewhere, and every page can be found from README.md.

#include "docPage.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
QStringList pages()
{
    QStringList names{"README.md", "CONTRIBUTING.md", "CHANGELOG.md"};
    for (const QString& page : QDir(QX_SOURCE_DIR "/docs").entryList({"*.md"}, QDir::Files, QDir::Name))
        names += "docs/" + page;
    return names;
}

// The page without what it shows as code.
QString withoutCode(QString page)
{
    static const QRegularExpression theBlock("^```.*?^```$", QRegularExpression::MultilineOption |
                                                                 QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression theSpan("`[^`\n]+`");
    return page.remove(theBlock).replace(theSpan, "code");
}

QStringList linksOf(const QString& page)
{
    static const QRegularExpression theLink(R"(\]\(([^)\s]+)\))");
    QStringList links;
    for (auto each = theLink.globalMatch(withoutCode(sourceText(page))); each.hasNext();)
    {
        const QString link = each.next().captured(1);
        if (!link.contains("://"))
            links += link;
    }
    return links;
}

// By which links name the headings of a page: lower case, blanks as hyphens, other signs left out.
QStringList anchorsOf(const QString& page)
{
    QStringList anchors;
    for (auto each =
             QRegularExpression("^#+ +(.+)$", QRegularExpression::MultilineOption).globalMatch(sourceText(page));
         each.hasNext();)
        anchors += each.next().captured(1).toLower().remove(QRegularExpression("[^a-z0-9 _-]")).replace(' ', '-');
    return anchors;
}

// The page or file that a link on a page names, from the top.
QString targetOf(const QString& page, const QString& link)
{
    const QString file = link.section('#', 0, 0);
    return file.isEmpty() ? page : QDir::cleanPath(QFileInfo(page).path() + "/" + file);
}
} // namespace

class TestPageLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linksLeadSomewhere_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : pages())
            QTest::newRow(qPrintable(page)) << page;
    }
    void linksLeadSomewhere()
    {
        QFETCH(QString, page);
        QStringList lost;
        for (const QString& link : linksOf(page))
        {
            const QString target = targetOf(page, link), anchor = link.section('#', 1);
            if (!QFile::exists(QX_SOURCE_DIR "/" + target) ||
                (!anchor.isEmpty() && !anchorsOf(target).contains(anchor)))
                lost += link;
        }
        QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n')));
    }

    void everyPageIsReachedFromTheFirstOne()
    {
        QStringList reached{"README.md"};
        for (int index = 0; index < reached.size(); ++index)
            if (reached[index].endsWith(".md"))
                for (const QString& link : linksOf(reached[index]))
                    if (!reached.contains(targetOf(reached[index], link)))
                        reached += targetOf(reached[index], link);
        QVERIFY(reached.size() > 20);
        for (const QString& page : pages())
            QVERIFY2(reached.contains(page), qPrintable(page));
    }
};

QX_REGISTER_TEST(TestPageLinks)
#include "testPageLinks.moc"
