#include "fileGenerator/relativePath.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestRelativePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyNamesBelowTheDirectoryStay_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("stays");
        QTest::newRow("plain name") << ""
                                    << "a.h" << true;
        QTest::newRow("empty name") << ""
                                    << "" << true;
        QTest::newRow("dots inside a name") << ""
                                            << "a..b/c" << true;
        QTest::newRow("back to the directory") << ""
                                               << "a/.." << true;
        QTest::newRow("directory above") << ""
                                         << ".." << false;
        QTest::newRow("beside the directory") << ""
                                              << "a/../../b" << false;
        QTest::newRow("absolute name") << ""
                                       << "/a" << false;
        QTest::newRow("below an output directory") << "out/"
                                                   << "a/../b" << true;
        QTest::newRow("above an output directory") << "out/"
                                                   << "../b" << false;
        QTest::newRow("around and back") << "out/"
                                         << "../out/b" << true;
        QTest::newRow("beside by a common front") << "out/"
                                                  << "../outer/b" << false;
        QTest::newRow("absolute behind a separator") << "out/"
                                                     << "/a" << false;
        QTest::newRow("prefix of names") << "out/pre"
                                         << "/a" << true;
        QTest::newRow("prefix and above") << "out/pre"
                                          << "/../../a" << false;
        QTest::newRow("output directory above") << "../out/"
                                                << "a" << true;
        QTest::newRow("above one that is above") << "../out/"
                                                 << "../a" << false;
        QTest::newRow("root") << "/"
                              << "a/../b" << true;
    }

    void onlyNamesBelowTheDirectoryStay()
    {
        QFETCH(QString, directory);
        QFETCH(QString, name);
        QFETCH(bool, stays);
        QCOMPARE(staysBelow(qPrintable(name), qPrintable(directory)), stays);
    }
};

QX_REGISTER_TEST(TestRelativePath)
#include "testRelativePath.moc"
