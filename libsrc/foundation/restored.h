#ifndef FOUNDATION_RESTORED_H
#define FOUNDATION_RESTORED_H

#include <utility>

// Puts the value of a variable back when the block is left, also by an exception. The variable has to outlive it.
//
//     const DtRestored level(DtNotifyLevel, 3); // 3 in this block
template <typename Value>
class DtRestored
{
public:
    explicit DtRestored(Value& variable) : myVariable(variable), myOldValue(variable) {}
    // Gives the variable another value for the time being, which may be the variable itself.
    template <typename NewValue>
    DtRestored(Value& variable, NewValue&& value) : myVariable(variable), myOldValue(variable)
    {
        myVariable = std::forward<NewValue>(value);
    }
    ~DtRestored() { myVariable = std::move(myOldValue); }
    DtRestored(const DtRestored&) = delete;
    DtRestored& operator=(const DtRestored&) = delete;

private:
    Value& myVariable;
    Value myOldValue;
};

#endif
