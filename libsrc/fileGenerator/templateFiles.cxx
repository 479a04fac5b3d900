#include "fileGenerator/templateFiles.h"

#include "foundation/fileUtils.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <map>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <utility>

namespace
{
std::int64_t nanoseconds(const timespec& time)
{
    return static_cast<std::int64_t>(time.tv_sec) * 1000000000 + time.tv_nsec;
}

// Identity and state of a file.
struct DtFileStamp
{
    explicit DtFileStamp(const struct stat& status)
        : file(status.st_dev, status.st_ino),
          size(status.st_size),
          modified(nanoseconds(status.st_mtim)),
          changed(nanoseconds(status.st_ctim))
    {
    }

    bool operator==(const DtFileStamp& other) const
    {
        return file == other.file && size == other.size && modified == other.modified && changed == other.changed;
    }
    // A file written a moment ago may be written again within the same tick of its time stamp.
    bool isSettled() const
    {
        timespec now = {};
        clock_gettime(CLOCK_REALTIME, &now);
        return nanoseconds(now) - std::max(modified, changed) > 100000000;
    }

    std::pair<dev_t, ino_t> file;
    off_t size;
    std::int64_t modified;
    std::int64_t changed;
};

// Texts of files, each as long as its file has not changed since. There is one cache for each kind of text.
class DtTextCache
{
public:
    // Null when there is no text for this state of the file and this limit.
    std::shared_ptr<const DtTemplateText> find(const DtFileStamp& stamp, std::size_t limit) const
    {
        const auto found = myEntries.find(stamp.file);
        const bool isCurrent = found != myEntries.end() && found->second.stamp == stamp && found->second.limit == limit;
        return isCurrent ? found->second.text : nullptr;
    }
    void store(const DtFileStamp& stamp, std::size_t limit, const std::shared_ptr<const DtTemplateText>& text)
    {
        if (stamp.isSettled())
            myEntries.insert_or_assign(stamp.file, Entry{stamp, limit, text});
    }

private:
    struct Entry
    {
        DtFileStamp stamp;
        std::size_t limit;
        std::shared_ptr<const DtTemplateText> text;
    };

    std::map<std::pair<dev_t, ino_t>, Entry> myEntries;
};

std::string readRest(FILE* file)
{
    std::string text;
    char buffer[16384];
    for (std::size_t count = 1; count > 0; text.append(buffer, count))
        count = std::fread(buffer, 1, sizeof buffer, file);
    return text;
}

std::string markBlankPieces(std::string_view text, std::size_t pieceLimit)
{
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    while (!text.empty())
    {
        const std::string_view longest = text.substr(0, pieceLimit);
        const std::size_t lineFeed = longest.find('\n');
        const std::string_view piece = lineFeed == std::string_view::npos ? longest : longest.substr(0, lineFeed + 1);
        if (piece.front() == '\n')
            result += ' ';
        result += piece;
        text.remove_prefix(piece.size());
    }
    return result;
}
} // namespace

std::shared_ptr<const DtTemplateText> DtTemplateFileText(const DtString& name)
{
    static DtTextCache theCache;
    struct stat status = {};
    if (stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return nullptr;
    const DtFileStamp stamp(status);
    if (std::shared_ptr<const DtTemplateText> known = theCache.find(stamp, 0))
        return known;
    std::string content;
    if (!DtReadFile(name, content))
        return nullptr;
    const auto text = std::make_shared<const DtTemplateText>(std::move(content));
    theCache.store(stamp, 0, text);
    return text;
}

std::shared_ptr<const DtTemplateText> DtPreparedTemplateText(FILE* file, std::size_t pieceLimit)
{
    static DtTextCache theCache;
    struct stat status = {};
    const bool isWholeFile =
        std::ftell(file) == 0 && fstat(fileno(file), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
    const DtFileStamp stamp(status);
    if (isWholeFile)
    {
        const std::shared_ptr<const DtTemplateText> known = theCache.find(stamp, pieceLimit);
        if (known != nullptr && std::fseek(file, 0, SEEK_END) == 0)
            return known;
    }
    const auto text = std::make_shared<const DtTemplateText>(markBlankPieces(readRest(file), pieceLimit));
    if (isWholeFile)
        theCache.store(stamp, pieceLimit, text);
    return text;
}
