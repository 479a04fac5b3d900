#ifndef OMT_READER_OMT_ITEMS_H
#define OMT_READER_OMT_ITEMS_H

#include "foundation/warning.h"
#include "omtReader/omtFileReader.h"

// This header holds the keywords of the OMT text format. Only the reader of that format includes it.

// Tells where the value of a keyword goes: its text or its number into the node, or the elements behind the keyword to
// the operation that reads them.
template <typename Node>
struct DtOmtTarget
{
    constexpr DtOmtTarget(void (Node::*setter)(const DtString&)) : setText(setter) {}
    constexpr DtOmtTarget(void (Node::*setter)(int)) : setNumber(setter) {}
    constexpr DtOmtTarget(void (DtOMTFileReader::*operation)(const DtlObjPtr&, Node*)) : process(operation) {}

    void (Node::*setText)(const DtString&) = nullptr;
    void (Node::*setNumber)(int) = nullptr;
    void (DtOMTFileReader::*process)(const DtlObjPtr&, Node*) = nullptr;
};

// One keyword of a construct. The fault is what is badly formatted when the keyword is the head of a dotted pair; it is
// completed by the name of the node if it ends in a blank. Without a fault the operation finds that out by itself.
template <typename Node>
struct DtOmtItem
{
    const char* keyword;
    const char* fault;
    DtOmtTarget<Node> target;
};

//   keyword, fault, target
inline constexpr DtOmtItem<DtComplexDatatypeNode> theComplexDatatypeItems[] = {
    {"Name",             "Name in Complex Datatype ", &DtComplexDatatypeNode::setName          },
    {"ComplexComponent", nullptr,                     &DtOMTFileReader::processComplexComponent},
};
inline constexpr DtOmtItem<DtComplexComponentNode> theComplexComponentItems[] = {
    {"FieldName",         "Field Name in Complex Component ",         &DtComplexComponentNode::setName             },
    {"DataType",          "Datatype in Complex Component ",           &DtComplexComponentNode::setDatatype         },
    {"Cardinality",       "Cardinality in Complex Component ",        &DtComplexComponentNode::setCardinality      },
    {"Accuracy",          "Accuracy in Complex Component ",           &DtComplexComponentNode::setAccuracy         },
    {"AccuracyCondition", "Accuracy Condition in Complex Component ", &DtComplexComponentNode::setAccuracyCondition},
};
inline constexpr DtOmtItem<DtEnumeratedDatatypeNode> theEnumeratedDatatypeItems[] = {
    {"Name",        "Name in Enumerated Datatype ",        &DtEnumeratedDatatypeNode::setName  },
    {"Enumeration", "Enumeration in Enumerated Datatype ", &DtOMTFileReader::processEnumeration},
};
inline constexpr DtOmtItem<DtEnumerationNode> theEnumerationItems[] = {
    {"Enumerator",     "Enumerator in Enumeration",     &DtEnumerationNode::setEnum  },
    {"Representation", "Representation in Enumeration", &DtEnumerationNode::setNumber},
};
inline constexpr DtOmtItem<DtObjectClassFedNode> theObjectClassItems[] = {
    {"Name",        "Name in Class ",        &DtObjectClassFedNode::setName            },
    {"ID",          "ID in Class ",          &DtObjectClassFedNode::setIdentifier      },
    {"Description", "Description in Class ", &DtObjectClassFedNode::setDescriptor      },
    {"SuperClass",  "SuperClass in Class ",  &DtObjectClassFedNode::setParentIdentifier},
    {"Attribute",   nullptr,                 &DtOMTFileReader::processAttribute        },
};
inline constexpr DtOmtItem<DtAttributeFedNode> theAttributeItems[] = {
    {"Name",              "Name in Attribute ",               &DtAttributeFedNode::setName             },
    {"DataType",          "Datatype in Attribute ",           &DtAttributeFedNode::setDatatype         },
    {"Cardinality",       "Cardinality in Attribute ",        &DtAttributeFedNode::setCardinality      },
    {"Accuracy",          "Accuracy in Attribute ",           &DtAttributeFedNode::setAccuracy         },
    {"AccuracyCondition", "Accuracy Condition in Attribute ", &DtAttributeFedNode::setAccuracyCondition},
    {"UpdateType",        "Update Type in Attribute ",        &DtAttributeFedNode::setUpdateType       },
    {"UpdateCondition",   "Update Condition in Attribute ",   &DtAttributeFedNode::setUpdateCondition  },
    {"TransferAccept",    "TransferAccept in Attribute ",     &DtAttributeFedNode::setTransferAccept   },
    {"Description",       "Description in Attribute ",        &DtAttributeFedNode::setDescription      },
};
inline constexpr DtOmtItem<DtInteractionClassFedNode> theInteractionClassItems[] = {
    {"Name",             "Name in Interaction ",             &DtInteractionClassFedNode::setName            },
    {"ID",               "ID in Interaction ",               &DtInteractionClassFedNode::setIdentifier      },
    {"Description",      "Description in Interaction ",      &DtInteractionClassFedNode::setDescriptor      },
    {"SuperInteraction", "SuperInteraction in Interaction ", &DtInteractionClassFedNode::setParentIdentifier},
    {"Parameter",        "Parameter in Interaction ",        &DtOMTFileReader::processParameter             },
};
inline constexpr DtOmtItem<DtParameterFedNode> theParameterItems[] = {
    {"Name",              "Name in Parameter ",               &DtParameterFedNode::setName             },
    {"DataType",          "DataType in Parameter ",           &DtParameterFedNode::setDatatype         },
    {"Cardinality",       "Cardinality in Parameter ",        &DtParameterFedNode::setCardinality      },
    {"Accuracy",          "Accuracy in Parameter ",           &DtParameterFedNode::setAccuracy         },
    {"AccuracyCondition", "Accuracy Condition in Parameter ", &DtParameterFedNode::setAccuracyCondition},
    {"Description",       "Description in Parameter ",        &DtParameterFedNode::setDescription      },
};
inline constexpr DtOmtItem<DtNoteNode> theNoteItems[] = {
    {"NoteText",   "NoteText in Note",   &DtNoteNode::setText  },
    {"NoteNumber", "NoteNumber in Note", &DtNoteNode::setNumber},
};

