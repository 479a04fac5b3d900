#ifndef OMT_READER_XML_MODEL_NAMES_H
#define OMT_READER_XML_MODEL_NAMES_H

// The names in models of the XML formats: elements (tag...), values of a construct (attr...), which are XML attributes
// in the 1516 form and child elements in the evolved one, and texts that mean something to the readers (value...).
struct DtXmlModelNames
{
    static constexpr const char* tagModelIdentification = "modelIdentification";
    static constexpr const char* tagPoc = "poc";
    static constexpr const char* tagReference = "reference";
    static constexpr const char* tagNotes = "notes";
    static constexpr const char* tagNote = "note";
    static constexpr const char* tagObjects = "objects";
    static constexpr const char* tagObjectClass = "objectClass";
    static constexpr const char* tagAttribute = "attribute";
    static constexpr const char* tagInteractions = "interactions";
    static constexpr const char* tagInteractionClass = "interactionClass";
    static constexpr const char* tagParameter = "parameter";
    static constexpr const char* tagDataTypes = "dataTypes";
    static constexpr const char* tagSimpleDataTypes = "simpleDataTypes";
    static constexpr const char* tagSimpleData = "simpleData";
    static constexpr const char* tagReferenceDataTypes = "referenceDataTypes";
    static constexpr const char* tagReferenceDataType = "referenceDataType";
    static constexpr const char* tagEnumeratedDataTypes = "enumeratedDataTypes";
    static constexpr const char* tagEnumeratedData = "enumeratedData";
    static constexpr const char* tagEnumerator = "enumerator";
    static constexpr const char* tagArrayDataTypes = "arrayDataTypes";
    static constexpr const char* tagArrayData = "arrayData";
    static constexpr const char* tagFixedRecordDataTypes = "fixedRecordDataTypes";
    static constexpr const char* tagFixedRecordData = "fixedRecordData";
    static constexpr const char* tagField = "field";
    static constexpr const char* tagVariantRecordDataTypes = "variantRecordDataTypes";
    static constexpr const char* tagVariantRecordData = "variantRecordData";
    static constexpr const char* tagAlternative = "alternative";
    static constexpr const char* tagBasicDataRepresentations = "basicDataRepresentations";
    static constexpr const char* tagBasicData = "basicData";
    static constexpr const char* tagSwitches = "switches";
    static constexpr const char* tagAutomaticResignAction = "automaticResignAction";
    static constexpr const char* tagDimensions = "dimensions";
    static constexpr const char* tagDimension = "dimension";
    static constexpr const char* tagTime = "time";
    static constexpr const char* tagTimeStamp = "timeStamp";
    static constexpr const char* tagLookahead = "lookahead";
    static constexpr const char* tagTags = "tags";
    static constexpr const char* tagTransportations = "transportations";
    static constexpr const char* tagTransportation = "transportation";
    static constexpr const char* tagSynchronizations = "synchronizations";
    static constexpr const char* tagSynchronization = "synchronization";
    static constexpr const char* tagUpdateRates = "updateRates";
    static constexpr const char* tagUpdateRate = "updateRate";

    static constexpr const char* attrAccuracy = "accuracy";
    static constexpr const char* attrAppDomain = "appDomain";
    static constexpr const char* attrApplicationDomain = "applicationDomain";
    static constexpr const char* attrCapability = "capability";
    static constexpr const char* attrCardinality = "cardinality";
    static constexpr const char* attrDataType = "dataType";
    static constexpr const char* attrDate = "date";
    static constexpr const char* attrDescription = "description";
    static constexpr const char* attrDiscriminant = "discriminant";
    static constexpr const char* attrEncoding = "encoding";
    static constexpr const char* attrEndian = "endian";
    static constexpr const char* attrEnumerator = "enumerator";
    static constexpr const char* attrIdentification = "identification";
    static constexpr const char* attrInterpretation = "interpretation";
    static constexpr const char* attrIsEnabled = "isEnabled";
    static constexpr const char* attrLabel = "label";
    static constexpr const char* attrModificationDate = "modificationDate";
    static constexpr const char* attrName = "name";
    static constexpr const char* attrNormalization = "normalization";
    static constexpr const char* attrOrder = "order";
    static constexpr const char* attrOther = "other";
    static constexpr const char* attrOwnership = "ownership";
    static constexpr const char* attrPocEmail = "pocEmail";
    static constexpr const char* attrPocName = "pocName";
    static constexpr const char* attrPocOrg = "pocOrg";
    static constexpr const char* attrPocPhone = "pocPhone";
    static constexpr const char* attrPocTelephone = "pocTelephone";
    static constexpr const char* attrPocType = "pocType";
    static constexpr const char* attrPurpose = "purpose";
    static constexpr const char* attrRate = "rate";
    static constexpr const char* attrReference = "reference";
    static constexpr const char* attrReleaseRestriction = "releaseRestriction";
    static constexpr const char* attrReliable = "reliable";
    static constexpr const char* attrRepresentation = "representation";
    static constexpr const char* attrReferenceClass = "referenceClass";
    static constexpr const char* attrReferencedAttribute = "referencedAttribute";
    static constexpr const char* attrResignAction = "resignAction";
    static constexpr const char* attrResolution = "resolution";
    static constexpr const char* attrSecurityClassification = "securityClassification";
    static constexpr const char* attrSemantics = "semantics";
    static constexpr const char* attrSharing = "sharing";
    static constexpr const char* attrSize = "size";
    static constexpr const char* attrSponsor = "sponsor";
    static constexpr const char* attrTransportation = "transportation";
    static constexpr const char* attrType = "type";
    static constexpr const char* attrUnits = "units";
    static constexpr const char* attrUpdateCondition = "updateCondition";
    static constexpr const char* attrUpdateType = "updateType";
    static constexpr const char* attrUpperBound = "upperBound";
    static constexpr const char* attrUseHistory = "useHistory";
    static constexpr const char* attrUseLimitation = "useLimitation";
    static constexpr const char* attrValue = "value";
    static constexpr const char* attrValues = "values";
    static constexpr const char* attrVersion = "version";

    static constexpr const char* valueObjectRoot = "HLAobjectRoot";
    static constexpr const char* valueInteractionRoot = "HLAinteractionRoot";
    static constexpr const char* valueEnabled = "Enabled"; // of a switch in the 1516 form ...
    static constexpr const char* valueDisabled = "Disabled";
    static constexpr const char* valueTrue = "true"; // ... and in the evolved one
    static constexpr const char* valueFalse = "false";
};

#endif
