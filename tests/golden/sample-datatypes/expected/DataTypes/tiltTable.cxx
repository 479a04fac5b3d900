// Generated from case; the next generation writes it anew.
 
#include "DataTypes/tiltTable.h"
#ifndef __has_include
#include "DataTypes/trim24.h"
#elif __has_include("DataTypes/trim24.h")
#include "DataTypes/trim24.h"
#endif

DtTiltTable::DtTiltTable() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtTiltTable::DtTiltTable(const Elements& elements) : myElements(elements)
{
}
 
DtTiltTable::DtTiltTable(const DtTiltTable& other) : myElements(other.myElements)
{
}
 
DtTiltTable::~DtTiltTable()
{
}
 
DtTiltTable& DtTiltTable::operator=(const DtTiltTable& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtTiltTable::operator==(const DtTiltTable& other) const
{
    return myElements == other.myElements;
}
 
bool DtTiltTable::operator!=(const DtTiltTable& other) const
{
    return !(*this == other);
}
 
std::size_t DtTiltTable::size() const
{
    return myElements.size();
}
 
bool DtTiltTable::empty() const
{
    return myElements.empty();
}
 
DtTiltTable::Elements::const_reference DtTiltTable::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtTiltTable::Elements::reference DtTiltTable::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtTiltTable::Elements& DtTiltTable::elements() const
{
    return myElements;
}
 
void DtTiltTable::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtTiltTable::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtTiltTable::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtTiltTable::clear()
{
    myElements.clear();
}
 
void DtTiltTable::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtTiltTable::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtTiltTable::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtTiltTable::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtTiltTable::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 3));
}
 
DtWireForm DtTiltTable::elementForm()
{
    return DtWireForm("Trim24", "HarbourInteger24", R"qx(HLAvariableArray)qx",
        -1, 3, 0);
}
 

