#ifndef MODEL_TOOLS_OUTPUT_MANIFEST_H
#define MODEL_TOOLS_OUTPUT_MANIFEST_H

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

// What is known of a file that was made.
struct DtOutputEntry
{
    std::string sha256; // 64 lower-case hexadecimal digits
    std::uint64_t size = 0;
};

// The list of the files that the last run has made in an output folder: path, SHA-256 and size of each, and the version
// of the program. With it the next run tells its own files from those of the user.
//
// Files stand in byte-wise order and nothing depends on time or machine, so equal output has an equal manifest. Time
// stamps are left out: a file can be edited without a change of its time, so they would spare no hash.
class DtOutputManifest
{
public:
    explicit DtOutputManifest(const std::string& programVersion = std::string()) : myProgramVersion(programVersion) {}

    // Reads the manifest of the folder. It is empty when there is none. It is empty too when it is damaged, of an
    // unknown format, or names a path outside the folder or one twice: then nobody can say whose the files are, and
    // none may be removed. damage() tells of that.
    static DtOutputManifest read(const std::filesystem::path& directory);

    // One sentence with the path of the file and the remedy; empty when all is well.
    const std::string& damage() const { return myDamage; }
    const std::string& programVersion() const { return myProgramVersion; }

    const std::map<std::string, DtOutputEntry>& files() const { return myFiles; }
    // The entry of the path; null when the manifest does not know it.
    const DtOutputEntry* find(const std::string& path) const;
    void add(const std::string& path, const DtOutputEntry& entry) { myFiles[path] = entry; }

    // The content of the manifest's file.
    std::string text() const;

    static constexpr const char* theFileName = ".qxgen-manifest.json";
    // The entry for a file of that content.
    static DtOutputEntry entryOf(const std::string& content);

private:
    void parse(const std::string& text); // throws std::exception

    std::string myProgramVersion;
    std::string myDamage;
    std::map<std::string, DtOutputEntry> myFiles;
};

#endif
