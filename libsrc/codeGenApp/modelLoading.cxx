#include "codeGenApp/modelLoading.h"

#include "fileGenerator/omtEnvReader.h"
#include "foundation/stringUtils.h"
#include "omtReader/fedReader.h"

namespace
{
DtFomType typeOf(const DtFilename& file)
{
    return DtFedReader::checkFomType(file, DtFedReader::openFedFile(file, false), false);
}

DtString mimName(DtFomType type)
{
    return DtFedReader::standardMimFileName(type);
}
} // namespace

void DtAddMimIfMissing(std::vector<DtFilename>& files)
{
    DtFomType firstType = DtFomUnknown;
    for (const DtFilename& file : files)
    {
        const DtFomType type = typeOf(file);
        const bool isMimName = DtContainsSubstring(file, mimName(type)) && !file.exists();
        if (isMimName || (type != DtFomUnknown && DtContainsSubstring(file, mimName(type))))
            return;
        if (firstType == DtFomUnknown)
            firstType = type;
    }
    files.emplace_back(mimName(firstType == DtFomUnknown ? DtFomEvolved : firstType));
}

DtLoadedModel DtLoadModel(const std::vector<DtFilename>& files, bool includeMim)
{
    DtLoadedModel model;
    if (files.empty())
        return model;
    model.files = files;
    model.type = typeOf(files.front());
    DtOMTEnvReader reader;
    bool ok = false;
    DtOMTTree* tree = nullptr;
    if (files.size() == 1)
    {
        if (includeMim && model.type >= DtFomEvolved)
            model.files.insert(model.files.begin(), mimName(model.type));
        tree = reader.readMultipleFiles(model.files, ok, model.type);
    }
    else
    {
        if (includeMim)
            DtAddMimIfMissing(model.files);
        // The reader of several files asks for the extension of the first one, which of modules may also be "fdd".
        const bool isXml = files.front().extension() == "xml";
        tree = isXml ? reader.readFiles(model.files, ok) : reader.readMultipleFiles(model.files, ok, model.type);
    }
    model.tree.reset(tree);
    return model;
}
