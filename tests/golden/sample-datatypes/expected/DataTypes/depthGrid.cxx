// Generated from case; the next generation writes it anew.
 
#include "DataTypes/depthGrid.h"

DtDepthGrid::DtDepthGrid() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtDepthGrid::DtDepthGrid(const Elements& elements) : myElements(elements)
{
}
 
DtDepthGrid::DtDepthGrid(const DtDepthGrid& other) : myElements(other.myElements)
{
}
 
DtDepthGrid::~DtDepthGrid()
{
}
 
DtDepthGrid& DtDepthGrid::operator=(const DtDepthGrid& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtDepthGrid::operator==(const DtDepthGrid& other) const
{
    return myElements == other.myElements;
}
 
bool DtDepthGrid::operator!=(const DtDepthGrid& other) const
{
    return !(*this == other);
}
 
std::size_t DtDepthGrid::size() const
{
    return myElements.size();
}
 
bool DtDepthGrid::empty() const
{
    return myElements.empty();
}
 
DtDepthGrid::Elements::const_reference DtDepthGrid::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtDepthGrid::Elements::reference DtDepthGrid::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtDepthGrid::Elements& DtDepthGrid::elements() const
{
    return myElements;
}
 
void DtDepthGrid::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtDepthGrid::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtDepthGrid::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtDepthGrid::clear()
{
    myElements.clear();
}
 
void DtDepthGrid::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtDepthGrid::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtDepthGrid::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtDepthGrid::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtDepthGrid::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 12));
}
 
DtWireForm DtDepthGrid::elementForm()
{
    return DtWireForm("Depth", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
}
 

