// Generated from case; the next generation writes it anew.
 
#include "DataTypes/lockGrid.h"
#ifndef __has_include
#include "DataTypes/weight__Kg.h"
#elif __has_include("DataTypes/weight__Kg.h")
#include "DataTypes/weight__Kg.h"
#endif

DtLockGrid::DtLockGrid() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtLockGrid::DtLockGrid(const Elements& elements) : myElements(elements)
{
}
 
DtLockGrid::DtLockGrid(const DtLockGrid& other) : myElements(other.myElements)
{
}
 
DtLockGrid::~DtLockGrid()
{
}
 
DtLockGrid& DtLockGrid::operator=(const DtLockGrid& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtLockGrid::operator==(const DtLockGrid& other) const
{
    return myElements == other.myElements;
}
 
bool DtLockGrid::operator!=(const DtLockGrid& other) const
{
    return !(*this == other);
}
 
std::size_t DtLockGrid::size() const
{
    return myElements.size();
}
 
bool DtLockGrid::empty() const
{
    return myElements.empty();
}
 
DtLockGrid::Elements::const_reference DtLockGrid::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtLockGrid::Elements::reference DtLockGrid::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtLockGrid::Elements& DtLockGrid::elements() const
{
    return myElements;
}
 
void DtLockGrid::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtLockGrid::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtLockGrid::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtLockGrid::clear()
{
    myElements.clear();
}
 
void DtLockGrid::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtLockGrid::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtLockGrid::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtLockGrid::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtLockGrid::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 8));
}
 
DtWireForm DtLockGrid::elementForm()
{
    return DtWireForm("Weight__Kg", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
}
 

