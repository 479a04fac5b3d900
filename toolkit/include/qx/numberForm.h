#ifndef QX_NUMBER_FORM_H
#define QX_NUMBER_FORM_H

#include <qx/valueTypes.h>

// Length, sign and byte order of an integer that stands for an enumeration; 0 octets when nobody tells.
struct DtNumberForm
{
    constexpr DtNumberForm(unsigned int octetCount = 0, bool hasSign = false, bool littleEndian = false)
        : octets(octetCount), isSigned(hasSign), isLittleEndian(littleEndian)
    {
    }

    unsigned int octets;
    bool isSigned;
    bool isLittleEndian;
};

#endif
