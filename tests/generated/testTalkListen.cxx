// The examples of one object class and one interaction of the sample, built by their own makefiles and run as two
// processes. In the full run those of the large model are built too.

#include "registerTest.h"

#include "builtOutput.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
constexpr int thePortCount = 16; // as many as an exercise takes

// A datagram socket of the loopback address; it closes when this goes.
class BoundPort
{
public:
    explicit BoundPort(int port) : mySocket(::socket(AF_INET, SOCK_DGRAM, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        myIsOpen = ::bind(mySocket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }
    ~BoundPort() { ::close(mySocket); }
    BoundPort(const BoundPort&) = delete;
    BoundPort& operator=(const BoundPort&) = delete;

    bool isOpen() const { return myIsOpen; }

private:
    int mySocket;
    bool myIsOpen = false;
};

bool isWholeRangeFree(int first)
{
    for (int slot = 0; slot < thePortCount; ++slot)
        if (!BoundPort(first + slot).isOpen())
            return false;
    return true;
}

// The first of sixteen free ports, below those that the system hands out.
int freeRange()
{
    static qint64 theNext = QCoreApplication::applicationPid() * 41;
    for (int tries = 0; tries < 1200; ++tries)
    {
        const int first = 12000 + static_cast<int>(theNext++ % 1200) * thePortCount;
        if (isWholeRangeFree(first))
            return first;
    }
    return 0;
}

// Waits for a program to take the first port of its range: from then on nothing that is sent to it is lost.
bool isTaken(int port)
{
    return QTest::qWaitFor([port] { return !BoundPort(port).isOpen(); }, 10000);
}

// A program that is gone when this goes, one way or the other.
class Program
{
public:
    Program(const QString& directory, const QString& name, const QStringList& arguments)
    {
        myProcess.setWorkingDirectory(directory);
        myProcess.setProcessChannelMode(QProcess::MergedChannels);
        myProcess.start(directory + "/" + name, arguments);
    }
    ~Program()
    {
        myProcess.kill();
        myProcess.waitForFinished();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool ends() { return myProcess.waitForFinished(15000) && myProcess.exitStatus() == QProcess::NormalExit; }
    int exitCode() const { return myProcess.exitCode(); }
    QStringList lines() { return QString::fromUtf8(myOutput += myProcess.readAll()).split('\n', Qt::SkipEmptyParts); }

private:
    QProcess myProcess;
    QByteArray myOutput;
};

// The values that the updates or interactions brought, by the names of the model, each list in order; of a value over
// several lines the first.
QMap<QString, QStringList> valuesOf(const QStringList& lines)
{
    static const QRegularExpression theValue("^    (\\S[^:]*): (.*)$");
    QMap<QString, QStringList> values;
    for (const QString& line : lines)
    {
        const QRegularExpressionMatch match = theValue.match(line);
        if (match.hasMatch())
            values[match.captured(1)] += match.captured(2);
    }
    return values;
}

DtRunChoice smallChoice()
{
    DtRunChoice choice;
    choice.dis = true;
    choice.objects = {"HLAobjectRoot.PortEntity", "HLAobjectRoot.PortEntity.Vessel"};
    choice.interactions = {"HLAinteractionRoot.Radio", "HLAinteractionRoot.Radio.Order"};
    return choice;
}
} // namespace

class TestTalkListen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void objectIsSeenFromDiscoveryToRemoval_data();
    void objectIsSeenFromDiscoveryToRemoval();
    void objectIsSeenByOneWhoComesLate();
    void interactionsAreHeard();
    void listenerWithoutATalkerEndsByItself_data();
    void listenerWithoutATalkerEndsByItself();
    void programsSayThatNoPortIsFree();
    void examplesOfTheLargeModelLink();
    void cleanupTestCase() { myOutput.reset(); }

private:
    QString directory(const char* name) const { return myOutput->path("cpp\\Examples/" + QString(name)); }

    std::unique_ptr<DtBuiltOutput> myOutput;
};

// Each of the two makefiles builds the libraries first if they do not stand, and no program of another class.
void TestTalkListen::initTestCase()
{
    myOutput = std::make_unique<DtBuiltOutput>(smallChoice());
    myOutput->generate({myOutput->program().sampleModel()});
    for (const char* name : {"Vessel", "OrderInter"})
    {
        const DtProgramRun run = myOutput->make({}, "cpp\\Examples/" + QString(name));
        QVERIFY2(run.exitCode == 0, qPrintable(run.output));
    }
    QVERIFY(!QFile::exists(directory("PortEntity") + "/talk"));
}

void TestTalkListen::objectIsSeenFromDiscoveryToRemoval_data()
{
    QTest::addColumn<QString>("talk");
    QTest::addColumn<QString>("listen");
    QTest::newRow("HLA") << "talk"
                         << "listen";
    QTest::newRow("DIS") << "talkDIS"
                         << "listenDIS";
}

void TestTalkListen::objectIsSeenFromDiscoveryToRemoval()
{
    QFETCH(QString, talk);
    QFETCH(QString, listen);
    const int range = freeRange();
    const QString port = QString::number(range);
    Program listener(directory("Vessel"), listen, {port, "12"});
    QVERIFY(isTaken(range));
    Program talker(directory("Vessel"), talk, {port, "3"});
    QVERIFY(talker.ends() && listener.ends());
    QCOMPARE(talker.lines(), QStringList());
    QCOMPARE(talker.exitCode(), 0);
    QCOMPARE(listener.exitCode(), 0);

    const QStringList lines = listener.lines();
    QCOMPARE(lines.first(), QString("discovered: A Vessel"));
    QCOMPARE(lines.count("discovered: A Vessel"), 1);
    QVERIFY2(lines.count("updated: A Vessel") >= 2, qPrintable(lines.join('\n')));
    QCOMPARE(lines.last(), QString("removed: A Vessel"));
    const QMap<QString, QStringList> values = valuesOf(lines);
    QCOMPARE(values["Speed"].last(), QString("9.02"));
    QCOMPARE(values["Heading-True"].last(), QString("9.02"));
    QCOMPARE(values["State"].last(), QString("Aground/Sunk (2)"));
    QCOMPARE(values["class"].last(), QString("\"_class 2\""));
    QCOMPARE(values["int"].last(), QString("34"));
    QCOMPARE(values["Template"].last(), QString("class (2)"));
    QCOMPARE(values["Crew"].last(), QString("[{ FullName: \"sample 2\", Age: 35, Height#cm: 36 }]"));
    QCOMPARE(values["Position"].last(), QString("{ Latitude: 3.5, Longitude: 4.5, Height: 5.5 }"));
    QVERIFY(values["Speed"].contains("8.02"));
    QVERIFY(values["State"].contains("Under-Way (1)"));
    QCOMPARE(values.size(), 10); // three of them inherited
}

void TestTalkListen::objectIsSeenByOneWhoComesLate()
{
    const QString port = QString::number(freeRange());
    Program talker(directory("Vessel"), "talk", {port, "8"});
    QTest::qWait(1200);
    Program listener(directory("Vessel"), "listen", {port, "12"});
    QVERIFY(talker.ends() && listener.ends());
    QCOMPARE(listener.lines().first(), QString("discovered: A Vessel"));
    QCOMPARE(listener.lines().last(), QString("removed: A Vessel"));
    QCOMPARE(valuesOf(listener.lines())["Speed"].last(), QString("14.02"));
}

void TestTalkListen::interactionsAreHeard()
{
    const int range = freeRange();
    const QString port = QString::number(range);
    Program listener(directory("OrderInter"), "listen", {port, "5"});
    QVERIFY(isTaken(range));
    Program talker(directory("OrderInter"), "talk", {port, "4"});
    QVERIFY(talker.ends() && listener.ends());
    QCOMPARE(talker.lines(), QStringList());
    QCOMPARE(talker.exitCode(), 0);
    QCOMPARE(listener.exitCode(), 0);
    const QStringList lines = listener.lines();
    QVERIFY2(lines.count("received: Radio.Order") >= 3, qPrintable(lines.join('\n')));
    const QMap<QString, QStringList> values = valuesOf(lines);
    QCOMPARE(values["register"].last(), QString("35"));
    QVERIFY(values["register"].contains("34"));
    QCOMPARE(values["Urgency"].size(), values["register"].size());
    QCOMPARE(values["Text"].last(), QString("\"Text 3\""));
    QCOMPARE(values.size(), 4); // two of them inherited
}

void TestTalkListen::listenerWithoutATalkerEndsByItself_data()
{
    QTest::addColumn<QString>("example");
    QTest::newRow("object") << "Vessel";
    QTest::newRow("interaction") << "OrderInter";
}

void TestTalkListen::listenerWithoutATalkerEndsByItself()
{
    QFETCH(QString, example);
    Program listener(directory(qPrintable(example)), "listen", {QString::number(freeRange()), "0.5"});
    QVERIFY(listener.ends());
    QCOMPARE(listener.exitCode(), 1);
    QCOMPARE(listener.lines(), QStringList());
}

void TestTalkListen::programsSayThatNoPortIsFree()
{
    const int port = freeRange();
    std::vector<std::unique_ptr<BoundPort>> all;
    for (int slot = 0; slot < thePortCount; ++slot)
        all.push_back(std::make_unique<BoundPort>(port + slot));
    for (const char* example : {"Vessel", "OrderInter"})
        for (const char* name : {"talk", "listen"})
        {
            Program program(directory(example), name, {QString::number(port), "1"});
            QVERIFY(program.ends());
            QCOMPARE(program.exitCode(), 1);
            QCOMPARE(program.lines(),
                     QStringList(QString("%1: none of the ports from %2 on is free").arg(name).arg(port)));
        }
}

void TestTalkListen::examplesOfTheLargeModelLink()
{
    const QStringList modules = largeModel();
    if (modules.isEmpty() || !qEnvironmentVariableIsSet("QX_FULL"))
        QSKIP("Left to the full run, which sets QX_FULL and has the large model.");
    DtRunChoice choice;
    choice.dis = true;
    DtBuiltOutput output(choice);
    std::vector<DtString> models;
    for (const QString& module : modules)
        models.push_back(output.program().copiedModel(module));
    output.generate(models);
    const DtProgramRun run = output.make({});
    QVERIFY2(run.exitCode == 0, qPrintable(run.output.right(4000)));
    const QDir examples(output.path("cpp\\Examples"));
    const QStringList classes = examples.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY2(classes.contains("Aircraft") && classes.contains("WeaponFireInter"), qPrintable(classes.join(" ")));
    QStringList missing;
    for (const QString& name : classes)
        for (const char* program : {"talk", "listen", "talkDIS", "listenDIS"})
            if (!(name.endsWith("Inter") && QString(program).endsWith("DIS")) && // interactions are sent by HLA alone
                !QFileInfo(examples.filePath(name + "/" + program)).isExecutable())
                missing += name + "/" + program;
    QCOMPARE(missing, QStringList());
    qInfo("The programs of %d classes link.", int(classes.size()));
}

QX_REGISTER_TEST(TestTalkListen)
#include "testTalkListen.moc"
