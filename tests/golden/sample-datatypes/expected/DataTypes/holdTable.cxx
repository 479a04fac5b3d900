// Generated from case; the next generation writes it anew.
 
#include "DataTypes/holdTable.h"
#ifndef __has_include
#include "DataTypes/hold.h"
#elif __has_include("DataTypes/hold.h")
#include "DataTypes/hold.h"
#endif

DtHoldTable::DtHoldTable() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtHoldTable::DtHoldTable(const Elements& elements) : myElements(elements)
{
}
 
DtHoldTable::DtHoldTable(const DtHoldTable& other) : myElements(other.myElements)
{
}
 
DtHoldTable::~DtHoldTable()
{
}
 
DtHoldTable& DtHoldTable::operator=(const DtHoldTable& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtHoldTable::operator==(const DtHoldTable& other) const
{
    return myElements == other.myElements;
}
 
bool DtHoldTable::operator!=(const DtHoldTable& other) const
{
    return !(*this == other);
}
 
std::size_t DtHoldTable::size() const
{
    return myElements.size();
}
 
bool DtHoldTable::empty() const
{
    return myElements.empty();
}
 
DtHoldTable::Elements::const_reference DtHoldTable::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtHoldTable::Elements::reference DtHoldTable::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtHoldTable::Elements& DtHoldTable::elements() const
{
    return myElements;
}
 
void DtHoldTable::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtHoldTable::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtHoldTable::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtHoldTable::clear()
{
    myElements.clear();
}
 
void DtHoldTable::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtHoldTable::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtHoldTable::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtHoldTable::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtHoldTable::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 4));
}
 
DtWireForm DtHoldTable::elementForm()
{
    return DtWireForm("Hold", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

