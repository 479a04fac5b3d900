#include "foundation/warningRules.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

namespace
{
// What a taker got, one line a warning: rule, kind, name and owner of the subject, and the text.
class DtNotes : public DtWarningTaker
{
public:
    void take(const DtWarning& warning) override
    {
        const DtSubject& subject = warning.subject;
        text += QString("%1|%2|%3|%4|%5;")
                    .arg(warning.rule.id)
                    .arg(subject.kind)
                    .arg(subject.name.c_str(), subject.owner.c_str(), warning.text.c_str());
    }

    QString text;
};

QString sourceOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList matches(const QString& text, const char* pattern, int group)
{
    QStringList found;
    for (auto each = QRegularExpression(pattern).globalMatch(text); each.hasNext();)
        found += each.next().captured(group);
    return found;
}

QStringList sourcesBelow(const QString& folder)
{
    QStringList files;
    for (QDirIterator each(folder, {"*.cxx", "*.h"}, QDir::Files, QDirIterator::Subdirectories); each.hasNext();)
        files += each.next();
    files.sort();
    return files;
}

const QString theLibraries = QStringLiteral(QX_SOURCE_DIR "/libsrc/");
} // namespace

class TestWarning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textGoesToTheWarningStreamByteForByte_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("with line feed") << "Warning: one.\n";
        QTest::newRow("without line feed") << "Duplicated enum name Red";
        QTest::newRow("two lines") << "Unknown Encoding for: x\nCardinality: 3";
        QTest::newRow("percent signs") << "100 %s %n of it\n";
        QTest::newRow("no text") << "";
    }

    void textGoesToTheWarningStreamByteForByte()
    {
        QFETCH(QString, text);
        const DtCapture warnings(DtWarn);
        DtTellWarning(DtRules::nameClash, DtSubject::datatype("Speed"), text.toUtf8().constData());
        QCOMPARE(warnings.text(), text);
    }

    void levelOfTheStreamHoldsForWarnings()
    {
        const DtSaved<int> level(DtNotifyLevel, 0);
        const DtCapture warnings(DtWarn);
        DtTellWarning(DtRules::nameClash, DtSubject::none(), "unheard\n");
        QCOMPARE(warnings.text(), QString());
    }

    void takerGetsRuleSubjectAndTextInPlaceOfTheStream()
    {
        const DtCapture warnings(DtWarn);
        DtNotes notes;
        DtTellWarning(DtRules::duplicateEnumerator, DtSubject::enumerator("Red", "Color"), "text\n");
        QCOMPARE(notes.text, QString("duplicate-enumerator|%1|Red|Color|text\n;").arg(DtSubject::Enumerator));
        QCOMPARE(warnings.text(), QString());
    }

    void takerGetsWarningsWhateverTheLevelOfTheStream()
    {
        const DtSaved<int> level(DtNotifyLevel, 0);
        DtNotes notes;
        DtTellWarning(DtRules::noEncoding, DtSubject::none(), "heard");
        QCOMPARE(notes.text, QString("no-encoding|%1|||heard;").arg(DtSubject::None));
    }

    void latestTakerCountsUntilItGoes()
    {
        const DtCapture warnings(DtWarn);
        {
            DtNotes outer;
            {
                DtNotes inner;
                DtTellWarning(DtRules::noEncoding, DtSubject::none(), "one");
                QVERIFY(inner.text.contains("|one;"));
            }
            QCOMPARE(outer.text, QString());
            DtTellWarning(DtRules::noEncoding, DtSubject::none(), "two");
            QVERIFY(outer.text.contains("|two;"));
        }
        DtTellWarning(DtRules::noEncoding, DtSubject::none(), "three");
        QCOMPARE(warnings.text(), QString("three"));
    }

    void membersAreOfTheKindThatTheirOwnerHas()
    {
        const DtSubject attribute = DtSubject::objectClass("A.B").member("x");
        QCOMPARE(attribute.kind, DtSubject::Attribute);
        QCOMPARE(attribute.name.c_str(), "x");
        QCOMPARE(attribute.owner.c_str(), "A.B");
        QCOMPARE(DtSubject::interactionClass("A").member("x").kind, DtSubject::Parameter);
        QCOMPARE(DtSubject::datatype("A").member("x").kind, DtSubject::Field);
        const DtSubject file = DtSubject::file("m.xml").member("x");
        QCOMPARE(file.kind, DtSubject::File);
        QCOMPARE(file.name.c_str(), "m.xml");
    }

    void rulesAreInTheOrderOfTheirIdsAndNoneIsThereTwice()
    {
        QVERIFY(!DtRules::all().empty());
        for (std::size_t i = 1; i < DtRules::all().size(); ++i)
        {
            const std::string before = DtRules::all()[i - 1]->id;
            QVERIFY2(before < DtRules::all()[i]->id, before.c_str());
        }
    }

    void idsAreLowerCaseWordsWithHyphens()
    {
        const QRegularExpression form("^[a-z]+(-[a-z]+)*$");
        for (const DtWarningRule* rule : DtRules::all())
            QVERIFY2(form.match(rule->id).hasMatch(), rule->id);
    }

    void meaningsAreOneSentence()
    {
        for (const DtWarningRule* rule : DtRules::all())
        {
            const QString meaning = rule->meaning;
            QVERIFY2(meaning.endsWith('.') && meaning[0].isUpper() && !meaning.contains(". ") &&
                         !meaning.contains('\n'),
                     rule->id);
        }
    }

    void everyRuleOfTheHeaderIsListed()
    {
        const QString header = sourceOf(theLibraries + "foundation/warningRules.h");
        QStringList listed;
        for (const DtWarningRule* rule : DtRules::all())
            listed += rule->id;
        QCOMPARE(matches(header, "DtWarningRule \\w+ = \\{\\s*\"([^\"]*)\"", 1), listed);
    }

    void everyRuleIsUsedBySomeSource()
    {
        QSet<QString> used;
        for (const QString& file : sourcesBelow(theLibraries))
            if (!file.contains("/warningRules."))
                for (const QString& name : matches(sourceOf(file), "DtRules::(\\w+)\\b(?!\\()", 1))
                    used += name;
        const QString header = sourceOf(theLibraries + "foundation/warningRules.h");
        QStringList unused = matches(header, "DtWarningRule (\\w+) =", 1);
        unused.erase(
            std::remove_if(unused.begin(), unused.end(), [&used](const QString& name) { return used.contains(name); }),
            unused.end());
        QCOMPARE(unused, QStringList());
    }

    // The window's own texts, which nobody but its user reads, are not counted.
    void nothingButTheOneFunctionWritesWarnings()
    {
        const QRegularExpression use("\\bDtWarn(\\(| <<|\\))");
        QStringList sources;
        for (const char* library : {"fileGenerator", "foundation", "modelTools", "omtReader"})
            sources += sourcesBelow(theLibraries + library);
        const QString lists = sourceOf(theLibraries + "codeGenApp/CMakeLists.txt");
        const QStringList ofCore = matches(lists, "qx_add_library\\(codeGenCore([^)]*)\\)", 1);
        QCOMPARE(ofCore.size(), 1);
        for (const QString& name : matches(ofCore.front(), "\\w+\\.cxx", 0))
            sources += theLibraries + "codeGenApp/" + name;
        QStringList found;
        for (const QString& file : sources)
            if (use.match(sourceOf(file)).hasMatch())
                found += file.mid(theLibraries.length());
        QCOMPARE(found, QStringList("foundation/warning.cxx"));
    }
};

QX_REGISTER_TEST(TestWarning)
#include "testWarning.moc"
