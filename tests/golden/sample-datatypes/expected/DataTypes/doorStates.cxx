// Generated from case; the next generation writes it anew.
 
#include "DataTypes/doorStates.h"

DtDoorStates::DtDoorStates() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtDoorStates::DtDoorStates(const Elements& elements) : myElements(elements)
{
}
 
DtDoorStates::DtDoorStates(const DtDoorStates& other) : myElements(other.myElements)
{
}
 
DtDoorStates::~DtDoorStates()
{
}
 
DtDoorStates& DtDoorStates::operator=(const DtDoorStates& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtDoorStates::operator==(const DtDoorStates& other) const
{
    return myElements == other.myElements;
}
 
bool DtDoorStates::operator!=(const DtDoorStates& other) const
{
    return !(*this == other);
}
 
std::size_t DtDoorStates::size() const
{
    return myElements.size();
}
 
bool DtDoorStates::empty() const
{
    return myElements.empty();
}
 
DtDoorStates::Elements::const_reference DtDoorStates::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtDoorStates::Elements::reference DtDoorStates::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtDoorStates::Elements& DtDoorStates::elements() const
{
    return myElements;
}
 
void DtDoorStates::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtDoorStates::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtDoorStates::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtDoorStates::clear()
{
    myElements.clear();
}
 
void DtDoorStates::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtDoorStates::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtDoorStates::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtDoorStates::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtDoorStates::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 3));
}
 
DtWireForm DtDoorStates::elementForm()
{
    return DtWireForm("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

