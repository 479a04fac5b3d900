// Generated from case; the next generation writes it anew.
 
#include "DataTypes/cargo_Item_List.h"
#ifndef __has_include
#include "DataTypes/cargo__Item.h"
#elif __has_include("DataTypes/cargo__Item.h")
#include "DataTypes/cargo__Item.h"
#endif

DtCargo_Item_List::DtCargo_Item_List() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtCargo_Item_List::DtCargo_Item_List(const Elements& elements) : myElements(elements)
{
}
 
DtCargo_Item_List::DtCargo_Item_List(const DtCargo_Item_List& other) : myElements(other.myElements)
{
}
 
DtCargo_Item_List::~DtCargo_Item_List()
{
}
 
DtCargo_Item_List& DtCargo_Item_List::operator=(const DtCargo_Item_List& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtCargo_Item_List::operator==(const DtCargo_Item_List& other) const
{
    return myElements == other.myElements;
}
 
bool DtCargo_Item_List::operator!=(const DtCargo_Item_List& other) const
{
    return !(*this == other);
}
 
std::size_t DtCargo_Item_List::size() const
{
    return myElements.size();
}
 
bool DtCargo_Item_List::empty() const
{
    return myElements.empty();
}
 
DtCargo_Item_List::Elements::const_reference DtCargo_Item_List::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtCargo_Item_List::Elements::reference DtCargo_Item_List::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtCargo_Item_List::Elements& DtCargo_Item_List::elements() const
{
    return myElements;
}
 
void DtCargo_Item_List::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtCargo_Item_List::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtCargo_Item_List::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtCargo_Item_List::clear()
{
    myElements.clear();
}
 
void DtCargo_Item_List::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtCargo_Item_List::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtCargo_Item_List::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtCargo_Item_List::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtCargo_Item_List::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtCargo_Item_List::elementForm()
{
    return DtWireForm("Cargo__Item", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

