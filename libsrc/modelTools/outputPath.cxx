#include "modelTools/outputPath.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace
{
// Bytes that are no UTF-8 do not come back from a QString.
bool isUtf8(const std::string& text)
{
    return QString::fromStdString(text).toStdString() == text;
}

bool isInnerComponent(const std::string& component)
{
    return !component.empty() && component != "." && component != "..";
}

int digitValue(char digit)
{
    const std::string digits("0123456789ABCDEF");
    const std::size_t found = digits.find(digit);
    return found == std::string::npos ? -1 : static_cast<int>(found);
}
} // namespace

bool DtIsReservedPath(const std::string& path)
{
    return path.rfind(theReservedPrefix, 0) == 0;
}

bool DtIsInnerPath(const std::string& path)
{
    if (path.find('\0') != std::string::npos)
        return false;
    std::size_t start = 0;
    while (true)
    {
        const std::size_t end = path.find('/', start);
        if (!isInnerComponent(path.substr(start, end - start)))
            return false;
        if (end == std::string::npos)
            return true;
        start = end + 1;
    }
}

std::string DtEncodedPath(const std::string& path)
{
    const bool isText = isUtf8(path);
    std::string encoded;
    for (const char byte : path)
    {
        const bool isPlain = byte != '%' && (isText || static_cast<unsigned char>(byte) < 0x80);
        encoded += isPlain ? std::string(1, byte) : '%' + QByteArray(1, byte).toHex().toUpper().toStdString();
    }
    return encoded;
}

std::string DtDecodedPath(const std::string& text)
{
    std::string path;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != '%')
        {
            path += text[i];
            continue;
        }
        const int high = i + 2 < text.size() ? digitValue(text[i + 1]) : -1;
        const int low = high >= 0 ? digitValue(text[i + 2]) : -1;
        if (low < 0)
            return std::string();
        path += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return DtEncodedPath(path) == text ? path : std::string();
}
