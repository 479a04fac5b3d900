#include "modelTools/modelPlaces.h"

#include "omtReader/xmlDocument.h"

#include <cstdio>
#include <memory>

namespace
{
// Superclasses of one class; the readers of models have the same limit. Links in a ring end here too.
constexpr std::size_t theLargestDepth = 256;

// Empty when there is no plain file.
std::string contentOf(const std::string& path)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> file(DtStreamOf(DtOpenPlainFile(path.c_str())), std::fclose);
    std::string content;
    char piece[1 << 16];
    for (std::size_t length = 1; file != nullptr && length > 0;)
    {
        length = std::fread(piece, 1, sizeof piece, file.get());
        content.append(piece, length);
    }
    return content;
}

// XML begins with a tag, ahead of which there can be a byte order mark, or with either byte of UTF-16.
bool isXml(const std::string& content)
{
    const std::size_t first = content.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    return first != std::string::npos && std::string("<\0\xFE\xFF", 4).find(content[first]) != std::string::npos;
}

std::string trimmed(const std::string& text)
{
    const char* const blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isClass(DtSubject::Kind kind)
{
    return kind == DtSubject::ObjectClass || kind == DtSubject::InteractionClass;
}

// How much an element says of its class. One without subclasses is no mere step on the way to one.
int weightOf(const DtModelItem& item)
{
    if (item.hasMembers || !item.hasSubclasses)
        return 2;
    return item.hasValues ? 1 : 0;
}

// Owner and name are parted by what is in no name.
std::string keyOf(DtSubject::Kind kind, const std::string& name, const std::string& owner = std::string())
{
    return std::to_string(kind) + '\n' + owner + '\n' + name;
}

// Of a class by its own name, whatever is above it.
std::string shortKeyOf(DtSubject::Kind kind, const std::string& name)
{
    return keyOf(kind, name, "\n");
}

// The names from the top class down; the class's own when there are too many.
std::vector<std::string> pathOf(const std::vector<DtModelItem>& items, const DtModelItem& item)
{
    std::vector<const DtModelItem*> steps = {&item};
    for (int at = item.parent; at >= 0 && steps.size() <= theLargestDepth; at = steps.back()->parent)
        steps.push_back(&items[static_cast<std::size_t>(at)]);
    if (steps.size() > theLargestDepth)
        steps.resize(1);
    std::vector<std::string> path;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        path.push_back(trimmed((*step)->name));
    return path;
}

std::string joined(const std::vector<std::string>& path, std::size_t from)
{
    std::string name;
    for (std::size_t i = from; i < path.size(); ++i)
        name += (i == from ? "" : ".") + path[i];
    return name;
}
} // namespace

DtPlace DtModelPlaces::of(const DtSubject& subject)
{
    if (subject.kind == DtSubject::File)
        return {subject.name.stdString(), subject.line, subject.column};
    if (!myHasRead)
        readFiles();
    const Entry* const entry = find(subject);
    return entry != nullptr ? DtPlace{myFiles[entry->file], entry->line, entry->column} : DtPlace();
}

void DtModelPlaces::readFiles()
{
    myHasRead = true;
    for (std::size_t file = 0; file < myFiles.size(); ++file)
    {
        const std::string content = contentOf(myFiles[file]);
        enter(file, isXml(content) ? DtXmlModelItems(content) : DtOmtModelItems(content));
    }
}

// Keys of classes are without the root, which the OMT text format does not have.
void DtModelPlaces::enter(std::size_t file, const DtModelItems& model)
{
    for (const DtModelItem& item : model.items)
    {
        std::vector<std::string> path = pathOf(model.items, item);
        const std::string name = path.back();
        Entry entry{file, item.line, item.column, 0};
        if (!isClass(item.kind))
        {
            path.pop_back();
            const std::size_t start = model.hasRoots && path.size() > 1 ? 1 : 0;
            enter(keyOf(item.kind, name, joined(path, start)), entry);
            continue;
        }
        if (model.hasRoots)
            myRoots.insert(path.front());
        entry.weight = weightOf(item);
        enter(keyOf(item.kind, joined(path, model.hasRoots && path.size() > 1 ? 1 : 0)), entry);
        enter(shortKeyOf(item.kind, name), entry);
    }
}

void DtModelPlaces::enter(const std::string& key, const Entry& entry)
{
    const auto [known, isNew] = myEntries.emplace(key, entry);
    if (!isNew && known->second.weight < entry.weight)
        known->second = entry;
}

const DtModelPlaces::Entry* DtModelPlaces::find(const DtSubject& subject) const
{
    const std::string name = trimmed(subject.name.stdString());
    switch (subject.kind)
    {
    case DtSubject::ObjectClass:
    case DtSubject::InteractionClass:
        return findClass(subject.kind, name);
    case DtSubject::Attribute:
        return findClassMember(subject.kind, DtSubject::objectClass(subject.owner), name);
    case DtSubject::Parameter:
        return findClassMember(subject.kind, DtSubject::interactionClass(subject.owner), name);
    case DtSubject::Datatype:
        return findKey(keyOf(subject.kind, name));
    case DtSubject::Field:
    case DtSubject::Enumerator:
    {
        const std::string owner = trimmed(subject.owner.stdString());
        const Entry* const member = findKey(keyOf(subject.kind, name, owner));
        return member != nullptr ? member : findKey(keyOf(DtSubject::Datatype, owner));
    }
    case DtSubject::None:
    case DtSubject::File:
    case DtSubject::Setting:
        break;
    }
    return nullptr;
}

const DtModelPlaces::Entry* DtModelPlaces::findClass(DtSubject::Kind kind, const std::string& name) const
{
    const Entry* const entry = findKey(keyOf(kind, withoutRoot(name)));
    return entry != nullptr || name.find('.') != std::string::npos ? entry : findKey(shortKeyOf(kind, name));
}

const DtModelPlaces::Entry* DtModelPlaces::findClassMember(DtSubject::Kind kind, const DtSubject& owner,
                                                           const std::string& name) const
{
    const std::string ownerName = trimmed(owner.name.stdString());
    std::string path = withoutRoot(ownerName);
    while (true)
    {
        if (const Entry* const entry = findKey(keyOf(kind, name, path)))
            return entry;
        const std::size_t dot = path.rfind('.');
        if (dot == std::string::npos)
            break;
        path.erase(dot);
    }
    return findClass(owner.kind, ownerName);
}

const DtModelPlaces::Entry* DtModelPlaces::findKey(const std::string& key) const
{
    const auto entry = myEntries.find(key);
    return entry != myEntries.end() ? &entry->second : nullptr;
}

// The OMT text format has roots that are in no file.
std::string DtModelPlaces::withoutRoot(const std::string& fullName) const
{
    const std::size_t dot = fullName.find('.');
    if (dot == std::string::npos)
        return fullName;
    const std::string top = fullName.substr(0, dot);
    const bool isRoot = myRoots.count(top) != 0 || top == "ObjectRoot" || top == "InteractionRoot";
    return isRoot ? fullName.substr(dot + 1) : fullName;
}
