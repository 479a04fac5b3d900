// The form of what goes over the ports, and what happens with anything else that comes in by them.

#include "registerTest.h"

#include "datagram.h"
#include "exerciseFixture.h"

#include <QtTest/QtTest>

#include <random>

namespace
{
DtDatagram datagramOf(DtDatagram::Kind kind, const DtValueBuffer& content)
{
    return {kind, 0x12345671, 258, 2000, content};
}

DtValueBuffer encoded(const DtDatagram& datagram)
{
    DtValueBuffer octets;
    DtEncodeDatagram(datagram, "ex", octets);
    return octets;
}

DtObjectContent vesselContent()
{
    return {
        9, "Vessel.Tug", "Ada", {{"Cargo", octetsOf("coal")}, {"Speed", octetsOf("12")}}
    };
}

DtPage vesselPage()
{
    DtPage page;
    page.from.object = 1;
    page.to.object = 9;
    page.to.attribute = "Speed";
    page.isLast = false;
    page.objects = {
        {2, "Buoy", "", {}},
        vesselContent()
    };
    return page;
}

QString hexOf(const DtValueBuffer& octets)
{
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(octets.data()), static_cast<int>(octets.size())).toHex(' '));
}

using Decoder = std::function<bool(const DtValueBuffer&)>;

template <class Content>
Decoder decoderOf(bool (*decode)(const DtValueBuffer&, Content&))
{
    return [decode](const DtValueBuffer& octets)
    {
        Content content = Content();
        return decode(octets, content);
    };
}

struct ContentForm
{
    const char* name;
    DtValueBuffer octets;
    Decoder decode;
};

std::vector<ContentForm> contentForms()
{
    return {
        {"added",       DtEncodeAdded(vesselContent()),       decoderOf(&DtDecodeAdded)      },
        {"updated",     DtEncodeUpdated(vesselContent()),     decoderOf(&DtDecodeUpdated)    },
        {"removed",     DtEncodeRemoved(vesselContent()),     decoderOf(&DtDecodeRemoved)    },
        {"interaction", DtEncodeInteraction(vesselContent()), decoderOf(&DtDecodeInteraction)},
        {"place",       DtEncodePlace(vesselPage().to),       decoderOf(&DtDecodePlace)      },
    };
}

// Octets as a careless or hostile program would send them: true ones with some changed, cut off, or made up altogether.
DtValueBuffer spoiled(const std::vector<DtValueBuffer>& good, std::mt19937& random)
{
    DtValueBuffer octets = good[random() % good.size()];
    switch (random() % 4)
    {
    case 0:
        octets.resize(random() % (octets.size() + 1));
        break;
    case 1:
        octets.insert(octets.end(), random() % 100, static_cast<unsigned char>(random()));
        break;
    case 2:
        octets.assign(random() % 2000, 0);
        std::generate(octets.begin(), octets.end(), [&] { return static_cast<unsigned char>(random()); });
        break;
    default:
        break;
    }
    for (auto changes = random() % 4; changes > 0 && !octets.empty(); --changes)
        octets[random() % octets.size()] = static_cast<unsigned char>(random() % 3 == 0 ? 0xFF : random());
    return octets;
}
} // namespace

class TestDatagrams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void datagramHasTheFormThatIsTold();
    void datagramComesBackAsItWas();
    void anythingElseIsNoDatagram();
    void contentsComeBackAsTheyWere();
    void contentThatIsShortOrLongIsRefused();
    void pageThatIsCutIsRefused();
    void valuesComeBackAsTheyWere();
    void valuesThatLieAreRefused();
    void spoiledDatagramsDoNoHarm();
    void strangersAreIgnored();
};

void TestDatagrams::datagramHasTheFormThatIsTold()
{
    const DtDatagram datagram = datagramOf(DtDatagram::Removed, DtEncodeRemoved(vesselContent()));
    QCOMPARE(hexOf(encoded(datagram)), QString("51 58 45 58 01 04 02 65 78 12 34 56 71 00 00 01 02 00 00 07 d0 "
                                               "00 00 00 04 00 00 00 09"));
}

