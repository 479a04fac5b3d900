#ifndef MODEL_TOOLS_MODEL_LIST_H
#define MODEL_TOOLS_MODEL_LIST_H

#include "modelTools/diagnostics.h"
#include "modelTools/modelGeneration.h"

#include <iosfwd>
#include <set>

enum class DtListFormat
{
    Text,
    Json
};

struct DtListOptions
{
    DtGenerationRequest request; // models and selection; the rest of it does not matter
    // What is listed; all of it when none is asked for.
    bool listsObjects = false;
    bool listsInteractions = false;
    bool listsDatatypes = false;
    bool isTree = false; // of texts: short names below those of their superclasses, datatypes below their families
    DtListFormat format = DtListFormat::Text;
    bool isQuiet = false; // warnings of the model are not told
};

// Names what models hold: the classes that a generation with the same request would take, ahead of their subclasses and
// in the order of the model, and all datatypes. As text a class is one line with its full name, a datatype one line
// with its name, a tab and its family. JSON has the members and their datatypes too.
class DtModelList
{
public:
    explicit DtModelList(const DtListOptions& options);

    // Writes the list to `out` and the warnings of the model to `err`. Throws DtToolFailure.
    void run(std::ostream& out, std::ostream& err);

private:
    void load();
    void noteSelection();
    void tell(DtDiagnostics& diagnostics, std::ostream& err) const;
    void writeText(std::ostream& out) const;
    void writeJson(std::ostream& out) const;
    bool isSelected(const DtString& fullName) const { return mySelected.count(fullName) > 0; }

    DtListOptions myOptions;
    DtModelGeneration myGeneration;
    std::set<DtString> mySelected; // full names of classes
};

#endif
