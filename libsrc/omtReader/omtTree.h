#ifndef OMT_READER_OMT_TREE_H
#define OMT_READER_OMT_TREE_H

#include "foundation/fomType.h"
#include "omtReader/arrayDatatypeNode.h"
#include "omtReader/basicDataRepresentationNode.h"
#include "omtReader/classList.h"
#include "omtReader/complexDatatypeNode.h"
#include "omtReader/enumeratedDatatypeNode.h"
#include "omtReader/fixedDatatypeNode.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/nodeList.h"
#include "omtReader/noteNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/referenceDatatypeNode.h"
#include "omtReader/simpleDatatypeNode.h"
#include "omtReader/tableNodes.h"
#include "omtReader/variantDatatypeNode.h"

#include <list>
#include <memory>
#include <vector>

// A point of contact of a model.
struct DtOMTTreePOC
{
    DtString type; // or the honorific name in the OMT text format
    DtString firstName;
    DtString lastName;
    DtString organization;
    DtString telephone;
    DtString email;
    DtString other; // filled by no reader
};

// A reference to another model or to a document.
struct DtOMTTreeReference
{
    DtString type;
    DtString identification;
};

// One object model in memory, whichever format it came from: its identification, a list for each kind of node, and the
// hierarchies of object and interaction classes.
//
// Built by one reader and then only read, but for merge and for arrays that the generation adds. Owns every node that
// was added and the time representation; a class is in the flat list and in its parent's children, and the flat list
// owns it. Look-ups that find nothing give null. A node has its name before it is added.
class DtOMTTree
{
public:
    virtual ~DtOMTTree() = default;
    DtOMTTree() = default;
    DtOMTTree(const DtOMTTree&) = delete;
    DtOMTTree& operator=(const DtOMTTree&) = delete;

    virtual void setHlaVersion(DtHLAProtocolVersion version) { myHlaVersion = version; }
    virtual DtHLAProtocolVersion hlaVersion() const { return myHlaVersion; }

    virtual void setName(const DtString& name) { myIdentification.name = name; }
    virtual const DtString& getName() const { return myIdentification.name; }
    virtual void setVersionNo(const DtString& version) { myIdentification.versionNo = version; }
    virtual const DtString& getVersionNo() const { return myIdentification.versionNo; }
    virtual void setType(const DtString& type) { myIdentification.type = type; }
    virtual const DtString& getType() const { return myIdentification.type; }
    virtual void setPurpose(const DtString& purpose) { myIdentification.purpose = purpose; }
    virtual const DtString& getPurpose() const { return myIdentification.purpose; }
    virtual void setApplicationDomain(const DtString& domain) { myIdentification.applicationDomain = domain; }
    virtual const DtString& getApplicationDomain() const { return myIdentification.applicationDomain; }
    virtual void setSponsorOrgName(const DtString& sponsor) { myIdentification.sponsorOrgName = sponsor; }
    virtual const DtString& getSponsorOrgName() const { return myIdentification.sponsorOrgName; }
    virtual void setModificationDate(const DtString& date) { myIdentification.modificationDate = date; }
    virtual const DtString& getModificationDate() const { return myIdentification.modificationDate; }
    virtual void setSecurityClassification(const DtString& classification)
    {
        myIdentification.securityClassification = classification;
    }
    virtual const DtString& getSecurityClassification() const { return myIdentification.securityClassification; }
    virtual void setReleaseRestriction(const DtString& restriction)
    {
        myIdentification.releaseRestriction = restriction;
    }
    virtual const DtString& getReleaseRestriction() const { return myIdentification.releaseRestriction; }
    virtual void setDescription(const DtString& description) { myIdentification.description = description; }
    virtual const DtString& getDescription() const { return myIdentification.description; }
    virtual void setMOMVersion(const DtString& version) { myIdentification.momVersion = version; }
    virtual const DtString& getMOMVersion() const { return myIdentification.momVersion; }
    virtual void setOther(const DtString& other) { myIdentification.other = other; }
    virtual const DtString& getOther() const { return myIdentification.other; }
    virtual void setUseLimitation(const DtString& limitation) { myIdentification.useLimitation = limitation; }
    virtual const DtString& getUseLimitation() const { return myIdentification.useLimitation; }
    virtual void setUseHistory(const DtString& history) { myIdentification.useHistory = history; }
    virtual const DtString& getUseHistory() const { return myIdentification.useHistory; }
    virtual void setReference(const DtString& reference) { myIdentification.reference = reference; }
    virtual const DtString& getReference() const { return myIdentification.reference; }
    virtual void setReferences(const std::vector<DtOMTTreeReference>& references);
    virtual const std::vector<DtOMTTreeReference>& getReferences() const { return myIdentification.references; }
    virtual void addReference(const DtString& type, const DtString& identification);
    virtual void addPOC(const DtString& type, const DtString& firstName, const DtString& lastName,
                        const DtString& organization, const DtString& telephone, const DtString& email,
                        const DtString& other = DtString());
    virtual const std::vector<DtOMTTreePOC>& getPOCList() const { return myIdentification.pointsOfContact; }

