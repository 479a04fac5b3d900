#include "fileGenerator/templateFiles.h"

#include "fileGenerator/dataFile.h"
#include "foundation/fileUtils.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <map>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unordered_map>
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
std::shared_ptr<const DtTemplateText> textOfFile(const DtString& name)
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

// The file is read from its start. What cannot be read again, such as a pipe, is left at its end.
std::shared_ptr<const DtTemplateText> preparedText(FILE* file, std::size_t pieceLimit)
{
    static DtTextCache theCache;
    struct stat status = {};
    const bool isRegular = fstat(fileno(file), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
    const DtFileStamp stamp(status);
    if (isRegular)
    {
        if (std::shared_ptr<const DtTemplateText> known = theCache.find(stamp, pieceLimit))
            return known;
        std::rewind(file);
    }
    const auto text = std::make_shared<const DtTemplateText>(markBlankPieces(readRest(file), pieceLimit));
    if (isRegular)
        theCache.store(stamp, pieceLimit, text);
    return text;
}

std::shared_ptr<FILE> openFile(const DtString& name)
{
    return std::shared_ptr<FILE>(DtFileOpen(DtDataFile(name).c_str(), "r"), DtFileClose);
}

// What a run has met.
struct DtMetTemplates
{
    std::unordered_map<std::string, std::shared_ptr<FILE>> files;
    std::unordered_map<std::string, std::shared_ptr<const DtTemplateText>> includedTexts;
    // By piece limit too. The files stay open, so that no other one gets the place of one of them in memory.
    std::map<std::pair<std::shared_ptr<FILE>, std::size_t>, std::shared_ptr<const DtTemplateText>> preparedTexts;
};

DtMetTemplates* theMetTemplates = nullptr; // null outside of a run
} // namespace

DtTemplateRun::DtTemplateRun() : myIsOutermost(theMetTemplates == nullptr)
{
    if (myIsOutermost)
        theMetTemplates = new DtMetTemplates;
}

DtTemplateRun::~DtTemplateRun()
{
    if (!myIsOutermost)
        return;
    delete theMetTemplates;
    theMetTemplates = nullptr;
}

std::shared_ptr<FILE> DtOpenTemplate(const DtString& name)
{
    if (theMetTemplates == nullptr)
        return openFile(name);
    const auto [found, isNew] = theMetTemplates->files.try_emplace(name.stdString());
    if (isNew)
        found->second = openFile(name);
    return found->second;
}

std::shared_ptr<const DtTemplateText> DtPreparedTemplateText(const std::shared_ptr<FILE>& file, std::size_t pieceLimit)
{
    if (theMetTemplates == nullptr)
        return preparedText(file.get(), pieceLimit);
    const auto [found, isNew] = theMetTemplates->preparedTexts.try_emplace({file, pieceLimit});
    if (isNew)
        found->second = preparedText(file.get(), pieceLimit);
    return found->second;
}

std::shared_ptr<const DtTemplateText> DtIncludedTemplateText(const DtString& name)
{
    if (theMetTemplates == nullptr)
        return textOfFile(DtDataFile(name));
    const auto [found, isNew] = theMetTemplates->includedTexts.try_emplace(name.stdString());
    if (isNew)
        found->second = textOfFile(DtDataFile(name));
    return found->second;
}
