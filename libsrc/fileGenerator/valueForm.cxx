#include "fileGenerator/valueForm.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeShape.h"
#include "fileGenerator/toolkitLayouts.h"
#include "foundation/stringUtils.h"

namespace
{
constexpr std::size_t theWidestLayout = 80; // columns that a layout takes in a line

// The layout of a record, each part in a line of its own where they do not stand in one.
DtString layoutCall(const DtString& argument)
{
    const std::string& text = argument.stdString();
    const DtString layout = text.substr(text.find('&')); // behind the comma
    return "DtWireForm::record(" +
           (layout.length() <= theWidestLayout
                ? layout
                : DtReplaceAllSubstrings(layout, " DtWirePart", "\n            DtWirePart")) +
           ")";
}
} // namespace

DtString wireFormCall(const DtValueForm& form, DtToolkitValue value, bool isOne)
{
    if (value == DtToolkitValue::None)
        return DtString();
    if (!form.layout.isEmpty())
        return layoutCall(form.layout);
    if (form.number.octets == 0)
        return DtString();
    const DtString kind = toolkitKindOfArray(form.encoding);
    const bool isFixed = kind == "DtFixedArray";
    if (kind.isEmpty() || (isFixed && form.count < 0))
        return DtString();
    DtString call = "DtWireForm::";
    if (isFixed)
        call += "fixedArray(" + DtString(form.count) + ", ";
    else if (!isOne || value != DtToolkitValue::Number || kind != "DtVariableArray")
        call += "array(" + kind + ", ";
    else
        call += "number(";
    return call + DtString(form.number.octets) + (form.number.isLittleEndian ? ", DtLittleEndian)" : ")");
}

DtString arrayLayoutCall(const DtString& encoding, int elementCount)
{
    const auto layout = [](const char* kind, int number)
    { return "DtArrayLayout(" + DtString(kind) + ", " + DtString(number) + ")"; };
    if (const int unit = paddingUnitOf(encoding))
        return layout("DtPaddingArray", unit);
    DtString kind = toolkitKindOfArray(encoding);
    if (kind.isEmpty())
        kind = elementCount > 0 ? "DtFixedArray" : "DtLengthlessArray";
    if (kind != "DtFixedArray")
        return "DtArrayLayout(" + kind + ")";
    return elementCount < 0 ? DtString("DtArrayLayout(DtUnknownArray)") : layout("DtFixedArray", elementCount);
}

DtString toolkitKindOfVariant(const DtString& encoding)
{
    if (encoding == "RPRextendedVariantRecord")
        return "DtExtendedVariant";
    return encoding == "HLAextendableVariantRecord" ? "DtExtendableVariant" : "DtPlainVariant";
}

DtString wireFormOfNames(const DtString& datatype, const DtString& representation, const DtValueForm& form)
{
    return "DtWireForm(\"" + datatype + "\", \"" + representation + "\", R\"qx(" + form.encoding + ")qx\",\n        " +
           DtString(form.count) + " /* elements */, " + DtString(form.number.octets) + " /* octets */, " +
           (form.number.isLittleEndian ? "1" : "0") + " /* little-endian */" + form.layout + ")";
}

DtValueForm valueFormOf(const DtString& datatype, const DtString& encoding, const DtToolkitLayout& layout)
{
    DtValueForm form;
    form.layout = layout.argument;
    if (layout.element.octets != 0)
    {
        form.encoding = layout.encoding;
        form.count = layout.count;
        form.number = layout.element;
        return form;
    }
    form.encoding = encoding;
    form.count = elementCountOf(DtDataTypeMapper::instance()->cardinalityOfArrayType(datatype));
    form.number = numberFormOf(datatype);
    return form;
}
