#include "fileGenerator/dataFile.h"

#include "fileGenerator/settings.h"
#include "foundation/filename.h"
#include "foundation/perRun.h"

#include <string_view>

namespace
{
constexpr std::string_view theDataPrefix = "../data/";
constexpr std::string_view theTemplatesPrefix = "templates/";

bool takePrefix(std::string_view& text, std::string_view prefix)
{
    if (text.substr(0, prefix.size()) != prefix)
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

DtString placeOf(const DtString& name)
{
    std::string_view path(name.c_str(), name.length());
    if (!takePrefix(path, theDataPrefix))
        return name;
    const DtString shipped = DtSettings::instance().files.dataDirectory + DtString(std::string(path));
    takePrefix(path, theTemplatesPrefix);
    for (const DtString& directory : DtSettings::instance().files.templateDirectories)
    {
        const DtFilename file(directory + "/" + DtString(std::string(path)));
        if (file.isRegularFile())
            return file;
    }
    return shipped;
}

std::set<std::string>& readFiles()
{
    return DtPerRun<std::set<std::string>, class DtReadFiles>();
}
} // namespace

DtString DtDataFile(const DtString& name)
{
    DtString place = placeOf(name);
    readFiles().insert(place.stdString());
    return place;
}

const std::set<std::string>& DtReadDataFiles()
{
    return readFiles();
}
