// Generated from case; the next generation writes it anew.
 
#include "DataTypes/row.h"
#ifndef __has_include
#include "DataTypes/hours.h"
#elif __has_include("DataTypes/hours.h")
#include "DataTypes/hours.h"
#endif

DtRow::DtRow() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtRow::DtRow(const Elements& elements) : myElements(elements)
{
}
 
DtRow::DtRow(const DtRow& other) : myElements(other.myElements)
{
}
 
DtRow::~DtRow()
{
}
 
DtRow& DtRow::operator=(const DtRow& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtRow::operator==(const DtRow& other) const
{
    return myElements == other.myElements;
}
 
bool DtRow::operator!=(const DtRow& other) const
{
    return !(*this == other);
}
 
std::size_t DtRow::size() const
{
    return myElements.size();
}
 
bool DtRow::empty() const
{
    return myElements.empty();
}
 
DtRow::Elements::const_reference DtRow::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtRow::Elements::reference DtRow::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtRow::Elements& DtRow::elements() const
{
    return myElements;
}
 
void DtRow::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtRow::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtRow::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtRow::clear()
{
    myElements.clear();
}
 
void DtRow::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtRow::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtRow::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtRow::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtRow::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 3));
}
 
DtWireForm DtRow::elementForm()
{
    return DtWireForm("Hours", "Unsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
}
 

