#ifndef QX_BUFFER_ENCODER_H
#define QX_BUFFER_ENCODER_H

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <qx/attributeValues.h>
#include <qx/valueCoding.h>

// Turns an object's state or an interaction into named buffers.
//
// Source is DtStateRepository or DtInteraction. A generated encoder adds one coder for each attribute of its class in
// its constructor, behind those of its parent; a name that is added again replaces the coder of the parent. A coder
// works on the generated class that it names; a source of another class is refused.
template <class Source>
class DtBufferEncoder
{
public:
    virtual ~DtBufferEncoder() {}

    // Puts a buffer for each known attribute into `values`. Attributes that cannot be coded stay out and are named in
    // `refused`, if given; the answer is then false.
    bool encode(const Source& source, DtAttributeValues& values, std::vector<std::string>* refused = nullptr) const
    {
        bool complete = true;
        for (typename Coders::const_iterator coder = myCoders.begin(); coder != myCoders.end(); ++coder)
        {
            complete = encodeOne(*coder, source, values, refused) && complete;
        }
        return complete;
    }

    // The same for the attributes in `names` only; names that no coder knows are passed over.
    bool encode(const Source& source, const std::set<std::string>& names, DtAttributeValues& values,
                std::vector<std::string>* refused = nullptr) const
    {
        bool complete = true;
        for (std::set<std::string>::const_iterator name = names.begin(); name != names.end(); ++name)
        {
            const typename Coders::const_iterator coder = myCoders.find(*name);
            if (coder != myCoders.end())
            {
                complete = encodeOne(*coder, source, values, refused) && complete;
            }
        }
        return complete;
    }

    bool knows(const std::string& name) const { return myCoders.count(name) != 0; }

protected:
    template <class Kind>
    void addCoder(const std::string& name, bool (*code)(const Kind&, DtWireWriter&))
    {
        myCoders[name] = [code](const Source& source, DtWireWriter& writer)
        {
            const Kind* const kind = dynamic_cast<const Kind*>(&source);
            return kind != nullptr && code(*kind, writer);
        };
    }

private:
    typedef std::function<bool(const Source&, DtWireWriter&)> Coder;
    typedef std::map<std::string, Coder> Coders;

    static bool encodeOne(const typename Coders::value_type& coder, const Source& source, DtAttributeValues& values,
                          std::vector<std::string>* refused)
    {
        DtWireWriter writer;
        if (coder.second(source, writer))
        {
            values[coder.first].assign(writer.data(), writer.data() + writer.size());
            return true;
        }
        if (refused != nullptr)
        {
            refused->push_back(coder.first);
        }
        return false;
    }

    Coders myCoders;
};

#endif
