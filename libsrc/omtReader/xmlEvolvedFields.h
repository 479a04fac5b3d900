#ifndef OMT_READER_XML_EVOLVED_FIELDS_H
#define OMT_READER_XML_EVOLVED_FIELDS_H

#include "omtReader/xmlModelReader.h"

// Where the child elements of each construct of the 2010 form go. The members of a construct, which are constructs of
// their own, are not in here.

inline const DtXmlField<DtOMTTree> theIdentificationFields[] = {
    {"name",                   &DtOMTTree::setName                  },
    {"type",                   &DtOMTTree::setType                  },
    {"version",                &DtOMTTree::setVersionNo             },
    {"modificationDate",       &DtOMTTree::setModificationDate      },
    {"securityClassification", &DtOMTTree::setSecurityClassification},
    {"releaseRestriction",     &DtOMTTree::setReleaseRestriction    },
    {"purpose",                &DtOMTTree::setPurpose               },
    {"applicationDomain",      &DtOMTTree::setApplicationDomain     },
    {"description",            &DtOMTTree::setDescription           },
    {"useLimitation",          &DtOMTTree::setUseLimitation         },
    {"useHistory",             &DtOMTTree::setUseHistory            },
    {"other",                  &DtOMTTree::setOther                 },
};

inline const DtXmlField<DtOMTTreePOC> thePocFields[] = {
    {"pocName",      nullptr, [](DtOMTTreePOC& poc, const DtString& text) { poc.firstName = text; }   },
    {"pocOrg",       nullptr, [](DtOMTTreePOC& poc, const DtString& text) { poc.organization = text; }},
    {"pocTelephone", nullptr, [](DtOMTTreePOC& poc, const DtString& text) { poc.telephone = text; }   },
    {"pocEmail",     nullptr, [](DtOMTTreePOC& poc, const DtString& text) { poc.email = text; }       },
    {"pocType",      nullptr, [](DtOMTTreePOC& poc, const DtString& text) { poc.type = text; }        },
};

inline const DtXmlField<DtNoteNode> theNoteFields[] = {
    {"semantics", &DtNoteNode::setText },
    {"label",     &DtNoteNode::setLabel},
};

inline const DtXmlField<DtObjectClassFedNode> theObjectClassFields[] = {
    {"name",      &DtObjectClassFedNode::setName      },
    {"sharing",   &DtObjectClassFedNode::setSharing   },
    {"semantics", &DtObjectClassFedNode::setDescriptor},
};

inline const DtXmlField<DtAttributeFedNode> theAttributeFields[] = {
    {"name",            &DtAttributeFedNode::setName           },
    {"dataType",        &DtAttributeFedNode::setDatatype       },
    {"updateType",      &DtAttributeFedNode::setUpdateType     },
    {"updateCondition", &DtAttributeFedNode::setUpdateCondition},
    {"cardinality",     &DtAttributeFedNode::setCardinality    },
    {"ownership",       &DtAttributeFedNode::setTransferAccept },
    {"accuracy",        &DtAttributeFedNode::setAccuracy       },
    {"sharing",         &DtAttributeFedNode::setSharing        },
    {"transportation",  &DtAttributeFedNode::setTransportation },
    {"order",           &DtAttributeFedNode::setOrder          },
    {"semantics",       &DtAttributeFedNode::setDescription    },
};

inline const DtXmlField<DtInteractionClassFedNode> theInteractionClassFields[] = {
    {"name",           &DtInteractionClassFedNode::setName          },
    {"sharing",        &DtInteractionClassFedNode::setSharing       },
    {"transportation", &DtInteractionClassFedNode::setTransportation},
    {"order",          &DtInteractionClassFedNode::setOrder         },
    {"semantics",      &DtInteractionClassFedNode::setDescriptor    },
};

inline const DtXmlField<DtParameterFedNode> theParameterFields[] = {
    {"name",           &DtParameterFedNode::setName          },
    {"dataType",       &DtParameterFedNode::setDatatype      },
    {"sharing",        &DtParameterFedNode::setSharing       },
    {"transportation", &DtParameterFedNode::setTransportation},
    {"order",          &DtParameterFedNode::setOrder         },
    {"semantics",      &DtParameterFedNode::setDescription   },
};

inline const DtXmlField<DtSimpleDatatypeNode> theSimpleFields[] = {
    {"name",           &DtSimpleDatatypeNode::setName          },
    {"representation", &DtSimpleDatatypeNode::setRepresentation},
    {"units",          &DtSimpleDatatypeNode::setUnits         },
    {"resolution",     &DtSimpleDatatypeNode::setResolution    },
    {"accuracy",       &DtSimpleDatatypeNode::setAccuracy      },
    {"semantics",      &DtSimpleDatatypeNode::setDescription   },
};

inline const DtXmlField<DtEnumeratedDatatypeNode> theEnumeratedFields[] = {
    {"name",           &DtEnumeratedDatatypeNode::setName          },
    {"representation", &DtEnumeratedDatatypeNode::setRepresentation},
    {"semantics",      &DtEnumeratedDatatypeNode::setDescription   },
};

