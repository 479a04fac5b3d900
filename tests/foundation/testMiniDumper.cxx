#include "foundation/miniDumper.h"
#include "foundationTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestMiniDumper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsAndTakesTheDefaultAction_data();
    void reportsAndTakesTheDefaultAction();
    void reportsAStackOverflow();
    void writesAFrameALine();
};

namespace
{
void installHandler()
{
    DtMiniDumper::myApplicationName = "CodeGen";
    if (!DtMiniDumper::installSignalStack())
        std::exit(99);
    struct sigaction action = {};
    action.sa_sigaction = DtMiniDumper::printCallStack;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE})
        sigaction(signal, &action, nullptr);
}

int overflowStack(volatile int depth)
{
    volatile char block[4096];
    block[0] = static_cast<char>(depth);
    return depth < 0 ? 0 : overflowStack(depth + 1) + block[0];
}
} // namespace

void TestMiniDumper::reportsAndTakesTheDefaultAction_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QByteArray>("text");
    const struct
    {
        const char* name;
        int signal;
        QByteArray text;
    } theRows[] = {
        {"segmentation fault", SIGSEGV, "CodeGen: caught signal 11 (SIGSEGV, segmentation fault)\n"},
        {"abort",              SIGABRT, "CodeGen: caught signal 6 (SIGABRT, aborted)\n"            },
        {"arithmetic",         SIGFPE,  "CodeGen: caught signal 8 (SIGFPE, arithmetic exception)\n"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.signal << row.text;
}

void TestMiniDumper::reportsAndTakesTheDefaultAction()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, text);
    const DtChildResult result = runInChild(
        [signal]
        {
            installHandler();
            raise(signal);
            std::exit(7); // the handler must not come back here
        });
    QVERIFY(!result.hasExited);
    QCOMPARE(result.signal, signal);
    QVERIFY2(result.errors.startsWith(text), result.errors.constData());
}

void TestMiniDumper::reportsAStackOverflow()
{
    const DtChildResult result = runInChild(
        []
        {
            const rlimit limit = {4 * 1024 * 1024, 4 * 1024 * 1024};
            setrlimit(RLIMIT_STACK, &limit);
            installHandler();
            std::exit(overflowStack(0));
        });
    QCOMPARE(result.signal, SIGSEGV);
    QVERIFY2(result.errors.startsWith("CodeGen: caught signal 11"), result.errors.constData());
    QVERIFY(result.errors.count('\n') > 5);
}

void TestMiniDumper::writesAFrameALine()
{
    const DtChildResult result = runInChild(
        []
        {
            installHandler();
            raise(SIGABRT);
        });
    const QList<QByteArray> lines = result.errors.split('\n');
    QVERIFY2(lines.size() > 4, result.errors.constData());
    QCOMPARE(lines[1], QByteArray("Call stack:"));
    for (const QByteArray& line : lines.mid(2, 3))
        QVERIFY2(line.contains("[0x"), line.constData());
}

QX_REGISTER_TEST(TestMiniDumper)
#include "testMiniDumper.moc"
