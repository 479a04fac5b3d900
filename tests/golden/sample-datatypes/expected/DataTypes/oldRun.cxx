// Generated from case; the next generation writes it anew.
 
#include "DataTypes/oldRun.h"

DtOldRun::DtOldRun() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtOldRun::DtOldRun(const Elements& elements) : myElements(elements)
{
}
 
DtOldRun::DtOldRun(const DtOldRun& other) : myElements(other.myElements)
{
}
 
DtOldRun::~DtOldRun()
{
}
 
DtOldRun& DtOldRun::operator=(const DtOldRun& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtOldRun::operator==(const DtOldRun& other) const
{
    return myElements == other.myElements;
}
 
bool DtOldRun::operator!=(const DtOldRun& other) const
{
    return !(*this == other);
}
 
std::size_t DtOldRun::size() const
{
    return myElements.size();
}
 
bool DtOldRun::empty() const
{
    return myElements.empty();
}
 
DtOldRun::Elements::const_reference DtOldRun::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtOldRun::Elements::reference DtOldRun::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtOldRun::Elements& DtOldRun::elements() const
{
    return myElements;
}
 
void DtOldRun::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtOldRun::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtOldRun::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtOldRun::clear()
{
    myElements.clear();
}
 
void DtOldRun::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtOldRun::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtOldRun::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtOldRun::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtOldRun::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(RPRlengthlessArray)qx", -1));
}
 
DtWireForm DtOldRun::elementForm()
{
    return DtWireForm("Letter", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

