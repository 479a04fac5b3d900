#ifndef QX_BUFFER_DECODER_H
#define QX_BUFFER_DECODER_H

#include <string>
#include <vector>

#include <qx/attributeValues.h>
#include <qx/wireBuffer.h>

// Puts named buffers back into an object's state or an interaction: the counterpart of DtBufferEncoder, with its
// operations in the library as well.
//
// Buffers with a name that no coder knows are passed over, so a class can read what its subclasses sent.
template <class Target>
class DtBufferDecoder
{
public:
    DtBufferDecoder();
    DtBufferDecoder(const DtBufferDecoder& other);
    DtBufferDecoder& operator=(const DtBufferDecoder& other);
    virtual ~DtBufferDecoder();

    // An attribute whose buffer cannot be read keeps its value and is named in `refused`, if given; the answer is then
    // false. The others are set all the same.
    bool decode(const DtAttributeValues& values, Target& target, std::vector<std::string>* refused = nullptr) const;

    bool knows(const std::string& name) const { return find(name) != nullptr; }

protected:
    template <class Kind>
    void addCoder(const std::string& name, bool (*code)(Kind&, DtWireReader&))
    {
        enter(name.c_str(), reinterpret_cast<AnyFunction>(code), &codeAs<Kind>);
    }
    template <class Kind>
    void addCoder(const char* name, bool (*code)(Kind&, DtWireReader&))
    {
        enter(name, reinterpret_cast<AnyFunction>(code), &codeAs<Kind>);
    }

private:
    typedef void (*AnyFunction)();
    typedef bool (*Call)(AnyFunction code, Target& target, DtWireReader& reader);
    struct Coder
    {
        std::string name;
        AnyFunction code;
        Call call;
    };

    template <class Kind>
    static bool codeAs(AnyFunction code, Target& target, DtWireReader& reader)
    {
        Kind* const kind = dynamic_cast<Kind*>(&target);
        return kind != nullptr && reinterpret_cast<bool (*)(Kind&, DtWireReader&)>(code)(*kind, reader);
    }
    void enter(const char* name, AnyFunction code, Call call);
    const Coder* find(const std::string& name) const; // null when there is none
    bool decodeOne(const std::string& name, const DtValueBuffer& octets, Target& target,
                   std::vector<std::string>* refused) const;

    std::vector<Coder> myCoders; // in the order of their names
};

#endif
