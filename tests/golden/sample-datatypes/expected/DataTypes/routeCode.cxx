// Generated from case; the next generation writes it anew.
 
#include "DataTypes/routeCode.h"

DtRouteCode::DtRouteCode() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtRouteCode::DtRouteCode(const Elements& elements) : myElements(elements)
{
}
 
DtRouteCode::DtRouteCode(const DtRouteCode& other) : myElements(other.myElements)
{
}
 
DtRouteCode::~DtRouteCode()
{
}
 
DtRouteCode& DtRouteCode::operator=(const DtRouteCode& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtRouteCode::operator==(const DtRouteCode& other) const
{
    return myElements == other.myElements;
}
 
bool DtRouteCode::operator!=(const DtRouteCode& other) const
{
    return !(*this == other);
}
 
std::size_t DtRouteCode::size() const
{
    return myElements.size();
}
 
bool DtRouteCode::empty() const
{
    return myElements.empty();
}
 
DtRouteCode::Elements::const_reference DtRouteCode::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtRouteCode::Elements::reference DtRouteCode::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtRouteCode::Elements& DtRouteCode::elements() const
{
    return myElements;
}
 
void DtRouteCode::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtRouteCode::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtRouteCode::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtRouteCode::clear()
{
    myElements.clear();
}
 
void DtRouteCode::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtRouteCode::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtRouteCode::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtRouteCode::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtRouteCode::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAnullTerminatedArray)qx", -1));
}
 
DtWireForm DtRouteCode::elementForm()
{
    return DtWireForm("HLAunicodeChar", "", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
}
 

