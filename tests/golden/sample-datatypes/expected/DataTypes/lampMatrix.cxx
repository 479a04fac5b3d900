// Generated from case; the next generation writes it anew.
 
#include "DataTypes/lampMatrix.h"

DtLampMatrix::DtLampMatrix() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtLampMatrix::DtLampMatrix(const Elements& elements) : myElements(elements)
{
}
 
DtLampMatrix::DtLampMatrix(const DtLampMatrix& other) : myElements(other.myElements)
{
}
 
DtLampMatrix::~DtLampMatrix()
{
}
 
DtLampMatrix& DtLampMatrix::operator=(const DtLampMatrix& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtLampMatrix::operator==(const DtLampMatrix& other) const
{
    return myElements == other.myElements;
}
 
bool DtLampMatrix::operator!=(const DtLampMatrix& other) const
{
    return !(*this == other);
}
 
std::size_t DtLampMatrix::size() const
{
    return myElements.size();
}
 
bool DtLampMatrix::empty() const
{
    return myElements.empty();
}
 
DtLampMatrix::Elements::const_reference DtLampMatrix::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtLampMatrix::Elements::reference DtLampMatrix::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtLampMatrix::Elements& DtLampMatrix::elements() const
{
    return myElements;
}
 
void DtLampMatrix::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtLampMatrix::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtLampMatrix::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtLampMatrix::clear()
{
    myElements.clear();
}
 
void DtLampMatrix::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtLampMatrix::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtLampMatrix::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtLampMatrix::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtLampMatrix::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAfixedArray)qx", 6));
}
 
DtWireForm DtLampMatrix::elementForm()
{
    return DtWireForm("lampState", "HarbourInteger8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

