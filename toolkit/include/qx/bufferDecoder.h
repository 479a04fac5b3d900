#ifndef QX_BUFFER_DECODER_H
#define QX_BUFFER_DECODER_H

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <qx/attributeValues.h>
#include <qx/valueCoding.h>

// Puts named buffers back into an object's state or an interaction: the counterpart of DtBufferEncoder.
//
// Buffers with a name that no coder knows are passed over, so a class can read what its subclasses sent.
template <class Target>
class DtBufferDecoder
{
public:
    virtual ~DtBufferDecoder() {}

    // An attribute whose buffer cannot be read keeps its value and is named in `refused`, if given; the answer is then
    // false. The others are set all the same.
    bool decode(const DtAttributeValues& values, Target& target, std::vector<std::string>* refused = nullptr) const
    {
        bool complete = true;
        for (DtAttributeValues::const_iterator value = values.begin(); value != values.end(); ++value)
        {
            complete = decodeOne(*value, target, refused) && complete;
        }
        return complete;
    }

    bool knows(const std::string& name) const { return myCoders.count(name) != 0; }

protected:
    template <class Kind>
    void addCoder(const std::string& name, bool (*code)(Kind&, DtWireReader&))
    {
        myCoders[name] = [code](Target& target, DtWireReader& reader)
        {
            Kind* const kind = dynamic_cast<Kind*>(&target);
            return kind != nullptr && code(*kind, reader);
        };
    }

private:
    typedef std::function<bool(Target&, DtWireReader&)> Coder;
    typedef std::map<std::string, Coder> Coders;

    bool decodeOne(const DtAttributeValues::value_type& value, Target& target, std::vector<std::string>* refused) const
    {
        const typename Coders::const_iterator coder = myCoders.find(value.first);
        if (coder == myCoders.end())
        {
            return true;
        }
        DtWireReader reader(value.second.data(), value.second.size());
        if (coder->second(target, reader))
        {
            return true;
        }
        if (refused != nullptr)
        {
            refused->push_back(value.first);
        }
        return false;
    }

    Coders myCoders;
};

#endif
