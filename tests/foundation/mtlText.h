#ifndef TESTS_FOUNDATION_MTL_TEXT_H
#define TESTS_FOUNDATION_MTL_TEXT_H

#include "foundation/mtlReader.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

// Reads from a text and prints what was read.

class DtTextInputStream : public DtlInputStream
{
public:
    explicit DtTextInputStream(const QByteArray& text) : myText(text) {}

private:
    int readByte() override { return myAt < myText.size() ? static_cast<unsigned char>(myText.at(myAt++)) : EOF; }

    QByteArray myText;
    int myAt = 0;
};

// Symbols as they are, strings in quotes, integers behind a "#".
inline QString printMtl(DtlObjPtr object)
{
    const QString text = QString::fromUtf8(object->string().c_str());
    if (DtcStringp(object))
        return '"' + text + '"';
    if (DtcSymbolp(object))
        return text;
    if (!DtcListp(object))
        return '#' + text;
    QStringList elements;
    for (; DtcConsp(object); object = DtcCdr(object))
        elements += printMtl(DtcCar(object));
    if (!DtcListp(object))
        elements += ". " + printMtl(object);
    return '(' + elements.join(' ') + ')';
}

#endif