inline const DtXmlField<DtArrayDatatypeNode> theArrayFields[] = {
    {"name",        &DtArrayDatatypeNode::setName       },
    {"dataType",    &DtArrayDatatypeNode::setDatatype   },
    {"cardinality", &DtArrayDatatypeNode::setCardinality},
    {"encoding",    &DtArrayDatatypeNode::setEncoding   },
    {"semantics",   &DtArrayDatatypeNode::setDescription},
};

inline const DtXmlField<DtFixedDatatypeNode> theFixedFields[] = {
    {"name",      &DtFixedDatatypeNode::setName       },
    {"encoding",  &DtFixedDatatypeNode::setEncoding   },
    {"semantics", &DtFixedDatatypeNode::setDescription},
};

inline const DtXmlField<DtFieldComponentNode> theFieldFields[] = {
    {"name",      &DtFieldComponentNode::setName       },
    {"dataType",  &DtFieldComponentNode::setDatatype   },
    {"semantics", &DtFieldComponentNode::setDescription},
};

inline const DtXmlField<DtVariantDatatypeNode> theVariantFields[] = {
    {"name",         &DtVariantDatatypeNode::setName        },
    {"discriminant", &DtVariantDatatypeNode::setDiscriminant},
    {"dataType",     &DtVariantDatatypeNode::setDatatype    },
    {"encoding",     &DtVariantDatatypeNode::setEncoding    },
    {"semantics",    &DtVariantDatatypeNode::setDescription },
};

inline const DtXmlField<DtAlternativeComponentNode> theAlternativeFields[] = {
    {"name",       &DtAlternativeComponentNode::setName       },
    {"dataType",   &DtAlternativeComponentNode::setDatatype   },
    {"enumerator", &DtAlternativeComponentNode::setEnumerator },
    {"semantics",  &DtAlternativeComponentNode::setDescription},
};

inline const DtXmlField<DtBasicDataRepresentationNode> theBasicFields[] = {
    {"name",           &DtBasicDataRepresentationNode::setName          },
    {"size",           &DtBasicDataRepresentationNode::setSize          },
    {"endian",         &DtBasicDataRepresentationNode::setEndian        },
    {"encoding",       &DtBasicDataRepresentationNode::setEncoding      },
    {"interpretation", &DtBasicDataRepresentationNode::setInterpretation},
};

inline const DtXmlField<DtDimensionNode> theDimensionFields[] = {
    {"name",          &DtDimensionNode::setName         },
    {"dataType",      &DtDimensionNode::setDatatype     },
    {"normalization", &DtDimensionNode::setNormalization},
    {"value",         &DtDimensionNode::setValue        },
    {"upperBound",    &DtDimensionNode::setUpperBound   },
};

inline const DtXmlField<DtTimeRepNode> theTimeStampFields[] = {
    {"dataType",  &DtTimeRepNode::setFederationTimeDatatype },
    {"semantics", &DtTimeRepNode::setFederationTimeSemantics},
};

inline const DtXmlField<DtTimeRepNode> theLookaheadFields[] = {
    {"dataType",  &DtTimeRepNode::setLookaheadDatatype },
    {"semantics", &DtTimeRepNode::setLookaheadSemantics},
};

inline const DtXmlField<DtTagNode> theTagFields[] = {
    {"dataType",  &DtTagNode::setDatatype   },
    {"semantics", &DtTagNode::setDescription},
};

inline const DtXmlField<DtDescriptionNode> theTransportationFields[] = {
    {"name",      &DtDescriptionNode::setName       },
    {"reliable",  &DtDescriptionNode::setReliable   },
    {"semantics", &DtDescriptionNode::setDescription},
};

inline const DtXmlField<DtSynchroNode> theSynchronizationFields[] = {
    {"label",      &DtSynchroNode::setName       },
    {"dataType",   &DtSynchroNode::setDatatype   },
    {"capability", &DtSynchroNode::setCapability },
    {"semantics",  &DtSynchroNode::setDescription},
};

inline void setXmlNumber(DtEnumerationNode& enumerator, const DtString& text)
{
    enumerator.setNumber(DtXmlToNumber(text));
}

inline const DtXmlField<DtEnumerationNode> theEnumeratorFields[] = {
    {"name",  &DtEnumerationNode::setEnum, nullptr     },
    {"value", nullptr,                     setXmlNumber},
};

inline void setXmlRate(DtUpdateRateNode& updateRate, const DtString& text)
{
    updateRate.setRate(DtXmlToRate(text));
}

inline const DtXmlField<DtUpdateRateNode> theUpdateRateFields[] = {
    {"name",      &DtUpdateRateNode::setName,      nullptr   },
    {"rate",      nullptr,                         setXmlRate},
    {"semantics", &DtUpdateRateNode::setSemantics, nullptr   },
};

#endif
