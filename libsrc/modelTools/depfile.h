#ifndef MODEL_TOOLS_DEPFILE_H
#define MODEL_TOOLS_DEPFILE_H

#include <set>
#include <string>

// The text of a dependency file in the syntax of make, as Ninja and make read it: the target depends on each of the
// files. Blanks, "#" and "$" in names are escaped.
std::string DtDepfileText(const std::string& target, const std::set<std::string>& files);

#endif
