// Generated from case; the next generation writes it anew.
 
#include "DataTypes/bearingList.h"

DtBearingList::DtBearingList() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtBearingList::DtBearingList(const Elements& elements) : myElements(elements)
{
}
 
DtBearingList::DtBearingList(const DtBearingList& other) : myElements(other.myElements)
{
}
 
DtBearingList::~DtBearingList()
{
}
 
DtBearingList& DtBearingList::operator=(const DtBearingList& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtBearingList::operator==(const DtBearingList& other) const
{
    return myElements == other.myElements;
}
 
bool DtBearingList::operator!=(const DtBearingList& other) const
{
    return !(*this == other);
}
 
std::size_t DtBearingList::size() const
{
    return myElements.size();
}
 
bool DtBearingList::empty() const
{
    return myElements.empty();
}
 
DtBearingList::Elements::const_reference DtBearingList::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtBearingList::Elements::reference DtBearingList::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtBearingList::Elements& DtBearingList::elements() const
{
    return myElements;
}
 
void DtBearingList::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtBearingList::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtBearingList::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtBearingList::clear()
{
    myElements.clear();
}
 
void DtBearingList::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtBearingList::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtBearingList::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtBearingList::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtBearingList::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtBearingList::elementForm()
{
    return DtWireForm("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
}
 

