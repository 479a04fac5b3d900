// Generated from case; the next generation writes it anew.
 
#include "DataTypes/fillTo32.h"
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif

DtFillTo32::DtFillTo32() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtFillTo32::DtFillTo32(const Elements& elements) : myElements(elements)
{
}
 
DtFillTo32::DtFillTo32(const DtFillTo32& other) : myElements(other.myElements)
{
}
 
DtFillTo32::~DtFillTo32()
{
}
 
DtFillTo32& DtFillTo32::operator=(const DtFillTo32& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtFillTo32::operator==(const DtFillTo32& other) const
{
    return myElements == other.myElements;
}
 
bool DtFillTo32::operator!=(const DtFillTo32& other) const
{
    return !(*this == other);
}
 
std::size_t DtFillTo32::size() const
{
    return myElements.size();
}
 
bool DtFillTo32::empty() const
{
    return myElements.empty();
}
 
DtFillTo32::Elements::const_reference DtFillTo32::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtFillTo32::Elements::reference DtFillTo32::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtFillTo32::Elements& DtFillTo32::elements() const
{
    return myElements;
}
 
void DtFillTo32::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtFillTo32::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtFillTo32::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtFillTo32::clear()
{
    myElements.clear();
}
 
void DtFillTo32::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtFillTo32::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtFillTo32::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtFillTo32::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtFillTo32::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(RPRpaddingTo32Array)qx", -1));
}
 
DtWireForm DtFillTo32::elementForm()
{
    return DtWireForm("Count8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

