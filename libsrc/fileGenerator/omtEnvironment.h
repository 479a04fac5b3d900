#ifndef FILE_GENERATOR_OMT_ENVIRONMENT_H
#define FILE_GENERATOR_OMT_ENVIRONMENT_H

#include "foundation/environment.h"

#include <memory>

class DtComplexDatatypeNode;
class DtDatatypeFedNode;
class DtFixedDatatypeNode;
class DtInteractionClassFedNode;
class DtOMTTree;
class DtObjectClassFedNode;

// A flat labelled copy of a model that is made to be printed as "parsedFom.txt" and read by people.
//
// Eight branches stand below the root from the start: enumerations, which stays empty, objects, interactions, basic
// datatypes, datatypes, simple datatypes, array datatypes and variant datatypes. Nothing in it points into the tree.
class DtOMTEnvironment : public DtEnvironment
{
public:
    using DtBranch = std::shared_ptr<DtEnvValue>;

    DtOMTEnvironment();
    virtual ~DtOMTEnvironment();

    virtual void populateFromOmtTree(DtOMTTree* tree);

    // The classes below the root class, which has no entry itself. A model without root adds nothing.
    virtual void addFomObjects(DtOMTTree* tree);
    virtual void addInteractions(DtOMTTree* tree);
    // Complex datatypes and behind them the fixed records.
    virtual void addDatatypes(DtOMTTree* tree);
    // One class: subclasses first, then its own attributes or parameters.
    virtual void addToObjectBranch(const DtObjectClassFedNode* node, const DtBranch& parent);
    virtual void addToInteractionBranch(const DtInteractionClassFedNode* node, const DtBranch& parent);
    virtual void addAttributes(const DtObjectClassFedNode* node, const DtBranch& parent);
    virtual void addParameters(const DtInteractionClassFedNode* node, const DtBranch& parent);
    virtual void addComplexDatatypeNode(const DtComplexDatatypeNode* node);
    virtual void addFixedDatatypeNode(const DtFixedDatatypeNode* node);
    // Adds "HLAinteger32BE" when no name of the model contains that.
    virtual void addBasicTypes(DtOMTTree* tree);
    virtual void addSimpleTypes(DtOMTTree* tree);
    virtual void addArrayTypes(DtOMTTree* tree);
    virtual void addVariantTypes(DtOMTTree* tree);

private:
    void addMember(const DtDatatypeFedNode& node, const DtBranch& parent, const char* typeEnd,
                   const char* cardinalityEnd);
    DtBranch addEntry(const DtString& name, const DtString& type, const DtString& value, const DtBranch& parent);

    DtBranch myEnumerations;
    DtBranch myObjects;
    DtBranch myInteractions;
    DtBranch myBasicDatatypes;
    DtBranch myDatatypes;
    DtBranch mySimpleDatatypes;
    DtBranch myArrayDatatypes;
    DtBranch myVariantDatatypes;
};

#endif
