// Generated from case; the next generation writes it anew.
 
#include "DataTypes/tideRing.h"
#ifndef __has_include
#include "DataTypes/tide16LE.h"
#elif __has_include("DataTypes/tide16LE.h")
#include "DataTypes/tide16LE.h"
#endif

DtTideRing::DtTideRing() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtTideRing::DtTideRing(const Elements& elements) : myElements(elements)
{
}
 
DtTideRing::DtTideRing(const DtTideRing& other) : myElements(other.myElements)
{
}
 
DtTideRing::~DtTideRing()
{
}
 
DtTideRing& DtTideRing::operator=(const DtTideRing& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtTideRing::operator==(const DtTideRing& other) const
{
    return myElements == other.myElements;
}
 
bool DtTideRing::operator!=(const DtTideRing& other) const
{
    return !(*this == other);
}
 
std::size_t DtTideRing::size() const
{
    return myElements.size();
}
 
bool DtTideRing::empty() const
{
    return myElements.empty();
}
 
DtTideRing::Elements::const_reference DtTideRing::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtTideRing::Elements::reference DtTideRing::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtTideRing::Elements& DtTideRing::elements() const
{
    return myElements;
}
 
void DtTideRing::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtTideRing::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtTideRing::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtTideRing::clear()
{
    myElements.clear();
}
 
void DtTideRing::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtTideRing::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtTideRing::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtTideRing::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtTideRing::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtTideRing::elementForm()
{
    return DtWireForm("Tide16LE", "HarbourUnsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
}
 

