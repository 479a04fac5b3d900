#ifndef QX_STATE_REPOSITORY_H
#define QX_STATE_REPOSITORY_H

#include <string>
#include <vector>

// Base of the generated classes that hold the attribute values of one object.
//
// It keeps the names of the attributes that were set since the last clearChanges(): a publisher sends just these, and
// on the reflecting side they tell what the latest update brought.
//
// A generated class has an accessor for each attribute, and an attribute may be called anything. So nothing here but
// the destructor is virtual: an accessor may hide an operation of this class, and callers that hold a DtStateRepository
// still reach it. Generated code calls these operations with the class name in front.
class DtStateRepository
{
public:
    virtual ~DtStateRepository();

    void markChanged(const char* attribute);
    void markChanged(const std::string& attribute) { markChanged(attribute.c_str()); }
    bool isChanged(const std::string& attribute) const;
    // In alphabetical order, each once.
    const std::vector<std::string>& changes() const { return myChanges; }
    void clearChanges() { myChanges.clear(); }

protected:
    DtStateRepository();
    DtStateRepository(const DtStateRepository& other);
    DtStateRepository& operator=(const DtStateRepository& other);

private:
    std::vector<std::string> myChanges;
};

#endif
