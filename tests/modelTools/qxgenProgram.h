#ifndef TESTS_MODEL_TOOLS_QXGEN_PROGRAM_H
#define TESTS_MODEL_TOOLS_QXGEN_PROGRAM_H

// Starts the built program and keeps what it has told.

#include "smallModels.h"
#include "stagedRun.h"
#include "testSupport.h"
#include "toolTest.h"

#include <chrono>
#include <thread>

using DtArguments = std::vector<std::string>;

// What became of a start.
struct DtProgramEnd
{
    int code = -1; // 128 and the number of the signal that has ended it
    std::string out, err;
};

// Three object classes and an interaction class.
inline std::string smallModel()
{
    return moduleText(objectText("Barge", attributeText("Speed", "HLAfloat64BE") + objectText("Tanker")) +
                          objectText("Buoy"),
                      interactionText("Horn", parameterText("Code")))
        .toStdString();
}

inline bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// A folder to work in, which goes with the object. The program is started with it as its
// working directory, without a terminal, and without what the user's environment says of models, data and colours.
class DtProgramFolder
{
public:
    explicit DtProgramFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
        : myFolder(parent), myTold(parent)
    {
    }

    std::filesystem::path path(const std::string& name = std::string()) const { return myFolder.path() / name; }
    std::string text(const std::string& name) const { return readBytes(path(name)); }
    void write(const std::string& name, const std::string& text) const { writeBytes(path(name), text); }

    // Goes on at once; its streams are "out" and "err" and a number in a folder apart.
    pid_t start(const DtArguments& arguments, const std::function<void()>& prepare = {}) const
    {
        ++myStarts;
        const std::string out = told("out").native(), err = told("err").native();
        return startChild(
            [&]
            {
                redirect(out, STDOUT_FILENO);
                redirect(err, STDERR_FILENO);
                for (const char* name : {"QX_DATA_DIR", "RTI_CONFIG", "NO_COLOR"})
                    unsetenv(name);
                if (chdir(path().c_str()) != 0)
                    _exit(126);
                if (prepare)
                    prepare();
                execute(arguments);
            });
    }

    DtProgramEnd end(pid_t program) const
    {
        DtProgramEnd result;
        result.code = endOf(program);
        result.out = readBytes(told("out"));
        result.err = readBytes(told("err"));
        return result;
    }

    DtProgramEnd run(const DtArguments& arguments, const std::function<void()>& prepare = {}) const
    {
        return end(start(arguments, prepare));
    }

    // With these arguments behind "generate".
    DtProgramEnd generate(const DtArguments& arguments, const std::function<void()>& prepare = {}) const
    {
        return run(generateLine(arguments), prepare);
    }
    pid_t startGenerate(const DtArguments& arguments) const { return start(generateLine(arguments)); }

    // What the newest start has told so far.
    std::string errorsSoFar() const { return readBytes(told("err")); }

private:
    static DtArguments generateLine(const DtArguments& arguments)
    {
        DtArguments line = {"generate"};
        line.insert(line.end(), arguments.begin(), arguments.end());
        return line;
    }
    std::filesystem::path told(const char* stream) const { return myTold.path() / (stream + std::to_string(myStarts)); }
    static void redirect(const std::string& file, int stream)
    {
        const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (opened < 0 || dup2(opened, stream) < 0)
            _exit(126);
        close(opened);
    }
    static void execute(const DtArguments& arguments)
    {
        std::vector<char*> line = {const_cast<char*>(QX_QXGEN)};
        for (const std::string& argument : arguments)
            line.push_back(const_cast<char*>(argument.c_str()));
        line.push_back(nullptr);
        execv(QX_QXGEN, line.data());
        _exit(127);
    }

    DtTestFolder myFolder;
    DtTestFolder myTold;
    mutable int myStarts = 0;
};

// Waits until the condition holds; false when it does not within a minute.
inline bool comesTrue(const std::function<bool()>& condition)
{
    for (int tries = 0; tries < 60000 && !condition(); ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

// What differs between two sets of files, one line each: "- path", "+ path" or "! path".
inline std::string differenceOf(const DtContents& expected, const DtContents& actual)
{
    std::string text;
    for (const auto& [path, content] : expected)
        if (actual.count(path) == 0)
            text += "- " + path + "\n";
        else if (actual.at(path) != content)
            text += "! " + path + "\n";
    for (const auto& [path, content] : actual)
        if (expected.count(path) == 0)
            text += "+ " + path + "\n";
    return text;
}

// The end of a start as one text, to be compared: code, standard output, standard error.
inline std::string textOf(const DtProgramEnd& end)
{
    return std::to_string(end.code) + "\n" + end.out + "--\n" + end.err;
}

#endif
