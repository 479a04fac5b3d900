// Generated from case; the next generation writes it anew.
 
#include "DataTypes/signalLog.h"
#ifndef __has_include
#include "DataTypes/signalEntry.h"
#elif __has_include("DataTypes/signalEntry.h")
#include "DataTypes/signalEntry.h"
#endif

DtSignalLog::DtSignalLog() : myElements(layout().kind == DtFixedArray ? layout().count : 0)
{
}
 
DtSignalLog::DtSignalLog(const Elements& elements) : myElements(elements)
{
}
 
DtSignalLog::DtSignalLog(const DtSignalLog& other) : myElements(other.myElements)
{
}
 
DtSignalLog::~DtSignalLog()
{
}
 
DtSignalLog& DtSignalLog::operator=(const DtSignalLog& other)
{
    myElements = other.myElements;
    return *this;
}
 
bool DtSignalLog::operator==(const DtSignalLog& other) const
{
    return myElements == other.myElements;
}
 
bool DtSignalLog::operator!=(const DtSignalLog& other) const
{
    return !(*this == other);
}
 
std::size_t DtSignalLog::size() const
{
    return myElements.size();
}
 
bool DtSignalLog::empty() const
{
    return myElements.empty();
}
 
DtSignalLog::Elements::const_reference DtSignalLog::operator[](std::size_t index) const
{
    return myElements[index];
}
 
DtSignalLog::Elements::reference DtSignalLog::operator[](std::size_t index)
{
    return myElements[index];
}
 
const DtSignalLog::Elements& DtSignalLog::elements() const
{
    return myElements;
}
 
void DtSignalLog::setElements(const Elements& elements)
{
    myElements = elements;
}
 
void DtSignalLog::push_back(const value_type& element)
{
    myElements.push_back(element);
}
 
void DtSignalLog::resize(std::size_t size)
{
    myElements.resize(size);
}
 
void DtSignalLog::clear()
{
    myElements.clear();
}
 
void DtSignalLog::encode(DtWireWriter& writer) const
{
    DtEncodeArray(writer, myElements, layout(), elementForm());
}
 
bool DtSignalLog::decode(DtWireReader& reader)
{
    return DtDecodeArray(reader, myElements, layout(), elementForm());
}
 
unsigned int DtSignalLog::netSize() const
{
    return DtNetSizeOf(*this);
}
 
unsigned int DtSignalLog::octetBoundary(const DtWireTrail* outer)
{
    static const char theId = 0;
    if (DtWireTrail::holds(outer, &theId))
        return 1;
    const DtWireTrail trail = {&theId, outer};
    return DtArrayBoundary<value_type>(layout(), elementForm(), &trail);
}
 
// The encoding that the model names, or that of the kind of array.
DtArrayLayout DtSignalLog::layout()
{
    return DtLayoutOf(DtWireForm("", "", R"qx(HLAvariableArray)qx", -1));
}
 
DtWireForm DtSignalLog::elementForm()
{
    return DtWireForm("SignalEntry", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
}
 

