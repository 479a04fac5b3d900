#include "foundation/assertion.h"
#include "foundation/exception.h"
#include "foundationTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <sstream>

class TestException : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messageStandsBehindTheClassName();
    void placeIsFunctionFileAndLine();
    void throwMacroNamesItsPlace();
    void isAStandardException();
    void chainRunsFromNewestToOldest();
    void chainOutlivesWhatItWasMadeFrom();
    void streamWritesOneExceptionALine();
    void templatedExceptionsDifferByType();
    void failedAssertionReportsAndAborts();
    void failedAssertionCanHaveGivenWords();
    void heldAssertionDoesNothing();
};

namespace
{
QByteArray printed(const DtException& exception)
{
    std::ostringstream out;
    out << exception;
    return QByteArray::fromStdString(out.str());
}
} // namespace

void TestException::messageStandsBehindTheClassName()
{
    const DtException exception("wrong order");
    QCOMPARE(exception.what(), "DtException: wrong order");
    COMPARE_TEXT(exception.message(), "DtException: wrong order");
    QVERIFY(exception.where().isEmpty());
    QVERIFY(exception.previous() == nullptr);
}

void TestException::placeIsFunctionFileAndLine()
{
    const DtException exception("text", "void f(int)", "libsrc/x/file.cxx", 45);
    COMPARE_TEXT(exception.where(), "void f(int) [file.cxx:45]");
    QCOMPARE(exception.what(), "DtException: text");
}

void TestException::throwMacroNamesItsPlace()
{
    const int line = __LINE__ + 3;
    try
    {
        DT_THROW("text");
    }
    catch (const DtException& exception)
    {
        const QByteArray where(exception.where().c_str());
        QVERIFY2(where.contains("TestException::throwMacroNamesItsPlace()"), where.constData());
        QVERIFY2(where.endsWith(" [testException.cxx:" + QByteArray::number(line) + "]"), where.constData());
        return;
    }
    QFAIL("nothing was thrown");
}

void TestException::isAStandardException()
{
    QVERIFY_EXCEPTION_THROWN(DT_THROW("text"), std::exception);
}

void TestException::chainRunsFromNewestToOldest()
{
    const DtException oldest("oldest");
    const DtException middle("middle", &oldest);
    const DtException newest("newest", "f()", "a.cxx", 1, &middle);
    COMPARE_TEXT(newest.initialException().message(), "DtException: oldest");
    COMPARE_TEXT(newest.lastException().message(), "DtException: newest");
    COMPARE_TEXT(newest.previous()->message(), "DtException: middle");
    QVERIFY(&oldest.initialException() == &oldest);
    QVERIFY(&oldest.lastException() == &oldest);
}

void TestException::chainOutlivesWhatItWasMadeFrom()
{
    auto oldest = std::make_unique<DtException>("oldest");
    const DtException newest("newest", oldest.get());
    oldest.reset();
    const DtException copy(newest);
    COMPARE_TEXT(copy.initialException().message(), "DtException: oldest");
}

void TestException::streamWritesOneExceptionALine()
{
    const DtException oldest("oldest");
    const DtException newest("newest", "f()", "a.cxx", 1, &oldest);
    QCOMPARE(printed(newest), QByteArray("DtException: newest f() [a.cxx:1]\nDtException: oldest\n"));
}

void TestException::templatedExceptionsDifferByType()
{
    QCOMPARE(DtTemplatedException<-2>::code(), -2);
    try
    {
        throw DtTemplatedException<-2>("text", "f()", "a.cxx", 7);
    }
    catch (const DtTemplatedException<3>&)
    {
        QFAIL("caught as another code");
    }
    catch (const DtException& exception)
    {
        QCOMPARE(printed(exception), QByteArray("DtException: text f() [a.cxx:7]\n"));
        QVERIFY(dynamic_cast<const DtTemplatedException<-2>*>(&exception) != nullptr);
    }
}

void TestException::failedAssertionReportsAndAborts()
{
    const int line = __LINE__ + 1;
    const DtChildResult result = runInChild([] { DT_ASSERT(1 + 1 == 3); });
    QCOMPARE(result.signal, SIGABRT);
    QVERIFY2(result.errors.contains("testException.cxx:" + QByteArray::number(line) + ": "), result.errors.constData());
    QVERIFY2(result.errors.endsWith(": Assertion `1 + 1 == 3' failed.\n"), result.errors.constData());
}

void TestException::failedAssertionCanHaveGivenWords()
{
    const DtChildResult result = runInChild([] { DT_ASSERT_AS(false, "list != NULL", "lib/file", 432, "void f()"); });
    QCOMPARE(result.signal, SIGABRT);
    QCOMPARE(result.errors, QByteArray("lib/file:432: void f(): Assertion `list != NULL' failed.\n"));
}

void TestException::heldAssertionDoesNothing()
{
    int evaluated = 0;
    DT_ASSERT(++evaluated == 1);
    QCOMPARE(evaluated, 1);
}

QX_REGISTER_TEST(TestException)
#include "testException.moc"
