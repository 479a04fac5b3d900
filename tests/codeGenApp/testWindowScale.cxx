// Large models, and many of them one after the other.

#include "registerTest.h"

#include "windowFixture.h"

#include <malloc.h>

namespace
{
constexpr int theLimit = 2000; // milliseconds for an operation on ten thousand classes
#if defined(__SANITIZE_ADDRESS__)
constexpr int theSlowness = 10; // of a program that watches its memory
#else
constexpr int theSlowness = 1;
#endif

// Processor time of this thread, which other programs on the machine do not lengthen.
class DtStopWatch
{
public:
    DtStopWatch() : myStart(now()) {}
    qint64 milliseconds() const { return now() - myStart; }

private:
    static qint64 now()
    {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
    }
    qint64 myStart;
};

// The lesser of two rounds.
template <typename Prepare, typename Operation>
qint64 costOf(Prepare prepare, Operation operation)
{
    qint64 least = std::numeric_limits<qint64>::max();
    for (int round = 0; round < 2; ++round)
    {
        prepare();
        const DtStopWatch watch;
        operation();
        least = qMin(least, watch.milliseconds());
    }
    return least;
}

// As many classes below the root.
QByteArray siblings(int count)
{
    QByteArray text;
    for (int index = 0; index < count; ++index)
        text += objectText("Class" + QByteArray::number(index), attributeText("A"));
    return text;
}

// A hundred branches with as many classes each; all branches have classes of the same names.
QByteArray branches(int count)
{
    QByteArray text;
    for (int index = 0; index < 100; ++index)
        text += objectText("Branch" + QByteArray::number(index), siblings(count));
    return text;
}

qint64 heapInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return 0; // its allocator does not tell
#else
    return static_cast<qint64>(mallinfo2().uordblks);
#endif
}
} // namespace

class TestWindowScale : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    static bool isQuick(const char* what, qint64 cost)
    {
        qInfo("%s: %lld ms", what, static_cast<long long>(cost));
        return cost < theLimit * theSlowness;
    }
    int importCost(const QByteArray& objects) const
    {
        const DtString model = myProgram->model("m.xml", moduleText(objects));
        return static_cast<int>(costOf([this] { newProject(); },
                                       [this, &model]
                                       {
                                           QCOMPARE(myWindow->loadFile(model, ""), 1);
                                           QCoreApplication::processEvents();
                                       }));
    }
    void newProject() const
    {
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(bytes("models/p.qxproj")));
    }
    void removeAll() const
    {
        right().selectAll();
        myWindow->removeSelectedItems();
        QVERIFY(myWindow->omtProject()->getObjects().empty());
    }
    int addAllCost() const
    {
        return static_cast<int>(costOf([this] { removeAll(); },
                                       [this]
                                       {
                                           myWindow->addAllObjectInteractions();
                                           QCoreApplication::processEvents();
                                       }));
    }
    // Load, close, load another model, select, generate.
    void workOnce() const
    {
        loadModel(objectText("Barge", attributeText("Speed") + objectText("Ferry")), interactionText("Horn"));
        myWindow->addAllObjectInteractions();
        myWindow->saveOmtProject();
        myWindow->closeOpenFiles();
        newProject();
        const DtString other = myProgram->model("b.xml", moduleText(objectText("Tug", attributeText("Power")),
                                                                    interactionText("Flare", parameterText("Hue"))));
        QCOMPARE(myWindow->loadFile(other, ""), 1);
        myWindow->addAllObjectInteractions();
        myWindow->setOutputDirectory(path("out/"));
        myWindow->generateAllFiles();
        QVERIFY(QFile::exists(path("out/cpp\\Makefile")));
        myWindow->loadOmtProject(myWindow->projectFile());
        QVERIFY(myWindow->isValidProject());
        QCOMPARE(printList(right()), QString("Objects\n Tug\nInteractions\n Flare\n"));
        QDir(path("out")).removeRecursively();
    }

