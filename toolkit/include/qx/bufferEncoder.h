#ifndef QX_BUFFER_ENCODER_H
#define QX_BUFFER_ENCODER_H

#include <string>
#include <vector>

#include <qx/attributeValues.h>
#include <qx/wireBuffer.h>

// Turns an object's state or an interaction into named buffers.
//
// Source is DtStateRepository or DtInteraction. A generated encoder adds one coder for each attribute of its class in
// its constructor, behind those of its parent; a name that is added again replaces the coder of the parent. A coder
// works on the generated class that it names; a source of another class is refused.
//
// The operations stand in the library, for these two sources, and not in every file that includes this.
template <class Source>
class DtBufferEncoder
{
public:
    DtBufferEncoder();
    DtBufferEncoder(const DtBufferEncoder& other);
    DtBufferEncoder& operator=(const DtBufferEncoder& other);
    virtual ~DtBufferEncoder();

    // Puts a buffer for each known attribute into `values`. Attributes that cannot be coded stay out and are named in
    // `refused`, if given; the answer is then false.
    bool encode(const Source& source, DtAttributeValues& values, std::vector<std::string>* refused = nullptr) const;

    // The same for the attributes in `names` only; names that no coder knows are passed over.
    bool encode(const Source& source, const std::vector<std::string>& names, DtAttributeValues& values,
                std::vector<std::string>* refused = nullptr) const;

    bool knows(const std::string& name) const { return find(name) != nullptr; }

protected:
    template <class Kind>
    void addCoder(const std::string& name, bool (*code)(const Kind&, DtWireWriter&))
    {
        enter(name.c_str(), reinterpret_cast<AnyFunction>(code), &codeAs<Kind>);
    }
    template <class Kind>
    void addCoder(const char* name, bool (*code)(const Kind&, DtWireWriter&))
    {
        enter(name, reinterpret_cast<AnyFunction>(code), &codeAs<Kind>);
    }

private:
    typedef void (*AnyFunction)();
    typedef bool (*Call)(AnyFunction code, const Source& source, DtWireWriter& writer);
    struct Coder
    {
        std::string name;
        AnyFunction code;
        Call call;
    };

    template <class Kind>
    static bool codeAs(AnyFunction code, const Source& source, DtWireWriter& writer)
    {
        const Kind* const kind = dynamic_cast<const Kind*>(&source);
        return kind != nullptr && reinterpret_cast<bool (*)(const Kind&, DtWireWriter&)>(code)(*kind, writer);
    }
    void enter(const char* name, AnyFunction code, Call call);
    const Coder* find(const std::string& name) const; // null when there is none
    static bool encodeOne(const Coder& coder, const Source& source, DtAttributeValues& values,
                          std::vector<std::string>* refused);

    std::vector<Coder> myCoders; // in the order of their names
};

#endif