void TestDatagrams::datagramComesBackAsItWas()
{
    for (int kind = 0; kind < DtDatagram::theKinds; ++kind)
    {
        const DtDatagram sent = datagramOf(static_cast<DtDatagram::Kind>(kind), octetsOf("content"));
        DtDatagram taken;
        QVERIFY(DtDecodeDatagram(encoded(sent), "ex", taken));
        QVERIFY(taken.kind == sent.kind && taken.content == sent.content);
        QVERIFY(taken.sender == sent.sender && taken.sequence == sent.sequence && taken.heartbeat == sent.heartbeat);
    }
}

void TestDatagrams::anythingElseIsNoDatagram()
{
    const DtValueBuffer good = encoded(datagramOf(DtDatagram::Message, octetsOf("content")));
    DtDatagram taken;
    for (std::size_t length = 0; length < good.size(); ++length)
        QVERIFY(!DtDecodeDatagram(DtValueBuffer(good.begin(), good.begin() + static_cast<int>(length)), "ex", taken));
    DtValueBuffer longer = good;
    longer.push_back(0);
    QVERIFY(!DtDecodeDatagram(longer, "ex", taken));
    for (const char* exercise : {"", "e", "ey", "exx"})
        QVERIFY(!DtDecodeDatagram(good, exercise, taken));
    //                magic, version, kind, length of the name, of the content
    for (std::size_t index : {0, 3, 4, 5, 6, 21, 24})
    {
        DtValueBuffer changed = good;
        changed[index] = static_cast<unsigned char>(changed[index] + 100);
        QVERIFY2(!DtDecodeDatagram(changed, "ex", taken), qPrintable(QString::number(index)));
    }
    QVERIFY(DtDecodeDatagram(good, "ex", taken));
}

void TestDatagrams::contentsComeBackAsTheyWere()
{
    const DtObjectContent sent = vesselContent();
    DtObjectContent taken = DtObjectContent();
    QVERIFY(DtDecodeAdded(DtEncodeAdded(sent), taken));
    QVERIFY(taken.object == 9 && taken.fullClassName == "Vessel.Tug" && taken.name == "Ada" && taken.values.empty());
    taken = DtObjectContent();
    QVERIFY(DtDecodeUpdated(DtEncodeUpdated(sent), taken));
    QVERIFY(taken.object == 9 && taken.values == sent.values && taken.name.empty());
    taken = DtObjectContent();
    QVERIFY(DtDecodeInteraction(DtEncodeInteraction(sent), taken));
    QVERIFY(taken.fullClassName == "Vessel.Tug" && taken.values == sent.values);
    DtPage page;
    QVERIFY(DtDecodePage(DtEncodePage(vesselPage()), page));
    QVERIFY(page.from == vesselPage().from && page.to == vesselPage().to && !page.isLast);
    QCOMPARE(page.objects.size(), std::size_t(2));
    QVERIFY(page.objects[1].name == "Ada" && page.objects[1].values == sent.values);
}

void TestDatagrams::contentThatIsShortOrLongIsRefused()
{
    for (const ContentForm& form : contentForms())
    {
        QVERIFY2(form.decode(form.octets), form.name);
        for (std::size_t length = 0; length < form.octets.size(); ++length)
            QVERIFY2(!form.decode(DtValueBuffer(form.octets.begin(), form.octets.begin() + static_cast<int>(length))),
                     form.name);
        DtValueBuffer longer = form.octets;
        longer.push_back(0);
        QVERIFY2(!form.decode(longer), form.name);
    }
}

// A page may end behind any object, so a cut between two objects leaves a page.
void TestDatagrams::pageThatIsCutIsRefused()
{
    const DtValueBuffer good = DtEncodePage(vesselPage());
    int pages = 0;
    for (std::size_t length = 0; length < good.size(); ++length)
    {
        DtPage page;
        pages += DtDecodePage(DtValueBuffer(good.begin(), good.begin() + static_cast<int>(length)), page) ? 1 : 0;
    }
    QCOMPARE(pages, 2); // without objects, and with the first
}