private Q_SLOTS:
    void init()
    {
        open();
        show();
    }
    void cleanup() { close(); }

    void tenThousandClassesComeQuickly()
    {
        QVERIFY(isQuick("import", importCost(branches(99))));
        QCOMPARE(itemOf(left(), "Objects")->childCount(), 100);
        QVERIFY(isQuick("add all", addAllCost()));
        QCOMPARE(int(myWindow->omtProject()->getObjects().size()), 10000);
        QCOMPARE(printList(right()), printList(left()));
        left().setFocus();
        QVERIFY(isQuick("select all", costOf([this] { left().clearSelection(); },
                                             [this] { myWindow->selectAllObjectsInteractions(); })));
        QVERIFY(isQuick("add again", costOf([] {}, [this] { myWindow->addSelectedItems(); })));
        QVERIFY(isQuick("load project", costOf([this] { myWindow->saveOmtProject(); },
                                               [this] { myWindow->loadOmtProject(myWindow->projectFile()); })));
        QCOMPARE(printList(right()), printList(left()).remove("Interactions\n"));
        QVERIFY(
            isQuick("remove all", costOf([this] { myWindow->addAllObjectInteractions(); }, [this] { removeAll(); })));
    }

    void scrollingAndFindingKeepUp()
    {
        loadModel(branches(99));
        QScrollBar& bar = *left().verticalScrollBar();
        const qint64 scrolling = costOf([] {},
                                        [&]
                                        {
                                            for (int step = 0; step < 60; ++step)
                                            {
                                                bar.setValue(bar.maximum() * step / 60);
                                                left().viewport()->repaint();
                                            }
                                        });
        qInfo("60 steps of scrolling: %lld ms", static_cast<long long>(scrolling));
        QVERIFY(scrolling < 1000 * theSlowness); // sixty pictures a second
        QTest::keyClick(&left(), Qt::Key_F, Qt::ControlModifier);
        QLineEdit* const text = myWindow->findChild<QLineEdit*>();
        QVERIFY(text != nullptr);
        QVERIFY(isQuick("find", costOf([text] { text->clear(); },
                                       [text]
                                       {
                                           text->setText("Class7");
                                           QCoreApplication::processEvents();
                                       })));
    }

    // Twice as many classes at one place may take twice as long, and not four times.
    void siblingsCostNoMoreThanTheirNumber()
    {
        const int importOfHalf = importCost(siblings(10000));
        const int addingOfHalf = addAllCost();
        const int importOfAll = importCost(siblings(20000));
        const int addingOfAll = addAllCost();
        qInfo("10,000 and 20,000 siblings: import %d and %d ms, add all %d and %d ms", importOfHalf, importOfAll,
              addingOfHalf, addingOfAll);
        QVERIFY(importOfAll < 3 * importOfHalf + 50);
        QVERIFY(addingOfAll < 3 * addingOfHalf + 50);
        QCOMPARE(itemOf(right(), "Objects")->childCount(), 20000);
        QCOMPARE(itemOf(right(), "Objects")->child(19999)->text(0), QString("Class19999"));
    }

    void siblingsOfOneNameStandOnceOnTheRight()
    {
        loadModel(objectText("Same") + objectText("Same", objectText("Sub")) + objectText("Other"));
        myWindow->addAllObjectInteractions();
        QCOMPARE(printList(right()).count("Same"), 1);
    }

    // What a run keeps is bounded: the tables of the mapper and of the templates are filled once. The first rounds
    // fill them; from then on the heap stays as it is.
    void twentyRoundsInOneProcessKeepNoMemory()
    {
        qint64 settled = 0;
        for (int round = 0; round < 20; ++round)
        {
            workOnce();
            if (round == 9)
                settled = heapInUse();
        }
        const qint64 growth = heapInUse() - settled;
        qInfo("heap after 10 rounds %lld bytes, growth by 10 more %lld bytes", static_cast<long long>(settled),
              static_cast<long long>(growth));
        QVERIFY(growth < 512 * 1024);
    }
};

QX_REGISTER_TEST(TestWindowScale)
#include "testWindowScale.moc"
