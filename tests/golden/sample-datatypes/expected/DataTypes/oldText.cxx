// Generated from case; the next generation writes it anew.
 
#include "DataTypes/oldText.h"

DtOldText::DtOldText() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtOldText::DtOldText(const Elements& elements) : myElements(elements)
{
}
 
DtOldText::DtOldText(const DtOldText& other) : myElements(other.myElements)
{
}
 
DtOldText::~DtOldText()
{
}
 
DtOldText& DtOldText::operator=(const DtOldText& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtOldText::operator==(const DtOldText& other) const
{
    return myElements == other.myElements;
}
 
bool DtOldText::operator!=(const DtOldText& other) const
{
    return !(*this == other);
}
 
std::size_t DtOldText::size() const
{
    return myElements.size();
}
 
bool DtOldText::empty() const
{
    return myElements.empty();
}
 
DtOldText::Elements::const_reference DtOldText::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtOldText::Elements::reference DtOldText::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtOldText::Elements& DtOldText::elements() const
{
    return myElements;
}
 
void DtOldText::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtOldText::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtOldText::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtOldText::clear()
{
    myElements.clear();
}
 
void DtOldText::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtOldText::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtOldText::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtOldText::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtOldText::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(RPRnullTerminatedArray)qx", -1));
}
 
DtWireForm DtOldText::elementForm()
{
    return DtWireForm("HLAASCIIchar", "", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

