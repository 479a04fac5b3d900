#ifndef TESTS_MODEL_TOOLS_STAGED_RUN_H
#define TESTS_MODEL_TOOLS_STAGED_RUN_H

#include "modelTools/outputLock.h"
#include "modelTools/outputRecovery.h"
#include "modelTools/outputStage.h"
#include "modelToolsTest.h"

#include <cstring>
#include <map>
#include <sstream>
#include <sys/mount.h>

// Runs that make files by a stage, and what they leave behind.

// The files of a folder by their output paths.
using DtContents = std::map<std::string, std::string>;

// Files from a text such as "a=x b/c=y": paths with their contents.
inline DtContents filesOf(const std::string& text)
{
    DtContents contents;
    std::istringstream rows(text);
    for (std::string row; rows >> row;)
        contents[row.substr(0, row.find('='))] = row.substr(row.find('=') + 1);
    return contents;
}

inline void writeTree(const std::filesystem::path& directory, const DtContents& contents)
{
    for (const auto& [path, content] : contents)
        writeBytes(directory / path, content);
}

// All files but those of the staging itself; a symbolic link counts as a file that holds an arrow and its target.
inline DtContents treeOf(const std::filesystem::path& directory)
{
    DtContents contents;
    for (const std::string& path : DtOutputTree(directory).list())
        if (path.rfind(".qxgen-", 0) != 0)
            contents[path] = std::filesystem::is_symlink(directory / path)
                                 ? "-> " + std::filesystem::read_symlink(directory / path).native()
                                 : readBytes(directory / path);
    return contents;
}

// One line a change: letter, path, and what the user is told.
inline std::string textOf(const std::vector<DtOutputChange>& changes)
{
    std::string text;
    for (const DtOutputChange& change : changes)
        text +=
            change.letter() + (" " + change.path) + (*change.notice() == '\0' ? "" : " | ") + change.notice() + "\n";
    return text;
}

// A whole run that makes these files; gives its changes.
inline std::string runOnce(const std::filesystem::path& directory, const DtContents& contents,
                           const DtCommitHook& hook = DtCommitHook())
{
    const DtOutputLock lock(directory);
    const DtOutputRecovery recovery(lock, hook);
    DtOutputStage stage(lock, "1.0", hook);
    writeTree(stage.path(), contents);
    const std::string text = textOf(stage.differences());
    stage.commit();
    return text;
}

// A mount that goes with the object. Only root may make one; why() tells what is missing otherwise.
class DtTestMount
{
public:
    DtTestMount(const char* type, const std::filesystem::path& source, const std::filesystem::path& target,
                unsigned long flags, const char* options = "")
        : myTarget(target)
    {
        myIsMounted = mount(source.c_str(), target.c_str(), type, flags, options) == 0;
        myError = errno;
    }
    ~DtTestMount()
    {
        if (myIsMounted)
            umount2(myTarget.c_str(), MNT_DETACH);
    }
    DtTestMount(const DtTestMount&) = delete;
    DtTestMount& operator=(const DtTestMount&) = delete;
    bool isMounted() const { return myIsMounted; }
    std::string why() const { return std::string("nothing can be mounted here: ") + std::strerror(myError); }
    bool makeReadOnly() const
    {
        return mount(nullptr, myTarget.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
    }

private:
    std::filesystem::path myTarget;
    bool myIsMounted = false;
    int myError = 0;
};

#endif
