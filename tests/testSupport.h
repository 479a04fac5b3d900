#ifndef TESTS_TEST_SUPPORT_H
#define TESTS_TEST_SUPPORT_H

#include "foundation/outputStream.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <string>

// Collects what a stream prints while it lives. The console gets it too.
class DtCapture : public DtPrinter
{
public:
    explicit DtCapture(DtOutputStream& stream) : myStream(stream) { myStream.attachPrinter(this); }
    ~DtCapture() override { myStream.detachPrinter(this); }
    DtCapture(const DtCapture&) = delete;
    DtCapture& operator=(const DtCapture&) = delete;
    void print(const char* text, std::size_t length) override { myText.append(text, length); }
    QString text() const { return QString::fromUtf8(myText.c_str()); }

private:
    DtOutputStream& myStream;
    std::string myText;
};

// Puts a variable back when it goes.
template <typename T>
class DtSaved
{
public:
    explicit DtSaved(T& variable) : myVariable(variable), myValue(variable) {}
    DtSaved(T& variable, const T& value) : DtSaved(variable) { variable = value; }
    ~DtSaved() { myVariable = myValue; }
    DtSaved(const DtSaved&) = delete;
    DtSaved& operator=(const DtSaved&) = delete;

private:
    T& myVariable;
    T myValue;
};

// Works in another directory for as long as it lives.
class DtInDirectory
{
public:
    explicit DtInDirectory(const QString& directory) : myOld(QDir::currentPath()) { QDir::setCurrent(directory); }
    ~DtInDirectory() { QDir::setCurrent(myOld); }
    DtInDirectory(const DtInDirectory&) = delete;
    DtInDirectory& operator=(const DtInDirectory&) = delete;

private:
    QString myOld;
};

// Sets or, with a null value, unsets an environment variable for as long as it lives.
class DtWithEnvironment
{
public:
    DtWithEnvironment(const char* name, const char* value) : myName(name), myWasSet(qEnvironmentVariableIsSet(name))
    {
        myOld = qgetenv(name);
        set(value);
    }
    ~DtWithEnvironment() { set(myWasSet ? myOld.constData() : nullptr); }
    DtWithEnvironment(const DtWithEnvironment&) = delete;
    DtWithEnvironment& operator=(const DtWithEnvironment&) = delete;

private:
    void set(const char* value)
    {
        if (value != nullptr)
            qputenv(myName, value);
        else
            qunsetenv(myName);
    }

    const char* myName;
    bool myWasSet;
    QByteArray myOld;
};

inline void writeTextFile(const QString& name, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(name));
}

inline QByteArray readTextFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

#endif
