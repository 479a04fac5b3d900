// Generated from case; the next generation writes it anew.
 
#include "DataTypes/qxSeeds.h"

namespace garden
{
 
DtQxSeeds::DtQxSeeds() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtQxSeeds::DtQxSeeds(const Elements& elements) : myElements(elements)
{
}
 
DtQxSeeds::DtQxSeeds(const DtQxSeeds& other) : myElements(other.myElements)
{
}
 
DtQxSeeds::~DtQxSeeds()
{
}
 
DtQxSeeds& DtQxSeeds::operator=(const DtQxSeeds& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtQxSeeds::operator==(const DtQxSeeds& other) const
{
    return myElements == other.myElements;
}
 
bool DtQxSeeds::operator!=(const DtQxSeeds& other) const
{
    return !(*this == other);
}
 
std::size_t DtQxSeeds::size() const
{
    return myElements.size();
}
 
bool DtQxSeeds::empty() const
{
    return myElements.empty();
}
 
DtQxSeeds::Elements::const_reference DtQxSeeds::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtQxSeeds::Elements::reference DtQxSeeds::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtQxSeeds::Elements& DtQxSeeds::elements() const
{
    return myElements;
}
 
void DtQxSeeds::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtQxSeeds::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtQxSeeds::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtQxSeeds::clear()
{
    myElements.clear();
}
 
void DtQxSeeds::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtQxSeeds::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtQxSeeds::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtQxSeeds::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtQxSeeds::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtQxSeeds::elementForm()
{
    return DtWireForm("HLAinteger16BE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
}
 
} // namespace garden

