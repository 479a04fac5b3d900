#ifndef QX_SAMPLE_VALUE_H
#define QX_SAMPLE_VALUE_H

// Some value of any type that generated code uses, another one in each round: what an example sends.

#include <qx/valueText.h>

#include <type_traits>

// Gives each part of a structure a value of its own. Generated structures hand their parts to it.
class DtSampleFiller
{
public:
    explicit DtSampleFiller(std::size_t round) : myRound(round) {}

    template <class Value>
    void operator()(const char* /*name*/, Value& value)
    {
        fill(value);
        ++myRound;
    }
    // Which of so many alternatives is to be selected.
    std::size_t choose(std::size_t count) const { return count == 0 ? 0 : myRound % count; }

    template <class Value>
    void fill(Value& value) const
    {
        set(value, First());
    }

    // A list without elements gets one or two.
    template <class Element, class List>
    void fillElements(List& list, std::size_t size) const
    {
        if (size == 0)
        {
            size = 1 + myRound % 2;
            list.resize(size);
        }
        for (std::size_t i = 0; i < size; ++i)
        {
            Element element = list[i];
            DtSampleFiller(myRound + i).fill(element);
            list[i] = element;
        }
    }

private:
    // Which of several ways is taken: a structure may have a field that is called like the accessor of a number.
    struct Last
    {
    };
    struct Second : Last
    {
    };
    struct First : Second
    {
    };

    template <class Value>
    typename std::enable_if<std::is_integral<Value>::value>::type set(Value& value, First) const
    {
        value = static_cast<Value>(32 + myRound % 64);
    }
    void set(bool& value, First) const { value = myRound % 2 == 0; }
    template <class Value>
    typename std::enable_if<std::is_floating_point<Value>::value>::type set(Value& value, First) const
    {
        value = static_cast<Value>(1.5 + static_cast<double>(myRound));
    }
    template <class Value>
    typename std::enable_if<std::is_enum<Value>::value>::type set(Value& value, First) const
    {
        value = DtEnumeratorInTurn<Value>(myRound);
    }
    void set(DtString& value, First) const { value = "sample " + std::to_string(myRound); }
    template <class Element>
    void set(std::vector<Element>& values, First) const
    {
        fillElements<Element>(values, values.size());
    }
    template <class Class>
    auto set(Class& value, First) const -> decltype(value.fillWith(std::declval<DtSampleFiller&>()))
    {
        DtSampleFiller filler(myRound);
        value.fillWith(filler);
    }
    template <class Class>
    auto set(Class& value, Second) const -> decltype(value.setNumber(value.number()))
    {
        typename Class::Number number = typename Class::Number();
        fill(number);
        value.setNumber(number);
    }
    // Anything else stays as it starts.
    template <class Value>
    void set(Value& /*value*/, Last) const
    {
    }

    std::size_t myRound;
};

template <class Value>
Value DtSampleOf(std::size_t round)
{
    Value value = Value();
    DtSampleFiller(round).fill(value);
    return value;
}

#endif
