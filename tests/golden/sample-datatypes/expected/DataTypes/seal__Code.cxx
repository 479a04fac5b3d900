// Generated from case; the next generation writes it anew.
 
#include "DataTypes/seal__Code.h"

DtSeal__Code::DtSeal__Code() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtSeal__Code::DtSeal__Code(const Elements& elements) : myElements(elements)
{
}
 
DtSeal__Code::DtSeal__Code(const DtSeal__Code& other) : myElements(other.myElements)
{
}
 
DtSeal__Code::~DtSeal__Code()
{
}
 
DtSeal__Code& DtSeal__Code::operator=(const DtSeal__Code& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtSeal__Code::operator==(const DtSeal__Code& other) const
{
    return myElements == other.myElements;
}
 
bool DtSeal__Code::operator!=(const DtSeal__Code& other) const
{
    return !(*this == other);
}
 
std::size_t DtSeal__Code::size() const
{
    return myElements.size();
}
 
bool DtSeal__Code::empty() const
{
    return myElements.empty();
}
 
DtSeal__Code::Elements::const_reference DtSeal__Code::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtSeal__Code::Elements::reference DtSeal__Code::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtSeal__Code::Elements& DtSeal__Code::elements() const
{
    return myElements;
}
 
void DtSeal__Code::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtSeal__Code::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtSeal__Code::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtSeal__Code::clear()
{
    myElements.clear();
}
 
void DtSeal__Code::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtSeal__Code::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtSeal__Code::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtSeal__Code::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtSeal__Code::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 8));
}
 
DtWireForm DtSeal__Code::elementForm()
{
    return DtWireForm("HLAoctet", "", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

