#ifndef QX_ALTERNATIVES_H
#define QX_ALTERNATIVES_H

// The value of a variant record: one of several alternatives, or none, in the room of the largest.

#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

// What can be done to a value whose type is known by its place among the alternatives alone. The values that are read
// from are not const, so that one function can serve copies and moves.
struct DtAlternativeKind
{
    typedef void (*Transfer)(void* to, void* from);

    Transfer copy, move;         // into a room
    Transfer assign, moveAssign; // to a value
    void (*destroy)(void* value);
};

template <class Type, bool isOctetsAlone = std::is_trivially_copyable<Type>::value>
struct DtAlternativeOf
{
    static void copy(void* room, void* from) { new (room) Type(*static_cast<const Type*>(from)); }
    static void move(void* room, void* from) { new (room) Type(std::move(*static_cast<Type*>(from))); }
    static void assign(void* to, void* from) { *static_cast<Type*>(to) = *static_cast<const Type*>(from); }
    static void moveAssign(void* to, void* from) { *static_cast<Type*>(to) = std::move(*static_cast<Type*>(from)); }
    static void destroy(void* value) { static_cast<Type*>(value)->~Type(); }
    static constexpr DtAlternativeKind kind() { return {&copy, &move, &assign, &moveAssign, &destroy}; }
};

// A type whose values are their octets and no more: one function does it all, which is less to compile.
template <class Type>
struct DtAlternativeOf<Type, true>
{
    static void copy(void* to, void* from) { new (to) Type(*static_cast<const Type*>(from)); }
    static constexpr DtAlternativeKind kind() { return {&copy, &copy, &copy, &copy, nullptr}; }
};

// Never destroyed, so that it may still be asked for while the program ends.
template <class Type>
const Type& DtDefaultAlternative()
{
    static const Type& theValue = *new Type();
    return theValue;
}

// A list of types, and what is left of it from a place on.
template <class... Types>
struct DtAlternativeList;
template <class FirstType, class... Types>
struct DtAlternativeList<FirstType, Types...>
{
    typedef FirstType First;
    typedef DtAlternativeList<Types...> Rest;
};
template <int place, class List>
struct DtAlternativesFrom : DtAlternativesFrom<place - 1, typename List::Rest>
{
};
template <class List>
struct DtAlternativesFrom<0, List>
{
    typedef typename List::First First;
};

// Holds a value of one of the types, which its place in the list tells, from 0, or nothing. The types may repeat; each
// has a default value, and can be copied.
//
// The value lies in the object itself. Behind a pointer it would cost an allocation each time that another alternative
// comes, which takes longer than to make and to move a value of 256 octets; few structures are larger than that.
template <class... Types>
class DtAlternatives
{
public:
    template <int place>
    using TypeAt = typename DtAlternativesFrom<place, DtAlternativeList<Types...>>::First;

    DtAlternatives() noexcept : myPlace(theNone) {}
    DtAlternatives(const DtAlternatives& other) : myPlace(theNone) { copyFrom(other); }
    // The other one goes on holding what is left of its value.
    DtAlternatives(DtAlternatives&& other) noexcept(areAll<std::is_nothrow_move_constructible<Types>::value...>())
        : myPlace(theNone)
    {
        moveFrom(other);
    }
    ~DtAlternatives() { clear(); }

    DtAlternatives& operator=(const DtAlternatives& other)
    {
        if (myPlace != other.myPlace)
            return *this = DtAlternatives(other); // it may be a part of what this one holds
        if (myPlace != theNone)
            kind().assign(myRoom, const_cast<unsigned char*>(other.myRoom));
        return *this;
    }
    DtAlternatives& operator=(DtAlternatives&& other) noexcept(
        areAll<std::is_nothrow_move_constructible<Types>::value..., std::is_nothrow_move_assignable<Types>::value...>())
    {
        if (myPlace != other.myPlace)
            replaceBy(other);
        else if (myPlace != theNone)
            kind().moveAssign(myRoom, other.myRoom);
        return *this;
    }

    // Place of what it holds; -1: nothing.
    int heldPlace() const { return myPlace; }

    // The value, or a default one when another alternative is held.
    template <int place>
    const TypeAt<place>& get() const
    {
        return myPlace == place ? held<place>() : DtDefaultAlternative<TypeAt<place>>();
    }

    // The value, made anew when another alternative was held. Nothing is held when that throws.
    template <int place>
    TypeAt<place>& hold()
    {
        if (myPlace != place)
        {
            clear();
            new (myRoom) TypeAt<place>();
            myPlace = place;
        }
        return held<place>();
    }

    // Holds the value from here on. It may be a part of what was held.
    template <int place>
    void set(const TypeAt<place>& value)
    {
        if (myPlace == place)
            held<place>() = value;
        else
            set<place>(TypeAt<place>(value));
    }
    template <int place>
    void set(TypeAt<place>&& value)
    {
        if (myPlace == place)
        {
            held<place>() = std::move(value);
            return;
        }
        TypeAt<place> taken(std::move(value));
        clear();
        new (myRoom) TypeAt<place>(std::move(taken));
        myPlace = place;
    }

    // Holds nothing, unless the alternative at that place is held.
    void keep(int place)
    {
        if (myPlace != place)
            clear();
    }
    void clear()
    {
        if (!areAll<std::is_trivially_copyable<Types>::value...>() && myPlace != theNone && kind().destroy != nullptr)
            kind().destroy(myRoom);
        myPlace = theNone;
    }

private:
    enum
    {
        theNone = -1
    };

    template <bool...>
    struct Truths;
    template <bool... truths>
    static constexpr bool areAll()
    {
        return std::is_same<Truths<true, truths...>, Truths<truths..., true>>::value;
    }

    static constexpr std::size_t largest(std::size_t size) { return size; }
    template <class... Sizes>
    static constexpr std::size_t largest(std::size_t first, std::size_t second, Sizes... sizes)
    {
        return largest(first < second ? second : first, sizes...);
    }

    const DtAlternativeKind& kind() const
    {
        static const DtAlternativeKind theKinds[] = {DtAlternativeOf<Types>::kind()..., DtAlternativeKind()};
        return theKinds[myPlace];
    }

    template <int place>
    TypeAt<place>& held()
    {
        return *static_cast<TypeAt<place>*>(static_cast<void*>(myRoom));
    }
    template <int place>
    const TypeAt<place>& held() const
    {
        return *static_cast<const TypeAt<place>*>(static_cast<const void*>(myRoom));
    }

    // Those two find nothing held here.
    void copyFrom(const DtAlternatives& other)
    {
        if (other.myPlace == theNone)
            return;
        other.kind().copy(myRoom, const_cast<unsigned char*>(other.myRoom));
        myPlace = other.myPlace;
    }
    void moveFrom(DtAlternatives& other)
    {
        if (other.myPlace == theNone)
            return;
        other.kind().move(myRoom, other.myRoom);
        myPlace = other.myPlace;
    }
    // The other one may be a part of what is held, which it cannot be when that owns nothing.
    void replaceBy(DtAlternatives& other)
    {
        if (myPlace == theNone || areAll<std::is_trivially_copyable<Types>::value...>())
        {
            clear();
            moveFrom(other);
            return;
        }
        DtAlternatives taken(std::move(other));
        clear();
        moveFrom(taken);
    }

    alignas(Types...) unsigned char myRoom[largest(1, sizeof(Types)...)];
    int myPlace;
};

#endif
