#include "foundation/mtlObject.h"

#include <utility>
#include <vector>

// An object that lost its last reference waits in the list of the dead, which myNextDead links. Each turn of the loop
// takes one off, lets it give up the two objects that it holds, and deletes it; what these two lose makes the list grow
// again. Had the destructor of a pair dropped its parts by itself, a long list would have taken one call within the
// other for each of its elements.
void DecObjRefCnt(DtlObj* object)
{
    DtlObj* dead = nullptr;
    const auto drop = [&dead](DtlObj* each)
    {
        if (each == nullptr || --each->myReferenceCount > 0)
            return;
        each->myNextDead = dead;
        dead = each;
    };
    drop(object);
    while (dead != nullptr)
    {
        DtlObj* each = dead;
        dead = each->myNextDead;
        DtlObj* head = nullptr;
        DtlObj* tail = nullptr;
        each->takeParts(head, tail);
        delete each;
        drop(head);
        drop(tail);
    }
}

namespace
{
DtlObj* emptyList()
{
    static const DtlObjPtr theEmptyList(new DtlObj(DtlObj::Kind::EmptyList));
    return theEmptyList.get();
}

const DtlPair* asPair(const DtlObj* object)
{
    return object->kind() == DtlObj::Kind::Pair ? static_cast<const DtlPair*>(object) : nullptr;
}

bool isKind(const DtlObjPtr& object, DtlObj::Kind kind)
{
    return object->kind() == kind;
}

bool areEqualAtoms(const DtlObj* left, const DtlObj* right)
{
    if (left->kind() != right->kind())
        return false;
    switch (left->kind())
    {
    case DtlObj::Kind::Integer:
        return left->fixnum() == right->fixnum();
    case DtlObj::Kind::Symbol:
    case DtlObj::Kind::String:
        return left->string() == right->string();
    default:
        return left == right;
    }
}
} // namespace

DtlObjPtr::DtlObjPtr() : DtlObjPtr(nullptr)
{
}

DtlObjPtr::DtlObjPtr(DtlObj* object) : myObject(object != nullptr ? object : emptyList())
{
    ++myObject->myReferenceCount;
}

DtlObj* DtlObjPtr::release()
{
    DtlObjPtr other;
    swap(other);
    return std::exchange(other.myObject, nullptr);
}

void DtlPair::takeParts(DtlObj*& head, DtlObj*& tail)
{
    head = myHead.release();
    tail = myTail.release();
}

DtlObjPtr DtlSymbolTable::intern(const DtString& name)
{
    const auto known = mySymbols.find(name);
    if (known != mySymbols.end())
        return known->second;
    return mySymbols.emplace(name, DtlObjPtr(new DtlAtom(Kind::Symbol, name))).first->second;
}

DtlObjPtr DtcMakeSymbol(const char* name)
{
    return DtlObjPtr(new DtlAtom(DtlObj::Kind::Symbol, name));
}

int DtcEq(const DtlObjPtr& left, const DtlObjPtr& right)
{
    return left.get() == right.get() ? 1 : 0;
}

int DtcEqual(const DtlObjPtr& left, const DtlObjPtr& right)
{
    std::vector<std::pair<const DtlObj*, const DtlObj*>> open = {
        {left.get(), right.get()}
    };
    while (!open.empty())
    {
        const auto [one, other] = open.back();
        open.pop_back();
        if (one == other)
            continue;
        const DtlPair* pair = asPair(one);
        const DtlPair* otherPair = asPair(other);
        if (pair != nullptr && otherPair != nullptr)
        {
            open.emplace_back(pair->tail().get(), otherPair->tail().get());
            open.emplace_back(pair->head().get(), otherPair->head().get());
        }
        else if (!areEqualAtoms(one, other))
            return 0;
    }
    return 1;
}

DtlObjPtr DtcCar(const DtlObjPtr& object)
{
    const DtlPair* pair = asPair(object.get());
    return pair != nullptr ? pair->head() : DtlObjPtr();
}

DtlObjPtr DtcCdr(const DtlObjPtr& object)
{
    const DtlPair* pair = asPair(object.get());
    return pair != nullptr ? pair->tail() : DtlObjPtr();
}

DtlObjPtr DtcCadr(const DtlObjPtr& object)
{
    return DtcCar(DtcCdr(object));
}

int DtcListp(const DtlObjPtr& object)
{
    return isKind(object, DtlObj::Kind::EmptyList) || DtcConsp(object) ? 1 : 0;
}

int DtcConsp(const DtlObjPtr& object)
{
    return isKind(object, DtlObj::Kind::Pair) ? 1 : 0;
}

int DtcStringp(const DtlObjPtr& object)
{
    return isKind(object, DtlObj::Kind::String) ? 1 : 0;
}

int DtcSymbolp(const DtlObjPtr& object)
{
    return isKind(object, DtlObj::Kind::Symbol) ? 1 : 0;
}
