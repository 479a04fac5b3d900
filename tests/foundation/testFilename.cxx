#include "foundation/filename.h"
#include "foundationTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

class TestFilename : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isMadeAndAssignedFromTexts();
    void partsOfANameAreTakenApart_data();
    void partsOfANameAreTakenApart();
    void setExtensionReplacesOrAdds_data();
    void setExtensionReplacesOrAdds();
    void emptyExtensionLeavesNoDot();
    void joinsWithOneSeparator_data();
    void joinsWithOneSeparator();
    void existsForFilesAndDirectories();
    void isUsableAsAFile();
    void backslashIsAnOrdinaryCharacter();
    void absolutePathStartsAtTheWorkingDirectory();
    void searchTakesTheNameIfItExists();
    void searchLooksUnderTheEnvironmentDirectory();
    void searchWithoutAMatchAnswersTheName();
    void searchLooksUnderAGivenDirectory();
    void normalizedPathHasNoDots_data();
    void normalizedPathHasNoDots();
};

void TestFilename::isMadeAndAssignedFromTexts()
{
    DtFilename name;
    QVERIFY(name.isEmpty());
    name = "a";
    COMPARE_TEXT(name, "a");
    name = DtString("b");
    COMPARE_TEXT(name, "b");
    const DtFilename other("c");
    name = other;
    COMPARE_TEXT(DtFilename(name), "c");
    QCOMPARE(DtFilename::separator(), '/');
}

void TestFilename::partsOfANameAreTakenApart_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("directory");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("stem");
    QTest::addColumn<QByteArray>("extension");
    const struct
    {
        const char* name;
        QByteArray path, directory, file, stem, extension;
    } theRows[] = {
        {"plain",                     "a.xml",     "",     "a.xml", "a",     "xml"},
        {"with a path",               "x/y/a.xml", "x/y/", "a.xml", "x/y/a", "xml"},
        {"last of two extensions",    "a.b.c",     "",     "a.b.c", "a.b",   "c"  },
        {"dot in the directory only", "a.d/b",     "a.d/", "b",     "a.d/b", ""   },
        {"parent directory",          "../b",      "../",  "b",     "../b",  ""   },
        {"dot at the end",            "a.",        "",     "a.",    "a",     ""   },
        {"directory",                 "d/",        "d/",   "",      "d/",    ""   },
        {"empty",                     "",          "",     "",      "",      ""   },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.path << row.directory << row.file << row.stem << row.extension;
}

void TestFilename::partsOfANameAreTakenApart()
{
    QFETCH(QByteArray, path);
    const DtFilename name(path.constData());
    DtFilename file(name), directory(name), stem(name);
    file.stripPath();
    directory.stripFilename();
    stem.stripExtension();
    QTEST(QByteArray(file.c_str()), "file");
    QTEST(QByteArray(DtFilename::stripPath(name).c_str()), "file");
    QTEST(QByteArray(directory.c_str()), "directory");
    QTEST(QByteArray(stem.c_str()), "stem");
    QTEST(QByteArray(name.extension().c_str()), "extension");
}

void TestFilename::setExtensionReplacesOrAdds_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("a.xml") << QByteArray("a.qxproj");
    QTest::newRow("a") << QByteArray("a.qxproj");
    QTest::newRow("a.b.xml") << QByteArray("a.b.qxproj");
    QTest::newRow("d.x/a") << QByteArray("d.x/a.qxproj");
    QTest::newRow("../a") << QByteArray("../a.qxproj");
}

void TestFilename::setExtensionReplacesOrAdds()
{
    DtFilename name(QTest::currentDataTag());
    name.setExtension("qxproj");
    QTEST(QByteArray(name.c_str()), "expected");
}

void TestFilename::emptyExtensionLeavesNoDot()
{
    DtFilename name("a.xml");
    name.setExtension("");
    COMPARE_TEXT(name, "a");
}

void TestFilename::joinsWithOneSeparator_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("plain") << QByteArray("a") << QByteArray("b") << QByteArray("a/b");
    QTest::newRow("separator there") << QByteArray("a/") << QByteArray("b") << QByteArray("a/b");
    QTest::newRow("empty left") << QByteArray("") << QByteArray("b") << QByteArray("b");
    QTest::newRow("empty right") << QByteArray("a") << QByteArray("") << QByteArray("a");
    QTest::newRow("both empty") << QByteArray("") << QByteArray("") << QByteArray("");
    QTest::newRow("absolute right") << QByteArray("a") << QByteArray("/b") << QByteArray("/b");
    QTest::newRow("root left") << QByteArray("/") << QByteArray("b") << QByteArray("/b");
}

void TestFilename::joinsWithOneSeparator()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    DtFilename appended(left.constData());
    appended.append(right.constData());
    QTEST(QByteArray(appended.c_str()), "expected");
    DtFilename prepended(right.constData());
    prepended.prepend(left.constData());
    QTEST(QByteArray(prepended.c_str()), "expected");
}

