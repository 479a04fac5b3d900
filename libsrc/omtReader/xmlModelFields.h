#ifndef OMT_READER_XML_MODEL_FIELDS_H
#define OMT_READER_XML_MODEL_FIELDS_H

#include "omtReader/xmlModelReader.h"

// Tables that tell where each value of a construct goes in the tree. The members of a construct, which are constructs
// of their own, are not in here.
struct DtXmlModelFields : DtXmlModelNames
{
    template <typename Node>
    static void setNumber(Node& node, const DtString& text)
    {
        node.setNumber(DtXmlToNumber(text));
    }
    static void setValue(DtEnumerationNode& node, const DtString& text)
    {
        setNumber(node, text);
        node.setValueText(text);
    }
    template <DtString DtOMTTreePOC::*theText>
    static void setPoc(DtOMTTreePOC& poc, const DtString& text)
    {
        poc.*theText = text;
    }
    static void setRate(DtUpdateRateNode& updateRate, const DtString& text) { updateRate.setRate(DtXmlToRate(text)); }

    static constexpr DtXmlField<DtOMTTree> theIdentificationFields[] = {
        {attrName,                   &DtOMTTree::setName,                   DtXmlBothForms  },
        {attrType,                   &DtOMTTree::setType,                   DtXmlBothForms  },
        {attrVersion,                &DtOMTTree::setVersionNo,              DtXmlBothForms  },
        {attrPurpose,                &DtOMTTree::setPurpose,                DtXmlBothForms  },
        {attrAppDomain,              &DtOMTTree::setApplicationDomain,      DtXml1516Form   },
        {attrApplicationDomain,      &DtOMTTree::setApplicationDomain,      DtXmlEvolvedForm},
        {attrDate,                   &DtOMTTree::setModificationDate,       DtXml1516Form   },
        {attrModificationDate,       &DtOMTTree::setModificationDate,       DtXmlEvolvedForm},
        {attrSponsor,                &DtOMTTree::setSponsorOrgName,         DtXml1516Form   },
        {attrReference,              &DtOMTTree::setReference,              DtXml1516Form   },
        {attrSecurityClassification, &DtOMTTree::setSecurityClassification, DtXmlEvolvedForm},
        {attrReleaseRestriction,     &DtOMTTree::setReleaseRestriction,     DtXmlEvolvedForm},
        {attrDescription,            &DtOMTTree::setDescription,            DtXmlEvolvedForm},
        {attrUseLimitation,          &DtOMTTree::setUseLimitation,          DtXmlEvolvedForm},
        {attrUseHistory,             &DtOMTTree::setUseHistory,             DtXmlEvolvedForm},
        {attrOther,                  &DtOMTTree::setOther,                  DtXmlBothForms  },
    };

    static constexpr DtXmlField<DtOMTTreePOC> thePocFields[] = {
        {attrPocName,      nullptr, DtXmlBothForms,   setPoc<&DtOMTTreePOC::firstName>   },
        {attrPocOrg,       nullptr, DtXmlBothForms,   setPoc<&DtOMTTreePOC::organization>},
        {attrPocPhone,     nullptr, DtXml1516Form,    setPoc<&DtOMTTreePOC::telephone>   },
        {attrPocTelephone, nullptr, DtXmlEvolvedForm, setPoc<&DtOMTTreePOC::telephone>   },
        {attrPocEmail,     nullptr, DtXmlBothForms,   setPoc<&DtOMTTreePOC::email>       },
        {attrPocType,      nullptr, DtXmlEvolvedForm, setPoc<&DtOMTTreePOC::type>        },
    };

    static constexpr DtXmlField<DtNoteNode> theNoteFields[] = {
        {attrName,      nullptr,               DtXml1516Form,    setNumber<DtNoteNode>},
        {attrLabel,     &DtNoteNode::setLabel, DtXmlEvolvedForm, nullptr              },
        {attrSemantics, &DtNoteNode::setText,  DtXmlBothForms,   nullptr              },
    };

    static constexpr DtXmlField<DtObjectClassFedNode> theObjectClassFields[] = {
        {attrName,      &DtObjectClassFedNode::setName      },
        {attrSharing,   &DtObjectClassFedNode::setSharing   },
        {attrSemantics, &DtObjectClassFedNode::setDescriptor},
    };

