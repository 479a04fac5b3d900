#ifndef TESTS_FOUNDATION_FOUNDATION_TEST_H
#define TESTS_FOUNDATION_FOUNDATION_TEST_H

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryFile>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Compares anything with a c_str() to a literal, and shows both texts when they differ.
#define COMPARE_TEXT(actual, expected) QCOMPARE(QByteArray((actual).c_str()), QByteArray(expected))

// What became of a child process.
struct DtChildResult
{
    bool hasExited = false;
    int exitCode = -1; // when it has exited
    int signal = 0;    // that ended it otherwise
    QByteArray output;
    QByteArray errors;
};

// Runs the function in a copy of this process, for what ends or kills a process. The signals have their default
// actions there, and exit() leaves out the destructors of the parent's objects.
inline DtChildResult runInChild(const std::function<void()>& function, const QByteArray& input = QByteArray())
{
    QTemporaryFile in, out, err;
    if (!in.open() || !out.open() || !err.open() || in.write(input) != input.size() || !in.flush())
        qFatal("no temporary files");
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
    {
        lseek(in.handle(), 0, SEEK_SET);
        dup2(in.handle(), STDIN_FILENO);
        dup2(out.handle(), STDOUT_FILENO);
        dup2(err.handle(), STDERR_FILENO);
        for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL})
            std::signal(signal, SIG_DFL);
        const rlimit noCore = {0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        const auto leave = [](int code, void*)
        {
            std::fflush(nullptr);
            _exit(code);
        };
        on_exit(leave, nullptr);
        function();
        leave(0, nullptr);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        qFatal("no child process");
    const auto content = [](QTemporaryFile& file) { return file.seek(0) ? file.readAll() : QByteArray(); };
    DtChildResult result;
    result.hasExited = WIFEXITED(status);
    result.exitCode = result.hasExited ? WEXITSTATUS(status) : -1;
    result.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    result.output = content(out);
    result.errors = content(err);
    return result;
}

#endif
