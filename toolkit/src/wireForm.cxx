#include <qx/wireForm.h>

unsigned int DtOctetsByName(const char* name)
{
    struct Row
    {
        const char* name;
        unsigned int octets;
    };
    static const Row theRows[] = {
        {"HLAoctet",             1},
        {"octet",                1},
        {"Octet",                1},
        {"char",                 1},
        {"any",                  1},
        {"handle",               1},
        {"HLAASCIIchar",         1},
        {"HLAbyte",              1},
        {"HLAunicodeChar",       2},
        {"HLAoctetPairBE",       2},
        {"HLAoctetPairLE",       2},
        {"short",                2},
        {"unsigned__short",      2},
        {"UnsignedShort",        2},
        {"unsignedShort",        2},
        {"long",                 4},
        {"float",                4},
        {"unsigned__long",       4},
        {"UnsignedLong",         4},
        {"unsignedLong",         4},
        {"long__long",           8},
        {"double",               8},
        {"unsigned__long__long", 8}
    };
    for (const Row& row : theRows)
        if (DtTextIs(row.name, name))
            return row.octets;
    std::string stem = name;
    if (DtHasByteOrder(name, 'B') || DtHasByteOrder(name, 'L'))
        stem.resize(stem.size() - 2);
    const unsigned int bits = DtTrailingNumber(stem.c_str());
    return bits % 8 == 0 && bits <= 128 ? bits / 8 : 0;
}