    static constexpr DtXmlField<DtAttributeFedNode> theAttributeFields[] = {
        {attrName,            &DtAttributeFedNode::setName,            DtXmlBothForms  },
        {attrDataType,        &DtAttributeFedNode::setDatatype,        DtXmlBothForms  },
        {attrUpdateType,      &DtAttributeFedNode::setUpdateType,      DtXmlBothForms  },
        {attrUpdateCondition, &DtAttributeFedNode::setUpdateCondition, DtXmlBothForms  },
        {attrCardinality,     &DtAttributeFedNode::setCardinality,     DtXmlBothForms  },
        {attrOwnership,       &DtAttributeFedNode::setTransferAccept,  DtXmlBothForms  },
        {attrAccuracy,        &DtAttributeFedNode::setAccuracy,        DtXmlBothForms  },
        {attrSharing,         &DtAttributeFedNode::setSharing,         DtXmlEvolvedForm},
        {attrTransportation,  &DtAttributeFedNode::setTransportation,  DtXmlEvolvedForm},
        {attrOrder,           &DtAttributeFedNode::setOrder,           DtXmlEvolvedForm},
        {attrSemantics,       &DtAttributeFedNode::setDescription,     DtXmlBothForms  },
    };

    static constexpr DtXmlField<DtInteractionClassFedNode> theInteractionClassFields[] = {
        {attrName,           &DtInteractionClassFedNode::setName          },
        {attrSharing,        &DtInteractionClassFedNode::setSharing       },
        {attrTransportation, &DtInteractionClassFedNode::setTransportation},
        {attrOrder,          &DtInteractionClassFedNode::setOrder         },
        {attrSemantics,      &DtInteractionClassFedNode::setDescriptor    },
    };

    static constexpr DtXmlField<DtParameterFedNode> theParameterFields[] = {
        {attrName,           &DtParameterFedNode::setName,           DtXmlBothForms  },
        {attrDataType,       &DtParameterFedNode::setDatatype,       DtXmlBothForms  },
        {attrSharing,        &DtParameterFedNode::setSharing,        DtXmlEvolvedForm},
        {attrTransportation, &DtParameterFedNode::setTransportation, DtXmlEvolvedForm},
        {attrOrder,          &DtParameterFedNode::setOrder,          DtXmlEvolvedForm},
        {attrSemantics,      &DtParameterFedNode::setDescription,    DtXmlBothForms  },
    };

    static constexpr DtXmlField<DtSimpleDatatypeNode> theSimpleFields[] = {
        {attrName,           &DtSimpleDatatypeNode::setName          },
        {attrRepresentation, &DtSimpleDatatypeNode::setRepresentation},
        {attrUnits,          &DtSimpleDatatypeNode::setUnits         },
        {attrResolution,     &DtSimpleDatatypeNode::setResolution    },
        {attrAccuracy,       &DtSimpleDatatypeNode::setAccuracy      },
        {attrSemantics,      &DtSimpleDatatypeNode::setDescription   },
    };

    static constexpr DtXmlField<DtReferenceDatatypeNode> theReferenceFields[] = {
        {attrName,                &DtReferenceDatatypeNode::setName               },
        {attrRepresentation,      &DtReferenceDatatypeNode::setRepresentation     },
        {attrReferenceClass,      &DtReferenceDatatypeNode::setReferenceClass     },
        {attrReferencedAttribute, &DtReferenceDatatypeNode::setReferencedAttribute},
        {attrSemantics,           &DtReferenceDatatypeNode::setDescription        },
    };

    static constexpr DtXmlField<DtEnumeratedDatatypeNode> theEnumeratedFields[] = {
        {attrName,           &DtEnumeratedDatatypeNode::setName          },
        {attrRepresentation, &DtEnumeratedDatatypeNode::setRepresentation},
        {attrSemantics,      &DtEnumeratedDatatypeNode::setDescription   },
    };

    // A file may have "value" and "values"; the one that comes later in it stays.
    static constexpr DtXmlField<DtEnumerationNode> theEnumeratorFields[] = {
        {attrName,   &DtEnumerationNode::setEnum, DtXmlBothForms, nullptr },
        {attrValue,  nullptr,                     DtXmlBothForms, setValue},
        {attrValues, nullptr,                     DtXml1516Form,  setValue},
    };

    static constexpr DtXmlField<DtArrayDatatypeNode> theArrayFields[] = {
        {attrName,        &DtArrayDatatypeNode::setName       },
        {attrDataType,    &DtArrayDatatypeNode::setDatatype   },
        {attrCardinality, &DtArrayDatatypeNode::setCardinality},
        {attrEncoding,    &DtArrayDatatypeNode::setEncoding   },
        {attrSemantics,   &DtArrayDatatypeNode::setDescription},
    };

