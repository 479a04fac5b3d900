#include "fileGenerator/valueForm.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/toolkitLayouts.h"

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
