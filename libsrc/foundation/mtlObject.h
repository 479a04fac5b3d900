#ifndef FOUNDATION_MTL_OBJECT_H
#define FOUNDATION_MTL_OBJECT_H

#include "foundation/string.h"

#include <cstddef>
#include <unordered_map>

class DtlObjPtr;

// An object of the s-expression reader.
//
// Counts the pointers to it and is deleted with the last of them. Objects do not change once they are read, so they
// hold each other in trees and never in a ring.
class DtlObj
{
public:
    enum class Kind
    {
        EmptyList,
        Pair,
        Symbol,
        String,
        Integer,
        SymbolTable
    };

    explicit DtlObj(Kind kind) : myKind(kind) {}
    DtlObj(const DtlObj&) = delete;
    DtlObj& operator=(const DtlObj&) = delete;
    virtual ~DtlObj() = default;

    Kind kind() const { return myKind; }
    // Text of a string or symbol, the characters of an integer as they were written; empty for a list.
    virtual const DtString& string() const { return DtString::nullString(); }
    // Value of an integer, the nearest limit of the type when it does not fit; 0 for anything else, the string "12"
    // included.
    virtual int fixnum() const { return 0; }

private:
    friend class DtlObjPtr;
    friend void DecObjRefCnt(DtlObj* object);

    // Gives up the two objects of a pair, whose references the caller drops.
    virtual void takeParts(DtlObj*& /*head*/, DtlObj*& /*tail*/) {}

    Kind myKind;
    std::size_t myReferenceCount = 0;
    DtlObj* myNextDead = nullptr; // used while objects are deleted
};

// Drops one reference; null is ignored. Lists are deleted in a loop: neither their length nor their depth costs stack.
void DecObjRefCnt(DtlObj* object);

// Pointer that shares an object. Never null: without an object it points to the empty list.
class DtlObjPtr
{
public:
    DtlObjPtr();
    explicit DtlObjPtr(DtlObj* object); // null gives the empty list
    DtlObjPtr(const DtlObjPtr& other) : DtlObjPtr(other.myObject) {}
    DtlObjPtr(DtlObjPtr&& other) noexcept : DtlObjPtr() { swap(other); }
    DtlObjPtr& operator=(DtlObjPtr other) noexcept // by value: the old object may own the new one
    {
        swap(other);
        return *this;
    }
    ~DtlObjPtr() { DecObjRefCnt(myObject); }

    DtlObj* operator->() const { return myObject; }
    DtlObj& operator*() const { return *myObject; }
    DtlObj* get() const { return myObject; }

    void swap(DtlObjPtr& other) noexcept
    {
        DtlObj* object = myObject;
        myObject = other.myObject;
        other.myObject = object;
    }
    DtlObj* release(); // the caller drops the reference; the empty list stays

private:
    DtlObj* myObject;
};

// One element of a list and what follows it: another pair, the empty list, or anything else in a dotted pair.
class DtlPair : public DtlObj
{
public:
    explicit DtlPair(DtlObjPtr head) : DtlObj(Kind::Pair), myHead(std::move(head)) {}

    const DtlObjPtr& head() const { return myHead; }
    const DtlObjPtr& tail() const { return myTail; }
    void setTail(DtlObjPtr tail) { myTail = std::move(tail); } // for the reader, while it builds the list

private:
    void takeParts(DtlObj*& head, DtlObj*& tail) override;

    DtlObjPtr myHead;
    DtlObjPtr myTail;
};

// A symbol, a string or an integer.
class DtlAtom : public DtlObj
{
public:
    DtlAtom(Kind kind, DtString text) : DtlObj(kind), myText(std::move(text)) {}

    const DtString& string() const override { return myText; }
    int fixnum() const override { return kind() == Kind::Integer ? myText.toInt() : 0; }

private:
    DtString myText;
};

// The symbols of one reading by name.
class DtlSymbolTable : public DtlObj
{
public:
    DtlSymbolTable() : DtlObj(Kind::SymbolTable) {}

    // The symbol of that name, made at the first call.
    DtlObjPtr intern(const DtString& name);

private:
    std::unordered_map<DtString, DtlObjPtr> mySymbols;
};

DtlObjPtr DtcMakeSymbol(const char* name); // a symbol of its own, in no table

// Identity and equality by content; not 0 when true. Integers are equal by value, symbols and strings by kind and text,
// lists element by element.
int DtcEq(const DtlObjPtr& left, const DtlObjPtr& right);
int DtcEqual(const DtlObjPtr& left, const DtlObjPtr& right);

// Head, tail and second element of a list; the empty list for whatever has none.
DtlObjPtr DtcCar(const DtlObjPtr& object);
DtlObjPtr DtcCdr(const DtlObjPtr& object);
DtlObjPtr DtcCadr(const DtlObjPtr& object);

// Type tests, not 0 when true. The empty list is a list and no pair.
int DtcListp(const DtlObjPtr& object);
int DtcConsp(const DtlObjPtr& object);
int DtcStringp(const DtlObjPtr& object);
int DtcSymbolp(const DtlObjPtr& object);

#endif
