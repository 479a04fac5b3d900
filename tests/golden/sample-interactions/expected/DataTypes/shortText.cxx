// Generated from case; the next generation writes it anew.
 
#include "DataTypes/shortText.h"

DtShortText::DtShortText() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtShortText::DtShortText(const Elements& elements) : myElements(elements)
{
}
 
DtShortText::DtShortText(const DtShortText& other) : myElements(other.myElements)
{
}
 
DtShortText::~DtShortText()
{
}
 
DtShortText& DtShortText::operator=(const DtShortText& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtShortText::operator==(const DtShortText& other) const
{
    return myElements == other.myElements;
}
 
bool DtShortText::operator!=(const DtShortText& other) const
{
    return !(*this == other);
}
 
std::size_t DtShortText::size() const
{
    return myElements.size();
}
 
bool DtShortText::empty() const
{
    return myElements.empty();
}
 
DtShortText::Elements::const_reference DtShortText::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtShortText::Elements::reference DtShortText::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtShortText::Elements& DtShortText::elements() const
{
    return myElements;
}
 
void DtShortText::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtShortText::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtShortText::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtShortText::clear()
{
    myElements.clear();
}
 
void DtShortText::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtShortText::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtShortText::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtShortText::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtShortText::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 16));
}
 
DtWireForm DtShortText::elementForm()
{
    return DtWireForm("HLAASCIIchar", "", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

