#include "modelTools/outputManifest.h"
#include "modelToolsTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
const std::string theHash(64, 'a');

QByteArray row(const QByteArray& path)
{
    return "{\"path\": \"" + path + "\", \"sha256\": \"" + QByteArray(64, 'a') + "\", \"size\": 1}";
}

QByteArray manifestOf(const QByteArray& rows)
{
    return "{\"format\": 1, \"program\": \"1.0\", \"files\": [" + rows + "]}";
}
} // namespace

class TestOutputManifest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entryHoldsHashAndSize()
    {
        const DtOutputEntry entry = DtOutputManifest::entryOf("abc");
        COMPARE_TEXT(entry.sha256, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
        QCOMPARE(entry.size, std::uint64_t(3));
    }

    void textHasFilesInOrder()
    {
        DtOutputManifest manifest("5.10");
        manifest.add("b", {theHash, 2});
        manifest.add("a/\xff", {theHash, 1});
        const std::string expected = "{\n \"format\": 1,\n \"program\": \"5.10\",\n \"files\": [\n"
                                     "  {\n   \"path\": \"a/%FF\",\n   \"sha256\": \"" +
                                     theHash +
                                     "\",\n   \"size\": 1\n  },\n"
                                     "  {\n   \"path\": \"b\",\n   \"sha256\": \"" +
                                     theHash + "\",\n   \"size\": 2\n  }\n ]\n}\n";
        COMPARE_TEXT(manifest.text(), expected.c_str());
    }

    void writtenManifestIsReadBack()
    {
        const DtTestFolder directory;
        const std::filesystem::path& path = directory.path();
        DtOutputManifest manifest("5.10");
        for (const char* name : {"a", "b c/\"d'.h", "K\xc3\xb6ln", "\xff/%41", "new\nline"})
            manifest.add(name, DtOutputManifest::entryOf(name));
        writeBytes(path / DtOutputManifest::theFileName, manifest.text());
        const DtOutputManifest read = DtOutputManifest::read(path);
        COMPARE_TEXT(read.damage(), "");
        COMPARE_TEXT(read.programVersion(), "5.10");
        COMPARE_TEXT(read.text(), manifest.text().c_str());
        QVERIFY(read.find("\xff/%41") != nullptr);
        QVERIFY(read.find("missing") == nullptr);
    }

    void missingManifestIsEmptyAndNoDamage()
    {
        const DtTestFolder directory;
        const DtOutputManifest manifest = DtOutputManifest::read(directory.path());
        QVERIFY(manifest.files().empty());
        COMPARE_TEXT(manifest.damage(), "");
        COMPARE_TEXT(DtOutputManifest::read(directory.path() / "missing").damage(), "");
    }

    void damagedManifestIsToldAndEmpty_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("told");
        const QByteArray whole = manifestOf(row("a") + "," + row("b"));
        QTest::newRow("empty") << QByteArray() << QByteArray("parse error");
        QTest::newRow("cut off") << whole.left(whole.size() / 2) << QByteArray("parse error");
        QTest::newRow("last byte gone") << whole.left(whole.size() - 1) << QByteArray("parse error");
        QTest::newRow("tail") << whole + "x" << QByteArray("parse error");
        QTest::newRow("zeros") << QByteArray(200, '\0') << QByteArray("parse error");
        QTest::newRow("deep") << QByteArray(100000, '[') << QByteArray("parse error");
        QTest::newRow("other type") << QByteArray("[]") << QByteArray("type_error");
        QTest::newRow("no format") << QByteArray("{}") << QByteArray("format");
        QTest::newRow("new format") << QByteArray("{\"format\": 2}") << QByteArray("its format is not known");
        QTest::newRow("no files") << QByteArray("{\"format\": 1, \"program\": \"1\"}") << QByteArray("files");
        QTest::newRow("number as path") << manifestOf("{\"path\": 1}") << QByteArray("type_error");
        QTest::newRow("bad hash") << manifestOf(row("a").replace("aaaa", "XXXX")) << QByteArray("is no SHA-256");
        QTest::newRow("twice") << manifestOf(row("a") + "," + row("b") + "," + row("a")) << QByteArray("twice");
        for (const char* path : {"../x", "a/../../x", "/etc/passwd", "", ".", "a//b", "a/", "%2E%2E/x", "a\\u0000b",
                                 ".qxgen-lock", ".qxgen-manifest.json"})
            QTest::newRow(path) << manifestOf(row("a") + "," + row(path)) << QByteArray("cannot be one of an output");
    }

    void damagedManifestIsToldAndEmpty()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, told);
        const DtTestFolder directory;
        const std::filesystem::path& path = directory.path();
        writeBytes(path / DtOutputManifest::theFileName, text.toStdString());
        const DtOutputManifest manifest = DtOutputManifest::read(path);
        QVERIFY(manifest.files().empty());
        COMPARE_TEXT(manifest.programVersion(), "");
        const QByteArray damage(manifest.damage().c_str());
        QVERIFY2(damage.startsWith((path / ".qxgen-manifest.json is damaged (").c_str()), damage.constData());
        QVERIFY2(damage.contains(told), damage.constData());
        QVERIFY2(damage.contains("not removed") && damage.contains("by hand"), damage.constData());
    }

    void folderInPlaceOfTheManifestIsDamage()
    {
        const DtTestFolder directory;
        const std::filesystem::path& path = directory.path();
        std::filesystem::create_directory(path / DtOutputManifest::theFileName);
        QVERIFY(DtOutputManifest::read(path).damage().find("it cannot be read") != std::string::npos);
    }
};

QX_REGISTER_TEST(TestOutputManifest)
#include "testOutputManifest.moc"
