// Generated from case; the next generation writes it anew.
 
#include "DataTypes/draughtTable.h"

DtDraughtTable::DtDraughtTable() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtDraughtTable::DtDraughtTable(const Elements& elements) : myElements(elements)
{
}
 
DtDraughtTable::DtDraughtTable(const DtDraughtTable& other) : myElements(other.myElements)
{
}
 
DtDraughtTable::~DtDraughtTable()
{
}
 
DtDraughtTable& DtDraughtTable::operator=(const DtDraughtTable& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtDraughtTable::operator==(const DtDraughtTable& other) const
{
    return myElements == other.myElements;
}
 
bool DtDraughtTable::operator!=(const DtDraughtTable& other) const
{
    return !(*this == other);
}
 
std::size_t DtDraughtTable::size() const
{
    return myElements.size();
}
 
bool DtDraughtTable::empty() const
{
    return myElements.empty();
}
 
DtDraughtTable::Elements::const_reference DtDraughtTable::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtDraughtTable::Elements::reference DtDraughtTable::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtDraughtTable::Elements& DtDraughtTable::elements() const
{
    return myElements;
}
 
void DtDraughtTable::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtDraughtTable::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtDraughtTable::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtDraughtTable::clear()
{
    myElements.clear();
}
 
void DtDraughtTable::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtDraughtTable::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtDraughtTable::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtDraughtTable::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtDraughtTable::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 3));
}
 
DtWireForm DtDraughtTable::elementForm()
{
    return DtWireForm("HLAfloat32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
}
 