    virtual void addNoteNode(DtNoteNode* node);
    virtual DtNoteNode* getNoteNode(int number) const { return myNoteNumbers.find(number); }
    virtual DtNoteNode* getNoteNode(const DtString& label) const { return myNotes.find(label); }
    virtual std::list<DtNoteNode*>::const_iterator getNoteNodeList() const { return myNotes.begin(); }
    virtual std::list<DtNoteNode*>::const_iterator getNoteEndNode() const { return myNotes.end(); }

    // The lists of each kind, in the order in which the nodes were added: all of them, for a range-based loop; the
    // first node of that exact name; begin and end.
    const std::list<DtFixedDatatypeNode*>& fixedDatatypes() const { return myFixedDatatypes.nodes(); }
    virtual void addFixedDatatypeNode(DtFixedDatatypeNode* node) { myFixedDatatypes.add(node); }
    virtual DtFixedDatatypeNode* getFixedDatatypeNode(const DtString& name) const
    {
        return myFixedDatatypes.find(name);
    }
    virtual std::list<DtFixedDatatypeNode*>::const_iterator getFixedDatatypeNodeList() const
    {
        return myFixedDatatypes.begin();
    }
    virtual std::list<DtFixedDatatypeNode*>::const_iterator getFixedDatatypeEndNode() const
    {
        return myFixedDatatypes.end();
    }

    const std::list<DtBasicDataRepresentationNode*>& basicDataRepresentations() const
    {
        return myBasicDataRepresentations.nodes();
    }
    virtual void addBasicDataRepresentationNode(DtBasicDataRepresentationNode* node)
    {
        myBasicDataRepresentations.add(node);
    }
    virtual DtBasicDataRepresentationNode* getBasicDataRepresentationNode(const DtString& name) const
    {
        return myBasicDataRepresentations.find(name);
    }
    virtual std::list<DtBasicDataRepresentationNode*>::const_iterator getBasicDataRepresentationNodeList() const
    {
        return myBasicDataRepresentations.begin();
    }
    virtual std::list<DtBasicDataRepresentationNode*>::const_iterator getBasicDataRepresentationEndNode() const
    {
        return myBasicDataRepresentations.end();
    }

    const std::list<DtVariantDatatypeNode*>& variantDatatypes() const { return myVariantDatatypes.nodes(); }
    virtual void addVariantDatatypeNode(DtVariantDatatypeNode* node) { myVariantDatatypes.add(node); }
    virtual DtVariantDatatypeNode* getVariantDatatypeNode(const DtString& name) const
    {
        return myVariantDatatypes.find(name);
    }
    virtual std::list<DtVariantDatatypeNode*>::const_iterator getVariantDatatypeNodeList() const
    {
        return myVariantDatatypes.begin();
    }
    virtual std::list<DtVariantDatatypeNode*>::const_iterator getVariantDatatypeEndNode() const
    {
        return myVariantDatatypes.end();
    }

    const std::list<DtSimpleDatatypeNode*>& simpleDatatypes() const { return mySimpleDatatypes.nodes(); }
    virtual void addSimpleDatatypeNode(DtSimpleDatatypeNode* node) { mySimpleDatatypes.add(node); }
    virtual DtSimpleDatatypeNode* getSimpleDatatypeNode(const DtString& name) const
    {
        return mySimpleDatatypes.find(name);
    }
    virtual std::list<DtSimpleDatatypeNode*>::const_iterator getSimpleDatatypeNodeList() const
    {
        return mySimpleDatatypes.begin();
    }
    virtual std::list<DtSimpleDatatypeNode*>::const_iterator getSimpleDatatypeEndNode() const
    {
        return mySimpleDatatypes.end();
    }

