// Generated from case; the next generation writes it anew.
 
#include "DataTypes/lineList.h"

DtLineList::DtLineList() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtLineList::DtLineList(const Elements& elements) : myElements(elements)
{
}
 
DtLineList::DtLineList(const DtLineList& other) : myElements(other.myElements)
{
}
 
DtLineList::~DtLineList()
{
}
 
DtLineList& DtLineList::operator=(const DtLineList& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtLineList::operator==(const DtLineList& other) const
{
    return myElements == other.myElements;
}
 
bool DtLineList::operator!=(const DtLineList& other) const
{
    return !(*this == other);
}
 
std::size_t DtLineList::size() const
{
    return myElements.size();
}
 
bool DtLineList::empty() const
{
    return myElements.empty();
}
 
DtLineList::Elements::const_reference DtLineList::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtLineList::Elements::reference DtLineList::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtLineList::Elements& DtLineList::elements() const
{
    return myElements;
}
 
void DtLineList::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtLineList::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtLineList::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtLineList::clear()
{
    myElements.clear();
}
 
void DtLineList::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtLineList::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtLineList::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtLineList::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtLineList::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", 4));
}
 
DtWireForm DtLineList::elementForm()
{
    return DtWireForm("LineState32", "HLAinteger32BE", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
}
 

