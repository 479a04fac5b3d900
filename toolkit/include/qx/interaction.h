#ifndef QX_INTERACTION_H
#define QX_INTERACTION_H

#include <string>

// Base of everything that is sent once and not kept: the class name, and parameters in the subclasses.
//
// As in DtStateRepository nothing but the destructor is virtual, so a parameter may be called anything.
class DtInteraction
{
public:
    virtual ~DtInteraction() {}

    // Full dotted class name without the model's root class.
    const std::string& fullClassName() const { return myFullClassName; }

protected:
    explicit DtInteraction(const std::string& fullClassName) : myFullClassName(fullClassName) {}
    DtInteraction(const DtInteraction&) = default;
    DtInteraction& operator=(const DtInteraction&) = default;

private:
    std::string myFullClassName;
};

#endif
