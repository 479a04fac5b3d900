#ifndef CODE_GEN_APP_CLASS_SELECTION_H
#define CODE_GEN_APP_CLASS_SELECTION_H

#include "foundation/string.h"

#include <functional>

class DtOMTTree;
class DtOmtProject;

// Says of a class, by its full name, whether it is wanted.
using DtIsClassWanted = std::function<bool(const DtString& fullName)>;

// Records the wanted classes of a model in the project, each with its superclasses ahead of it, in the order in which
// the window's "add all" does: objects, then interactions, each class ahead of its subclasses. The names that a project
// numbers depend on this order. The root classes are no part of a selection.
void DtSelectClasses(const DtOMTTree& tree, DtOmtProject& project, const DtIsClassWanted& isWanted);

// All classes of the model, as "add all" selects them.
void DtSelectAllClasses(const DtOMTTree& tree, DtOmtProject& project);

#endif
