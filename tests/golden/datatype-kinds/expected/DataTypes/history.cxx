// Generated from case; the next generation writes it anew.
 
#include "DataTypes/history.h"
#ifndef __has_include
#include "DataTypes/reading.h"
#elif __has_include("DataTypes/reading.h")
#include "DataTypes/reading.h"
#endif

DtHistory::DtHistory() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtHistory::DtHistory(const Elements& elements) : myElements(elements)
{
}
 
DtHistory::DtHistory(const DtHistory& other) : myElements(other.myElements)
{
}
 
DtHistory::~DtHistory()
{
}
 
DtHistory& DtHistory::operator=(const DtHistory& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtHistory::operator==(const DtHistory& other) const
{
    return myElements == other.myElements;
}
 
bool DtHistory::operator!=(const DtHistory& other) const
{
    return !(*this == other);
}
 
std::size_t DtHistory::size() const
{
    return myElements.size();
}
 
bool DtHistory::empty() const
{
    return myElements.empty();
}
 
DtHistory::Elements::const_reference DtHistory::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtHistory::Elements::reference DtHistory::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtHistory::Elements& DtHistory::elements() const
{
    return myElements;
}
 
void DtHistory::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtHistory::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtHistory::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtHistory::clear()
{
    myElements.clear();
}
 
void DtHistory::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtHistory::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtHistory::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtHistory::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtHistory::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtHistory::elementForm()
{
    return DtWireForm("Reading", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

