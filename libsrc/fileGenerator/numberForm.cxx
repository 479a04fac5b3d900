#include "fileGenerator/numberForm.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/primitiveDataTypeFileWriter.h"
#include "foundation/stringUtils.h"

#include <algorithm>
#include <limits>

namespace
{

struct DtReadyNumber
{
    const char* type;
    int octets;
    bool isFloat;
    bool isSigned;
};

const DtReadyNumber theReadyNumbers[] = {
    {"DtU8",      1, false, false},
    {"DtU16",     2, false, false},
    {"DtU32",     4, false, false},
    {"DtU64",     8, false, false},
    {"DtInt8",    1, false, true },
    {"DtInt16",   2, false, true },
    {"DtInt32",   4, false, true },
    {"DtInt64",   8, false, true },
    {"DtFloat32", 4, true,  true },
    {"DtFloat64", 8, true,  true },
};

bool endsWith(const DtString& text, const std::string& end)
{
    const std::string& whole = text.stdString();
    return whole.size() >= end.size() && whole.compare(whole.size() - end.size(), end.size(), end) == 0;
}

// Everything but "Big" is little-endian, as in <!EndianMatch!>; the name decides where the table has no text.
bool isLittleEndian(const DtString& name, const DtString& endian)
{
    return endian.isEmpty() ? !endsWith(name, "BE") : endian != "Big";
}

DtNumberForm formOfBasicType(const DtString& name, const DtDataTypeMapper::DtBasicTypeInfo& info)
{
    DtNumberForm form;
    form.octets = static_cast<int>((std::min(info.first.toUInt(), 8192U) + 7) / 8);
    form.isFloat = isFloatRepresentation(name);
    form.isSigned = form.isFloat || isSignedRepresentation(name);
    form.isLittleEndian = isLittleEndian(name, info.second);
    return form;
}

DtNumberForm formOfReadyType(const DtString& name, const DtString& type)
{
    DtNumberForm form;
    for (const DtReadyNumber& row : theReadyNumbers)
    {
        if (type == row.type)
        {
            form.octets = row.octets;
            form.isFloat = row.isFloat;
            form.isSigned = row.isSigned;
            form.isLittleEndian = endsWith(name, "LE");
        }
    }
    return form;
}

bool isNumber(const std::string& text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), DtIsDigit);
}

std::string withoutBlanks(const DtString& text)
{
    std::string result = text.stdString();
    result.erase(std::remove_if(result.begin(), result.end(), DtIsSpace), result.end());
    return result;
}

} // namespace

DtNumberForm numberFormOfRepresentation(const DtString& representation)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const DtDataTypeMapper::DtBasicTypeInfo& info = mapper.infoForBasicType(representation);
    return info.first.toUInt() != 0 ? formOfBasicType(representation, info)
                                    : formOfReadyType(representation, mapper.quorvexType(representation));
}

DtNumberForm numberFormOf(const DtString& datatype)
{
    const DtString representation = lastRepresentation(datatype);
    return numberFormOfRepresentation(representation.isEmpty() ? datatype : representation);
}

DtString numberTypeOf(const DtNumberForm& form)
{
    if (form.isFloat)
        return form.octets == 4 ? "DtFloat32" : "DtFloat64";
    for (const DtReadyNumber& row : theReadyNumbers)
    {
        if (row.octets >= std::min(form.octets, 8) && row.isSigned == form.isSigned)
            return row.type;
    }
    return "DtU8";
}

int elementCountOf(const DtString& cardinality)
{
    long long count = 1;
    for (const DtString& piece : DtSplit(DtString(withoutBlanks(cardinality)), ','))
    {
        if (!isNumber(piece.stdString()))
            return -1;
        count *= std::min(piece.toUInt(), 1U << 31);
        if (count > std::numeric_limits<int>::max())
            return -1;
    }
    return static_cast<int>(count);
}