// An element that stands directly below the model.
struct DtOmtModelItem
{
    const char* keyword;
    void (DtOMTFileReader::*process)(const DtlObjPtr&, DtOMTTree*);
};

inline constexpr DtOmtModelItem theModelItems[] = {
    {"ComplexDataType",    &DtOMTFileReader::processComplexDataType   },
    {"EnumeratedDataType", &DtOMTFileReader::processEnumeratedDataType},
    {"Class",              &DtOMTFileReader::processObjectClass       },
    {"Interaction",        &DtOMTFileReader::processInteractionClass  },
    {"Note",               &DtOMTFileReader::processNote              },
    {"Name",               &DtOMTFileReader::processName              },
    {"VersionNumber",      &DtOMTFileReader::processVersionNo         },
    {"Type",               &DtOMTFileReader::processType              },
    {"Purpose",            &DtOMTFileReader::processPurpose           },
    {"ApplicationDomain",  &DtOMTFileReader::processApplicationDomain },
    {"SponsorOrgName",     &DtOMTFileReader::processSponsorOrgName    },
    {"ModificationDate",   &DtOMTFileReader::processModificationDate  },
    {"MOMVersion",         &DtOMTFileReader::processMOMVersion        },
};

// A part of the point of contact: such elements stand below the model too, and together they make one contact.
struct DtOmtContactItem
{
    const char* keyword;
    DtString DtOMTTreePOC::*field;
};

inline constexpr DtOmtContactItem theContactItems[] = {
    {"POCHonorificName", &DtOMTTreePOC::type        },
    {"POCFirstName",     &DtOMTTreePOC::firstName   },
    {"POCLastName",      &DtOMTTreePOC::lastName    },
    {"POCOrgName",       &DtOMTTreePOC::organization},
    {"POCPhone",         &DtOMTTreePOC::telephone   },
    {"POCEmail",         &DtOMTTreePOC::email       },
};

// Finds the row of a keyword; null when no row has it.
template <typename Row, std::size_t theCount>
const Row* DtFindOmtItem(const Row (&rows)[theCount], const DtString& keyword)
{
    for (const Row& row : rows)
        if (keyword == row.keyword)
            return &row;
    return nullptr;
}

// How the reader builds one of the two hierarchies.
template <typename Class>
struct DtOmtHierarchy
{
    const char* rootName;
    const char* rootDescription;
    const char* kind; // what warnings call one of its classes
    DtSubject::Kind subjectKind;
    Class* (DtOMTTree::*root)() const;
    void (DtOMTTree::*setRoot)(Class*);
    void (DtOMTTree::*add)(Class*);
    typename std::list<Class*>::const_iterator (DtOMTTree::*begin)() const;
    typename std::list<Class*>::const_iterator (DtOMTTree::*end)() const;
    Class* (DtOMTTree::*findByNumber)(int) const;
    void (Class::*addChild)(Class*);
    void (DtOMTFileReader::*setHandles)(Class*);
};

inline constexpr DtOmtHierarchy<DtObjectClassFedNode> theObjectHierarchy = {
    "ObjectRoot",
    "Predefined object root",
    "Class",
    DtSubject::ObjectClass,
    &DtOMTTree::objectClassRoot,
    &DtOMTTree::setObjectClassRoot,
    &DtOMTTree::addObjectClassNode,
    &DtOMTTree::getObjectClassNodeBegin,
    &DtOMTTree::getObjectClassNodeEnd,
    &DtOMTTree::getObjectClassNodeByID,
    &DtObjectClassFedNode::addChildObject,
    &DtOMTFileReader::setAttributeHandles,
};

inline constexpr DtOmtHierarchy<DtInteractionClassFedNode> theInteractionHierarchy = {
    "InteractionRoot",
    "Predefined Interaction Root",
    "Interaction",
    DtSubject::InteractionClass,
    &DtOMTTree::interactionClassRoot,
    &DtOMTTree::setInteractionClassRoot,
    &DtOMTTree::addInteractionClassNode,
    &DtOMTTree::getInteractionClassNodeBegin,
    &DtOMTTree::getInteractionClassNodeEnd,
    &DtOMTTree::getInteractionClassNodeByID,
    &DtInteractionClassFedNode::addChildInteraction,
    &DtOMTFileReader::setParameterHandles,
};

#endif
