#ifndef DT_DLL_CASE_DtSeal__Code_H
#define DT_DLL_CASE_DtSeal__Code_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include <vector>
 
#include "dllExport.h"

// An array. A fixed array starts with all its elements and cannot be encoded while it has another number of them.
//
// The element is declared here and no more, since it may hold this array again: to work with elements that are classes
// of their own, include their header too.
class DT_DLL_CASE DtSeal__Code
{
public:
    typedef DtU8 value_type;
    typedef std::vector<value_type> Elements;
 
    DtSeal__Code();
    explicit DtSeal__Code(const Elements& elements);
    DtSeal__Code(const DtSeal__Code& other);
    ~DtSeal__Code();
    DtSeal__Code& operator=(const DtSeal__Code& other);
    bool operator==(const DtSeal__Code& other) const;
    bool operator!=(const DtSeal__Code& other) const;
 
    std::size_t size() const;
    bool empty() const;
    Elements::const_reference operator[](std::size_t index) const;
    Elements::reference operator[](std::size_t index);
    const Elements& elements() const;
    void setElements(const Elements& elements);
    void push_back(const value_type& element);
    void resize(std::size_t size);
    void clear();
 
    void encode(DtWireWriter& writer) const;
    // False: the octets are no such array, and this one is as it was.
    bool decode(DtWireReader& reader);
    // Octets on the wire, from an offset of 0.
    unsigned int netSize() const;
    static unsigned int octetBoundary(const DtWireTrail* outer = nullptr);
 
private:
    static DtArrayLayout layout();
    static DtWireForm elementForm();
 
    Elements myElements;
};
 
#endif

