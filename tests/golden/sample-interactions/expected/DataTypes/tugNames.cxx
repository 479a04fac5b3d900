// Generated from case; the next generation writes it anew.
 
#include "DataTypes/tugNames.h"
#ifndef __has_include
#include "DataTypes/shortText.h"
#elif __has_include("DataTypes/shortText.h")
#include "DataTypes/shortText.h"
#endif

DtTugNames::DtTugNames() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtTugNames::DtTugNames(const Elements& elements) : myElements(elements)
{
}
 
DtTugNames::DtTugNames(const DtTugNames& other) : myElements(other.myElements)
{
}
 
DtTugNames::~DtTugNames()
{
}
 
DtTugNames& DtTugNames::operator=(const DtTugNames& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtTugNames::operator==(const DtTugNames& other) const
{
    return myElements == other.myElements;
}
 
bool DtTugNames::operator!=(const DtTugNames& other) const
{
    return !(*this == other);
}
 
std::size_t DtTugNames::size() const
{
    return myElements.size();
}
 
bool DtTugNames::empty() const
{
    return myElements.empty();
}
 
DtTugNames::Elements::const_reference DtTugNames::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtTugNames::Elements::reference DtTugNames::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtTugNames::Elements& DtTugNames::elements() const
{
    return myElements;
}
 
void DtTugNames::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtTugNames::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtTugNames::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtTugNames::clear()
{
    myElements.clear();
}
 
void DtTugNames::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtTugNames::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtTugNames::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtTugNames::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtTugNames::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtTugNames::elementForm()
{
    return DtWireForm("ShortText", "HLAASCIIchar", R"qx(HLAfixedArray)qx",
        16, 1, 0);
}
 

