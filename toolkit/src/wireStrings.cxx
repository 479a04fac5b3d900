#include <qx/wireStrings.h>

std::vector<DtU16> DtWideUnits(const std::string& text)
{
    std::vector<DtU16> units;
    for (std::size_t i = 0; i < text.size();)
    {
        const DtU8 lead = static_cast<DtU8>(text[i++]);
        const int more = lead < 0x80 ? 0 : lead < 0xc2 ? -1 : lead < 0xe0 ? 1 : lead < 0xf0 ? 2 : lead < 0xf5 ? 3 : -1;
        DtU32 code = more == 0 ? lead : lead & (0x3f >> (more < 0 ? 0 : more));
        int taken = 0;
        for (; taken < more && i < text.size() && (static_cast<DtU8>(text[i]) & 0xc0) == 0x80; ++taken)
            code = code << 6 | (static_cast<DtU8>(text[i++]) & 0x3f);
        const bool overlong = (more == 2 && code < 0x800) || (more == 3 && code < 0x10000);
        if (more < 0 || taken != more || overlong || code > 0x10ffff || (code >= 0xd800 && code <= 0xdfff))
            code = 0xfffd;
        if (code < 0x10000)
        {
            units.push_back(static_cast<DtU16>(code));
            continue;
        }
        units.push_back(static_cast<DtU16>(0xd800 + ((code - 0x10000) >> 10)));
        units.push_back(static_cast<DtU16>(0xdc00 + ((code - 0x10000) & 0x3ff)));
    }
    return units;
}

void DtAppendUtf8(std::string& text, DtU32 code)
{
    const int more = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    static const DtU8 theLeads[] = {0x00, 0xc0, 0xe0, 0xf0};
    text += static_cast<char>(theLeads[more] | (code >> (6 * more)));
    for (int i = more - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3f));
}

std::string DtNarrowText(const std::vector<DtU16>& units)
{
    std::string text;
    for (std::size_t i = 0; i < units.size(); ++i)
    {
        DtU32 code = units[i];
        const bool high = code >= 0xd800 && code < 0xdc00;
        if (high && i + 1 < units.size() && units[i + 1] >= 0xdc00 && units[i + 1] < 0xe000)
            code = 0x10000 + ((code - 0xd800) << 10) + (units[++i] - 0xdc00u);
        else if (code >= 0xd800 && code < 0xe000)
            code = 0xfffd;
        DtAppendUtf8(text, code);
    }
    return text;
}

namespace
{
template <class Unit>
void encodeAll(DtWireWriter& writer, std::vector<Unit> units, const DtArrayLayout& layout, const DtWireForm& unitForm)
{
    if (layout.kind == DtFixedArray)
        units.resize(layout.count); // cut, or filled with zeros
    DtEncodeArray(writer, units, layout, unitForm);
}
} // namespace

void DtWireTraits<DtString, void>::encodeUnits(DtWireWriter& writer, const std::string& text, const DtWireForm& form)
{
    if (DtIsWideString(form))
        return encodeAll(writer, DtWideUnits(text), layout(form), unitForm(form));
    encodeAll(writer, std::vector<DtU8>(text.begin(), text.end()), layout(form), unitForm(form));
}

bool DtWireTraits<DtString, void>::decodeUnits(DtWireReader& reader, DtString& value, const DtWireForm& form)
{
    if (DtIsWideString(form))
    {
        std::vector<DtU16> wide;
        if (!DtDecodeArray(reader, wide, layout(form), unitForm(form)))
            return false;
        value = DtNarrowText(wide);
        return true;
    }
    std::vector<DtU8> narrow;
    if (!DtDecodeArray(reader, narrow, layout(form), unitForm(form)))
        return false;
    if (layout(form).kind == DtFixedArray)
        while (!narrow.empty() && narrow.back() == 0)
            narrow.pop_back();
    value = std::string(narrow.begin(), narrow.end());
    return true;
}
