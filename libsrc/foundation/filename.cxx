#include "foundation/filename.h"

#include "foundation/stringUtils.h"

#include <climits>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
// Start of the last component.
std::size_t componentStart(const std::string& name)
{
    const std::size_t at = name.rfind('/');
    return at == std::string::npos ? 0 : at + 1;
}

// Position of the dot of the last extension, npos when the last component has none.
std::size_t extensionDot(const std::string& name)
{
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot < componentStart(name) ? std::string::npos : dot;
}

DtString join(const DtString& left, const DtString& right)
{
    if (left.length() == 0 || (right.length() > 0 && right[0] == '/'))
        return right.length() == 0 ? left : right;
    if (right.length() == 0)
        return left;
    return left[left.length() - 1] == '/' ? left + right : left + "/" + right;
}
} // namespace

DtFilename& DtFilename::operator=(const DtString& name)
{
    DtString::operator=(name);
    return *this;
}

DtFilename& DtFilename::operator=(const char* name)
{
    DtString::operator=(name);
    return *this;
}

void DtFilename::stripPath()
{
    *this = DtString(stdString().substr(componentStart(stdString())));
}

void DtFilename::stripFilename()
{
    *this = DtString(stdString().substr(0, componentStart(stdString())));
}

void DtFilename::stripExtension()
{
    const std::size_t dot = extensionDot(stdString());
    if (dot != std::string::npos)
        *this = DtString(stdString().substr(0, dot));
}

DtFilename DtFilename::stripPath(const DtFilename& name)
{
    DtFilename result(name);
    result.stripPath();
    return result;
}

DtString DtFilename::extension() const
{
    const std::size_t dot = extensionDot(stdString());
    return dot == std::string::npos ? DtString() : DtString(stdString().substr(dot + 1));
}

void DtFilename::setExtension(const DtString& extension)
{
    stripExtension();
    if (extension.length() > 0)
        *this = DtString(*this) + "." + extension;
}

void DtFilename::append(const DtFilename& right)
{
    *this = join(*this, right);
}

void DtFilename::prepend(const DtFilename& left)
{
    *this = join(left, *this);
}

bool DtFilename::exists() const
{
    struct stat status = {};
    return stat(c_str(), &status) == 0;
}

bool DtFilename::isRegularFile() const
{
    struct stat status = {};
    return stat(c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool DtFilename::isAbsolute() const
{
    return length() > 0 && (*this)[0] == '/';
}

bool DtFilename::isUsable() const
{
    return length() > 0 && (*this)[length() - 1] != '/';
}

void DtFilename::absolutePath(const DtString& path, DtString& result)
{
    char buffer[PATH_MAX];
    const char* directory = getcwd(buffer, sizeof buffer);
    result = join(directory != nullptr ? directory : "", path);
}

DtFilename DtFilename::searchAlternatePath(const char* name)
{
    return searchAlternatePath(name, std::getenv("RTI_CONFIG"));
}

DtFilename DtFilename::searchAlternatePath(const char* name, const char* directory)
{
    const DtFilename plain(name);
    if (plain.length() == 0 || plain.exists())
        return plain;
    const DtFilename joined(join(directory, plain)); // a null or empty directory leaves the name
    return joined.exists() ? joined : plain;
}

DtString DtFilename::normalized(const DtString& path)
{
    const bool absolute = path.length() > 0 && path[0] == '/';
    std::vector<DtString> kept;
    for (const DtString& piece : DtSplit(path, '/', DtEmptyPieces::Drop))
    {
        if (piece == ".")
            continue;
        const bool leadsBack = piece == ".." && !kept.empty() && kept.back() != "..";
        if (leadsBack)
            kept.pop_back();
        else if (piece != ".." || !absolute)
            kept.push_back(piece);
    }
    DtString result(absolute ? "/" : "");
    for (const DtString& piece : kept)
        result = join(result, piece);
    return result;
}
