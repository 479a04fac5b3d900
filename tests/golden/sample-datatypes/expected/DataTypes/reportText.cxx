// Generated from case; the next generation writes it anew.
 
#include "DataTypes/reportText.h"

DtReportText::DtReportText() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtReportText::DtReportText(const Elements& elements) : myElements(elements)
{
}
 
DtReportText::DtReportText(const DtReportText& other) : myElements(other.myElements)
{
}
 
DtReportText::~DtReportText()
{
}
 
DtReportText& DtReportText::operator=(const DtReportText& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtReportText::operator==(const DtReportText& other) const
{
    return myElements == other.myElements;
}
 
bool DtReportText::operator!=(const DtReportText& other) const
{
    return !(*this == other);
}
 
std::size_t DtReportText::size() const
{
    return myElements.size();
}
 
bool DtReportText::empty() const
{
    return myElements.empty();
}
 
DtReportText::Elements::const_reference DtReportText::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtReportText::Elements::reference DtReportText::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtReportText::Elements& DtReportText::elements() const
{
    return myElements;
}
 
void DtReportText::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtReportText::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtReportText::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtReportText::clear()
{
    myElements.clear();
}
 
void DtReportText::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtReportText::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtReportText::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtReportText::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtReportText::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAnullTerminatedArray)qx", -1));
}
 
DtWireForm DtReportText::elementForm()
{
    return DtWireForm("HLAASCIIchar", "", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