    const std::list<DtReferenceDatatypeNode*>& referenceDatatypes() const { return myReferenceDatatypes.nodes(); }
    void addReferenceDatatypeNode(DtReferenceDatatypeNode* node) { myReferenceDatatypes.add(node); }
    DtReferenceDatatypeNode* getReferenceDatatypeNode(const DtString& name) const
    {
        return myReferenceDatatypes.find(name);
    }

    const std::list<DtArrayDatatypeNode*>& arrayDatatypes() const { return myArrayDatatypes.nodes(); }
    virtual void addArrayDatatypeNode(DtArrayDatatypeNode* node) { myArrayDatatypes.add(node); }
    virtual DtArrayDatatypeNode* getArrayDatatypeNode(const DtString& name) const
    {
        return myArrayDatatypes.find(name);
    }
    virtual std::list<DtArrayDatatypeNode*>::const_iterator getArrayDatatypeNodeList() const
    {
        return myArrayDatatypes.begin();
    }
    virtual std::list<DtArrayDatatypeNode*>::const_iterator getArrayDatatypeEndNode() const
    {
        return myArrayDatatypes.end();
    }

    const std::list<DtComplexDatatypeNode*>& complexDatatypes() const { return myComplexDatatypes.nodes(); }
    virtual void addComplexDatatypeNode(DtComplexDatatypeNode* node) { myComplexDatatypes.add(node); }
    virtual DtComplexDatatypeNode* getComplexDatatypeNode(const DtString& name) const
    {
        return myComplexDatatypes.find(name);
    }
    virtual std::list<DtComplexDatatypeNode*>::const_iterator getComplexDatatypeNodeList() const
    {
        return myComplexDatatypes.begin();
    }
    virtual std::list<DtComplexDatatypeNode*>::const_iterator getComplexDatatypeEndNode() const
    {
        return myComplexDatatypes.end();
    }

    const std::list<DtEnumeratedDatatypeNode*>& enumeratedDatatypes() const { return myEnumeratedDatatypes.nodes(); }
    virtual void addEnumeratedDatatypeNode(DtEnumeratedDatatypeNode* node) { myEnumeratedDatatypes.add(node); }
    virtual DtEnumeratedDatatypeNode* getEnumeratedDatatypeNode(const DtString& name) const
    {
        return myEnumeratedDatatypes.find(name);
    }
    virtual std::list<DtEnumeratedDatatypeNode*>::const_iterator getEnumeratedDatatypeNodeList() const
    {
        return myEnumeratedDatatypes.begin();
    }
    virtual std::list<DtEnumeratedDatatypeNode*>::const_iterator getEnumeratedDatatypeEndNode() const
    {
        return myEnumeratedDatatypes.end();
    }

    virtual void addSwitchNode(DtBoolAttrNode* node) { mySwitches.add(node); }
    virtual DtBoolAttrNode* getSwitchNode(const DtString& name) const { return mySwitches.find(name); }
    virtual std::list<DtBoolAttrNode*>::const_iterator getSwitchNodeList() const { return mySwitches.begin(); }
    virtual std::list<DtBoolAttrNode*>::const_iterator getSwitchEndNode() const { return mySwitches.end(); }

    virtual void addTransportationNode(DtDescriptionNode* node) { myTransportations.add(node); }
    virtual DtDescriptionNode* getTransportationNode(const DtString& name) const
    {
        return myTransportations.find(name);
    }
    virtual std::list<DtDescriptionNode*>::const_iterator getTransportationNodeList() const
    {
        return myTransportations.begin();
    }
    virtual std::list<DtDescriptionNode*>::const_iterator getTransportationEndNode() const
    {
        return myTransportations.end();
    }

    virtual void addDimensionNode(DtDimensionNode* node) { myDimensions.add(node); }
    virtual DtDimensionNode* getDimensionNode(const DtString& name) const { return myDimensions.find(name); }
    virtual std::list<DtDimensionNode*>::const_iterator getDimensionNodeList() const { return myDimensions.begin(); }
    virtual std::list<DtDimensionNode*>::const_iterator getDimensionEndNode() const { return myDimensions.end(); }

