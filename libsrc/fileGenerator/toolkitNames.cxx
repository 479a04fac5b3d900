#include "fileGenerator/toolkitNames.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace
{

// Both tables are in the order of strcmp.
// clang-format off
const char* const theNamesInGeneratedCode[] = {
    "DtAlternativeTable", "DtAlternatives", "DtArrayBoundary", "DtArrayLayout", "DtBoundaryOfType",
    "DtDecodeAlternative", "DtDecodeArray", "DtDecodeNoAlternative", "DtDecodePart", "DtDecodeValue",
    "DtDisPublisherBase", "DtDisReflectedList", "DtDisReflectedObject", "DtEncodeAlternative", "DtEncodeArray",
    "DtEncodeNoAlternative", "DtEncodeValue", "DtEnumerator", "DtEnumeratorInTurn", "DtEnumeratorTable",
    "DtEnumeratorsOf", "DtExerciseConn", "DtExerciseObjectId", "DtExtendableVariant", "DtExtendedVariant",
    "DtFieldWriter", "DtFixedArray", "DtFixedReader", "DtFixedWriter", "DtGetNumber", "DtHlaPublisherBase",
    "DtHlaReflectedList", "DtHlaReflectedObject", "DtHlaStateDecoder", "DtHlaStateEncoder", "DtInt64", "DtInteraction",
    "DtInteractionCoding", "DtInteractionDecoder", "DtInteractionEncoder", "DtInteractionWithEncDec",
    "DtLargerBoundary", "DtLengthlessArray", "DtLittleEndian", "DtNamesOfType", "DtNetSizeOf", "DtNullTerminatedArray",
    "DtNumberBoundary", "DtNumberForm", "DtNumberFormOf", "DtNumberOfDiscriminant", "DtOpaqueValue", "DtPaddingArray",
    "DtPlainVariant", "DtPutNumber", "DtReadInto", "DtReadValue", "DtRecordScope", "DtSampleFiller", "DtSampleOf",
    "DtSharedDecoder", "DtSharedEncoder", "DtStartOf", "DtStateDecoder", "DtStateEncoder", "DtStateRepository",
    "DtTextLayout", "DtUnknownArray", "DtValueText", "DtVariableArray", "DtVariantBoundary", "DtVariantKind",
    "DtWireForm", "DtWireMisfit", "DtWirePart", "DtWireReader", "DtWireRecordOf", "DtWireTrail", "DtWireWriter",
    "DtWriteEnumerator", "DtWriteValue",
};

const char* const theOtherNames[] = {
    "DtAlternativeKind", "DtAlternativeList", "DtAlternativeOf", "DtAlternativesFrom", "DtAppendUtf8", "DtArrayKind",
    "DtArrayKindOf", "DtAttributeValues", "DtBigEndian", "DtBitsOf", "DtBoundaryOf", "DtBufferDecoder",
    "DtBufferEncoder", "DtByteOrder", "DtDecodeElements", "DtDecodeLengthlessArray", "DtDecodeOctets", "DtDecodePdu",
    "DtDecodeTerminatedArray", "DtDecodeValues", "DtDecodeWithTraits", "DtDefaultAlternative", "DtElementReader",
    "DtElementRun", "DtEncodeOctets", "DtEncodePdu", "DtEncodeTerminatedArray", "DtEncodeValues", "DtEncodedTime",
    "DtEntityIdentifier", "DtEntityType", "DtEnumeratorSelector", "DtEnumeratorText", "DtExercise", "DtExerciseEvent",
    "DtExerciseLink", "DtExerciseMember", "DtExerciseObserver", "DtFirstNumber", "DtFitsInto", "DtFixedOctetsOf",
    "DtFloat", "DtFloat32", "DtFloat64", "DtGetWirePart", "DtGlobalObjectDesignator", "DtHasByteOrder", "DtHexText",
    "DtHlaLogicalTime", "DtHlaLogicalTimeInterval", "DtInt16", "DtInt32", "DtInt8", "DtIsDigit", "DtIsFixed",
    "DtIsLittleEndian", "DtIsUnsignedByName", "DtIsWideString", "DtLEFloat32", "DtLEFloat64", "DtLEInt16", "DtLEInt32",
    "DtLEU16", "DtLEU32", "DtLEU64", "DtLEU8", "DtLayoutOf", "DtLoadBig", "DtLoadBits", "DtMessageObserver",
    "DtNarrowText", "DtNetBoolean", "DtNetEntityIdentifier", "DtNetEntityType", "DtNetEulerAngles", "DtNetFloat32",
    "DtNetFloat64", "DtNetInt16", "DtNetInt32", "DtNetInt64", "DtNetPduHeader", "DtNetU16", "DtNetU32", "DtNetU64",
    "DtNetU8", "DtNetVector32", "DtNetVector64", "DtNumberAt", "DtNumberImage", "DtNumberText", "DtOctetWriter",
    "DtOctetsByName", "DtOctetsOfBits", "DtPaddingTo", "DtPaddingUnit", "DtPduObserver", "DtPublisherBase",
    "DtPutAlternativeLength", "DtPutWirePart", "DtQuotedText", "DtReflectedListBase", "DtReflectedObjectBase",
    "DtRepresentationOf", "DtSelectorRange", "DtSplitAlternative", "DtStateMsg", "DtStoreBig", "DtStoreBits",
    "DtStreamedText", "DtString", "DtSwappedOctets", "DtTaitBryan", "DtTerminator", "DtTextBegins", "DtTextEquals",
    "DtTextIs", "DtTextTraits", "DtTrailingNumber", "DtTriple", "DtU16", "DtU32", "DtU64", "DtU8", "DtValueBuffer",
    "DtVector", "DtVector32", "DtVector64", "DtVectorImage", "DtWideUnits", "DtWireComponentsOf", "DtWirePartForm",
    "DtWireRecordLayout", "DtWireRecordTraits", "DtWireTraits", "DtWrittenOctets",
};
// clang-format on

template <std::size_t N>
bool contains(const char* const (&names)[N], const DtString& name)
{
    return std::binary_search(std::begin(names), std::end(names), name.c_str(),
                              [](const char* a, const char* b) { return std::strcmp(a, b) < 0; });
}

} // namespace

bool isToolkitName(const DtString& name)
{
    return contains(theNamesInGeneratedCode, name) || contains(theOtherNames, name);
}

bool isToolkitNameInGeneratedCode(const DtString& name)
{
    return contains(theNamesInGeneratedCode, name);
}
