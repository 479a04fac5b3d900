// Generated from case; the next generation writes it anew.
 
#include "DataTypes/fillTo64.h"
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif

DtFillTo64::DtFillTo64() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtFillTo64::DtFillTo64(const Elements& elements) : myElements(elements)
{
}
 
DtFillTo64::DtFillTo64(const DtFillTo64& other) : myElements(other.myElements)
{
}
 
DtFillTo64::~DtFillTo64()
{
}
 
DtFillTo64& DtFillTo64::operator=(const DtFillTo64& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtFillTo64::operator==(const DtFillTo64& other) const
{
    return myElements == other.myElements;
}
 
bool DtFillTo64::operator!=(const DtFillTo64& other) const
{
    return !(*this == other);
}
 
std::size_t DtFillTo64::size() const
{
    return myElements.size();
}
 
bool DtFillTo64::empty() const
{
    return myElements.empty();
}
 
DtFillTo64::Elements::const_reference DtFillTo64::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtFillTo64::Elements::reference DtFillTo64::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtFillTo64::Elements& DtFillTo64::elements() const
{
    return myElements;
}
 
void DtFillTo64::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtFillTo64::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtFillTo64::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtFillTo64::clear()
{
    myElements.clear();
}
 
void DtFillTo64::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtFillTo64::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtFillTo64::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtFillTo64::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtFillTo64::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(RPRpaddingTo64Array)qx", -1));
}
 
DtWireForm DtFillTo64::elementForm()
{
    return DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

