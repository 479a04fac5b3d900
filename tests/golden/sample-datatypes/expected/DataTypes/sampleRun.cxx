// Generated from case; the next generation writes it anew.
 
#include "DataTypes/sampleRun.h"

DtSampleRun::DtSampleRun() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtSampleRun::DtSampleRun(const Elements& elements) : myElements(elements)
{
}
 
DtSampleRun::DtSampleRun(const DtSampleRun& other) : myElements(other.myElements)
{
}
 
DtSampleRun::~DtSampleRun()
{
}
 
DtSampleRun& DtSampleRun::operator=(const DtSampleRun& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtSampleRun::operator==(const DtSampleRun& other) const
{
    return myElements == other.myElements;
}
 
bool DtSampleRun::operator!=(const DtSampleRun& other) const
{
    return !(*this == other);
}
 
std::size_t DtSampleRun::size() const
{
    return myElements.size();
}
 
bool DtSampleRun::empty() const
{
    return myElements.empty();
}
 
DtSampleRun::Elements::const_reference DtSampleRun::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtSampleRun::Elements::reference DtSampleRun::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtSampleRun::Elements& DtSampleRun::elements() const
{
    return myElements;
}
 
void DtSampleRun::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtSampleRun::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtSampleRun::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtSampleRun::clear()
{
    myElements.clear();
}
 
void DtSampleRun::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtSampleRun::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtSampleRun::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtSampleRun::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtSampleRun::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAlengthlessVarArray)qx", -1));
}
 
DtWireForm DtSampleRun::elementForm()
{
    return DtWireForm("Depth", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
}
 

