// Generated from case; the next generation writes it anew.
 
#include "DataTypes/plain__Four.h"

DtPlain__Four::DtPlain__Four() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtPlain__Four::DtPlain__Four(const Elements& elements) : myElements(elements)
{
}
 
DtPlain__Four::DtPlain__Four(const DtPlain__Four& other) : myElements(other.myElements)
{
}
 
DtPlain__Four::~DtPlain__Four()
{
}
 
DtPlain__Four& DtPlain__Four::operator=(const DtPlain__Four& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtPlain__Four::operator==(const DtPlain__Four& other) const
{
    return myElements == other.myElements;
}
 
bool DtPlain__Four::operator!=(const DtPlain__Four& other) const
{
    return !(*this == other);
}
 
std::size_t DtPlain__Four::size() const
{
    return myElements.size();
}
 
bool DtPlain__Four::empty() const
{
    return myElements.empty();
}
 
DtPlain__Four::Elements::const_reference DtPlain__Four::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtPlain__Four::Elements::reference DtPlain__Four::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtPlain__Four::Elements& DtPlain__Four::elements() const
{
    return myElements;
}
 
void DtPlain__Four::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtPlain__Four::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtPlain__Four::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtPlain__Four::clear()
{
    myElements.clear();
}
 
void DtPlain__Four::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtPlain__Four::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtPlain__Four::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtPlain__Four::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtPlain__Four::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(PlainArray)qx", 4));
}
 
DtWireForm DtPlain__Four::elementForm()
{
    return DtWireForm("HLAfloat32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
}
 

