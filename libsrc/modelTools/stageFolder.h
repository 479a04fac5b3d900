#ifndef MODEL_TOOLS_STAGE_FOLDER_H
#define MODEL_TOOLS_STAGE_FOLDER_H

#include "modelTools/signalCleanup.h"

#include <filesystem>
#include <string>

enum class DtStageKind
{
    Commit, // in the output folder, from where its files are renamed into place
    Compare // in a folder for temporary files, which many runs and users share
};

// The private folder of one run. It goes with the object unless it has been released, and with a process that Ctrl-C or
// TERM ends.
//
//     .qxgen-XXXXXX/.qxgen-stage   the mark: an empty file, locked for as long as the run lives
//     .qxgen-XXXXXX/files/         what the writers make, by its output paths
//     .qxgen-XXXXXX/manifest.json  the new manifest until it is renamed into place; the journal likewise
//
// One that is for comparing is called .qxgen-compare-XXXXXX, so that nobody takes the one for the other where the
// output folder is the one for temporary files.
class DtStageFolder : private DtSignalCleanup
{
public:
    // Makes a stage with its mark and an empty files folder in `parent`; throws DtOutputException.
    DtStageFolder(const std::filesystem::path& parent, DtStageKind kind);
    ~DtStageFolder() override;

    const std::filesystem::path& path() const { return myPath; }
    // Leaves the folder to whoever goes on with it.
    void release();

    // True for a real folder that has a stage's name and holds the mark. One that has the name and is empty counts too:
    // a run that is killed right behind making the folder, or right ahead of removing it, leaves that. As the next, of
    // stages for a commit.
    static bool isOne(const std::filesystem::path& path);
    static bool isName(const std::string& name);
    // Removes a stage that an earlier run has left, the mark last. False when something of it stays.
    static bool remove(const std::filesystem::path& stage);
    // Removes the stages for comparing that killed runs of this user have left in the folder. Those of runs that live,
    // and those of other users, stay.
    static void removeLeftovers(const std::filesystem::path& parent);

    static constexpr const char* theMark = ".qxgen-stage";
    static constexpr const char* theFiles = "files";
    static constexpr const char* theManifest = "manifest.json";
    static constexpr const char* theJournal = "journal.json";

private:
    bool tryToMake(const std::filesystem::path& parent, DtStageKind kind);
    bool lockMark();
    void closeMark();
    void cleanUp() override;

    std::filesystem::path myPath;
    int myMark = -1; // the open file
    bool myIsReleased = false;
};

#endif
