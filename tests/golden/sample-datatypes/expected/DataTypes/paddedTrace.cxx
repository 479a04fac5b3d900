// Generated from case; the next generation writes it anew.
 
#include "DataTypes/paddedTrace.h"
#ifndef __has_include
#include "DataTypes/tide16LE.h"
#elif __has_include("DataTypes/tide16LE.h")
#include "DataTypes/tide16LE.h"
#endif

DtPaddedTrace::DtPaddedTrace() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtPaddedTrace::DtPaddedTrace(const Elements& elements) : myElements(elements)
{
}
 
DtPaddedTrace::DtPaddedTrace(const DtPaddedTrace& other) : myElements(other.myElements)
{
}
 
DtPaddedTrace::~DtPaddedTrace()
{
}
 
DtPaddedTrace& DtPaddedTrace::operator=(const DtPaddedTrace& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtPaddedTrace::operator==(const DtPaddedTrace& other) const
{
    return myElements == other.myElements;
}
 
bool DtPaddedTrace::operator!=(const DtPaddedTrace& other) const
{
    return !(*this == other);
}
 
std::size_t DtPaddedTrace::size() const
{
    return myElements.size();
}
 
bool DtPaddedTrace::empty() const
{
    return myElements.empty();
}
 
DtPaddedTrace::Elements::const_reference DtPaddedTrace::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtPaddedTrace::Elements::reference DtPaddedTrace::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtPaddedTrace::Elements& DtPaddedTrace::elements() const
{
    return myElements;
}
 
void DtPaddedTrace::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtPaddedTrace::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtPaddedTrace::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtPaddedTrace::clear()
{
    myElements.clear();
}
 
void DtPaddedTrace::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtPaddedTrace::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtPaddedTrace::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtPaddedTrace::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtPaddedTrace::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLApaddingTo64Array)qx", -1));
}
 
DtWireForm DtPaddedTrace::elementForm()
{
    return DtWireForm("Tide16LE", "HarbourUnsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
}
 

