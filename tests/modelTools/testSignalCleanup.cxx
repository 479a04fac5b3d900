#include "modelTools/signalCleanup.h"
#include "modelTools/signalHold.h"
#include "modelToolsTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
// Writes a letter in place of removing something.
class DtWritten : public DtSignalCleanup
{
public:
    explicit DtWritten(char letter) : myLetter(letter) { arm(); }
    using DtSignalCleanup::arm;
    using DtSignalCleanup::disarm;

private:
    void cleanUp() override { static_cast<void>(!write(STDOUT_FILENO, &myLetter, 1)); }

    char myLetter;
};

DtChildResult endOf(int signal, const std::function<void()>& function)
{
    return runInChild(
        [signal, &function]
        {
            useDefaultSignals();
            DtSignalCleanup::install();
            const DtWritten first('1');
            function();
            kill(getpid(), signal);
            std::_Exit(7);
        });
}
} // namespace

class TestSignalCleanup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signalCleansUpTheNewestFirstAndEndsTheProcess_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("INT") << SIGINT;
        QTest::newRow("TERM") << SIGTERM;
    }
    void signalCleansUpTheNewestFirstAndEndsTheProcess()
    {
        QFETCH(int, signal);
        const DtChildResult result = endOf(signal,
                                           [signal]
                                           {
                                               const DtWritten second('2');
                                               kill(getpid(), signal);
                                               std::_Exit(7);
                                           });
        QCOMPARE(result.output, QByteArray("21"));
        QCOMPARE(result.signal, signal);
    }

    void whatIsGoneOrDisarmedIsNotCleanedUp()
    {
        const auto change = []
        {
            DtWritten second('2');
            const DtWritten third('3');
            second.disarm();
            second.disarm();
            DtWritten fourth('4');
            fourth.arm();
            kill(getpid(), SIGTERM);
        };
        QCOMPARE(endOf(SIGTERM, change).output, QByteArray("431"));
        QCOMPARE(endOf(SIGTERM, [] { const DtWritten second('2'); }).output, QByteArray("1"));
    }

    void heldSignalCleansUpAtTheEnd()
    {
        const DtChildResult result = endOf(SIGTERM,
                                           []
                                           {
                                               const DtSignalHold hold;
                                               const DtWritten second('2');
                                               kill(getpid(), SIGTERM);
                                           });
        QCOMPARE(result.output, QByteArray("1")); // the second one is gone by then
        QCOMPARE(result.signal, SIGTERM);
    }

    void ignoredSignalStaysIgnored()
    {
        const DtChildResult result = runInChild(
            []
            {
                useDefaultSignals();
                std::signal(SIGINT, SIG_IGN);
                DtSignalCleanup::install();
                const DtWritten first('1');
                kill(getpid(), SIGINT);
                std::_Exit(7);
            });
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.exitCode, 7);
    }
};

QX_REGISTER_TEST(TestSignalCleanup)
#include "testSignalCleanup.moc"
