// Generated from case; the next generation writes it anew.
 
#include "DataTypes/personList.h"
#ifndef __has_include
#include "DataTypes/person.h"
#elif __has_include("DataTypes/person.h")
#include "DataTypes/person.h"
#endif

DtPersonList::DtPersonList() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtPersonList::DtPersonList(const Elements& elements) : myElements(elements)
{
}
 
DtPersonList::DtPersonList(const DtPersonList& other) : myElements(other.myElements)
{
}
 
DtPersonList::~DtPersonList()
{
}
 
DtPersonList& DtPersonList::operator=(const DtPersonList& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtPersonList::operator==(const DtPersonList& other) const
{
    return myElements == other.myElements;
}
 
bool DtPersonList::operator!=(const DtPersonList& other) const
{
    return !(*this == other);
}
 
std::size_t DtPersonList::size() const
{
    return myElements.size();
}
 
bool DtPersonList::empty() const
{
    return myElements.empty();
}
 
DtPersonList::Elements::const_reference DtPersonList::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtPersonList::Elements::reference DtPersonList::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtPersonList::Elements& DtPersonList::elements() const
{
    return myElements;
}
 
void DtPersonList::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtPersonList::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtPersonList::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtPersonList::clear()
{
    myElements.clear();
}
 
void DtPersonList::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtPersonList::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtPersonList::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtPersonList::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtPersonList::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtPersonList::elementForm()
{
    return DtWireForm("Person", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

