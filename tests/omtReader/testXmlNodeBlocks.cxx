#include "modelText.h"
#include "omtReader/xmlDocument.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <libxml/tree.h>
#include <unistd.h>

namespace
{
QByteArray dumped(xmlDoc* document)
{
    if (document == nullptr)
        return "no document";
    xmlChar* text = nullptr;
    int length = 0;
    xmlDocDumpMemory(document, &text, &length);
    const QByteArray result(reinterpret_cast<const char*>(text), length);
    xmlFree(text);
    return result;
}

DtXmlModel parsed(const QByteArray& text)
{
    return DtParseXmlModel(text.constData(), static_cast<int>(text.size()));
}

// Of some thousand nodes, with attributes and texts of all lengths and with what does not lie in blocks in between.
QByteArray largeText()
{
    QByteArray text = "<a>";
    for (int index = 0; index < 3000; ++index)
    {
        const QByteArray number = QByteArray::number(index);
        text += "<b c='" + number + "' d='" + QByteArray(index % 50, 'x') + "'>\n  <e/>" + QByteArray(index % 40, 'y') +
                "<!-- " + number + " --></b>";
    }
    return text + "</a>";
}
} // namespace

// The sanitizers look for what is left behind and for what is freed twice.
class TestXmlNodeBlocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentIsThatOfTheLibrary_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("element") << QByteArray("<a/>");
        QTest::newRow("texts") << QByteArray("<a> <b>short</b>\n<b>a text that does not fit into a node</b>  </a>");
        QTest::newRow("attributes") << QByteArray("<a b='1' c='' d='a value that does not fit into a node'/>");
        QTest::newRow("namespaces") << QByteArray("<p:a xmlns:p='u' xmlns='v' p:b='1'><b xmlns=''/></p:a>");
        QTest::newRow("comments") << QByteArray("<!-- 1 --><a><!-- 2 --><?p q?><![CDATA[<]]></a><!-- 3 -->");
        QTest::newRow("characters") << QByteArray("<a b='&lt;&#65;'>&amp;&#x20ac;</a>");
        QTest::newRow("identifiers") << QByteArray("<!DOCTYPE a [<!ATTLIST a i ID #IMPLIED>]>"
                                                   "<a i='one'><b xml:id='two'/></a>");
        QTest::newRow("defaults") << QByteArray("<!DOCTYPE a [<!-- c --><!ATTLIST a b CDATA 'd'>]><a/>");
        QTest::newRow("entities") << QByteArray("<!DOCTYPE a [<!ENTITY e 'x<b c=\"d\">y</b>z'><!ENTITY f '&e;&e;'>]>"
                                                "<a b='1'>&e;<c>&f;</c>&e;</a>");
        QTest::newRow("many nodes") << largeText();
    }

    void documentIsThatOfTheLibrary()
    {
        QFETCH(const QByteArray, text);
        const DtXmlDocument plain = DtParseXmlBuffer(text.constData(), static_cast<int>(text.size()));
        QVERIFY(plain != nullptr);
        QCOMPARE(dumped(parsed(text).get()), dumped(plain.get()));
    }

    void malformedTextGivesNoDocument_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no XML") << QByteArray("text");
        QTest::newRow("open element") << QByteArray("<a b='a value that does not fit into a node'><b>");
        QTest::newRow("wrong end") << largeText() + "</b>";
        QTest::newRow("cut off") << largeText().chopped(1);
        QTest::newRow("unknown entity") << QByteArray("<a>&e;</a>");
        QTest::newRow("malformed entity") << QByteArray("<!DOCTYPE a [<!ENTITY e '<b><c></b>'>]><a>&e;</a>");
    }

    void malformedTextGivesNoDocument()
    {
        QFETCH(const QByteArray, text);
        DtXmlErrors quiet;
        QCOMPARE(dumped(parsed(text).get()), QByteArray("no document"));
    }

    void fileIsReadWithItsOwnName()
    {
        const QTemporaryDir directory;
        const QByteArray name = (directory.path() + "/a model.xml").toUtf8();
        writeTextFile(name, largeText());
        const DtXmlModel document = DtParseXmlModel(name.constData());
        QVERIFY(document != nullptr);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(document->URL)), name);
        QCOMPARE(dumped(document.get()), dumped(parsed(largeText()).get()));
        QVERIFY(DtParseXmlModel((directory.path() + "/none.xml").toUtf8().constData()) == nullptr);
    }

    // A kept document that nobody wants goes when the next one comes.
    void keptDocumentIsTakenOrDropped()
    {
        const QTemporaryDir directory;
        for (const char* name : {"a.xml", "b.xml"})
        {
            const QByteArray path = (directory.path() + "/" + name).toUtf8();
            writeTextFile(path, largeText());
            QTest::qWait(150); // a document of a younger file is not kept
            const int descriptor = DtOpenPlainFile(path.constData());
            DtXmlModel document = DtParseXmlModel(descriptor, path.constData());
            const xmlDoc* const parsedDocument = document.get();
            DtKeepXmlModel(descriptor, std::move(document));
            ::close(descriptor);
            if (name[0] == 'b')
                QCOMPARE(static_cast<const xmlDoc*>(DtParseXmlModel(path.constData()).get()), parsedDocument);
        }
    }
};

QX_REGISTER_TEST(TestXmlNodeBlocks)
#include "testXmlNodeBlocks.moc"