    virtual void addSynchroNode(DtSynchroNode* node) { mySynchros.add(node); }
    virtual DtSynchroNode* getSynchroNode(const DtString& name) const { return mySynchros.find(name); }
    virtual std::list<DtSynchroNode*>::const_iterator getSynchroNodeList() const { return mySynchros.begin(); }
    virtual std::list<DtSynchroNode*>::const_iterator getSynchroEndNode() const { return mySynchros.end(); }

    virtual void addTagNode(DtTagNode* node) { myTags.add(node); }
    virtual DtTagNode* getTagNode(const DtString& name) const { return myTags.find(name); }
    virtual std::list<DtTagNode*>::const_iterator getTagNodeList() const { return myTags.begin(); }
    virtual std::list<DtTagNode*>::const_iterator getTagEndNode() const { return myTags.end(); }

    virtual void addUpdateRateNode(DtUpdateRateNode* node) { myUpdateRates.add(node); }
    virtual DtUpdateRateNode* getUpdateRateNode(const DtString& name) const { return myUpdateRates.find(name); }
    virtual std::list<DtUpdateRateNode*>::const_iterator getUpdateRateNodeList() const { return myUpdateRates.begin(); }
    virtual std::list<DtUpdateRateNode*>::const_iterator getUpdateRateEndNode() const { return myUpdateRates.end(); }

    // Made at the first call, so never null; from then on the tree counts as having one.
    virtual DtTimeRepNode* getTimeRepNode();

    // The root for an empty name. With a root, the class at the end of the dotted path; without one, the first class of
    // the flat list with that full name.
    virtual void setObjectClassRoot(DtObjectClassFedNode* root) { myObjectClassRoot = root; }
    virtual DtObjectClassFedNode* objectClassRoot() const { return myObjectClassRoot; }
    const std::list<DtObjectClassFedNode*>& objectClasses() const { return myObjectClasses.nodes(); }
    virtual void addObjectClassNode(DtObjectClassFedNode* node) { myObjectClasses.add(node); }
    virtual std::list<DtObjectClassFedNode*>::const_iterator getObjectClassNodeBegin() const
    {
        return myObjectClasses.nodes().begin();
    }
    virtual std::list<DtObjectClassFedNode*>::const_iterator getObjectClassNodeEnd() const
    {
        return myObjectClasses.nodes().end();
    }
    virtual std::list<DtObjectClassFedNode*>::const_reverse_iterator getObjectClassNodeRBegin() const
    {
        return myObjectClasses.nodes().rbegin();
    }
    virtual std::list<DtObjectClassFedNode*>::const_reverse_iterator getObjectClassNodeREnd() const
    {
        return myObjectClasses.nodes().rend();
    }
    virtual DtObjectClassFedNode* getObjectClassNodeByID(int identifier) const
    {
        return myObjectClasses.findByIdentifier(identifier);
    }
    virtual DtObjectClassFedNode* getObjectClassNode(const DtString& name) const;

    virtual void setInteractionClassRoot(DtInteractionClassFedNode* root) { myInteractionClassRoot = root; }
    virtual DtInteractionClassFedNode* interactionClassRoot() const { return myInteractionClassRoot; }
    const std::list<DtInteractionClassFedNode*>& interactionClasses() const { return myInteractionClasses.nodes(); }
    virtual void addInteractionClassNode(DtInteractionClassFedNode* node) { myInteractionClasses.add(node); }
    virtual std::list<DtInteractionClassFedNode*>::const_iterator getInteractionClassNodeBegin() const
    {
        return myInteractionClasses.nodes().begin();
    }
    virtual std::list<DtInteractionClassFedNode*>::const_iterator getInteractionClassNodeEnd() const
    {
        return myInteractionClasses.nodes().end();
    }
    virtual std::list<DtInteractionClassFedNode*>::const_reverse_iterator getInteractionClassNodeRBegin() const
    {
        return myInteractionClasses.nodes().rbegin();
    }
    virtual std::list<DtInteractionClassFedNode*>::const_reverse_iterator getInteractionClassNodeREnd() const
    {
        return myInteractionClasses.nodes().rend();
    }
    virtual DtInteractionClassFedNode* getInteractionClassNodeByID(int identifier) const
    {
        return myInteractionClasses.findByIdentifier(identifier);
    }
    virtual DtInteractionClassFedNode* getInteractionClassNode(const DtString& name) const;

