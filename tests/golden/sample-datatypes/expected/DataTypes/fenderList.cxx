// Generated from case; the next generation writes it anew.
 
#include "DataTypes/fenderList.h"
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif

DtFenderList::DtFenderList() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtFenderList::DtFenderList(const Elements& elements) : myElements(elements)
{
}
 
DtFenderList::DtFenderList(const DtFenderList& other) : myElements(other.myElements)
{
}
 
DtFenderList::~DtFenderList()
{
}
 
DtFenderList& DtFenderList::operator=(const DtFenderList& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtFenderList::operator==(const DtFenderList& other) const
{
    return myElements == other.myElements;
}
 
bool DtFenderList::operator!=(const DtFenderList& other) const
{
    return !(*this == other);
}
 
std::size_t DtFenderList::size() const
{
    return myElements.size();
}
 
bool DtFenderList::empty() const
{
    return myElements.empty();
}
 
DtFenderList::Elements::const_reference DtFenderList::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtFenderList::Elements::reference DtFenderList::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtFenderList::Elements& DtFenderList::elements() const
{
    return myElements;
}
 
void DtFenderList::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtFenderList::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtFenderList::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtFenderList::clear()
{
    myElements.clear();
}
 
void DtFenderList::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtFenderList::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtFenderList::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtFenderList::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtFenderList::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(RPRpaddingTo32Array)qx", -1));
}
 
DtWireForm DtFenderList::elementForm()
{
    return DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

