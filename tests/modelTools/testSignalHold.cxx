#include "modelTools/signalHold.h"
#include "modelToolsTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestSignalHold : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void heldSignalTakesEffectAtTheEnd_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("INT") << SIGINT;
        QTest::newRow("TERM") << SIGTERM;
    }

    void heldSignalTakesEffectAtTheEnd()
    {
        QFETCH(int, signal);
        const DtChildResult result = runInChild(
            [signal]
            {
                useDefaultSignals();
                {
                    const DtSignalHold hold;
                    kill(getpid(), signal);
                    std::puts("inside");
                    std::fflush(nullptr);
                }
                std::puts("behind");
            });
        QCOMPARE(result.output, QByteArray("inside\n"));
        QCOMPARE(result.signal, signal);
    }

    void innerHoldDoesNotEndTheOuter()
    {
        const DtChildResult result = runInChild(
            []
            {
                useDefaultSignals();
                const DtSignalHold outer;
                kill(getpid(), SIGTERM);
                {
                    const DtSignalHold inner;
                }
                std::puts("inside");
                std::fflush(nullptr);
            });
        QCOMPARE(result.output, QByteArray("inside\n"));
        QCOMPARE(result.signal, SIGTERM);
    }

    void ignoredSignalStaysIgnored()
    {
        const DtChildResult result = runInChild(
            []
            {
                useDefaultSignals();
                std::signal(SIGINT, SIG_IGN);
                {
                    const DtSignalHold hold;
                    kill(getpid(), SIGINT);
                }
                std::exit(7);
            });
        QCOMPARE(result.exitCode, 7);
    }

    void otherSignalsAreNotHeld()
    {
        const DtChildResult result = runInChild(
            []
            {
                useDefaultSignals();
                const DtSignalHold hold;
                kill(getpid(), SIGHUP);
                std::puts("behind");
            });
        QCOMPARE(result.signal, SIGHUP);
        QCOMPARE(result.output, QByteArray());
    }
};

QX_REGISTER_TEST(TestSignalHold)
#include "testSignalHold.moc"
