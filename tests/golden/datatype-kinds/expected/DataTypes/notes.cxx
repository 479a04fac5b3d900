// Generated from case; the next generation writes it anew.
 
#include "DataTypes/notes.h"

DtNotes::DtNotes() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtNotes::DtNotes(const Elements& elements) : myElements(elements)
{
}
 
DtNotes::DtNotes(const DtNotes& other) : myElements(other.myElements)
{
}
 
DtNotes::~DtNotes()
{
}
 
DtNotes& DtNotes::operator=(const DtNotes& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtNotes::operator==(const DtNotes& other) const
{
    return myElements == other.myElements;
}
 
bool DtNotes::operator!=(const DtNotes& other) const
{
    return !(*this == other);
}
 
std::size_t DtNotes::size() const
{
    return myElements.size();
}
 
bool DtNotes::empty() const
{
    return myElements.empty();
}
 
DtNotes::Elements::const_reference DtNotes::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtNotes::Elements::reference DtNotes::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtNotes::Elements& DtNotes::elements() const
{
    return myElements;
}
 
void DtNotes::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtNotes::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtNotes::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtNotes::clear()
{
    myElements.clear();
}
 
void DtNotes::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtNotes::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtNotes::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtNotes::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtNotes::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtNotes::elementForm()
{
    return DtWireForm("HLAASCIIchar", "", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
}
 

