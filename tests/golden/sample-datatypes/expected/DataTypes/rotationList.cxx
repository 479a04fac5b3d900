// Generated from case; the next generation writes it anew.
 
#include "DataTypes/rotationList.h"
#ifndef __has_include
#include "DataTypes/rotation.h"
#elif __has_include("DataTypes/rotation.h")
#include "DataTypes/rotation.h"
#endif

DtRotationList::DtRotationList() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtRotationList::DtRotationList(const Elements& elements) : myElements(elements)
{
}
 
DtRotationList::DtRotationList(const DtRotationList& other) : myElements(other.myElements)
{
}
 
DtRotationList::~DtRotationList()
{
}
 
DtRotationList& DtRotationList::operator=(const DtRotationList& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtRotationList::operator==(const DtRotationList& other) const
{
    return myElements == other.myElements;
}
 
bool DtRotationList::operator!=(const DtRotationList& other) const
{
    return !(*this == other);
}
 
std::size_t DtRotationList::size() const
{
    return myElements.size();
}
 
bool DtRotationList::empty() const
{
    return myElements.empty();
}
 
DtRotationList::Elements::const_reference DtRotationList::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtRotationList::Elements::reference DtRotationList::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtRotationList::Elements& DtRotationList::elements() const
{
    return myElements;
}
 
void DtRotationList::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtRotationList::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtRotationList::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtRotationList::clear()
{
    myElements.clear();
}
 
void DtRotationList::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtRotationList::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtRotationList::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtRotationList::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtRotationList::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtRotationList::elementForm()
{
    return DtWireForm("Rotation", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

