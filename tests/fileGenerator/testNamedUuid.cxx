#include "fileGenerator/namedUuid.h"
#include "fileGenerator/omtObject.h"
#include "fileGenerator/settings.h"
#include "registerTest.h"

#include <QtTest/QtTest>

// The expected identifiers were worked out with Python's uuid5.
class TestNamedUuid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameGivesAnIdentifierOfVersion5_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("uuid");
        QTest::newRow("class") << "HLAobjectRoot.Car#1"
                               << "f0133498-4e9e-5b52-94f9-20586d23b0a1";
        QTest::newRow("empty") << ""
                               << "6f23ad8c-4018-52fc-87d6-fe5a76a01319";
        QTest::newRow("UTF-8") << QString::fromUtf8("Gr\xc3\xbc\xc3\x9f"
                                                    "e")
                               << "ef756619-9246-5eff-afa8-82549075fc65";
    }
    void nameGivesAnIdentifierOfVersion5()
    {
        QFETCH(QString, name);
        QFETCH(QString, uuid);
        QCOMPARE(QString(DtNamedUuid(name.toUtf8().constData()).c_str()), uuid);
    }

    void recordHasNamedIdentifiersWhereTheSettingsSaySo()
    {
        const DtRunScope scope;
        DtSettings::instance().files.makesNamedUuids = true;
        DtOmtObject car;
        car.setFullName("HLAobjectRoot.Car");
        QCOMPARE(QString(car.uuid(1).c_str()), QString("f0133498-4e9e-5b52-94f9-20586d23b0a1"));
        QVERIFY(!(car.uuid(0) == car.uuid(1)));
        DtOmtObject other;
        other.setFullName("HLAobjectRoot.Car");
        QCOMPARE(QString(other.uuid(1).c_str()), QString(car.uuid(1).c_str()));
    }

    void recordHasRandomIdentifiersOtherwise()
    {
        const DtRunScope scope;
        DtOmtObject car;
        car.setFullName("HLAobjectRoot.Car");
        DtOmtObject other;
        other.setFullName("HLAobjectRoot.Car");
        QVERIFY(!(car.uuid(1) == other.uuid(1)));
    }

    void copiesShareTheIdentifiersThatWereThere()
    {
        const DtRunScope scope;
        DtOmtObject car;
        car.setFullName("HLAobjectRoot.Car");
        const QString first(car.uuid(0).c_str());
        const DtOmtObject copy = car;
        QCOMPARE(QString(copy.uuid(0).c_str()), first);
        const QString own(copy.uuid(1).c_str());
        QVERIFY(own != QString(car.uuid(1).c_str()));
        QCOMPARE(QString(copy.uuid(1).c_str()), own);
        QCOMPARE(QString(car.uuid(0).c_str()), first);
    }
};

QX_REGISTER_TEST(TestNamedUuid)
#include "testNamedUuid.moc"