    // Adds copies of everything in `other` that this tree lacks; of two entries of one name this tree's stands in
    // silence. The identification stays but for a reference to `other` in a tree of version 3 or 4.
    virtual void merge(const DtOMTTree* other);
    virtual void mergeModelIdentification(const DtOMTTree* other);
    virtual void mergeObjects(const DtOMTTree* other);
    // Merges a class with all below it. A class that this tree has keeps its members if it has any and takes copies of
    // the other's if it has none. The answer is the copy when the class is new here, still without a parent of this
    // tree, and null otherwise. The copies come into the flat list children first.
    virtual DtObjectClassFedNode* mergeObjectNode(const DtObjectClassFedNode* node);
    virtual void mergeInteractions(const DtOMTTree* other);
    virtual DtInteractionClassFedNode* mergeInteractionNode(const DtInteractionClassFedNode* node);
    virtual void mergeDatatypes(const DtOMTTree* other);
    // Ahead of a merge with a tree that goes away behind it: takes the datatypes over that would be copied.
    void takeDatatypes(DtOMTTree& other);
    virtual void mergeNotes(const DtOMTTree* other);
    virtual void mergeSyncPoints(const DtOMTTree* other);
    virtual void mergeTransportations(const DtOMTTree* other);
    virtual void mergeDimensions(const DtOMTTree* other);
    virtual void mergeUpdateRates(const DtOMTTree* other);
    virtual void mergeTags(const DtOMTTree* other);
    virtual void mergeSwitches(const DtOMTTree* other);

    // Texts, points of contact and references of the other tree in place of this one's.
    void takeIdentification(const DtOMTTree& other) { myIdentification = other.myIdentification; }

private:
    struct LabelOf
    {
        const DtString& operator()(const DtNoteNode& node) const { return node.getLabel(); }
    };
    struct NumberOf
    {
        int operator()(const DtNoteNode& node) const { return node.getNumber(); }
    };
    template <typename Other, typename Combine>
    void combineDatatypes(Other& other, Combine combine);

    struct Identification
    {
        DtString name;
        DtString versionNo;
        DtString type;
        DtString purpose;
        DtString applicationDomain;
        DtString sponsorOrgName;
        DtString modificationDate;
        DtString securityClassification;
        DtString releaseRestriction;
        DtString description;
        DtString momVersion;
        DtString reference;
        DtString other;
        DtString useLimitation;
        DtString useHistory;
        std::vector<DtOMTTreePOC> pointsOfContact;
        std::vector<DtOMTTreeReference> references;
    };

    DtNodeList<DtNoteNode, LabelOf> myNotes;
    DtNodeIndex<DtNoteNode, NumberOf> myNoteNumbers;
    DtClassList<DtObjectClassFedNode> myObjectClasses;
    DtClassList<DtInteractionClassFedNode> myInteractionClasses;
    DtNodeList<DtComplexDatatypeNode> myComplexDatatypes;
    DtNodeList<DtEnumeratedDatatypeNode> myEnumeratedDatatypes;
    DtNodeList<DtBasicDataRepresentationNode> myBasicDataRepresentations;
    DtNodeList<DtSimpleDatatypeNode> mySimpleDatatypes;
    DtNodeList<DtReferenceDatatypeNode> myReferenceDatatypes;
    DtNodeList<DtArrayDatatypeNode> myArrayDatatypes;
    DtNodeList<DtFixedDatatypeNode> myFixedDatatypes;
    DtNodeList<DtVariantDatatypeNode> myVariantDatatypes;
    DtNodeList<DtBoolAttrNode> mySwitches;
    DtNodeList<DtDescriptionNode> myTransportations;
    DtNodeList<DtDimensionNode> myDimensions;
    DtNodeList<DtSynchroNode> mySynchros;
    DtNodeList<DtTagNode> myTags;
    DtNodeList<DtUpdateRateNode> myUpdateRates;
    std::unique_ptr<DtTimeRepNode> myTimeRep;                    // null until asked for
    DtObjectClassFedNode* myObjectClassRoot = nullptr;           // null until set
    DtInteractionClassFedNode* myInteractionClassRoot = nullptr; // null until set
    Identification myIdentification;
    DtHLAProtocolVersion myHlaVersion = DtHlaUnknown;
};

#endif
