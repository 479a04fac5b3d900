#ifndef QX_WIRE_STRINGS_H
#define QX_WIRE_STRINGS_H

#include <qx/wireArrays.h>

// Strings. What they hold is told by the datatype, how they are laid out by the encoding.

inline bool DtIsWideString(const DtWireForm& form)
{
    if (form.octets != 0)
        return form.octets == 2;
    return std::strstr(form.datatype, "nicode") || std::strstr(form.representation, "nicode") ||
           std::strstr(form.representation, "octetPair");
}

// UTF-8 to UTF-16 and back; what is no valid text becomes the replacement character.
inline std::vector<DtU16> DtWideUnits(const std::string& text)
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

inline void DtAppendUtf8(std::string& text, DtU32 code)
{
    const int more = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    static const DtU8 theLeads[] = {0x00, 0xc0, 0xe0, 0xf0};
    text += static_cast<char>(theLeads[more] | (code >> (6 * more)));
    for (int i = more - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3f));
}

inline std::string DtNarrowText(const std::vector<DtU16>& units)
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

template <>
struct DtWireTraits<DtString, void>
{
    static void encode(DtWireWriter& writer, const DtString& value, const DtWireForm& form)
    {
        if (DtIsWideString(form))
            return encodeUnits(writer, DtWideUnits(value.text()), form);
        const std::string& text = value.text();
        if (form.octets <= 1 && DtEncodeOctets(writer, text.data(), text.size(), layout(form)))
            return;
        encodeUnits(writer, std::vector<DtU8>(value.text().begin(), value.text().end()), form);
    }
    static bool decode(DtWireReader& reader, DtString& value, const DtWireForm& form)
    {
        if (DtIsWideString(form))
        {
            std::vector<DtU16> wide;
            if (!DtDecodeArray(reader, wide, layout(form), unitForm(form)))
                return false;
            value = DtNarrowText(wide);
            return true;
        }
        const char* text = nullptr;
        std::size_t length = 0;
        if (find(reader, text, length, form))
        {
            value.assign(text, length);
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
    // Passes over a text whose characters are single octets and tells where they lie; false, with the reader as it was,
    // for any other text.
    static bool find(DtWireReader& reader, const char*& text, std::size_t& length, const DtWireForm& form)
    {
        const DtU8* octets = nullptr;
        if (form.octets > 1 || DtIsWideString(form) || !DtDecodeOctets(reader, octets, length, layout(form)))
            return false;
        while (layout(form).kind == DtFixedArray && length != 0 && octets[length - 1] == 0)
            --length; // what a shorter text was filled with
        text = reinterpret_cast<const char*>(octets);
        return true;
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail*)
    {
        return DtIsWideString(form) ? DtArrayBoundary<DtU16>(layout(form), unitForm(form), nullptr)
                                    : DtArrayBoundary<DtU8>(layout(form), unitForm(form), nullptr);
    }

private:
    static DtWireForm unitForm(const DtWireForm& form)
    {
        return DtWireForm(form.representation, "", "", -1, form.octets, form.isLittleEndian);
    }
    // What the model defines has the layout of the form. Else a fixed string has the length of the form, or the one
    // that its datatype's name ends with; without either it reaches to the end of the value.
    static DtArrayLayout layout(const DtWireForm& form)
    {
        if (form.octets != 0)
            return DtLayoutOf(form);
        if (DtTextIs(form.datatype, "string"))
            return DtArrayLayout(DtNullTerminatedArray);
        if (!DtTextIs(form.encoding, "HLAfixedArray") || form.count > 1)
            return DtLayoutOf(form);
        const std::size_t number = DtTrailingNumber(form.datatype);
        return number != 0 ? DtArrayLayout(DtFixedArray, number) : DtArrayLayout(DtLengthlessArray);
    }
    template <class Unit>
    static void encodeUnits(DtWireWriter& writer, std::vector<Unit> units, const DtWireForm& form)
    {
        const DtArrayLayout kind = layout(form);
        if (kind.kind == DtFixedArray)
            units.resize(kind.count); // cut, or filled with zeros
        DtEncodeArray(writer, units, kind, unitForm(form));
    }
};

// A text; null-terminated where the model does not say how it lies.
template <>
struct DtWireTraits<DtGlobalObjectDesignator, void>
{
    static void encode(DtWireWriter& writer, const DtGlobalObjectDesignator& value, const DtWireForm& form)
    {
        DtWireTraits<DtString>::encode(writer, value.name(), textForm(form));
    }
    static bool decode(DtWireReader& reader, DtGlobalObjectDesignator& value, const DtWireForm& form)
    {
        DtString name;
        if (!DtWireTraits<DtString>::decode(reader, name, textForm(form)))
            return false;
        value = DtGlobalObjectDesignator(name);
        return true;
    }
    static unsigned int boundary(const DtWireForm& form, const DtWireTrail* trail)
    {
        return DtWireTraits<DtString>::boundary(textForm(form), trail);
    }

private:
    static DtWireForm textForm(const DtWireForm& form)
    {
        return form.octets != 0 ? form : DtWireForm("", "", "RPRnullTerminatedArray");
    }
};

#endif