    static constexpr DtXmlField<DtFixedDatatypeNode> theFixedFields[] = {
        {attrName,      &DtFixedDatatypeNode::setName,        DtXmlBothForms  },
        {attrEncoding,  &DtFixedDatatypeNode::setEncoding,    DtXmlEvolvedForm},
        {attrSemantics, &DtFixedDatatypeNode::setDescription, DtXmlBothForms  },
    };

    static constexpr DtXmlField<DtFieldComponentNode> theFieldFields[] = {
        {attrName,      &DtFieldComponentNode::setName       },
        {attrDataType,  &DtFieldComponentNode::setDatatype   },
        {attrSemantics, &DtFieldComponentNode::setDescription},
    };

    static constexpr DtXmlField<DtVariantDatatypeNode> theVariantFields[] = {
        {attrName,         &DtVariantDatatypeNode::setName        },
        {attrDiscriminant, &DtVariantDatatypeNode::setDiscriminant},
        {attrDataType,     &DtVariantDatatypeNode::setDatatype    },
        {attrEncoding,     &DtVariantDatatypeNode::setEncoding    },
        {attrSemantics,    &DtVariantDatatypeNode::setDescription },
    };

    static constexpr DtXmlField<DtAlternativeComponentNode> theAlternativeFields[] = {
        {attrName,       &DtAlternativeComponentNode::setName       },
        {attrDataType,   &DtAlternativeComponentNode::setDatatype   },
        {attrEnumerator, &DtAlternativeComponentNode::setEnumerator },
        {attrSemantics,  &DtAlternativeComponentNode::setDescription},
    };

    static constexpr DtXmlField<DtBasicDataRepresentationNode> theBasicFields[] = {
        {attrName,           &DtBasicDataRepresentationNode::setName,           DtXmlBothForms  },
        {attrSize,           &DtBasicDataRepresentationNode::setSize,           DtXmlBothForms  },
        {attrEndian,         &DtBasicDataRepresentationNode::setEndian,         DtXmlBothForms  },
        {attrEncoding,       &DtBasicDataRepresentationNode::setEncoding,       DtXmlBothForms  },
        {attrInterpretation, &DtBasicDataRepresentationNode::setInterpretation, DtXmlEvolvedForm},
    };

    static constexpr DtXmlField<DtDimensionNode> theDimensionFields[] = {
        {attrName,          &DtDimensionNode::setName         },
        {attrDataType,      &DtDimensionNode::setDatatype     },
        {attrNormalization, &DtDimensionNode::setNormalization},
        {attrValue,         &DtDimensionNode::setValue        },
        {attrUpperBound,    &DtDimensionNode::setUpperBound   },
    };

    static constexpr DtXmlField<DtTimeRepNode> theTimeStampFields[] = {
        {attrDataType,  &DtTimeRepNode::setFederationTimeDatatype },
        {attrSemantics, &DtTimeRepNode::setFederationTimeSemantics},
    };

    static constexpr DtXmlField<DtTimeRepNode> theLookaheadFields[] = {
        {attrDataType,  &DtTimeRepNode::setLookaheadDatatype },
        {attrSemantics, &DtTimeRepNode::setLookaheadSemantics},
    };

    static constexpr DtXmlField<DtTagNode> theTagFields[] = {
        {attrDataType,  &DtTagNode::setDatatype   },
        {attrSemantics, &DtTagNode::setDescription},
    };

    static constexpr DtXmlField<DtDescriptionNode> theTransportationFields[] = {
        {attrName,      &DtDescriptionNode::setName,        DtXmlBothForms  },
        {attrReliable,  &DtDescriptionNode::setReliable,    DtXmlEvolvedForm},
        {attrSemantics, &DtDescriptionNode::setDescription, DtXmlBothForms  },
    };

    static constexpr DtXmlField<DtSynchroNode> theSynchronizationFields[] = {
        {attrLabel,      &DtSynchroNode::setName       },
        {attrDataType,   &DtSynchroNode::setDatatype   },
        {attrCapability, &DtSynchroNode::setCapability },
        {attrSemantics,  &DtSynchroNode::setDescription},
    };

    static constexpr DtXmlField<DtUpdateRateNode> theUpdateRateFields[] = {
        {attrName,      &DtUpdateRateNode::setName,      DtXmlBothForms,   nullptr},
        {attrRate,      nullptr,                         DtXmlEvolvedForm, setRate},
        {attrSemantics, &DtUpdateRateNode::setSemantics, DtXmlBothForms,   nullptr},
    };
};

#endif