void TestFilename::existsForFilesAndDirectories()
{
    QTemporaryDir directory;
    const DtInDirectory here(directory.path());
    writeTextFile("file", "x");
    QVERIFY(DtFilename("file").exists());
    QVERIFY(DtFilename(".").exists());
    QVERIFY(!DtFilename("other").exists());
    QVERIFY(!DtFilename("").exists());
    QVERIFY(DtFilename("file").isRegularFile());
    QVERIFY(!DtFilename(".").isRegularFile());
    QVERIFY(!DtFilename("/dev/null").isRegularFile());
}

void TestFilename::isUsableAsAFile()
{
    QVERIFY(DtFilename("a/b").isUsable());
    QVERIFY(!DtFilename("").isUsable());
    QVERIFY(!DtFilename("a/").isUsable());
    QVERIFY(DtFilename("/a").isAbsolute());
    QVERIFY(!DtFilename("a").isAbsolute());
    QVERIFY(!DtFilename("").isAbsolute());
}

void TestFilename::backslashIsAnOrdinaryCharacter()
{
    DtFilename name("cpp\\Makefile.x");
    COMPARE_TEXT(DtFilename::stripPath(name), "cpp\\Makefile.x");
    name.append("b");
    COMPARE_TEXT(name, "cpp\\Makefile.x/b");
}

void TestFilename::absolutePathStartsAtTheWorkingDirectory()
{
    QTemporaryDir directory;
    const DtInDirectory here(directory.path());
    const QByteArray current = QDir::currentPath().toUtf8();
    DtString result;
    DtFilename::absolutePath("a/b", result);
    COMPARE_TEXT(result, current + "/a/b");
    DtFilename::absolutePath("/a", result);
    COMPARE_TEXT(result, "/a");
    DtFilename::absolutePath("", result);
    COMPARE_TEXT(result, current);
}

void TestFilename::searchTakesTheNameIfItExists()
{
    QTemporaryDir directory, other;
    const DtInDirectory here(directory.path());
    writeTextFile("a.xml", "x");
    writeTextFile(other.filePath("a.xml"), "y");
    const DtWithEnvironment environment("RTI_CONFIG", other.path().toUtf8().constData());
    COMPARE_TEXT(DtFilename::searchAlternatePath("a.xml"), "a.xml");
}

void TestFilename::searchLooksUnderTheEnvironmentDirectory()
{
    QTemporaryDir directory, other;
    const DtInDirectory here(directory.path());
    writeTextFile(other.filePath("a.xml"), "y");
    const DtWithEnvironment environment("RTI_CONFIG", other.path().toUtf8().constData());
    COMPARE_TEXT(DtFilename::searchAlternatePath("a.xml"), other.filePath("a.xml").toUtf8());
}

void TestFilename::searchWithoutAMatchAnswersTheName()
{
    QTemporaryDir directory;
    const DtInDirectory here(directory.path());
    {
        const DtWithEnvironment environment("RTI_CONFIG", directory.path().toUtf8().constData());
        COMPARE_TEXT(DtFilename::searchAlternatePath("a.xml"), "a.xml");
        COMPARE_TEXT(DtFilename::searchAlternatePath(""), "");
    }
    const DtWithEnvironment environment("RTI_CONFIG", nullptr);
    COMPARE_TEXT(DtFilename::searchAlternatePath("a.xml"), "a.xml");
    COMPARE_TEXT(DtFilename::searchAlternatePath("a.xml", nullptr), "a.xml");
}

void TestFilename::searchLooksUnderAGivenDirectory()
{
    QTemporaryDir directory;
    const DtInDirectory here(directory.path());
    writeTextFile("sub/a.xml", "x");
    COMPARE_TEXT(DtFilename::searchAlternatePath("a.xml", "sub"), "sub/a.xml");
    COMPARE_TEXT(DtFilename::searchAlternatePath("b.xml", "sub"), "b.xml");
    COMPARE_TEXT(DtFilename::searchAlternatePath("b.xml", ""), "b.xml");
    writeTextFile("a.xml", "y");
    COMPARE_TEXT(DtFilename::searchAlternatePath("a.xml", "sub"), "a.xml");
}

void TestFilename::normalizedPathHasNoDots_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("a/./b") << QByteArray("a/b");
    QTest::newRow("a/../b") << QByteArray("b");
    QTest::newRow("../a") << QByteArray("../a");
    QTest::newRow("a/../../b") << QByteArray("../b");
    QTest::newRow("../../a") << QByteArray("../../a");
    QTest::newRow("/../a") << QByteArray("/a");
    QTest::newRow("a//b/") << QByteArray("a/b");
    QTest::newRow("a/..b/...") << QByteArray("a/..b/...");
    QTest::newRow("/") << QByteArray("/");
    QTest::newRow("") << QByteArray("");
}

void TestFilename::normalizedPathHasNoDots()
{
    QTEST(QByteArray(DtFilename::normalized(QTest::currentDataTag()).c_str()), "expected");
}

QX_REGISTER_TEST(TestFilename)
#include "testFilename.moc"
