#ifndef MODEL_TOOLS_DEPFILE_H
#define MODEL_TOOLS_DEPFILE_H

#include <set>
#include <string>

// The text of a dependency file in the syntax of make, as Ninja and make read it: the target depends on each of the
// files. Blanks, "#", ":", "|" and "$" in names are escaped, and so are backslashes ahead of the first four of them and
// at the end of a name.
//
// Each file is a target of its own, too, so that one that has been renamed or removed starts a run and does not end
// make.
//
// Where the two differ, make's reading counts: Ninja has another spelling for a backslash ahead of "#", ":" or "$", and
// none for tabs and "|", nor for ":" and backslashes at the end. For ";", "=" and parentheses make has none.
std::string DtDepfileText(const std::string& target, const std::set<std::string>& files);

#endif
