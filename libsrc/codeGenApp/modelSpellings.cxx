#include "codeGenApp/modelSpellings.h"

#include "foundation/xmlText.h"

std::vector<DtOmtProject::DtFilePair> DtModelSpellings(const DtOmtProject::DtFilePair& model)
{
    const auto& [name, directory] = model;
    return {
        model,
        {DtLatin1Text(name), directory              },
        {name,               DtLatin1Text(directory)},
        {DtLatin1Text(name), DtLatin1Text(directory)}
    };
}
