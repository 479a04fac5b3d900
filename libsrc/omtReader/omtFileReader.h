#ifndef OMT_READER_OMT_FILE_READER_H
#define OMT_READER_OMT_FILE_READER_H

#include "foundation/mtlInputStream.h"
#include "foundation/mtlObject.h"
#include "omtReader/omtReadException.h"
#include "omtReader/omtTree.h"

#include <memory>

template <typename Class>
struct DtOmtHierarchy;
class DtExerciseConn; // passed on and never looked into; callers give null

// Reads a model in the OMT text format: an s-expression (ObjectModel ...) with all classes side by side, each of which
// has a number and names its superclass by number. The hierarchies are built when all is read, under roots of the
// reader's own.
//
// A failure leaves as DtOMTReadException, with its text in getLastError(), and no tree comes out. The operations for a
// construct get the elements behind its keyword; keywords that no operation knows are passed over, and so are elements
// that are no lists.
class DtOMTFileReader
{
public:
    DtOMTFileReader() = default;
    DtOMTFileReader(const DtOMTFileReader&) = delete;
    DtOMTFileReader& operator=(const DtOMTFileReader&) = delete;
    virtual ~DtOMTFileReader() = default;

    // The first ObjectModel list of a plain file; whatever stands around it is skipped. The tree belongs to the caller;
    // null, with the last error set, when the list has no elements because it is a dotted pair. A file that ends within
    // a list or a string is read as far as it goes, with a warning.
    virtual DtOMTTree* readFile(const DtString& name, DtExerciseConn* connection);
    // The elements of an ObjectModel list. Null, with the last error set, for something else than a list.
    virtual DtOMTTree* processObjectModel(DtlObjPtr& list);

    virtual void processComplexDataType(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processComplexComponent(const DtlObjPtr& list, DtComplexDatatypeNode* datatype);
    virtual void processEnumeratedDataType(const DtlObjPtr& list, DtOMTTree* tree);
    // An enumerator whose name or number is known already is left out.
    virtual void processEnumeration(const DtlObjPtr& list, DtEnumeratedDatatypeNode* datatype);
    virtual void processObjectClass(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processAttribute(const DtlObjPtr& list, DtObjectClassFedNode* objectClass);
    virtual void processInteractionClass(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processParameter(const DtlObjPtr& list, DtInteractionClassFedNode* interaction);
    virtual void processNote(const DtlObjPtr& list, DtOMTTree* tree);

    // The identification of the model. A value that is no string, a symbol or an integer say, changes nothing.
    virtual void processName(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processVersionNo(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processType(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processPurpose(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processApplicationDomain(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processSponsorOrgName(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processModificationDate(const DtlObjPtr& list, DtOMTTree* tree);
    virtual void processMOMVersion(const DtlObjPtr& list, DtOMTTree* tree);

    // Make the root and hang every class under the one whose number it names as its superclass: under the root when
    // there is no such class or when it names itself, the latter with a warning. Classes that name each other in a ring
    // hang under each other and nowhere else. A class with more than 255 others above it is put under the root, with a
    // warning. A tree that has a root is left alone.
    virtual void buildObjectClassTree(DtOMTTree* tree);
    virtual void buildInteractionClassTree(DtOMTTree* tree);

    // Stays until it is cleared.
    virtual const DtString& getLastError() const { return myLastError; }
    virtual void clearLastError() { myLastError = DtString(); }

    // Asked for every class that was read when there is a connection; the roots are left out. Handles are a
    // connection's to give, and nothing in this program has one: these do nothing.
    virtual void setAttributeHandles(DtObjectClassFedNode* objectClass);
    virtual void setParameterHandles(DtInteractionClassFedNode* interaction);

protected:
    // The stream from which the s-expressions are read; null when there can be none.
    virtual std::unique_ptr<DtlInputStream> openStream(FILE* file);

private:
    DtlObjPtr readObjectModel(const DtString& name, const DtlObjPtr& env);
    DtlObjPtr findObjectModel(DtlInputStream& stream, const DtlObjPtr& env);
    [[noreturn]] void fail(const DtString& message);

    void processElement(const DtlObjPtr& element, DtOMTTree& tree, DtOMTTreePOC& contact);
    // Read the elements of a list, or one of them, into a node, as a table of omtItems.h tells. fault: what a message
    // calls badly formatted when the list is none; place: stands behind the message of an element that fails.
    template <typename Items, typename Node>
    void readItems(const Items& items, const DtlObjPtr& list, Node& node, const char* fault, const char* place = "");
    template <typename Item, typename Node>
    void readItem(const Item& item, const DtlObjPtr& value, Node& node, const char* place);
    template <typename Class>
    void buildClassTree(const DtOmtHierarchy<Class>& hierarchy, DtOMTTree& tree);

    DtString myLastError;
    DtExerciseConn* myConnection = nullptr;
};

#endif
