// Generated from case; the next generation writes it anew.
 
#include "DataTypes/gateTimes.h"
#ifndef __has_include
#include "DataTypes/clockTime.h"
#elif __has_include("DataTypes/clockTime.h")
#include "DataTypes/clockTime.h"
#endif

DtGateTimes::DtGateTimes() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtGateTimes::DtGateTimes(const Elements& elements) : myElements(elements)
{
}
 
DtGateTimes::DtGateTimes(const DtGateTimes& other) : myElements(other.myElements)
{
}
 
DtGateTimes::~DtGateTimes()
{
}
 
DtGateTimes& DtGateTimes::operator=(const DtGateTimes& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtGateTimes::operator==(const DtGateTimes& other) const
{
    return myElements == other.myElements;
}
 
bool DtGateTimes::operator!=(const DtGateTimes& other) const
{
    return !(*this == other);
}
 
std::size_t DtGateTimes::size() const
{
    return myElements.size();
}
 
bool DtGateTimes::empty() const
{
    return myElements.empty();
}
 
DtGateTimes::Elements::const_reference DtGateTimes::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtGateTimes::Elements::reference DtGateTimes::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtGateTimes::Elements& DtGateTimes::elements() const
{
    return myElements;
}
 
void DtGateTimes::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtGateTimes::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtGateTimes::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtGateTimes::clear()
{
    myElements.clear();
}
 
void DtGateTimes::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtGateTimes::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtGateTimes::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtGateTimes::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtGateTimes::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 4));
}
 
DtWireForm DtGateTimes::elementForm()
{
    return DtWireForm("ClockTime", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

