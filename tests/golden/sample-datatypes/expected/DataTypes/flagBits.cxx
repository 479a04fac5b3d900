// Generated from case; the next generation writes it anew.
 
#include "DataTypes/flagBits.h"

DtFlagBits::DtFlagBits() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtFlagBits::DtFlagBits(const Elements& elements) : myElements(elements)
{
}
 
DtFlagBits::DtFlagBits(const DtFlagBits& other) : myElements(other.myElements)
{
}
 
DtFlagBits::~DtFlagBits()
{
}
 
DtFlagBits& DtFlagBits::operator=(const DtFlagBits& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtFlagBits::operator==(const DtFlagBits& other) const
{
    return myElements == other.myElements;
}
 
bool DtFlagBits::operator!=(const DtFlagBits& other) const
{
    return !(*this == other);
}
 
std::size_t DtFlagBits::size() const
{
    return myElements.size();
}
 
bool DtFlagBits::empty() const
{
    return myElements.empty();
}
 
DtFlagBits::Elements::const_reference DtFlagBits::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtFlagBits::Elements::reference DtFlagBits::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtFlagBits::Elements& DtFlagBits::elements() const
{
    return myElements;
}
 
void DtFlagBits::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtFlagBits::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtFlagBits::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtFlagBits::clear()
{
    myElements.clear();
}
 
void DtFlagBits::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtFlagBits::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtFlagBits::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtFlagBits::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtFlagBits::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAbitArray)qx", -1));
}
 
DtWireForm DtFlagBits::elementForm()
{
    return DtWireForm("HLAoctet", "", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

