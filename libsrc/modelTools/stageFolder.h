#ifndef MODEL_TOOLS_STAGE_FOLDER_H
#define MODEL_TOOLS_STAGE_FOLDER_H

#include <filesystem>
#include <string>

// The private folder of one run. It goes with the object unless it has been released.
//
//     .qxgen-XXXXXX/.qxgen-stage   the mark: an empty file
//     .qxgen-XXXXXX/files/         what the writers make, by its output paths
//     .qxgen-XXXXXX/manifest.json  the new manifest until it is renamed into place; the journal likewise
class DtStageFolder
{
public:
    // Makes a stage with its mark and an empty files folder in `parent`; throws DtOutputException.
    explicit DtStageFolder(const std::filesystem::path& parent);
    ~DtStageFolder();
    DtStageFolder(const DtStageFolder&) = delete;
    DtStageFolder& operator=(const DtStageFolder&) = delete;

    const std::filesystem::path& path() const { return myPath; }
    void release() { myIsReleased = true; }

    // True for a real folder that has a stage's name and holds the mark. One that has the name and is empty counts too:
    // a run that is killed right behind making the folder, or right ahead of removing it, leaves that.
    static bool isOne(const std::filesystem::path& path);
    static bool isName(const std::string& name);
    // Removes a stage that an earlier run has left, the mark last. False when something of it stays.
    static bool remove(const std::filesystem::path& stage);

    static constexpr const char* theMark = ".qxgen-stage";
    static constexpr const char* theFiles = "files";
    static constexpr const char* theManifest = "manifest.json";
    static constexpr const char* theJournal = "journal.json";

private:
    std::filesystem::path myPath;
    bool myIsReleased = false;
};

#endif
