#ifndef FOUNDATION_SHARED_VALUE_H
#define FOUNDATION_SHARED_VALUE_H

#include <memory>
#include <utility>

// A value whose copies cost a pointer: they share it until one of them is changed. One thread only.
//
//     DtSharedValue<std::set<DtString>> names;
//     names->size();                 // reads
//     names.change().insert("a");    // what other copies hold stays as it is
template <typename Value>
class DtSharedValue
{
public:
    DtSharedValue() = default;
    explicit DtSharedValue(Value value) : myValue(std::make_shared<Value>(std::move(value))) {}
    // There is no move, which would leave nothing behind.
    DtSharedValue(const DtSharedValue&) = default;
    DtSharedValue& operator=(const DtSharedValue&) = default;
    ~DtSharedValue() = default;

    const Value& operator*() const { return myValue != nullptr ? *myValue : initialValue(); }
    const Value* operator->() const { return &**this; }
    // References are good until the next change of a copy that was made in between.
    Value& change()
    {
        if (myValue == nullptr)
            myValue = std::make_shared<Value>();
        else if (myValue.use_count() > 1)
            myValue = std::make_shared<Value>(*myValue);
        return *myValue;
    }

private:
    // Never destroyed: values may go with the process.
    static const Value& initialValue()
    {
        static const auto* const theValue = new Value();
        return *theValue;
    }

    std::shared_ptr<Value> myValue; // null as long as it is the initial one
};

#endif
