#ifndef MODEL_TOOLS_TOOL_RULES_H
#define MODEL_TOOLS_TOOL_RULES_H

#include "foundation/warningRules.h"

#include <vector>

// The rules of what the tools find themselves, beside those by which the libraries warn: in the output, in its
// directory, and in templates and command files.
namespace DtToolRules
{
inline constexpr DtWarningRule editedByHand = {
    "edited-by-hand", "A file of the output directory is not what the last run has made there."};
inline constexpr DtWarningRule includeDirectory = {
    "include-directory", "The directory of the headers has characters that the generated makefile cannot carry."};
inline constexpr DtWarningRule manifestDamaged = {
    "manifest-damaged", "The list of the last run's files cannot be trusted, so none of them is removed."};
inline constexpr DtWarningRule missingClass = {"missing-class", "A project selects a class that the models have not."};
inline constexpr DtWarningRule outputCheck = {
    "output-check",
    "A file that was made is empty or unfinished, is in no list or lies where none may, or one is missing."};
inline constexpr DtWarningRule recovery = {
    "recovery", "An earlier run was cut off in the output directory, and something is left of it."};
inline constexpr DtWarningRule scriptReplacesOutput = {
    "script-replaces-output", "A script makes a file that another script of the same run has made otherwise."};
inline constexpr DtWarningRule scriptWithoutOutput = {
    "script-without-output", "A script has made no file, or only files that another script makes too."};
inline constexpr DtWarningRule templateBar = {"template-bar",
                                              "A bar stands where it is plain text and stays in the output."};
inline constexpr DtWarningRule templateCarriageReturn = {
    "template-carriage-return", "Lines of a template end with carriage returns, which come out."};
inline constexpr DtWarningRule templateCommand = {
    "template-command", "A line of a command file is no command, or has too few or too many words."};
inline constexpr DtWarningRule templateCondition = {
    "template-condition", "A condition of a template has an unknown verb, wrong operands or no effect."};
inline constexpr DtWarningRule templateCycle = {"template-cycle",
                                                "A template or command file reaches itself through what it includes."};
inline constexpr DtWarningRule templateFile = {"template-file",
                                               "A file that a template or command file names is not there."};
inline constexpr DtWarningRule templateLineLength = {
    "template-line-length", "A line of a template or command file is longer than what is read as one."};
inline constexpr DtWarningRule templateLoop = {
    "template-loop", "A loop of a template is unknown, stands inside itself or outside of the one it belongs in."};
inline constexpr DtWarningRule templateToken = {"template-token",
                                                "A token of a template is unknown and comes out as it stands."};
inline constexpr DtWarningRule templateTokenPlace = {"template-token-place",
                                                     "A token of a template stands outside of the loop that fills it."};
inline constexpr DtWarningRule templateUnopened = {"template-unopened", "Nothing opens a template."};
inline constexpr DtWarningRule unknownDatatype = {
    "unknown-datatype", "A member has a datatype that neither the models nor the toolkit have."};

// All that can be told, those of the libraries among them, in the order of their ids.
const std::vector<const DtWarningRule*>& all();
} // namespace DtToolRules

#endif