void TestDatagrams::valuesComeBackAsTheyWere()
{
    const DtAttributeValues sent = {
        {"",               octetsOf("a")},
        {   "b", DtValueBuffer()             },
        { "c",              DtValueBuffer(70000,                           3)}
    };
    for (const DtAttributeValues& values : {DtAttributeValues(), sent})
    {
        DtValueBuffer octets;
        DtEncodeValues(values, octets);
        DtAttributeValues taken = valuesOf("old", "old");
        QVERIFY(DtDecodeValues(octets, taken));
        QVERIFY(taken == values);
    }
}

void TestDatagrams::valuesThatLieAreRefused()
{
    const char* const lies[] = {
        "",
        "00 00 00",
        "00 00 00 01",                                                          // one value, and none there
        "ff ff ff ff 00 00 00 00 00 00 00 00",                                  // four thousand million values
        "00 00 00 00 00",                                                       // something behind the last
        "00 00 00 01 ff ff ff ff 61 00 00 00 00",                               // a name beyond the end
        "00 00 00 01 00 00 00 01 61 00 00 00 02 62",                            // a value beyond the end
        "00 00 00 02 00 00 00 01 61 00 00 00 00 00 00 00 01 61 00 00 00 01 62", // a name twice
    };
    for (const char* lie : lies)
    {
        DtAttributeValues taken = valuesOf("old", "old");
        QVERIFY2(!DtDecodeValues(octetsOf(QByteArray::fromHex(lie).toStdString()), taken), lie);
        QVERIFY2(taken == valuesOf("old", "old"), lie);
    }
}

void TestDatagrams::spoiledDatagramsDoNoHarm()
{
    const unsigned short range = freeRange();
    DtExerciseConn connection("ex", range);
    Recorder others(connection);
    DtUdpPort stranger(range);
    std::vector<DtValueBuffer> good;
    for (const ContentForm& form : contentForms())
        for (int kind = 0; kind < DtDatagram::theKinds; ++kind)
            good.push_back(encoded(datagramOf(static_cast<DtDatagram::Kind>(kind), form.octets)));
    good.push_back(encoded(datagramOf(DtDatagram::Page, DtEncodePage(vesselPage()))));
    std::mt19937 random(4);
    for (int count = 0; count < 20000; ++count)
    {
        stranger.send(0, spoiled(good, random));
        if (count % 50 == 0)
            connection.drainInput();
    }
    connection.drainInput();
    DtExerciseConn owner("ex", range);
    owner.addObject("Vessel", "Zoe");
    QVERIFY(runUntil({&connection, &owner}, [&] { return others.lines.contains("+ Zoe"); }));
}

// From a port outside the sixteen, and under the number of another port.
void TestDatagrams::strangersAreIgnored()
{
    const unsigned short range = freeRange();
    DtExerciseConn connection("ex", range);
    Recorder others(connection);
    DtUdpPort outside(static_cast<unsigned short>(range + DtUdpPort::theSlots + 1));
    DtUdpPort inside(range);
    QVERIFY(outside.isOpen());
    QCOMPARE(outside.slot(), 0);
    QCOMPARE(inside.slot(), 1);
    DtDatagram datagram = datagramOf(DtDatagram::Added, DtEncodeAdded(vesselContent()));
    outside.send(-(outside.port() - range), encoded(datagram));
    datagram.sender = 0x12345672;
    inside.send(0, encoded(datagram));
    runFor({&connection}, 30);
    QCOMPARE(others.lines, QStringList());
    datagram.sender = 0x12345671;
    inside.send(0, encoded(datagram));
    QVERIFY(runUntil({&connection}, [&] { return others.lines == QStringList("+ Ada"); }));
}

QX_REGISTER_TEST(TestDatagrams)
#include "testDatagrams.moc"
