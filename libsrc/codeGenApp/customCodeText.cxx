#include "codeGenApp/customCodeText.h"

namespace
{
// As an editor gives its text back.
QString withLineFeeds(QString value)
{
    value.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar lineEnd : {QChar('\r'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        value.replace(lineEnd, '\n');
    return value;
}

QString lineEndOf(const QString& value)
{
    if (value.contains(QStringLiteral("\r\n")))
        return QStringLiteral("\r\n");
    return value.contains('\r') && !value.contains('\n') ? QStringLiteral("\r") : QStringLiteral("\n");
}
} // namespace

void DtCustomCodeText::setOriginal(const QString& text)
{
    original = text;
    edited = withLineFeeds(text);
    isEdited = false;
}

bool DtCustomCodeText::differs() const
{
    return edited != withLineFeeds(original);
}

QString DtCustomCodeText::toSave() const
{
    return differs() ? QString(edited).replace('\n', lineEndOf(original)) : original;
}
