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
std::vector<DtU16> DtWideUnits(const std::string& text);
void DtAppendUtf8(std::string& text, DtU32 code);
std::string DtNarrowText(const std::vector<DtU16>& units);

template <>
struct DtWireTraits<DtString, void>
{
    static void encode(DtWireWriter& writer, const DtString& value, const DtWireForm& form)
    {
        const std::string& text = value.text();
        const bool isNarrow = form.octets <= 1 && !DtIsWideString(form);
        if (!isNarrow || !DtEncodeOctets(writer, text.data(), text.size(), layout(form)))
            encodeUnits(writer, text, form);
    }
    static bool decode(DtWireReader& reader, DtString& value, const DtWireForm& form)
    {
        const char* text = nullptr;
        std::size_t length = 0;
        if (!find(reader, text, length, form))
            return decodeUnits(reader, value, form);
        value.assign(text, length);
        return true;
    }
    // Passes over a text whose characters are single octets and tells where they lie; false, with the reader as it was,
    // for any other text.
    static bool find(DtWireReader& reader, const char*& text, std::size_t& length, const DtWireForm& form)
    {
        const DtU8* octets = nullptr;
        const DtArrayLayout known = layout(form);
        if (form.octets > 1 || DtIsWideString(form) || !DtDecodeOctets(reader, octets, length, known))
            return false;
        while (known.kind == DtFixedArray && length != 0 && octets[length - 1] == 0)
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
    // One by one: wide texts, and those that cannot be taken as a whole or not at all.
    static void encodeUnits(DtWireWriter& writer, const std::string& text, const DtWireForm& form);
    static bool decodeUnits(DtWireReader& reader, DtString& value, const DtWireForm& form);
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
