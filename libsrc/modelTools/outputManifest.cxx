#include "modelTools/outputManifest.h"

#include "foundation/fileUtils.h"
#include "modelTools/outputPath.h"

#include <QtCore/QCryptographicHash>

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace
{
constexpr int theFormat = 1;

bool isHash(const std::string& text)
{
    return text.size() == 64 && text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

// Parsed text may hold anything: a path that leaves the folder would let a run remove files elsewhere.
std::string checkedPath(const std::string& text)
{
    const std::string path = DtDecodedPath(text);
    if (!DtIsInnerPath(path) || DtIsReservedPath(path))
        throw std::runtime_error("the path " + nlohmann::json(text).dump() + " cannot be one of an output file");
    return path;
}

DtOutputEntry checkedEntry(const nlohmann::json& file)
{
    const DtOutputEntry entry{file.at("sha256").get<std::string>(), file.at("size").get<std::uint64_t>()};
    if (!isHash(entry.sha256))
        throw std::runtime_error(file.at("sha256").dump() + " is no SHA-256");
    return entry;
}

bool isThere(const std::filesystem::path& path)
{
    std::error_code ignored;
    return std::filesystem::symlink_status(path, ignored).type() != std::filesystem::file_type::not_found;
}
} // namespace

DtOutputManifest DtOutputManifest::read(const std::filesystem::path& directory)
{
    const std::filesystem::path path = directory / theFileName;
    DtOutputManifest manifest;
    if (!isThere(path))
        return manifest;
    try
    {
        std::string text;
        if (!DtReadFile(path.native(), text))
            throw std::runtime_error("it cannot be read");
        manifest.parse(text);
    }
    catch (const std::exception& error)
    {
        manifest = DtOutputManifest();
        manifest.myDamage =
            path.native() + " is damaged (" + error.what() +
            "): files of earlier runs are not removed. Remove what is not wanted any more by hand; this "
            "file is made anew by the next run that writes.";
    }
    return manifest;
}

void DtOutputManifest::parse(const std::string& text)
{
    const nlohmann::json root = nlohmann::json::parse(text);
    if (root.at("format").get<int>() != theFormat)
        throw std::runtime_error("its format is not known to this version of the program");
    myProgramVersion = root.at("program").get<std::string>();
    for (const nlohmann::json& file : root.at("files"))
    {
        const std::string path = checkedPath(file.at("path").get<std::string>());
        if (!myFiles.emplace(path, checkedEntry(file)).second)
            throw std::runtime_error("the path " + file.at("path").dump() + " stands there twice");
    }
}

const DtOutputEntry* DtOutputManifest::find(const std::string& path) const
{
    const auto found = myFiles.find(path);
    return found == myFiles.end() ? nullptr : &found->second;
}

std::string DtOutputManifest::text() const
{
    nlohmann::ordered_json root;
    root["format"] = theFormat;
    root["program"] = myProgramVersion;
    nlohmann::ordered_json& files = root["files"] = nlohmann::ordered_json::array();
    for (const auto& [path, entry] : myFiles)
        files.push_back({
            {"path",   DtEncodedPath(path)},
            {"sha256", entry.sha256       },
            {"size",   entry.size         }
        });
    return root.dump(1) + "\n";
}

DtOutputEntry DtOutputManifest::entryOf(const std::string& content)
{
    const QByteArray bytes = QByteArray::fromRawData(content.data(), static_cast<int>(content.size()));
    return {QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString(), content.size()};
}
