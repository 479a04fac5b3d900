#ifndef TESTS_REGISTER_TEST_H
#define TESTS_REGISTER_TEST_H

#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <map>
#include <memory>

// The test classes of one program by name. A test file ends with
//     QX_REGISTER_TEST(TestString)
//     #include "testString.moc"
using DtTestMaker = std::function<std::unique_ptr<QObject>()>;
std::map<QString, DtTestMaker>& testMakers();

#define QX_REGISTER_TEST(Class)                                                                                        \
    static const bool theRegistration##Class =                                                                         \
        testMakers().emplace(#Class, [] { return std::unique_ptr<QObject>(std::make_unique<Class>()); }).second;

#endif
