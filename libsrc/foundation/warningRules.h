#ifndef FOUNDATION_WARNING_RULES_H
#define FOUNDATION_WARNING_RULES_H

#include "foundation/warning.h"

#include <vector>

// The rules by which the libraries warn. An id never changes its meaning: builds and filters name it.
namespace DtRules
{
inline constexpr DtWarningRule additionalRoot = {
    "additional-root", "A model file has more than one class at the top of a hierarchy; only the first is read."};
inline constexpr DtWarningRule carriageReturns = {
    "carriage-returns", "Lines of a command file end with carriage returns, which are left out."};
inline constexpr DtWarningRule charactersLeftOut = {
    "characters-left-out", "A text has characters that XML cannot hold, and they are left out."};
inline constexpr DtWarningRule commandFileTooDeep = {
    "command-file-too-deep", "A command file is included too deep, most likely by itself, and is left out there."};
inline constexpr DtWarningRule duplicateEnumerator = {
    "duplicate-enumerator", "An enumerator has the name or number of one before it and is left out."};
inline constexpr DtWarningRule enumeratorValue = {
    "enumerator-value", "The value of an enumerator is no number, or one beyond 32 bits with a sign."};
inline constexpr DtWarningRule fileEndsEarly = {"file-ends-early", "A model file ends within a list or a string."};
inline constexpr DtWarningRule incompleteCommand = {"incomplete-command",
                                                    "A line of a command file lacks arguments of its command."};
inline constexpr DtWarningRule leftOutEnumeration = {
    "left-out-enumeration", "An enumeration is left out since another one has the same name in C++."};
inline constexpr DtWarningRule missingName = {"missing-name",
                                              "An element of a model file has no name and is left out."};
inline constexpr DtWarningRule missingRoot = {"missing-root", "A model file lacks the root class of a hierarchy."};
inline constexpr DtWarningRule missingSetting = {"missing-setting",
                                                 "The configuration lacks a setting, which counts as empty."};
inline constexpr DtWarningRule nameClash = {
    "name-clash", "Two datatypes, classes or members of one class have the same name in C++."};
inline constexpr DtWarningRule noEncoding = {"no-encoding", "Values of a datatype can be neither encoded nor decoded."};
inline constexpr DtWarningRule noIdentifier = {"no-identifier", "A name of the model gives no identifier of C++."};
inline constexpr DtWarningRule openArraysCoded = {
    "open-arrays-coded", "Values of a datatype with several open arrays are coded, as the configuration asks for."};
inline constexpr DtWarningRule outputNotWritten = {"output-not-written",
                                                   "A file of the output could not be opened or written."};
inline constexpr DtWarningRule outsideOutput = {
    "outside-output", "A file is not written since its path leads out of the output directory."};
inline constexpr DtWarningRule ownSuperclass = {"own-superclass",
                                                "A class names itself as its superclass and is put under the root."};
inline constexpr DtWarningRule parentNotSelected = {
    "parent-not-selected", "A class is generated without its superclass, whose files it includes."};
inline constexpr DtWarningRule recursiveDatatype = {
    "recursive-datatype", "A datatype contains itself by value, or a datatype that does, which no class of C++ can."};
inline constexpr DtWarningRule renamedEnumerator = {
    "renamed-enumerator", "An enumerator gets another name in C++ since one before it has its own."};
inline constexpr DtWarningRule settingNotStored = {"setting-not-stored",
                                                   "A setting could not be put into the configuration."};
inline constexpr DtWarningRule streamNotWritten = {"stream-not-written",
                                                   "A standard stream of the program could not be written."};
inline constexpr DtWarningRule templateBlock = {"template-block",
                                                "A loop or condition of a template is malformed or does not end."};
inline constexpr DtWarningRule templateTooDeep = {
    "template-too-deep", "Blocks or files of templates are nested too deep, and the innermost are left out."};
inline constexpr DtWarningRule tooManySuperclasses = {
    "too-many-superclasses", "A class has more superclasses than can be handled and is put under the root."};
inline constexpr DtWarningRule toolkitName = {
    "toolkit-name", "A datatype gets another name in C++ since the toolkit has a type of its own name."};
inline constexpr DtWarningRule toolkitTypeDiffers = {
    "toolkit-type-differs",
    "A datatype differs from the type of the toolkit that stands for it, and its values are refused."};
inline constexpr DtWarningRule undeterminedType = {"undetermined-type",
                                                   "Nothing tells which type of C++ stands for a datatype."};
inline constexpr DtWarningRule unfitDiscriminant = {
    "unfit-discriminant", "The discriminant of a variant record is neither a number nor an enumeration."};
inline constexpr DtWarningRule unfitEnumerator = {
    "unfit-enumerator", "The number of an enumerator does not fit into the representation of its enumeration."};
inline constexpr DtWarningRule unknownByteOrder = {
    "unknown-byte-order",
    "The byte order of a basic data representation is neither Big nor Little and is taken for Big."};
inline constexpr DtWarningRule unknownCardinality = {
    "unknown-cardinality", "The cardinality of an array or a member is of a kind that has no encoding."};
inline constexpr DtWarningRule unreadableCommandFile = {"unreadable-command-file", "A command file cannot be opened."};
inline constexpr DtWarningRule unreadableModel = {"unreadable-model", "A model file cannot be read."};
inline constexpr DtWarningRule wrongCommandLine = {"wrong-command-line",
                                                   "The command line has an unknown option or a wrong value."};
inline constexpr DtWarningRule wrongRoot = {
    "wrong-root", "The class at the top of a hierarchy does not have the name of a root class."};

// All of them, in the order of their ids.
const std::vector<const DtWarningRule*>& all();
} // namespace DtRules

#endif
