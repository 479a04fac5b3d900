#include "fileGenerator/regularExpressionUtils.h"

#include <QtCore/QRegExp>
#include <QtCore/QString>

namespace
{
QString fromText(const DtString& text)
{
    return QString::fromLatin1(text.c_str(), static_cast<int>(text.length()));
}

DtString toText(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

// False, with nothing changed, when the expression does not match.
bool replaceFirst(const QRegExp& expression, QString& text, const QString& replacement)
{
    const int at = expression.indexIn(text);
    if (at < 0)
        return false;
    text.replace(at, expression.matchedLength(), replacement);
    return true;
}
} // namespace

bool DtRegularExpressionUtils::regExpMatch(const DtString& pattern, const DtString& text)
{
    return QRegExp(fromText(pattern)).indexIn(fromText(text)) >= 0;
}

DtString DtRegularExpressionUtils::regExpReplace(const DtString& pattern, const DtString& text,
                                                 const DtString& replacement)
{
    QString result = fromText(text);
    return replaceFirst(QRegExp(fromText(pattern)), result, fromText(replacement)) ? toText(result) : text;
}

DtString DtRegularExpressionUtils::regExpReplaceAll(const DtString& pattern, const DtString& text,
                                                    const DtString& replacement)
{
    const QRegExp expression(fromText(pattern));
    const QString inserted = fromText(replacement);
    QString result = fromText(text);
    while (replaceFirst(expression, result, inserted))
        continue;
    return toText(result);
}
