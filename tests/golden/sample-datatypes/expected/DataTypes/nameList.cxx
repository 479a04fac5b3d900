// Generated from case; the next generation writes it anew.
 
#include "DataTypes/nameList.h"

DtNameList::DtNameList() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtNameList::DtNameList(const Elements& elements) : myElements(elements)
{
}
 
DtNameList::DtNameList(const DtNameList& other) : myElements(other.myElements)
{
}
 
DtNameList::~DtNameList()
{
}
 
DtNameList& DtNameList::operator=(const DtNameList& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtNameList::operator==(const DtNameList& other) const
{
    return myElements == other.myElements;
}
 
bool DtNameList::operator!=(const DtNameList& other) const
{
    return !(*this == other);
}
 
std::size_t DtNameList::size() const
{
    return myElements.size();
}
 
bool DtNameList::empty() const
{
    return myElements.empty();
}
 
DtNameList::Elements::const_reference DtNameList::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtNameList::Elements::reference DtNameList::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtNameList::Elements& DtNameList::elements() const
{
    return myElements;
}
 
void DtNameList::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtNameList::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtNameList::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtNameList::clear()
{
    myElements.clear();
}
 
void DtNameList::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtNameList::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtNameList::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtNameList::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtNameList::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtNameList::elementForm()
{
    return DtWireForm("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

