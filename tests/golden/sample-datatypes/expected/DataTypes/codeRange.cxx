// Generated from case; the next generation writes it anew.
 
#include "DataTypes/codeRange.h"
#ifndef __has_include
#include "DataTypes/weight__Kg.h"
#elif __has_include("DataTypes/weight__Kg.h")
#include "DataTypes/weight__Kg.h"
#endif

DtCodeRange::DtCodeRange() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtCodeRange::DtCodeRange(const Elements& elements) : myElements(elements)
{
}
 
DtCodeRange::DtCodeRange(const DtCodeRange& other) : myElements(other.myElements)
{
}
 
DtCodeRange::~DtCodeRange()
{
}
 
DtCodeRange& DtCodeRange::operator=(const DtCodeRange& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtCodeRange::operator==(const DtCodeRange& other) const
{
    return myElements == other.myElements;
}
 
bool DtCodeRange::operator!=(const DtCodeRange& other) const
{
    return !(*this == other);
}
 
std::size_t DtCodeRange::size() const
{
    return myElements.size();
}
 
bool DtCodeRange::empty() const
{
    return myElements.empty();
}
 
DtCodeRange::Elements::const_reference DtCodeRange::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtCodeRange::Elements::reference DtCodeRange::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtCodeRange::Elements& DtCodeRange::elements() const
{
    return myElements;
}
 
void DtCodeRange::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtCodeRange::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtCodeRange::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtCodeRange::clear()
{
    myElements.clear();
}
 
void DtCodeRange::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtCodeRange::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtCodeRange::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtCodeRange::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtCodeRange::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtCodeRange::elementForm()
{
    return DtWireForm("Weight__Kg", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
}
 

