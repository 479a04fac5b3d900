#include "fileGenerator/numberForm.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/memberTypes.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"
#include "omtReader/basicDataRepresentationNode.h"
#include "omtReader/omtTree.h"

#include <algorithm>
#include <limits>
#include <set>
#include <utility>

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

std::string withoutBlanks(const DtString& text)
{
    std::string result = text.stdString();
    result.erase(std::remove_if(result.begin(), result.end(), DtIsSpace), result.end());
    return result;
}

// The text of a model in lower case without blanks; "big" and "little" are the ones that the standard knows.
std::string plainEndian(const DtString& endian)
{
    std::string text = withoutBlanks(endian);
    std::transform(text.begin(), text.end(), text.begin(), DtToLower);
    return text;
}

// The name decides where the model has no text. A text that says neither is taken for big.
bool isLittleEndian(const DtString& name, const DtString& endian)
{
    const std::string text = plainEndian(endian);
    return text.empty() ? endsWith(name, "LE") : text == "little";
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

// Size and byte order are the model's. Sign and fraction follow from the ready-made type that stands for the name, as
// that of "short" or "double", else from the name.
DtNumberForm formOfBasicType(const DtString& name, const DtDataTypeMapper::DtBasicTypeInfo& info,
                             const DtString& readyType)
{
    DtNumberForm form = formOfReadyType(name, readyType);
    if (form.octets == 0)
    {
        form.isFloat = isFloatRepresentation(name);
        form.isSigned = form.isFloat || isSignedRepresentation(name);
    }
    form.octets = static_cast<int>((std::min(info.first.toUInt(), 8192U) + 7) / 8);
    form.isLittleEndian = isLittleEndian(name, info.second);
    return form;
}

bool isKnownByteOrder(const DtString& endian)
{
    const std::string text = plainEndian(endian);
    return text.empty() || text == "big" || text == "little";
}

bool containsEither(const DtString& text, const char* part, const char* otherPart)
{
    return DtContainsSubstring(text, part) || DtContainsSubstring(text, otherPart);
}

bool isNumber(const std::string& text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), DtIsDigit);
}

} // namespace

bool isFloatRepresentation(const DtString& representation)
{
    return containsEither(representation, "Float", "float");
}

bool isSignedRepresentation(const DtString& representation)
{
    return containsEither(representation, "integer", "Integer") &&
           !containsEither(representation, "unsigned", "Unsigned");
}

DtNumberForm numberFormOfRepresentation(const DtString& representation)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const DtDataTypeMapper::DtBasicTypeInfo& info = mapper.infoForBasicType(representation);
    const DtString& readyType = mapper.quorvexType(representation);
    return info.first.toUInt() != 0 ? formOfBasicType(representation, info, readyType)
                                    : formOfReadyType(representation, readyType);
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

void warnOfByteOrders(const DtOMTTree& tree)
{
    auto& told = DtPerRun<std::set<std::pair<DtString, DtString>>, class DtToldByteOrders>();
    for (const DtBasicDataRepresentationNode* node : tree.basicDataRepresentations())
    {
        const DtString& name = node->getName();
        const DtString& endian = node->getEndian();
        if (!isKnownByteOrder(endian) && told.emplace(name, endian).second)
            DtTellWarning(DtRules::unknownByteOrder, DtSubject::datatype(name),
                          "Warning: The byte order of " + name + " is \"" + endian +
                              "\", which is neither Big nor Little. It is taken for Big.\n");
    }
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
